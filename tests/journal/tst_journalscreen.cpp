// The journal's screen and charts on the sample of entries the rules are
// tested on: every chart text fits its box, and the screen shows the
// statistics, searches as the user types and opens an entry.
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

#include "JournalFixtures.h"
#include "screens/journal/JournalCharts.h"
#include "screens/journal/frmJournal.h"
#include "screens/platform/Application.h"
#include "screens/readings/frmNewReading.h"
#include "support/ScreenTest.h"

Q_DECLARE_METATYPE(ChartData)

class TestJournalScreen : public QObject, JournalFixtures::JournalRun {
    Q_OBJECT
    QTemporaryDir frame_;

private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        InstallPluralForms();
        MsgBoxScript::Enable();
        Fixtures::StandUpFrame(frame_.path());
        LayAndRead();  // before the charts' table, which is made from it
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

QTEST_MAIN(TestJournalScreen)
#include "tst_journalscreen.moc"
