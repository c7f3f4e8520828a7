// The program at the scale of its formats: tens of thousands of records a
// file, full decks, full spreads. Each figure is the median of several runs
// and stands beside a baseline measured in the same run on the same files:
// one sequential read of the file into a buffer, or one plain copy of it.
// These are what the machine cannot beat, so the ratio says how much the
// program adds.
//
//   QT_QPA_PLATFORM=offscreen build/bench/bench_scale [runs [section]]
//
// Sections: memory, startup, cards, ids, locations, lists, shuffle, packages, printing.
//
// The data is made in a temporary program folder and removed afterwards.
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "BenchSupport.h"
#include "core/decks/DeckStore.h"
#include "core/platform/BinaryFile.h"
#include "core/platform/FileSys.h"
#include "core/platform/ProgramLock.h"
#include "core/platform/Rnd.h"
#include "core/readings/EntryStore.h"
#include "core/records/RecordFile.h"
#include "core/records/Records.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/packages/PackageSummary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/QtPrinter.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/readings/frmReadingCards.h"
#include "screens/readings/frmSelectSpread.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"

using namespace Bench;

namespace {

QString Only;  // run only the sections whose name holds this

bool Want(const char* section) { return Only.isEmpty() || QString::fromLatin1(section).contains(Only); }

void RowAbsolute(const char* operation, double value, const char* unit, double goal, bool atMost) {
    const bool met = atMost ? value <= goal : value >= goal;
    std::printf("%-68s %9.2f %s | goal %s %.0f %s %s\n", operation, value, unit, atMost ? "under" : "at least", goal,
                unit, met ? "met" : "MISSED");
}

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

// ---- Making the data ---------------------------------------------------------------------------

// decks decks of cardsEach cards with full texts and reversed sides, ids 1..decks
// with every tenth id left out (gaps as deletions leave them).
void MakeDecks(int decks, int cardsEach) {
    Writer<DeckRecord> deckFile(TheRun.Paths.DecksPath);
    Writer<CardRecord> cardFile(TheRun.Paths.CardsPath);
    const QString text = QString(1400, QLatin1Char('x'));
    Integer id = 0;
    for (int d = 1; d <= decks; ++d) {
        if (++id % 10 == 0) ++id;
        DeckRecord deck = ZeroRecord<DeckRecord>();
        deck.DeckName = QStringLiteral("Deck %1").arg(d);
        deck.DeckId = id;
        deck.CardCount = static_cast<Integer>(cardsEach);
        deck.DeckRevision = 1;
        deck.CardTypeName[0] = QStringLiteral("Major Arcana");
        deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
        deck.CardTypeUsed = {True16, True16, False16, False16};
        deckFile.Add(deck);
        for (int c = 1; c <= cardsEach; ++c) {
            CardRecord card = ZeroRecord<CardRecord>();
            card.CardType = c <= 22 ? 0 : 1;
            card.CardTitle = QStringLiteral("Card %1").arg(c);
            for (int side = 0; side < 2; ++side) {
                card.CardDescription[side] = text;
                card.CardKeywords[side] = text.left(900);
                card.CardPicture[side] = DefaultPictureName;
            }
            card.CardDeckId = id;
            cardFile.Add(card);
        }
    }
    deckFile.Done();
    cardFile.Done();
}

// spreads spreads of locationsEach locations, every spread open to any deck
// or tied to the deck of its own number.
void MakeSpreads(int spreads, int locationsEach, bool anyDeck) {
    Writer<SpreadRecord> spreadFile(TheRun.Paths.SpreadsPath);
    Writer<LocationRecord> locationFile(TheRun.Paths.LocationsPath);
    Integer id = 0;
    for (int s = 1; s <= spreads; ++s) {
        if (++id % 10 == 0) ++id;
        SpreadRecord spread = ZeroRecord<SpreadRecord>();
        spread.SpreadName = QStringLiteral("Spread %1").arg(s);
        spread.SpreadTitle = spread.SpreadName.Trimmed();
        spread.SpreadId = id;
        spread.LocationCount = static_cast<Integer>(locationsEach);
        spread.SpreadRevision = 1;
        spread.AllowedDeckId.fill(-1);
        if (anyDeck) {
            spread.AllowedDeckCount = -1;
        } else {
            spread.AllowedDeckCount = 1;
            spread.AllowedDeckId[0] = static_cast<Integer>(s + s / 9);
        }
        spreadFile.Add(spread);
        for (int l = 1; l <= locationsEach; ++l) {
            LocationRecord location = ZeroRecord<LocationRecord>();
            location.LocationSpreadId = id;
            location.LocationNumber = static_cast<Integer>(l);
            location.LocationTitle = QStringLiteral("Position %1").arg(l);
            location.LocationLeft = static_cast<Integer>(120 + (l % 8) * 1100);
            location.LocationTop = static_cast<Integer>(120 + (l / 8) * 1400);
            locationFile.Add(location);
        }
    }
    spreadFile.Done();
    locationFile.Done();
}

void MakeReadings(int readings) {
    Writer<ReadingRecord> file(TheRun.Paths.ReadingsPath);
    for (int r = 1; r <= readings; ++r) {
        ReadingRecord reading = ZeroRecord<ReadingRecord>();
        reading.ReadingName = QStringLiteral("Reading %1").arg(r);
        reading.SavedOn = 40000 + (r * 37) % 3000;
        file.Add(reading);
    }
    file.Done();
}

// Acts on modal screens as they come up, in order, the way a user answers
// them; polls every 2 ms.
class ModalAnswers {
public:
    ModalAnswers() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (steps_.empty() || !steps_.front().first()) return;
            auto act = std::move(steps_.front().second);
            steps_.pop_front();
            act();
        });
        timer_.start(2);
    }
    template <class T>
    ModalAnswers& On(std::function<void(T&)> act) {
        steps_.emplace_back([] { return IsLoaded<T>() && Get<T>().ShownModal(); }, [act] { act(Get<T>()); });
        return *this;
    }

private:
    std::deque<std::pair<std::function<bool()>, std::function<void()>>> steps_;
    QTimer timer_;
};

// A 78-card deck whose 156 pictures are 200 KB bitmaps in Cards/.
qint64 MakePictureDeck() {
    MakeDecks(1, 78);
    QImage picture(236, 283, QImage::Format_RGB888);
    qint64 bytes = 0;
    std::vector<CardRecord> cards = ReadAllRecords<CardRecord>(TheRun.Paths.CardsPath);
    AtomicFileWriter out(TheRun.Paths.CardsPath + QStringLiteral(".tmp"), TheRun.Paths.CardsPath);
    std::vector<char> raw(CardRecord::Length);
    for (int c = 1; c <= 78; ++c) {
        CardRecord& card = cards[static_cast<std::size_t>(c - 1)];
        for (int side = 0; side < 2; ++side) {
            picture.fill(QColor((c * 37) % 256, (c * 11 + side * 90) % 256, (c * 5) % 256));
            const QString name = (side == 0 ? CardUprightName(c) : CardReversedName(c)) + QStringLiteral(".bmp");
            picture.save(TheRun.Paths.CardsDir + name, "BMP");
            bytes += FileLen(TheRun.Paths.CardsDir + name);
            card.CardPicture[static_cast<std::size_t>(side)] = name;
        }
        EncodeRecord(card, raw.data());
        out.Write(raw.data(), CardRecord::Length);
    }
    out.Commit();
    DeckRecord deck;
    GetRecord(TheRun.Paths.DecksPath, 1, deck);
    deck.IncludesReversed = True16;
    PutRecord(TheRun.Paths.DecksPath, 1, deck);
    return bytes;
}

void Fresh(QTemporaryDir& dir) {
    ResetRun();
    FormPaths(dir.path());
    InitDatabase();
    WriteWholeFile(TheRun.Paths.LocationsPath, QByteArray());
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc > 1) Runs = std::max(1, atoi(argv[1]));
    if (argc > 2) Only = QString::fromLocal8Bit(argv[2]);
    MsgBoxScript::Enable();
    std::printf("%d runs a figure; medians\n", Runs);

    // ---- Memory: a 100-card deck loaded and the reading screen up, before
    // anything large has passed through this process.
    if (Want("memory")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeDecks(1, 100);
        MakeSpreads(1, 32, true);
        GetRecord(TheRun.Paths.DecksPath, 1, TheRun.ListDeck);
        LoadDeckCards();
        const double afterDeck = PeakMegabytes();
        GetRecord(TheRun.Paths.SpreadsPath, 1, TheRun.CurrentSpread);
        LoadSpreadLocations(TheRun.CurrentSpread.SpreadId, TheRun.CurrentSpread.LocationCount);
        ResetReading(TheRun.CurrentReading);
        Get<frmNewReading>().Show();
        app.processEvents();
        RowAbsolute("peak memory, 100-card deck loaded", afterDeck, "MB", 150, true);
        RowAbsolute("peak memory, reading screen shown", PeakMegabytes(), "MB", 150, true);
        UnloadScreen<frmNewReading>();
        app.processEvents();
    }

    // ---- Start-up to the main screen.
    if (Want("startup")) {
        QTemporaryDir empty;
        WriteWholeFile(empty.filePath(QStringLiteral("Location.loc")), QByteArray());
        const double ms = Time([&] {
            MsgBoxScript::Answer(vbNo);
            RunStartup(empty.path());
        });
        RowAbsolute("start-up to the main screen, empty database", ms, "ms", 500, true);
        QTemporaryDir full;
        Fresh(full);
        MakeDecks(1000, 0);
        const double msFull = Time([&] { RunStartup(full.path()); });
        RowAbsolute("start-up to the main screen, 1,000 decks", msFull, "ms", 1000, true);
        MsgBoxScript::Clear();
    }

    // ---- The record store at scale.
    if (Want("cards")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeDecks(320, 100);  // 32,000 cards, about 163 MB
        const double readCards = Time([] { ReadOnce(TheRun.Paths.CardsPath); });
        GetRecord(TheRun.Paths.DecksPath, CountDecks(), TheRun.ListDeck);
        const double load = Time([] { LoadDeckCards(); });
        Row("LoadDeck, last deck of 32,000 cards", load, "read of Cards.crd", readCards, 1.5);

        const QString copyPath = dir.filePath(QStringLiteral("copy.bin"));
        const QString keep = dir.filePath(QStringLiteral("Cards.keep"));
        CopyOnce(TheRun.Paths.CardsPath, keep);
        const double copyCards = Time([&] { CopyOnce(TheRun.Paths.CardsPath, copyPath); });
        DeckRecord middle;
        GetRecord(TheRun.Paths.DecksPath, 160, middle);
        const double del =
            Time([&] { DeleteDeckCards(middle.DeckId); }, [&] { CopyOnce(keep, TheRun.Paths.CardsPath); });
        Row("DeleteDeckCards on 32,000 cards", del, "copy of Cards.crd", copyCards, 2.0);
        // A deck save writes its cards in one replacement of the whole file,
        // prepared beside it and put in place by the save's plan, after a read
        // for cards left under the id it takes. The deck is new, its 100
        // cards on the default picture (a copy each), as the decks here are.
        DeckInMemory hundred;
        hundred.DeckCards.Redim(1, 100);
        for (CardRecord& card : hundred.DeckCards) ResetCard(card);
        hundred.CardCount = 100;
        FileCopy(TheRun.Paths.DefaultPicturePath, TheRun.Paths.TempDir + DefaultPictureName);
        const QString keepDecks = dir.filePath(QStringLiteral("Decks.keep"));
        CopyOnce(TheRun.Paths.DecksPath, keepDecks);
        const double save = Time([&] { SaveDeck(hundred, QStringLiteral("Saved"), -1); },
                                 [&] {
                                     CopyOnce(keep, TheRun.Paths.CardsPath);
                                     CopyOnce(keepDecks, TheRun.Paths.DecksPath);
                                     KillIgnoringErrors(TheRun.Paths.CardsDir + QStringLiteral("CU*"));
                                 });
        Row("100 cards saved after 32,000 cards (deck save)", save, "copy of Cards.crd", copyCards, 2.0);
        Kill(keep);
        Kill(keepDecks);
        Kill(copyPath);
    }
    if (Want("ids")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeDecks(10000, 0);
        MakeSpreads(10000, 0, true);
        const double readDecks = Time([] { ReadOnce(TheRun.Paths.DecksPath); });
        const double readSpreads = Time([] { ReadOnce(TheRun.Paths.SpreadsPath); });
        const QString absent = QStringLiteral("No Such Deck");
        Row("FindDeckByName on 10,000 decks, name absent", Time([&] { FindDeckByName(absent); }), "read of Decks.dck",
            readDecks, 1.5);
        Row("FindDeckIdByName on 10,000 decks, name absent", Time([&] { FindDeckIdByName(absent); }),
            "read of Decks.dck", readDecks, 1.5);
        Row("DeckNameById on 10,000 decks, id absent", Time([] { DeckNameById(32000); }), "read of Decks.dck",
            readDecks, 1.5);
        Row("NextDeckId on 10,000 decks with gaps", Time([] { NextDeckId(); }), "read of Decks.dck", readDecks, 2.0);
        Row("NextSpreadId on 10,000 spreads with gaps", Time([] { NextSpreadId(); }), "read of Spreads.spr",
            readSpreads, 2.0);
    }
    if (Want("locations")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeSpreads(1000, 32, true);  // 32,000 locations
        const QString keep = dir.filePath(QStringLiteral("Location.keep"));
        CopyOnce(TheRun.Paths.LocationsPath, keep);
        const double copyLocations =
            Time([&] { CopyOnce(TheRun.Paths.LocationsPath, dir.filePath(QStringLiteral("copy.bin"))); });
        SpreadRecord middle;
        GetRecord(TheRun.Paths.SpreadsPath, 500, middle);
        LoadSpreadLocations(middle.SpreadId, 32);
        const double replace = Time([&] { ReplaceSpreadLocations(middle.SpreadId, 32); },
                                    [&] { CopyOnce(keep, TheRun.Paths.LocationsPath); });
        Row("ReplaceSpreadLocations on 32,000 locations", replace, "copy of Location.loc", copyLocations, 2.0);
    }

    // ---- Screens over full files.
    if (Want("lists")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeReadings(5000);
        const double list = Time([&] {
            Get<frmOpenReading>();
            UnloadScreen<frmOpenReading>();
        });
        RowAbsolute("frmOpenReading listing 5,000 saved readings", list, "ms", 300, true);
        const QString copyPath = dir.filePath(QStringLiteral("copy.bin"));
        const double copyReadings = Time([&] { CopyOnce(TheRun.Paths.ReadingsPath, copyPath); });
        const ReadingRecord reading = ZeroRecord<ReadingRecord>();
        Row("a reading saved over one of 5,000",
            Time([&] { SaveEntry(reading, QStringLiteral("Reading 2500"), 2500, TheRun.CardTypeSelected); }),
            "copy of Readings.red", copyReadings, 2.0);
    }
    if (Want("lists")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeDecks(200, 78);
        MakeSpreads(200, 10, false);
        const double open = Time([&] {
            Get<frmSelectSpread>();
            UnloadScreen<frmSelectSpread>();
        });
        RowAbsolute("frmSelectSpread, 200 spreads, 200 decks of 78 cards", open, "ms", 1000, true);
    }

    // ---- The shuffle animation: moves a second, and the longest wait of a
    // timer that should fire every 10 ms while it runs.
    if (Want("shuffle")) {
        QTemporaryDir dir;
        Fresh(dir);
        TheRun.CurrentDeck.CardCount = 100;
        TheRun.CurrentDeck.DeckCards.Redim(1, 100);
        for (int c = 1; c <= 100; ++c) TheRun.CurrentDeck.DeckCards(c).CardType = 0;
        TheRun.CardTypeSelected = {true, false, false, false};
        ResetReading(TheRun.CurrentReading);
        Get<frmNewReading>();
        TheRun.ReadingDeal.DeckCardsLeft = 100;
        frmReadingCards& table = Get<frmReadingCards>();
        long moves = 0;
        struct Counter : QObject {
            long* moves;
            bool eventFilter(QObject* watched, QEvent* e) override {
                if (e->type() == QEvent::Move && watched->objectName() == QLatin1String("picCard")) ++*moves;
                return false;
            }
        } counter;
        counter.moves = &moves;
        app.installEventFilter(&counter);
        QElapsedTimer sinceTick;
        qint64 longestWait = 0;
        QTimer tick;
        tick.setInterval(10);
        QObject::connect(&tick, &QTimer::timeout, [&] { longestWait = std::max(longestWait, sinceTick.restart()); });
        QTimer::singleShot(3000, [&] { table.StopShuffle(); });
        QElapsedTimer clock;
        clock.start();
        sinceTick.start();
        tick.start();
        table.FakeShuffle();
        const double seconds = clock.nsecsElapsed() / 1e9;
        tick.stop();
        app.removeEventFilter(&counter);
        RowAbsolute("shuffle animation, card moves a second", (moves - 100) / seconds, "moves/s", 2000, false);
        RowAbsolute("shuffle animation, longest wait of a 10 ms timer", double(longestWait), "ms", 50, true);
        UnloadScreen<frmReadingCards>();
        UnloadScreen<frmNewReading>();
    }

    // ---- A package of a 78-card deck with 156 pictures of 200 KB: made on
    // the creation screen, installed on the installation screen of another
    // program folder; against one plain copy of the same bytes.
    if (Want("packages")) {
        QTemporaryDir from;
        Fresh(from);
        MsgBoxScript::Answer(vbNo);
        RunStartup(from.path());
        const qint64 pictureBytes = MakePictureDeck();
        const QString sameBytes = from.filePath(QStringLiteral("same.bin"));
        {
            QByteArray all;
            for (const QString& name : Dir(TheRun.Paths.CardsDir + QStringLiteral("C?0*.bmp")))
                all += ReadWholeFile(TheRun.Paths.CardsDir + name);
            WriteWholeFile(sameBytes, all);
        }
        const double copyMs = Time([&] { CopyOnce(sameBytes, from.filePath(QStringLiteral("copy.bin"))); });
        QString package;
        const double createMs = Time([&] {
            ModalAnswers answers;
            answers.On<frmCreatePackageSummary>([](frmCreatePackageSummary& s) { s.cmdCancel->click(); });
            Get<frmMainScreen>().lblButton_Click(8);
            frmCreatePackage& create = Get<frmCreatePackage>();
            package = TheRun.Paths.PackagesDir + create.txtFilename->text();
            create.lstAvailableDecks->item(0)->setCheckState(Qt::Checked);
            create.cmdCreate->click();
        });
        std::printf("(%lld bytes of pictures, package of %lld bytes)\n", static_cast<long long>(pictureBytes),
                    static_cast<long long>(FileLen(package)));
        Row("package creation, 78 cards, 156 pictures of 200 KB", createMs, "copy of the same bytes", copyMs, 3.0);

        std::vector<std::unique_ptr<QTemporaryDir>> targets;
        const double installMs = Time(
            [&] {
                ModalAnswers answers;
                answers.On<frmPackageSummary>([](frmPackageSummary& s) { s.cmdCancel->click(); });
                Get<frmMainScreen>().lblButton_Click(7);
                frmInstallPackage& install = Get<frmInstallPackage>();
                install.filSelection->setListIndex(0);
                install.cmdInstall->click();
            },
            [&] {
                targets.push_back(std::make_unique<QTemporaryDir>());
                Fresh(*targets.back());
                MsgBoxScript::Answer(vbNo);
                RunStartup(targets.back()->path());
                FileCopy(package, TheRun.Paths.PackagesDir + QStringLiteral("Starter.pck"));
            });
        RowAbsolute("package installation: decks installed", CountDecks(), "", 1, false);
        Row("package installation, 78 cards, 156 pictures of 200 KB", installMs, "copy of the same bytes", copyMs, 3.0);
        MsgBoxScript::Clear();
    }

    // ---- Printing a full 32-location reading with full texts to a PDF file.
    if (Want("printing")) {
        QTemporaryDir dir;
        Fresh(dir);
        MakeDecks(1, 78);
        MakeSpreads(1, 32, true);
        MsgBoxScript::Answer(vbNo);
        RunStartup(dir.path());
        {
            ModalAnswers answers;
            answers.On<frmSelectSpread>([](frmSelectSpread& s) { s.cmdSelect->click(); });
            Get<frmMainScreen>().lblButton_Click(1);
        }
        PrinterDialogScript::Enable();
        frmNewReading& reading = Get<frmNewReading>();
        reading.cmdContinue->click();
        reading.cmdAllCards->click();
        TheRun.CurrentReading.ReadingNotes = QString(1500, QLatin1Char('n'));
        const QString pdf = dir.filePath(QStringLiteral("reading.pdf"));
        const double printMs = Time([&] {
            PrinterDialogScript::PrintToPdf(pdf);
            reading.cmdPrint->click();
        });
        std::printf("(PDF of %lld bytes)\n", static_cast<long long>(FileLen(pdf)));
        RowAbsolute("printing a 32-location reading with full texts to PDF", printMs, "ms", 2000, true);
        MsgBoxScript::Clear();
    }
    ReleaseProgramLock();
    return 0;
}
