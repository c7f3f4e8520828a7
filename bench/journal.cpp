// The journal at the scale of a long practice: 5,000 saved readings and
// 5,000 diary entries over ten years, on ten full decks and ten spreads.
// Each figure is the median of several runs beside a baseline measured in
// the same run on the same files: one sequential read of both entry files.
//
//   QT_QPA_PLATFORM=offscreen build/bench/bench_journal [runs]
//
// The data is made in a temporary program folder and removed afterwards.
#include <fcntl.h>
#include <unistd.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "BenchSupport.h"
#include "core/journal/Journal.h"
#include "core/platform/BinaryFile.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/journal/frmJournal.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/Startup.h"

using namespace Bench;

namespace {

void RowAbsolute(const char* operation, double value, double goal) {
    std::printf("%-60s %9.2f ms | goal under %.0f ms %s\n", operation, value, goal, value <= goal ? "met" : "MISSED");
}

void MakeDesigns() {
    Writer<DeckRecord> decks(TheRun.Paths.DecksPath);
    Writer<CardRecord> cards(TheRun.Paths.CardsPath);
    for (Integer id = 1; id <= 10; ++id) {
        DeckRecord deck = ZeroRecord<DeckRecord>();
        deck.DeckName = QStringLiteral("Deck %1").arg(id);
        deck.DeckId = id;
        deck.CardCount = 78;
        deck.DeckRevision = 1;
        deck.CardTypeName[0] = QStringLiteral("Major Arcana");
        deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
        decks.Add(deck);
        for (int c = 1; c <= 78; ++c) {
            CardRecord card = ZeroRecord<CardRecord>();
            card.CardType = c <= 22 ? 0 : 1;
            card.CardTitle = QStringLiteral("Card %1").arg(c);
            card.CardDeckId = id;
            cards.Add(card);
        }
    }
    decks.Done();
    cards.Done();
    Writer<SpreadRecord> spreads(TheRun.Paths.SpreadsPath);
    Writer<LocationRecord> locations(TheRun.Paths.LocationsPath);
    for (Integer id = 1; id <= 10; ++id) {
        SpreadRecord spread = ZeroRecord<SpreadRecord>();
        spread.SpreadName = QStringLiteral("Spread %1").arg(id);
        spread.SpreadId = id;
        spread.LocationCount = 10;
        spread.SpreadRevision = 1;
        spreads.Add(spread);
        for (Integer l = 1; l <= 10; ++l) {
            LocationRecord location = ZeroRecord<LocationRecord>();
            location.LocationSpreadId = id;
            location.LocationNumber = l;
            location.LocationTitle = QStringLiteral("Position %1").arg(l);
            locations.Add(location);
        }
    }
    spreads.Done();
    locations.Done();
}

// Entries of ten dealt locations, notes of a few hundred characters.
template <class R, class N, class T>
void MakeEntries(const QString& path, N R::*name, T R::*notes, const QString& prefix) {
    Writer<R> file(path);
    const QString note =
        QStringLiteral("The cards spoke of a move and of work; talk it over with the family. ").repeated(4);
    for (int e = 1; e <= 5000; ++e) {
        R r = ZeroRecord<R>();
        r.*name = prefix + QString::number(e);
        r.Issue = QStringLiteral("Question %1 about the move").arg(e);
        r.*notes = note;
        r.SavedOn = 42000 + (e * 37) % 3650;
        r.ReadingDeckId = static_cast<Integer>(1 + e % 10);
        r.ReadingDeckRevision = 1;
        r.ReadingSpreadId = static_cast<Integer>(1 + e % 10);
        r.ReadingSpreadRevision = 1;
        r.DealtUpright.fill(-1);
        for (int l = 0; l < 10; ++l) {
            r.DealtCard[static_cast<std::size_t>(l)] = static_cast<Integer>(1 + (e * 7 + l * 13) % 78);
            r.DealtUpright[static_cast<std::size_t>(l)] = (e + l) % 3 == 0 ? 0 : -1;
        }
        file.Add(r);
    }
    file.Done();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc > 1) Runs = std::max(1, atoi(argv[1]));
    MsgBoxScript::Enable();
    std::printf("%d runs a figure; medians\n", Runs);

    QTemporaryDir dir;
    ResetRun();
    FormPaths(dir.path());
    InitDatabase();
    MakeDesigns();
    MakeEntries(TheRun.Paths.ReadingsPath, &ReadingRecord::ReadingName, &ReadingRecord::ReadingNotes,
                QStringLiteral("Reading "));
    MakeEntries(TheRun.Paths.DiaryPath, &DiaryRecord::DiaryName, &DiaryRecord::DiaryNotes, QStringLiteral("Diary "));

    const double read = Time([] {
        ReadOnce(TheRun.Paths.ReadingsPath);
        ReadOnce(TheRun.Paths.DiaryPath);
    });
    const JournalCatalogue catalogue = LoadJournalCatalogue();
    JournalQuery query;
    query.Words = QStringLiteral("move family");
    // The screen reads both files once when it opens; every search as the
    // user types then runs over what it read.
    Journal journal;
    const double load = Time([&] { journal = ReadJournal(catalogue); });
    const double search = Time([&] {
        const std::vector<int> selected = SearchJournal(journal, query);
        TallyJournal(journal, selected, catalogue, query);
        TallyLocations(journal, selected, catalogue, catalogue.Spreads.front().Id, 3);
    });
    Row("search with all statistics, 10,000 entries", search, "read of both files", read, 2.0);
    // The longest a keystroke can take: a word in no entry, starting as many
    // words of the notes do, is looked for through every entry's whole text.
    JournalQuery nowhere;
    nowhere.Words = QStringLiteral("thereafter");
    const double missing = Time([&] {
        const std::vector<int> selected = SearchJournal(journal, nowhere);
        TallyJournal(journal, selected, catalogue, nowhere);
    });
    Row("search for a word in no entry, 10,000 entries", missing, "read of both files", read, 2.0);
    std::vector<int> selected;
    std::printf("%-60s %9.2f ms\n", "  of which the search", Time([&] { selected = SearchJournal(journal, query); }));
    std::printf("%-60s %9.2f ms\n", "  of which the counts",
                Time([&] { TallyJournal(journal, selected, catalogue, query); }));
    std::printf("%-60s %9.2f ms (part of the first paint)\n", "both files read into the journal when the screen opens",
                load);
    const double catalogueMs = Time([] { LoadJournalCatalogue(); });
    std::printf("%-60s %9.2f ms\n", "the designs read once when the screen opens (10 decks)", catalogueMs);

    const double paint = Time([&] {
        Get<frmJournal>().Show();
        Get<frmJournal>().repaint();
        app.processEvents();
        UnloadScreen<frmJournal>();
        app.processEvents();
    });
    RowAbsolute("journal screen to its first full paint, 10,000 entries", paint, 300);

    // A key typed in Words, to the list drawn anew: the key and the box
    // showing it, the search that the end of the typing pause runs, and the
    // events that follow it, in which the list and everything else the
    // search changed are laid out and painted. Every entry holds both words,
    // so each keystroke shows all 10,000 again.
    frmJournal& screen = Get<frmJournal>();
    screen.Show();
    screen.txtWords->setText(QStringLiteral("move famil"));
    screen.Search();
    app.processEvents();
    bool typed = false;
    const auto keystroke = [&] {
        QKeyEvent key(QEvent::KeyPress, typed ? Qt::Key_Backspace : Qt::Key_Y, Qt::NoModifier,
                      typed ? QString() : QStringLiteral("y"));
        QApplication::sendEvent(screen.txtWords, &key);
        app.processEvents();
        screen.Search();
        app.processEvents();
        typed = !typed;
    };
    const double typing = Time(keystroke);
    // Of which the screen's search: the core's search and statistics, and the
    // list, the tables and the charts given their new rows.
    const double step = Time([&] { screen.Search(); });
    // And the painting alone of the list as it stands, the toolkit's own cost.
    const double paintList = Time([&] { screen.grdResults->viewport()->repaint(); });
    std::printf("%-60s %9d rows\n", "  rows in the list", screen.grdResults->model()->rowCount());
    RowAbsolute("keystroke to the list shown anew, beyond the typing pause", typing, 50);
    Row("  of which the screen's search, 10,000 entries", step, "core search, statistics", search, 2.0);
    std::printf("%-60s %9.2f ms (%.2f x the core's search with all statistics)\n",
                "  of which the list painted (its visible rows)", paintList, paintList / search);
    std::printf("%-60s %9.2f x\n", "keystroke to the list shown anew against the core's search", typing / search);
    QElapsedTimer clock;
    clock.start();
    screen.grdResults->sortByColumn(2, Qt::AscendingOrder);
    const double firstSort = clock.nsecsElapsed() / 1e6;
    std::printf("%-60s %9.2f ms\n", "the list sorted by name (its keys worked out once)", firstSort);
    RowAbsolute("keystroke to the list shown anew, sorted by name", Time(keystroke), 50);
    UnloadScreen<frmJournal>();
    return 0;
}
