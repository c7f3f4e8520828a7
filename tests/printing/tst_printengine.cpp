// The layout engine of the text pages on a recording printer of letter paper
// (12240 by 15840 twips), 100 twips a character and 240 a line, so that every
// line, position and page break is checked to the twip.
#include <QImage>
#include <QtTest>

#include "core/platform/OleDate.h"
#include "core/printing/PrintLayout.h"
#include "support/RecordingPrinter.h"

namespace {

// "text@x,y" of every Print from the n-th call on.
QStringList Prints(const RecordingPrinter& printer, int from = 0) {
    QStringList out;
    for (int i = from; i < printer.Calls.size(); ++i) {
        const PrinterCall& c = printer.Calls[i];
        if (c.Op == QLatin1String("Print")) out << QStringLiteral("%1@%2,%3").arg(c.Text).arg(c.X).arg(c.Y);
        else out << c.Op;
    }
    return out;
}

QString Numbered(int count) {
    QStringList lines;
    for (int i = 1; i <= count; ++i) lines << QStringLiteral("L%1").arg(i);
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

class TestPrintEngine : public QObject {
    Q_OBJECT

    std::unique_ptr<RecordingPrinter> printer_;
    std::unique_ptr<PrintLayout> layout_;

    // A new job on a fresh printer.
    RecordingPrinter* UsePrinter(int width = 12240, int height = 15840) {
        layout_.reset();
        printer_ = std::make_unique<RecordingPrinter>(width, height, 100, 240);
        layout_ = std::make_unique<PrintLayout>(*printer_);
        return printer_.get();
    }
    PrintLayout& L() { return *layout_; }
    PrintJob& Job() { return layout_->Job(); }

private slots:

    void startPrintSetsUpTheJobAndItsFirstHeader() {
        auto printer = UsePrinter();
        QVERIFY(!L().StartPrint(0, QStringLiteral("title"), QString(), QString()));
        QCOMPARE(Prints(*printer), QStringList{"KillDoc"});

        printer->Calls.clear();
        printer->FontBold = false;
        QVERIFY(L().StartPrint(10, QStringLiteral("  www.example  "), QStringLiteral("S"), QStringLiteral("D")));
        // 15040 / 3500 = 4.3 blocks a page; 11 / 4 -> 2, a remainder, and page 1.
        QCOMPARE(QList<int>({Job().BlocksPerPage, Job().PageNumber, Job().TotalPages}), QList<int>({4, 2, 4}));
        QCOMPARE(Prints(*printer), (QStringList{"KillDoc", "www.example@1000,400", "Page 2@10640,400"}));
        QVERIFY(printer->Calls[1].Bold && printer->Calls[2].Bold && !printer->FontBold);
        QCOMPARE(QList<int>({printer->CurrentX, printer->CurrentY}), QList<int>({1000, 1000}));
        // A job is never restarted while it runs.
        QVERIFY(!L().StartPrint(3, QStringLiteral("again"), QString(), QString()));
        QCOMPARE(printer->Calls.size(), 3);

        for (int slot = 1; slot <= 4; ++slot) QCOMPARE(L().SlotY(slot), 1000 + (slot - 1) * 3500);
        Job().PageNumber = 1;  // below the first page's longer header
        QCOMPARE(QList<int>({L().SlotY(1), L().SlotY(2)}), QList<int>({1000, 2700}));

        // The first-page form of the header names spread, deck and time.
        SetClockForTests(QDateTime(QDate(2026, 3, 5), QTime(15, 7, 9)));
        printer->Calls.clear();
        QVERIFY(L().PrintHeader());
        SetClockForTests(QDateTime());
        QCOMPARE(Prints(*printer),
                 (QStringList{"www.example@1000,400", "Page 1@10640,400", "Spread: S@1000,1000", "Deck: D@1000,1240",
                              "@0,1480", "Date & Time: Thursday, 5 Mar 2026 - 3:7:9 PM@1000,1720"}));
        QCOMPARE(QList<int>({Job().BlockSlot, printer->CurrentY}), QList<int>({1, 2700}));
        QVERIFY(L().EndPrint());
        QVERIFY(!L().EndPrint());
    }

    void blocksPerPageRoundHalvesToEven() {
        for (auto [height, blocks] : {std::pair{9550, 2}, std::pair{13050, 4}, std::pair{16838, 5}}) {
            UsePrinter(12240, height);
            QVERIFY(L().StartPrint(1, QStringLiteral("t"), QString(), QString()));
            QCOMPARE(int(Job().BlocksPerPage), blocks);
            L().EndPrint();
        }
    }

    void unreadyPrinterIsReportedAndNothingStarts() {
        auto printer = UsePrinter();
        printer->LastError = 1;
        QVERIFY(!L().StartPrint(2, QStringLiteral("t"), QString(), QString()));
        QCOMPARE(int(Job().Fault), int(PrintFault::PrinterNotReady));
        // Without a job nothing reaches the printer.
        printer->Calls.clear();
        QVERIFY(!L().PrintBlock(QImage(), QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                QStringLiteral("d")));
        QVERIFY(!L().PrintSummary(QStringLiteral("x")));
        QVERIFY(!L().NewPrintPage());
        QVERIFY(printer->Calls.isEmpty());
    }

    void wrappingFollowsWidthsBlanksAndLineEnds() {
        UsePrinter();
        // A paragraph of exactly the width stays whole; one twip less breaks it.
        QCOMPARE(L().WrapText(QStringLiteral("abc def"), 700), QStringLiteral("abc def\r"));
        QCOMPARE(L().WrapText(QStringLiteral("abc def"), 699), QStringLiteral("abc\rdef\r"));
        // A word ending exactly at the width goes to the next line: the test
        // on blanks is strict.
        QCOMPARE(L().WrapText(QStringLiteral("abc def ghi"), 700), QStringLiteral("abc\rdef ghi\r"));
        QCOMPARE(L().NextLine(QStringLiteral("abc def ghi\r"), 5, 700), QStringLiteral("def ghi"));
        QCOMPARE(L().NextLine(QStringLiteral("abc\r"), 5, 700), QString());
        // A CR LF pair keeps its line feed for the printing to drop.
        QCOMPARE(L().WrapText(QStringLiteral("ab\r\ncd"), 700), QStringLiteral("ab\r\ncd\r"));
        // A word wider than the line is broken at the width.
        QCOMPARE(L().WrapText(QStringLiteral("abcdefghij xy"), 450), QStringLiteral("abcd\refgh\rij\rxy\r"));
        QCOMPARE(L().WrapText(QStringLiteral("abcdefghij"), 50), QStringLiteral("a\rb\rc\rd\re\rf\rg\rh\ri\rj\r"));
        QCOMPARE(L().WrapText(QString(), 700), QString());
        // Several lines of one paragraph.
        QCOMPARE(L().WrapText(QStringLiteral("aa bb cc dd ee"), 550), QStringLiteral("aa bb\rcc dd\ree\r"));
    }

    void wrappedTextPrintsLineByLine() {
        auto printer = UsePrinter();
        QVERIFY(L().StartPrint(1, QStringLiteral("t"), QString(), QString()));
        const int from = printer->Calls.size();
        // x 2000: 9240 twips of line, 92 characters.
        const QString word = QStringLiteral("word ");
        QVERIFY(L().PrintWrapped(word.repeated(30).trimmed() + QStringLiteral("\r\nnext\nlast"), 2000, 3000));
        QCOMPARE(Prints(*printer, from),
                 (QStringList{word.repeated(18).trimmed() + "@2000,3000", word.repeated(12).trimmed() + "@2000,3240",
                              "next@2000,3480", "last@2000,3720"}));
        QCOMPARE(printer->CurrentY, 3960);

        // An empty text prints one empty line.
        const int before = printer->Calls.size();
        QVERIFY(L().PrintWrapped(QString(), 1000, 5000));
        QCOMPARE(Prints(*printer, before), QStringList{"@1000,5000"});
        L().EndPrint();
    }

    void longTextGoesOnOnANewPageAtTheSameX() {
        auto printer = UsePrinter();
        QVERIFY(L().StartPrint(1, QStringLiteral("t"), QString(), QString()));
        const int from = printer->Calls.size();
        QVERIFY(L().PrintWrapped(Numbered(60), 4100, 1000));
        const QStringList prints = Prints(*printer, from);
        // A line is moved over when its top + 1300 reaches the paper's
        // 15840: the 57th line stands at 14440, the 58th would at 14680.
        QCOMPARE(prints[56], QStringLiteral("L57@4100,14440"));
        QCOMPARE(prints.mid(57, 4), (QStringList{"NewPage", "t@1000,400", "Page 3@10640,400", "L58@4100,1000"}));
        QCOMPARE(prints.last(), QStringLiteral("L60@4100,1480"));
        QCOMPARE(Job().PageNumber, Integer(3));
        L().EndPrint();
    }

    void blocksStandInSlotsAndPushOnWhenLong() {
        auto printer = UsePrinter();
        QVERIFY(L().StartPrint(5, QStringLiteral("t"), QString(), QString()));
        const QImage tall(100, 200, QImage::Format_RGB32);  // 1500 by 3000 twips
        int from = printer->Calls.size();
        QVERIFY(L().PrintBlock(tall, QStringLiteral(" Past "), QStringLiteral("What was"),
                               QStringLiteral("Fool(Upright)"), QStringLiteral(" A beginning ")));
        const PrinterCall picture = printer->Calls[from];
        // The first block of a job stands 500 below the header's slot.
        QCOMPARE(QList<int>({picture.X, picture.Y, picture.W, picture.H}), QList<int>({1000, 1500, 1500, 3000}));
        QCOMPARE(Prints(*printer, from + 1),
                 (QStringList{"Location: Past@2600,1500", "What was@2600,1740", "@0,1980", "@0,2220",
                              "Card: Fool(Upright)@2600,2460", "A beginning@2600,2700"}));

        // The second block stands in its slot; a long card text runs past the
        // third slot and pushes that block 500 below its end.
        from = printer->Calls.size();
        QVERIFY(L().PrintBlock(QImage(), QStringLiteral("B"), QString(), QStringLiteral("C"), Numbered(12)));
        QCOMPARE(QList<int>({printer->Calls[from].Y, printer->Calls[from].W}), QList<int>({4500, 0}));
        QCOMPARE(Prints(*printer, from + 1).first(), QStringLiteral("Location: B@1100,4500"));
        QCOMPARE(Prints(*printer, from + 1).last(), QStringLiteral("L12@1100,8340"));
        QCOMPARE(printer->CurrentY, 8580);
        from = printer->Calls.size();
        QVERIFY(L().PrintBlock(QImage(), QStringLiteral("Third"), QString(), QString(), QString()));
        QCOMPARE(printer->Calls[from].Y, 9080);
        // The fourth fits in its slot: 11500 + 3900 <= 15840.
        from = printer->Calls.size();
        QVERIFY(L().PrintBlock(QImage(), QStringLiteral("Fourth"), QString(), QString(), QString()));
        QCOMPARE(printer->Calls[from].Y, 11500);
        // The fifth would stand at 15000: a new page, where it takes the top.
        from = printer->Calls.size();
        QVERIFY(L().PrintBlock(QImage(), QStringLiteral("Fifth"), QString(), QString(), QString()));
        QCOMPARE(Prints(*printer, from).mid(0, 4),
                 (QStringList{"NewPage", "t@1000,400", "Page 3@10640,400", "PaintPicture"}));
        QCOMPARE(printer->Calls[from + 3].Y, 1000);
        QVERIFY(L().EndPrint());
        QCOMPARE(printer->Calls.last().Op, QStringLiteral("EndDoc"));
    }

    void picturesAreFittedIntoTheBox() {
        auto printer = UsePrinter();
        QVERIFY(L().StartPrint(1, QStringLiteral("t"), QString(), QString()));
        struct Case {
            int w, h;  // pixels
            int W, H;  // twips drawn
        };
        // Wider and taller than the box; wider only; taller only; smaller.
        for (const Case& c : {Case{400, 300, 3000, 2250}, Case{300, 400, 2250, 3000}, Case{400, 100, 3000, 750},
                              Case{100, 400, 750, 3000}, Case{100, 60, 1500, 900}}) {
            printer->CurrentX = 1000;
            printer->CurrentY = 2000;
            const int right = L().PrintFittedPicture(QImage(c.w, c.h, QImage::Format_RGB32));
            const PrinterCall call = printer->Calls.last();
            QCOMPARE(QList<int>({call.W, call.H}), QList<int>({c.W, c.H}));
            QCOMPARE(right, 1000 + c.W);
            QCOMPARE(printer->CurrentY, 2000);
        }
        L().EndPrint();
    }

    void summaryTakesItsOwnPages() {
        auto printer = UsePrinter();
        printer->FontSize = 10;
        printer->ForeColor = 0;
        QVERIFY(L().StartPrint(1, QStringLiteral("t"), QString(), QString()));
        int from = printer->Calls.size();
        QVERIFY(L().PrintSummary(QStringLiteral("All is well")));
        const QList<PrinterCall> calls = printer->Calls.mid(from);
        QCOMPARE(Prints(*printer, from),
                 (QStringList{"Summary@1000,1600", "@0,1840", "@0,2080", "All is well@1000,2320", "NewPage",
                              "t@1000,400", "Page 3@10640,400"}));
        QCOMPARE(QList<int>({calls[0].Size, calls[0].Colour, calls[2].Size}), QList<int>({16, 128, 16}));
        QCOMPARE(QList<int>({calls[3].Size, calls[3].Colour}), QList<int>({10, 0}));
        // The first block then begins on the new page.
        from = printer->Calls.size();
        QVERIFY(L().PrintBlock(QImage(), QStringLiteral("A"), QString(), QString(), QString()));
        QCOMPARE(printer->Calls[from].Y, 1500);
        QVERIFY(L().EndPrint());
    }
};

QTEST_MAIN(TestPrintEngine)
#include "tst_printengine.moc"
