// Every operation that writes record files, with a fault at each of its write
// steps in turn: a failing write, a disk that fills in the middle of a write,
// and (in a child process) a kill at that step. Afterwards the program starts,
// and then every record file is a whole number of records, holds every record
// that both the file before and the file after a clean run hold, holds
// nothing that is in neither; every deck and spread is whole as the state it
// came from left it (its cards or locations, the bytes of every file they
// name), and a design that both states list by name is listed.
#include <QFile>
#include <QSet>
#include <functional>
#include <map>
#include <memory>

#include "core/decks/DeckStore.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/Errors.h"
#include "core/platform/ProgramLock.h"
#include "core/platform/WriteFaults.h"
#include "core/readings/EntryStore.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/Startup.h"
#include "support/Fixtures.h"
#include "support/InstallAnswers.h"
#include "support/ScreenTest.h"

using WriteFaults::Fault;
Q_DECLARE_METATYPE(Fault)

namespace {

struct RecordFileKind {
    const QString* path;
    int length;
};

const RecordFileKind kFiles[] = {
    {&TheRun.Paths.DecksPath, DeckRecord::Length},       {&TheRun.Paths.CardsPath, CardRecord::Length},
    {&TheRun.Paths.SpreadsPath, SpreadRecord::Length},   {&TheRun.Paths.LocationsPath, LocationRecord::Length},
    {&TheRun.Paths.ReadingsPath, ReadingRecord::Length}, {&TheRun.Paths.DiaryPath, DiaryRecord::Length}};

using Snapshot = std::map<QString, QByteArray>;  // file name ("Cards/" name) -> bytes

Snapshot Snap() {
    Snapshot s;
    for (const RecordFileKind& f : kFiles)
        s[FileNameOf(*f.path)] = FileExists(*f.path) ? ReadWholeFile(*f.path) : QByteArray();
    for (const QString& name : Dir(TheRun.Paths.CardsDir + QStringLiteral("*")))
        s[QStringLiteral("Cards/") + name] = ReadWholeFile(TheRun.Paths.CardsDir + name);
    return s;
}

QList<QByteArray> Split(const QByteArray& bytes, int length) {
    QList<QByteArray> records;
    for (qsizetype at = 0; at + length <= bytes.size(); at += length) records.append(bytes.mid(at, length));
    return records;
}

QSet<QByteArray> Records(const QByteArray& bytes, int length) {
    const QList<QByteArray> records = Split(bytes, length);
    return QSet<QByteArray>(records.begin(), records.end());
}

template <class R>
R Decoded(const QByteArray& bytes) {
    R r;
    DecodeRecord(bytes.constData(), r);
    return r;
}

// A deck or spread as one state of the folder holds it: its record, its
// cards (as many as it counts) or its locations, and the bytes of every file
// of its own they name (start-up writes the shared default picture anew).
QByteArray DesignAsHeld(const Snapshot& s, const QByteArray& record, bool deck) {
    QByteArray held = record;
    const auto file = [&](const QString& name) {
        const auto it = s.find(QStringLiteral("Cards/") + TrimField(name));
        if (!TrimField(name).isEmpty() && name != DefaultPictureName)
            held += it == s.end() ? QByteArray("(none)") : it->second;
    };
    if (deck) {
        const auto d = Decoded<DeckRecord>(record);
        int taken = 0;
        for (const QByteArray& bytes : Split(s.at(QStringLiteral("Cards.crd")), CardRecord::Length)) {
            const auto card = Decoded<CardRecord>(bytes);
            if (card.CardDeckId != d.DeckId || taken++ >= d.CardCount) continue;
            held += bytes;
            for (const auto& name : card.CardPicture) file(name.Value());
            for (const auto& name : card.CardSound) file(name.Value());
        }
    } else {
        const auto spread = Decoded<SpreadRecord>(record);
        for (const QByteArray& bytes : Split(s.at(QStringLiteral("Location.loc")), LocationRecord::Length))
            if (Decoded<LocationRecord>(bytes).LocationSpreadId == spread.SpreadId) held += bytes;
        file(spread.BackgroundFile.Value());
    }
    return held;
}

QString NameOf(const QByteArray& record, bool deck) {
    return deck ? Decoded<DeckRecord>(record).DeckName.Trimmed() : Decoded<SpreadRecord>(record).SpreadName.Trimmed();
}

using Fixtures::NamedDiary;
using Fixtures::NamedReading;

// Two decks, two spreads, three readings, two diary entries; and a package
// of one deck and one spread staged in Temp/ as its creation stages it, as an
// extraction leaves it, the spread then taken out of the folder's own
// designs and the deck left for the package to overwrite.
void MakeFixture(const QString& dir) {
    Fixtures::UseProgramDir(dir);
    const Integer deckA = Fixtures::MakeDeck(QStringLiteral("Deck A"), 3, true);
    Fixtures::MakeDeck(QStringLiteral("Deck B"), 2, false);
    Fixtures::MakeSpread(QStringLiteral("Spread A"), 3, {deckA});
    Fixtures::MakeSpread(QStringLiteral("Spread B"), 2, {}, true);
    ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1,
                               [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
    Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000001.bmp"));
    for (const char* name : {"First", "Second", "Third"})
        AppendRecord(TheRun.Paths.ReadingsPath, NamedReading(QLatin1String(name)));
    for (const char* name : {"Monday", "Tuesday"})
        AppendRecord(TheRun.Paths.DiaryPath, NamedDiary(QLatin1String(name)));

    const Integer packed = Fixtures::MakeDeck(QStringLiteral("Packed"), 2, true);
    Fixtures::MakeSpread(QStringLiteral("Packed spread"), 2, {packed});
    PackageStaging staging;
    staging.DeckNames = {QStringLiteral("Packed")};
    staging.SpreadNames = {QStringLiteral("Packed spread")};
    staging.StageAll();
    DeleteSpread(CountSpreads());
}

// Puts a deck in the designer's place, pictures in Temp/, as the save screen
// finds it.
void OpenDeckForSaving(int record) {
    GetRecord(TheRun.Paths.DecksPath, record, TheRun.ListDeck);
    LoadDeckCards();
    for (const CardRecord& card : TheRun.CurrentDeck.DeckCards)
        for (const auto& picture : card.CardPicture)
            if (!FileExists(TheRun.Paths.TempDir + picture.Value()))
                FileCopy(TheRun.Paths.CardsDir + picture.Value(), TheRun.Paths.TempDir + picture.Value());
}

// Spread A as the designer holds it: a location retitled, a new picture in
// Temp/.
SpreadDesign gSpreadA;
void HoldSpreadA() {
    GetRecord(TheRun.Paths.SpreadsPath, 1, gSpreadA.Spread);
    LoadSpreadLocations(gSpreadA.Spread.SpreadId, 3);
    gSpreadA.Locations = TheRun.SpreadLocations;
    gSpreadA.Locations(2).LocationTitle = QStringLiteral("Moved");
    Fixtures::WritePicture(TheRun.Paths.TempDir + QStringLiteral("sprpic.bmp"), Qt::red);
    gSpreadA.Spread.BackgroundFile = QStringLiteral("sprpic.bmp");
}

struct Operation {
    const char* name;
    std::function<void()> prepare;  // untouched by faults
    std::function<void()> run;
};

void SaveDeckAs(const QString& name) {
    const DeckSaveResult saved = SaveDeck(TheRun.CurrentDeck, name, FindDeckByName(name));
    if (saved.Failure) throw *saved.Failure;
}

const QList<Operation>& Operations() {
    static const QList<Operation> all = {
        {"reading saved anew",
         {},
         [] { SaveEntry(NamedReading(QStringLiteral("New")), QStringLiteral("New"), 0, {}); }},
        {"reading saved over", {}, [] { SaveEntry(NamedReading(QString()), QStringLiteral("Second"), 2, {}); }},
        {"diary entry saved over", {}, [] { SaveEntry(NamedDiary(QString()), QStringLiteral("Moonday"), 1, {}); }},
        {"reading deleted", {}, [] { DeleteEntry(EntryKind::Reading, QStringLiteral("Second")); }},
        {"diary entry deleted", {}, [] { DeleteEntry(EntryKind::Diary, QStringLiteral("Tuesday")); }},
        {"spread deleted", {}, [] { DeleteSpreadNamed(QStringLiteral("Spread A")); }},
        // A new background, which takes the name of the old one.
        {"spread saved over", HoldSpreadA, [] { SaveSpread(gSpreadA, QStringLiteral("Spread A"), 1); }},
        {"spread saved as new", HoldSpreadA, [] { SaveSpread(gSpreadA, QStringLiteral("Spread C"), 0); }},
        {"spread tied to any deck",
         [] {
             GetRecord(TheRun.Paths.SpreadsPath, 1, gSpreadA.Spread);
             gSpreadA.Spread.AllowedDeckCount = -1;
         },
         [] { SaveSpreadDecks(gSpreadA.Spread); }},
        {"deck deleted and untied from its spread", {}, [] { RemoveDeck(1); }},
        // Deck B's record gone, its cards left: the new deck takes its id.
        {"deck saved as new over left-over cards",
         [] {
             WriteWholeFile(TheRun.Paths.DecksPath, ReadWholeFile(TheRun.Paths.DecksPath).left(DeckRecord::Length));
             OpenDeckForSaving(1);
         },
         [] { SaveDeckAs(QStringLiteral("Deck C")); }},
        // Deck B over deck A: its pictures take the names of A's.
        {"deck saved over another", [] { OpenDeckForSaving(2); }, [] { SaveDeckAs(QStringLiteral("Deck A")); }},
        {"package installed",
         {},
         [] {
             InstallAnswers answers;
             answers.Chosen = {QStringLiteral("Packed")};
             answers.Exists = DesignExistsOverwriteAll;
             PackageInstallation(answers, {}).Install();
         }},
    };
    return all;
}

}  // namespace

class TestWriteFaults : public QObject {
    Q_OBJECT
    int injected_ = 0;

    // Runs an operation on the fixture; a fault reaches here as an error.
    void Run(const Operation& op, Fault fault, int step) {
        if (op.prepare) op.prepare();
        WriteFaults::Arm(fault, step);
        try {
            op.run();
        } catch (const RuntimeError&) {
        }
        WriteFaults::Disarm();
    }

    // The process killed at a step, half-way through a write where the step
    // is one.
    void RunKilled(const Operation& op, int step) {
        if (op.prepare) op.prepare();
        QVERIFY2(Fixtures::KilledAt(step, op.run), "the process outlived its kill");
    }

    // The number of write steps of an operation, leaving its result in place.
    int CleanRun(const Operation& op) {
        clean_ = std::make_unique<QTemporaryDir>();
        MakeFixture(clean_->path());
        Run(op, Fault::None, 0);
        return WriteFaults::Steps();
    }
    std::unique_ptr<QTemporaryDir> clean_;

    // The state after a fault and a start, against the files before and after
    // a clean run.
    void Check(const QString& dir, const Snapshot& before, const Snapshot& after, const QString& what) {
        MsgBoxScript::Clear();
        QVERIFY2(RunStartup(dir), qPrintable(what));
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        for (const QString& left :
             {TheRun.Paths.AppPath + QStringLiteral("*.new"), TheRun.Paths.CardsDir + QStringLiteral("*.staged"),
              TheRun.Paths.AppPath + QStringLiteral("Cartomar.commit")})
            QVERIFY2(!AnyFileMatches(left), qPrintable(what + QStringLiteral(": left ") + left));
        const Snapshot now = Snap();
        for (const RecordFileKind& f : kFiles) {
            const QString name = FileNameOf(*f.path);
            const QByteArray& bytes = now.at(name);
            QVERIFY2(bytes.size() % f.length == 0, qPrintable(what + QStringLiteral(": torn ") + name));
            const QSet<QByteArray> old = Records(before.at(name), f.length);
            const QSet<QByteArray> done = Records(after.at(name), f.length);
            const QSet<QByteArray> found = Records(bytes, f.length);
            QVERIFY2((QSet<QByteArray>(old).intersect(done) - found).isEmpty(),
                     qPrintable(what + QStringLiteral(": lost a record of ") + name));
            QVERIFY2((found - old - done).isEmpty(), qPrintable(what + QStringLiteral(": stray record in ") + name));
        }
        for (const bool deck : {true, false}) {
            const QString file = deck ? QStringLiteral("Decks.dck") : QStringLiteral("Spreads.spr");
            const int length = deck ? DeckRecord::Length : SpreadRecord::Length;
            const QSet<QByteArray> old = Records(before.at(file), length);
            QSet<QString> names, listed;
            for (const QByteArray& r : Split(before.at(file), length)) names << NameOf(r, deck);
            for (const QByteArray& r : Split(after.at(file), length)) listed << NameOf(r, deck);
            names.intersect(listed);
            listed.clear();
            for (const QByteArray& r : Split(now.at(file), length)) {
                listed << NameOf(r, deck);
                QVERIFY2(DesignAsHeld(now, r, deck) == DesignAsHeld(old.contains(r) ? before : after, r, deck),
                         qPrintable(what + QStringLiteral(": not whole: ") + NameOf(r, deck)));
            }
            QVERIFY2((names - listed).isEmpty(), qPrintable(what + QStringLiteral(": neither old nor new in ") + file));
        }
        ++injected_;
    }

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        WriteFaults::SetSyncs(false);  // throwaway folders; a kill loses no unsynced write
    }

    void cleanupTestCase() {
        qInfo("write faults injected and survived: %d", injected_);
        ReleaseProgramLock();
    }

    void everyWriteStepSurvivesAFault_data() {
        QTest::addColumn<int>("operation");
        QTest::addColumn<Fault>("fault");
        for (int i = 0; i < Operations().size(); ++i) {
            QTest::addRow("%s, write failing", Operations()[i].name) << i << Fault::Fail;
            QTest::addRow("%s, disk filling", Operations()[i].name) << i << Fault::DiskFull;
            QTest::addRow("%s, process killed", Operations()[i].name) << i << Fault::Kill;
        }
    }

    void everyWriteStepSurvivesAFault() {
        QFETCH(int, operation);
        QFETCH(Fault, fault);
        const Operation& op = Operations()[operation];
        const int steps = CleanRun(op);
        const Snapshot after = Snap();
        QVERIFY(steps >= 3);
        for (int step = 1; step <= steps; ++step) {
            QTemporaryDir dir;
            MakeFixture(dir.path());
            const Snapshot before = Snap();
            if (fault == Fault::Kill) RunKilled(op, step);
            else Run(op, fault, step);
            Check(dir.path(), before, after, QStringLiteral("fault at step %1").arg(step));
            if (QTest::currentTestFailed()) return;
        }
    }
};

QTEST_MAIN(TestWriteFaults)
#include "tst_writefaults.moc"
