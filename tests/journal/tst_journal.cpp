// The journal over a small body of entries whose counts were worked out by
// hand: searches, statistics, CSV, the charts' and the print's texts.
#include <QDirIterator>
#include <QTabWidget>
#include <QTableView>

#include "core/journal/Journal.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/store/DeletePasses.h"
#include "screens/journal/JournalCharts.h"
#include "screens/journal/frmJournal.h"
#include "screens/platform/Application.h"
#include "screens/readings/frmNewReading.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenTest.h"

Q_DECLARE_METATYPE(JournalQuery)
Q_DECLARE_METATYPE(ChartData)

namespace {

struct Dealt {
    int Location;
    Integer Card;
    bool Upright;
};

// Saves an entry dealt on a deck and spread on a day.
template <class R>
void Save(const QString& path, R r, Integer deck, Integer spread, const QDate& day,
          std::initializer_list<Dealt> cards) {
    r.ReadingDeckId = deck;
    r.ReadingDeckRevision = 1;
    r.ReadingSpreadId = spread;
    r.ReadingSpreadRevision = 1;
    r.SavedOn = ToOleDate(day);
    for (const Dealt& d : cards) {
        r.DealtCard[static_cast<std::size_t>(d.Location - 1)] = d.Card;
        r.DealtUpright[static_cast<std::size_t>(d.Location - 1)] = Flag(d.Upright);
    }
    AppendRecord(path, r);
}

// Every file of the program folder and its bytes.
QMap<QString, QByteArray> Snapshot(const QString& dir) {
    QMap<QString, QByteArray> files;
    for (QDirIterator it(dir, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString path = it.next();
        files[path] = ReadWholeFile(path);
    }
    return files;
}

}  // namespace

class TestJournal : public QObject {
    Q_OBJECT
    QTemporaryDir frame_, dir_;
    Integer tarot_ = 0, other_ = 0, gone_ = 0, cross_ = 0, line_ = 0;

    JournalCatalogue catalogue_;
    Journal journal_;

    void Read() {
        catalogue_ = LoadJournalCatalogue();
        journal_ = ReadJournal(catalogue_);
    }
    QStringList Names(const JournalQuery& query) {
        QStringList names;
        for (int i : SearchJournal(journal_, query)) names << journal_.Entries[static_cast<std::size_t>(i)].Name;
        return names;
    }

private slots:
    // Readings: R1 "Move, "north"" and R2 "Work" on Tarot, R3 "Secret" locked,
    // R4 "Bad date". Diary: D1 "Garden" on Tarot, D2 "Old deck" on a deck
    // revised since, D3 "Gone deck" on a removed deck, D4 "Damaged" with a
    // card beyond its deck.
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        InstallPluralForms();
        MsgBoxScript::Enable();
        Fixtures::StandUpFrame(frame_.path());
        Fixtures::UseProgramDir(dir_.path());
        tarot_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), 30, false);
        other_ = Fixtures::MakeDeck(QStringLiteral("Other"), 10, false);
        gone_ = Fixtures::MakeDeck(QStringLiteral("Gone"), 10, false);
        DeleteDeck(3);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [](DeckRecord& d) { d.DeckRevision = 2; });
        cross_ = Fixtures::MakeSpread(QStringLiteral("Cross"), 3, {}, true);
        line_ = Fixtures::MakeSpread(QStringLiteral("Line"), 3, {}, true);

        ReadingRecord r = Fixtures::NamedReading(QStringLiteral("Move, \"north\""));
        r.Issue = QStringLiteral("the move");
        r.ReadingNotes = QStringLiteral("Talk to Anna");
        r.DealtCount = 3;
        Save(TheRun.Paths.ReadingsPath, r, tarot_, cross_, {2024, 1, 15}, {{1, 1, true}, {2, 23, false}, {3, 5, true}});
        r = Fixtures::NamedReading(QStringLiteral("Work"));
        r.ReadingNotes = QStringLiteral("New job; the MOVE maybe");
        Save(TheRun.Paths.ReadingsPath, r, tarot_, line_, {2024, 3, 2}, {{1, 1, false}, {2, 2, true}});
        r = Fixtures::NamedReading(QStringLiteral("Secret"));
        r.Issue = QStringLiteral("hidden words");
        r.EntryLocked = True16;
        r.EntryPassword = QStringLiteral("pw");
        Save(TheRun.Paths.ReadingsPath, r, tarot_, line_, {2024, 3, 10}, {{1, 1, true}});
        Save(TheRun.Paths.ReadingsPath, Fixtures::NamedReading(QStringLiteral("Bad date")), tarot_, line_, {2024, 1, 1},
             {{1, 3, true}});
        ChangeRecord<ReadingRecord>(TheRun.Paths.ReadingsPath, 4, [](ReadingRecord& bad) { bad.SavedOn = 1e9; });

        Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Garden")), tarot_, cross_, {2024, 1, 20},
             {{2, 5, true}, {3, 1, true}});
        Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Old deck")), other_, line_, {2024, 2, 5},
             {{1, 3, true}});
        Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Gone deck")), gone_, line_, {2024, 2, 6},
             {{1, 4, false}});
        Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Damaged")), tarot_, line_, {2024, 2, 7},
             {{1, 45, true}, {2, 2, false}});
    }

    void init() {
        TheRun.UnlockedEntries.clear();
        Read();
    }

    void search_data() {
        QTest::addColumn<JournalQuery>("query");
        QTest::addColumn<bool>("unlocked");
        QTest::addColumn<QString>("names");
        const QString all = QStringLiteral("Move, \"north\"|Work|Secret|Bad date|Garden|Old deck|Gone deck|Damaged");
        JournalQuery q;
        QTest::newRow("everything") << q << false << all;
        q.Words = QStringLiteral("MOVE");
        QTest::newRow("words in issue and notes, case ignored") << q << false << QStringLiteral("Move, \"north\"|Work");
        q.Words = QStringLiteral(" anna   move ");
        QTest::newRow("every word must occur") << q << false << QStringLiteral("Move, \"north\"");
        q.Words = QStringLiteral("hidden");
        QTest::newRow("a locked issue is not searched") << q << false << QString();
        QTest::newRow("until its password was given") << q << true << QStringLiteral("Secret");
        q.Words = QStringLiteral("secret");
        QTest::newRow("a locked name is searched") << q << false << QStringLiteral("Secret");
        q = {};
        q.CardDeckId = tarot_;
        q.CardNumber = 1;
        QTest::newRow("card") << q << false << QStringLiteral("Move, \"north\"|Work|Garden");
        QTest::newRow("card, the locked one known")
            << q << true << QStringLiteral("Move, \"north\"|Work|Secret|Garden");
        q.Orientation = Facing::Reversed;
        QTest::newRow("card reversed") << q << false << QStringLiteral("Work");
        q = {};
        q.Orientation = Facing::Reversed;
        QTest::newRow("any card reversed") << q << false << QStringLiteral("Move, \"north\"|Work|Gone deck|Damaged");
        q = {};
        q.SpreadId = cross_;
        QTest::newRow("spread") << q << false << QStringLiteral("Move, \"north\"|Garden");
        q = {};
        q.DeckId = other_;
        QTest::newRow("deck") << q << false << QStringLiteral("Old deck");
        q = {};
        q.Readings = false;
        QTest::newRow("diary entries only") << q << false << QStringLiteral("Garden|Old deck|Gone deck|Damaged");
        q = {};
        q.From = {2024, 2, 1};
        q.To = {2024, 2, 29};
        QTest::newRow("date range") << q << false << QStringLiteral("Old deck|Gone deck|Damaged");
        q.To = {};
        QTest::newRow("from a day, a date out of range left out")
            << q << false << QStringLiteral("Work|Secret|Old deck|Gone deck|Damaged");
    }

    void search() {
        QFETCH(JournalQuery, query);
        QFETCH(bool, unlocked);
        QFETCH(QString, names);
        if (unlocked) {
            RememberEntryUnlocked(EntryKind::Reading, QStringLiteral("Secret  "));
            Read();
        }
        QCOMPARE(Names(query).join(QLatin1Char('|')), names);
    }

    void cardTallies_data() {
        QTest::addColumn<Integer>("deck");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("upright");
        QTest::addColumn<int>("reversed");
        const auto row = [](const char* name, Integer deck, int number, const char* type, int up, int rev) {
            QTest::newRow(name) << deck << number << QStringLiteral("Card %1").arg(number) << QString(type) << up
                                << rev;
        };
        row("the most frequent", tarot_, 1, "Major Arcana", 2, 1);
        row("a damaged entry's good card", tarot_, 2, "Major Arcana", 1, 1);
        row("upright only", tarot_, 5, "Major Arcana", 2, 0);
        row("a bad date still counts its card", tarot_, 3, "Major Arcana", 1, 0);
        row("revised deck, stored number", other_, 3, "Major Arcana", 1, 0);
        row("removed deck, stored number", gone_, 4, "", 0, 1);
        row("minor", tarot_, 23, "Minor Arcana", 0, 1);
    }

    void cardTallies() {
        QFETCH(Integer, deck);
        QFETCH(int, number);
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        const auto found = std::find_if(s.Cards.begin(), s.Cards.end(),
                                        [&](const CardTally& c) { return c.DeckId == deck && c.Number == number; });
        QVERIFY(found != s.Cards.end());
        QTEST(found->Title, "title");
        QTEST(found->TypeName, "type");
        QTEST(found->Upright, "upright");
        QTEST(found->Reversed, "reversed");
    }

    void figures() {
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        // Unattributable: revised, removed, card beyond the deck, bad date; a
        // card beyond its deck counts nowhere; the most frequent card first.
        QCOMPARE(QList<int>({s.Entries, s.Locked, s.Unattributable, int(s.Cards.size()), s.Cards.front().Number,
                             s.Upright, s.Reversed, int(s.Types.size()), s.Types[1].Count}),
                 QList<int>({8, 1, 4, 7, 1, 7, 4, 2, 1}));
        QCOMPARE(s.Types[0].Name + QString::number(s.Types[0].Count), QStringLiteral("Major Arcana9"));
        QStringList months;
        for (const MonthCount& m : s.Months) months << MonthText(m.Month) + QLatin1Char('=') + QString::number(m.Count);
        QCOMPARE(months.join(QLatin1Char(' ')), QStringLiteral("Jan 2024=2 Feb 2024=3 Mar 2024=2"));
        JournalQuery range;
        range.From = {2023, 12, 1};
        range.To = {2024, 1, 31};
        QCOMPARE(TallyJournal(journal_, SearchJournal(journal_, range), catalogue_, range).Months.size(),
                 std::size_t(2));

        // Location 2 of Cross: card 23 once, card 5 once; the lower number first.
        const auto locations = TallyLocations(journal_, SearchJournal(journal_, {}), catalogue_, cross_, 1);
        QCOMPARE(locations.size(), std::size_t(3));
        QCOMPARE(locations[1].Title, QStringLiteral("Position 2"));
        QCOMPARE(
            QList<int>({int(locations[1].Cards.size()), locations[1].Cards[0].Number, locations[2].Cards[0].Number}),
            QList<int>({1, 5, 1}));
    }

    // Every text a chart draws, on the screen and in a saved picture: whole
    // where it has room, cut only where its box is narrower than it, inside
    // the chart and clear of every other text.
    void chartTextsFit_data() {
        QTest::addColumn<ChartData>("chart");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QStringList>("whole");  // texts that must be drawn uncut
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        ChartData cards = CardsChart(s, 20);
        for (int n = 30; cards.Bars.size() < 20; --n)
            cards.Bars.push_back({QStringLiteral("Card %1 (Tarot)").arg(n), 1, 0});
        QTest::newRow("twenty cards and the legend")
            << cards << QSize(480, 360) << QStringList{"Upright", "Reversed", "Card 4 (no longer installed)"};
        QTest::newRow("card types with room to spare")
            << TypesChart(s) << QSize(560, 200) << QStringList{"Major Arcana", "Minor Arcana"};
        ChartData months;
        months.Shape = ChartShape::Columns;
        months.FirstNumber = 2015 * 12;
        for (int m = 2015 * 12; m < 2025 * 12; ++m) months.Bars.push_back({MonthText(m), m % 7, 0});
        QTest::newRow("120 months") << months << QSize(760, 300) << QStringList{"Jan 2015", "0", "6"};
    }

    void chartTextsFit() {
        QFETCH(ChartData, chart);
        QFETCH(QSize, size);
        QFETCH(QStringList, whole);
        JournalChart widget;
        widget.setChart(chart);
        const QImage picture(size, QImage::Format_RGB32);
        for (const QPaintDevice* surface :
             {static_cast<const QPaintDevice*>(&widget), static_cast<const QPaintDevice*>(&picture)}) {
            const QFontMetricsF metrics(widget.font(), surface);
            const ChartDrawing drawing = widget.Layout(size, *surface);
            QStringList drawn;
            for (const ChartText& t : drawing.Texts) {
                drawn << t.Text;
                QVERIFY2(
                    metrics.horizontalAdvance(t.Text) <= t.Box.width() && metrics.height() <= t.Box.height() + 0.01,
                    qPrintable(t.Text));
                QVERIFY2(QRectF(QPointF(0, 0), size).contains(t.Box), qPrintable(t.Text));
                QVERIFY2(t.Text == t.Full || metrics.horizontalAdvance(t.Full) > t.Box.width(), qPrintable(t.Full));
                for (const ChartText& other : drawing.Texts) {
                    const QRectF overlap = other.Box & t.Box;  // rows that only touch may share a rounding error
                    QVERIFY2(&other == &t || overlap.width() < 0.01 || overlap.height() < 0.01,
                             qPrintable(t.Text + " / " + other.Text));
                }
            }
            for (const QString& text : whole) QVERIFY2(drawn.contains(text), qPrintable(text));
        }
    }

    // The print: chart texts of 8 points or more, each in a box it fits, the
    // table's headings apart, a removed deck's card named once in brackets.
    void printedStatistics() {
        RecordingPrinter printer;
        PrintJournalStatistics(printer, TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {}), 20);
        QStringList boxed;
        QList<PrinterCall> headings;
        for (const PrinterCall& call : printer.CallsOf(QStringLiteral("PrintInBox"))) {
            boxed << call.Text;
            if (call.Bold) headings << call;
            QVERIFY2(call.Size >= 8, qPrintable(call.Text));
            QVERIFY2(printer.TextWidth(call.Text) <= call.W, qPrintable(call.Text));
        }
        for (const char* legend : {"Upright", "Reversed", "Card 4 (no longer installed)", "Jan 2024"})
            QVERIFY2(boxed.contains(QLatin1String(legend)), legend);
        QVERIFY(!boxed.join(QLatin1Char('|')).contains(QLatin1String("((")));
        QCOMPARE(headings.size(), 4);
        for (int i = 1; i < headings.size(); ++i) QVERIFY(headings[i - 1].X + headings[i - 1].W < headings[i].X);
    }

    void csvAndNothingWritten() {
        const auto before = Snapshot(dir_.path());
        Read();
        JournalQuery q;
        q.Words = QStringLiteral("anna");
        QCOMPARE(JournalCsv(journal_, SearchJournal(journal_, q), catalogue_),
                 QByteArray("\xEF\xBB\xBF"
                            "Date,Kind,Entry,Spread,Location,Location Title,Deck,Card,Orientation\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,1,Position 1,Tarot,Card 1,Upright\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,2,Position 2,Tarot,Card 23,Reversed\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,3,Position 3,Tarot,Card 5,Upright\r\n"));
        q.Words = QStringLiteral("secret");
        QCOMPARE(JournalCsv(journal_, SearchJournal(journal_, q), catalogue_).count('\n'), 1);
        // Names a spreadsheet would run as a formula stay text.
        journal_.Entries[0].Name = QStringLiteral("=1+2");
        QVERIFY(JournalCsv(journal_, {0}, catalogue_).contains("2024/01/15,Reading,'=1+2,Cross,1,"));
        journal_.Entries[0].Name = QStringLiteral("-1, or @me");
        QVERIFY(JournalCsv(journal_, {0}, catalogue_).contains(",Reading,\"'-1, or @me\",Cross,"));
        QCOMPARE(Snapshot(dir_.path()), before);
    }

    // The card table keeps its rows in the chart's order, ties and all; the
    // locations run from the first.
    void screenShowsTheStatisticsSearchesAndOpens() {
        frmJournal& screen = Get<frmJournal>();
        screen.Show();
        screen.tabJournal->setCurrentIndex(1);
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        const QAbstractItemModel* cards = screen.grdCards->model();
        QCOMPARE(cards->rowCount(), static_cast<int>(s.Cards.size()));
        for (int row = 0; row < cards->rowCount(); ++row)
            QCOMPARE(
                cards->index(row, 3).data().toString() + '|' + cards->index(row, 4).data().toString(),
                s.Cards[static_cast<std::size_t>(row)].Title + '|' + s.Cards[static_cast<std::size_t>(row)].DeckName);
        screen.cboLocationSpread->setCurrentIndex(screen.cboLocationSpread->findText(QStringLiteral("Cross")));
        QStringList locations;
        for (int row = 0; row < screen.grdLocations->model()->rowCount(); ++row)
            locations << screen.grdLocations->model()->index(row, 0).data().toString();
        QCOMPARE(locations.join(QLatin1Char(' ')), QStringLiteral("1 2 3"));
        screen.grdResults->sortByColumn(2, Qt::AscendingOrder);
        QCOMPARE(screen.grdResults->model()->index(0, 2).data().toString(), QStringLiteral("Bad date"));

        // Typing selects, opening goes the Past screens' way.
        screen.tabJournal->setCurrentIndex(0);
        QTest::keyClicks(screen.txtWords, QStringLiteral("anna"));
        QTRY_COMPARE(screen.grdResults->model()->rowCount(), 1);
        QVERIFY(screen.lblSummary->text().startsWith(QLatin1String("1 entry;")));  // the English singular
        QCOMPARE(screen.grdResults->model()->index(0, 0).data().toString(), QStringLiteral("1/15/24"));
        screen.grdResults->selectRow(0);
        screen.cmdOpen->click();
        QTRY_VERIFY(IsLoaded<frmNewReading>() && !IsLoaded<frmJournal>());
        QCOMPARE(TheRun.CurrentReading.ReadingNotes.Trimmed(), QStringLiteral("Talk to Anna"));
        Get<frmNewReading>().CloseReading();
    }
};

QTEST_MAIN(TestJournal)
#include "tst_journal.moc"
