// Printing a reading and a diary entry on a recording printer, and through
// Qt's printer into a PDF file.
#include <QPainter>
#include <QRegularExpression>

#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "diary/DiaryFixtures.h"
#include "readings/ReadingFixtures.h"
#include "screens/platform/QtPrinter.h"
#include "screens/shell/Startup.h"
#include "support/RecordingPrinter.h"

using namespace ReadingFixtures;

namespace {

constexpr int Locations = 10;

std::shared_ptr<RecordingPrinter> RecorderChosen() {
    auto printer = std::make_shared<RecordingPrinter>();
    PrinterDialogScript::PrintTo(printer);
    return printer;
}

// The job control of a print: the drawing between is left out.
QStringList Ops(const RecordingPrinter& printer) {
    QStringList ops;
    for (const PrinterCall& call : printer.Calls)
        if (call.Op.endsWith(QLatin1String("Doc")) || call.Op == QLatin1String("NewPage") ||
            call.Op == QLatin1String("Close"))
            ops << call.Op;
    return ops;
}

QStringList Starting(const QStringList& texts, const QString& prefix) {
    QStringList out;
    for (const QString& t : texts)
        if (t.startsWith(prefix)) out << t;
    return out;
}

// Page 1: the calls between the EndDoc that clears the printer and the one
// that sends the page.
QList<PrinterCall> PageOne(const RecordingPrinter& printer) {
    QList<PrinterCall> page;
    int ends = 0;
    for (const PrinterCall& call : printer.Calls) {
        if (call.Op == QLatin1String("EndDoc") && ++ends == 2) break;
        if (ends == 1) page << call;
    }
    return page;
}

QStringList BoxTexts(const QList<PrinterCall>& page) {
    QStringList texts;
    for (const PrinterCall& call : page)
        if (call.Op == QLatin1String("PrintInBox")) texts << call.Text;
    return texts;
}

int Count(const QList<PrinterCall>& page, const QString& op) {
    return static_cast<int>(std::count_if(page.begin(), page.end(), [&](const PrinterCall& c) { return c.Op == op; }));
}

// Each location of page 1 at its place, scaled from the screen's canvas
// (9615 wide and canvasHeight high) to the page's (10095 by 5895 at 840,
// 2880), and the picture of its card inside the image box of 735 by 975 at
// the location's top left. The locations in the order they are drawn,
// bottom first; -1 for a picture out of its box, -2 for a misplaced location.
QList<int> CheckLocations(const QList<PrinterCall>& page, int canvasHeight) {
    QList<int> drawn;
    int x = 0, y = 0;
    for (const PrinterCall& call : page) {
        if (call.Op == QLatin1String("FillRect") && call.W == 1695 && call.H == 975) {
            x = call.X;
            y = call.Y;
        } else if (call.Op == QLatin1String("PaintPicture") && x > 0) {
            if (call.X < x || call.Y < y || call.X + call.W > x + 735 || call.Y + call.H > y + 975) return {-1};
        } else if (call.Op == QLatin1String("PrintInBox") && call.Text.startsWith(QLatin1String("Position "))) {
            const int i = call.Text.section(QLatin1Char(' '), 1).toInt();
            const LocationRecord& location = TheRun.SpreadLocations(i);
            if (!Near(x - 840, qRound(location.LocationLeft * 10095.0 / 9615.0)) ||
                y - 2880 != qRound(location.LocationTop * 5895.0 / canvasHeight) || call.X != x + 720)
                return {-2};
            drawn << i;
        }
    }
    return drawn;
}

}  // namespace

class TestPrintEntry : public QObject, ScreenRun {
    Q_OBJECT

    void MakeDesigns(int locations) {
        const Integer deckId = Fixtures::MakeDeck(QStringLiteral("Tarot"), 30, true);
        Fixtures::MakeSpread(QStringLiteral("Cross"), locations, {deckId});
        ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [](SpreadRecord& s) {
            s.AskQuestion = True16;
            s.SpreadDesigner.DesignerName = QStringLiteral("Iris Vane");
        });
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1,
                                 [](DeckRecord& d) { d.DeckDesigner.DesignerName = QStringLiteral("Odo Marl"); });
        ChangeRecord<LocationRecord>(TheRun.Paths.LocationsPath, 3, [](LocationRecord& l) {
            l.LocationQuestion[0] = QStringLiteral(" Who? ");
            l.LocationQuestion[2] = QStringLiteral("Why?");
        });
        // Card-sized pictures (120 by 180 pixels), so that the pictures are fitted
        // into the printed box as real ones are.
        for (int n = 1; n <= 30; ++n) {
            CardRecord card;
            GetRecord(TheRun.Paths.CardsPath, n, card);
            for (int side = 0; side < 2; ++side) {
                QImage picture(120, 180, QImage::Format_RGB32);
                picture.fill(QColor::fromHsv((n * 37) % 360, 160, side == 0 ? 220 : 120));
                QPainter painter(&picture);
                painter.drawRect(4, 4, 111, 171);
                painter.drawText(picture.rect(), Qt::AlignCenter, QString::number(n));
                painter.end();
                SavePictureAsBmp(picture,
                                 TheRun.Paths.CardsDir + card.CardPicture[static_cast<std::size_t>(side)].Trimmed());
            }
        }
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 1, [](CardRecord& c) {
            c.CardDescription[0] = QStringLiteral("First line\nSecond line");
            c.CardDescription[1] = QStringLiteral("First line\nSecond line");
        });
    }

    // A reading on its spread page with the issue given, dealt in full or
    // not at all.
    frmNewReading& Reading(bool dealt = true) {
        frmNewReading& reading = NewReading();
        reading.txtIssue->setText(QStringLiteral("Will it rain?"));
        reading.cmdContinue->click();
        if (dealt) reading.cmdAllCards->click();
        return reading;
    }

private slots:
    void initTestCase() {
        PrinterDialogScript::Enable();
        StandUp();
    }

    void init() {
        FreshRun(NewDir());
        PrinterDialogScript::Clear();
        MakeDesigns(Locations);
    }

    void cleanup() {
        CloseReadingScreens();
        DiaryFixtures::CloseDiaryScreens();
    }

    // A deck that shows no card titles gives its pictures a taller frame on
    // the screen; on paper each stays in its location all the same.
    void readingPrintsTheSpreadPageThenSummaryAndBlocks_data() {
        QTest::addColumn<bool>("titles");
        QTest::newRow("deck with titles") << true;
        QTest::newRow("deck without titles") << false;
    }

    void readingPrintsTheSpreadPageThenSummaryAndBlocks() {
        QFETCH(bool, titles);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1,
                                 [titles](DeckRecord& d) { d.DisplayCardTitles = Flag(titles); });
        frmNewReading& reading = Reading();
        TheRun.CurrentReading.ReadingNotes = QStringLiteral("Line one\nLine two");
        auto printer = RecorderChosen();
        reading.cmdPrint->click();
        QVERIFY(MsgBoxScript::History().isEmpty());
        const QList<PrinterCall> page = PageOne(*printer);
        const QStringList boxes = BoxTexts(page);
        QCOMPARE(boxes.mid(boxes.size() - 4),
                 (QStringList{"Title:", "Will it rain?", "Spread \u00a9 Copyright 2001 By Iris Vane.",
                              "Deck \u00a9 Copyright 2001 By Odo Marl."}));
        // Each card lies in its location with its picture and name, no number.
        QCOMPARE(CheckLocations(page, 5895), (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
        QCOMPARE(Count(page, QStringLiteral("PaintPicture")), Locations);
        for (int i = 1; i <= Locations; ++i) {
            QVERIFY(boxes.contains(DeckCard(TheRun.ReadingDeal.DealtCard(i)).CardTitle.Trimmed()));
            QVERIFY(!boxes.contains(QString::number(i)));
        }

        const QStringList texts = printer->Texts();
        QCOMPARE(texts.mid(0, 7), (QStringList{MakerWebAddress, "Page 2", "Summary", "", "", "Line one", "Line two"}));
        QStringList locations, cards;
        for (int i = 1; i <= Locations; ++i) {
            locations << QStringLiteral("Location: Position %1").arg(i);
            cards << QStringLiteral("Card: Card %1%2")
                         .arg(TheRun.ReadingDeal.DealtCard(i))
                         .arg(TheRun.ReadingDeal.DealtUpright(i) != 0 ? QStringLiteral("(Upright)")
                                                                      : QStringLiteral("(Reversed)"));
        }
        QCOMPARE(Starting(texts, QStringLiteral("Location: ")), locations);
        QCOMPARE(Starting(texts, QStringLiteral("Card: ")), cards);
        // The questions run on behind the description.
        QVERIFY(texts.contains(QStringLiteral("What position 3 stands for  Who?  Why?")));
        // Each card's text is its side's.
        const Integer first = TheRun.ReadingDeal.DealtCard(1);
        const QString meaning =
            DeckCard(first).CardDescription[TheRun.ReadingDeal.DealtUpright(1) != 0 ? 0 : 1].Trimmed();
        QCOMPARE(texts[texts.indexOf(cards[0]) + 1], meaning.section(QLatin1Char('\n'), 0, 0));
    }

    // Before the first card: Cancel in the printer dialogue prints nothing
    // and says nothing; a print gives page 1 alone, every location a
    // numbered empty place and none beyond the spread's.
    void beforeTheFirstCardOnlyPageOnePrints() {
        frmNewReading& reading = Reading(false);
        auto printer = std::make_shared<RecordingPrinter>();
        SetCurrentPrinter(printer);
        PrinterDialogScript::Cancel();
        reading.cmdPrint->click();
        QVERIFY(printer->Calls.isEmpty() && MsgBoxScript::History().isEmpty());
        printer = RecorderChosen();
        reading.cmdPrint->click();
        QCOMPARE(Ops(*printer), (QStringList{"EndDoc", "EndDoc", "KillDoc", "Close"}));
        const QList<PrinterCall> page = PageOne(*printer);
        QCOMPARE(CheckLocations(page, 5895), (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
        for (int i = 1; i <= Locations; ++i) QVERIFY(BoxTexts(page).contains(QString::number(i)));
        QCOMPARE(Count(page, QStringLiteral("PaintPicture")), 0);
        QVERIFY(printer->Texts().isEmpty());
    }

    // The diary's own Print button sends the entry as it stands: its cards
    // wherever they were chosen, its notes, its own time of day.
    void diaryPrintsItsCardsWhereverTheyLie() {
        frmNewDiary& diary = DiaryFixtures::NewDiary();
        diary.cmdContinue->click();
        DiaryFixtures::Choose(diary, 5, DiaryFixtures::CardText(7), true);
        DiaryFixtures::Choose(diary, 2, DiaryFixtures::CardText(5));
        SetClockForTests(QDateTime(QDate(2026, 3, 5), QTime(9, 5, 3)));
        auto printer = RecorderChosen();
        diary.cmdPrint->click();
        QVERIFY(MsgBoxScript::History().isEmpty());
        const QList<PrinterCall> page = PageOne(*printer);
        QVERIFY(BoxTexts(page).contains(QStringLiteral("Thursday, 5 Mar 2026 - 09:05:03 AM")));
        // The cards lie above the empty places, the higher number on top; the
        // locations are placed by the diary's canvas.
        QCOMPARE(CheckLocations(page, 6495), (QList<int>{1, 3, 4, 6, 7, 8, 9, 10, 2, 5}));
        QVERIFY(!BoxTexts(page).contains(QStringLiteral("5")) && BoxTexts(page).contains(QStringLiteral("4")));
        SetClockForTests(QDateTime());
        const QStringList texts = printer->Texts();
        QVERIFY(!texts.contains(QStringLiteral("Summary")));
        QCOMPARE(Starting(texts, QStringLiteral("Location: ")),
                 (QStringList{"Location: Position 2", "Location: Position 5"}));
        QCOMPARE(Starting(texts, QStringLiteral("Card: ")),
                 (QStringList{"Card: Card 5(Upright)", "Card: Card 7 (Reversed)"}));
        QVERIFY(texts.contains(QStringLiteral("Reversed meaning of card 7")));
        // Notes make the summary page that an entry without them goes without.
        TheRun.CurrentDiary.DiaryNotes = QStringLiteral("Cards laid on the kitchen table.");
        auto withNotes = RecorderChosen();
        diary.cmdPrint->click();
        QVERIFY(withNotes->Texts().contains(QStringLiteral("Cards laid on the kitchen table.")));

        // A printer that cannot be opened: the engine says so, then the
        // diary's own message.
        MsgBoxScript::Clear();
        auto broken = RecorderChosen();
        broken->LastError = 1;
        diary.cmdPrint->click();
        QCOMPARE(Prompts(),
                 (QStringList{"Unable to initialize printer.", "Could not print the diary properly. Please make "
                                                               "sure that the selected printer is ready."}));
        QCOMPARE(MsgBoxScript::History()[1].style, int(vbCritical));
    }

    // The one print through Qt's printer: the reading's five pages reach a
    // PDF file.
    void aReadingPrintsToAPdfFile() {
        const QString pdf = RunDir() + QStringLiteral("/reading.pdf");
        frmNewReading& reading = Reading();
        TheRun.CurrentReading.ReadingNotes = QStringLiteral("Take an umbrella.");
        PrinterDialogScript::PrintToPdf(pdf);
        reading.cmdPrint->click();
        QVERIFY(MsgBoxScript::History().isEmpty());
        const QString bytes = QString::fromLatin1(ReadWholeFile(pdf));
        QVERIFY(bytes.startsWith(QLatin1String("%PDF-")));
        QCOMPARE(bytes.count(QRegularExpression(QStringLiteral("/Type\\s*/Page\\b"))), 5);
    }
};

QTEST_MAIN(TestPrintEntry)
#include "tst_printentry.moc"
