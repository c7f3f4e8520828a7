// The services every screen and data operation rely on: the code page of
// record text, dates, the random generator, wildcard file operations,
// scripted message boxes and the error report.
#include <QApplication>
#include <QImage>

#include "core/platform/Arrays.h"
#include "core/platform/CodePage.h"
#include "core/platform/Errors.h"
#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "core/platform/Rnd.h"
#include "screens/platform/ErrorReport.h"
#include "support/ScreenTest.h"

class TestPlatform : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    QString path(const QString& name) { return dir_.path() + QLatin1Char('/') + name; }
    void touch(const QString& name, const QByteArray& bytes = "x") { WriteWholeFile(path(name), bytes); }

private slots:
    void init() {
        MsgBoxScript::Enable();
        MsgBoxScript::Clear();
    }

    void codePageKeepsEveryByte() {
        QByteArray all(256, '\0');
        for (int i = 0; i < 256; ++i) all[i] = char(i);
        const QString text = FromAnsi(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(ToAnsi(text), all);
        QCOMPARE(FromAnsi(QByteArray("\x80\x93\x94\xE9")), QStringLiteral("€“”é"));
        QCOMPARE(ToAnsi(QStringLiteral("Ωx")), QByteArray("?x"));
        QVERIFY(AnsiRepresentable(QStringLiteral("Œuvre – ™")));
        QVERIFY(!AnsiRepresentable(QStringLiteral("☾")));
    }

    void oleDatesAndFormats() {
        QCOMPARE(ToOleDate(QDate(1899, 12, 30)), 0.0);
        QCOMPARE(ToOleDate(QDate(2000, 1, 1)), 36526.0);
        const double when = ToOleDate(QDateTime(QDate(2026, 3, 5), QTime(15, 7, 9)));
        QCOMPARE(FromOleDate(when), QDateTime(QDate(2026, 3, 5), QTime(15, 7, 9)));
        QCOMPARE(FormatDdMmmYyyy(when), QStringLiteral("05-Mar-2026"));
        QCOMPARE(FormatYyyyMmDd(when), QStringLiteral("2026/03/05"));
        QCOMPARE(FormatLongDayDate(when), QStringLiteral("Thursday, 5 Mar 2026"));
        QCOMPARE(FormatTimeHmsAmPm(when), QStringLiteral("3:7:9 PM"));
        QCOMPARE(FormatTimeHmsAmPm(ToOleDate(QDateTime(QDate(2026, 3, 5), QTime(0, 30, 0)))),
                 QStringLiteral("12:30:0 AM"));

        SetClockForTests(QDateTime(QDate(2026, 11, 23), QTime(18, 0)));
        QCOMPARE(OleToday(), ToOleDate(QDate(2026, 11, 23)));  // a whole day, no time
        SetClockForTests(QDateTime());
        // A garbage date in a record never crashes a screen.
        QVERIFY(!FormatDdMmmYyyy(std::numeric_limits<double>::quiet_NaN()).isEmpty());
        QVERIFY(!FormatDdMmmYyyy(1e300).isEmpty());
    }

    void rndFollowsItsFormula() {
        SetRandomizeSeedForTests(12345u);
        Randomize();
        quint64 state = 12345;
        for (int i = 0; i < 1000; ++i) {
            state = (state * 1140671485ull + 12820163ull) % (1ull << 24);
            QCOMPARE(Rnd(), float(double(state) / 16777216.0));
        }
        Randomize();  // the test seed again: the same sequence
        const float first = Rnd();
        Randomize();
        QCOMPARE(Rnd(), first);
        SetRandomizeSeedForTests(std::nullopt);
    }

    void wildcardsAndNames() {
        touch(QStringLiteral("CU00001.jpg"));
        touch(QStringLiteral("CU00002.JPG"));
        touch(QStringLiteral("CR00001.gif"));
        touch(QStringLiteral("noext"));
        QCOMPARE(Dir(path(QStringLiteral("CU*.jpg"))), QStringList({"CU00001.jpg", "CU00002.JPG"}));
        QCOMPARE(Dir(path(QStringLiteral("C?00001.*"))), QStringList({"CR00001.gif", "CU00001.jpg"}));
        QCOMPARE(Dir(path(QStringLiteral("*.*"))).size(), 4);  // "*.*" means every name
        QVERIFY(Dir(path(QStringLiteral("nothere/*.*"))).isEmpty());

        // Record fields carry names with trailing spaces; the file is found.
        QVERIFY(FileExists(path(QStringLiteral("CU00001.jpg  "))));
        QVERIFY(!FileExists(dir_.path()));  // a folder is not a file

        Name(path(QStringLiteral("noext")), path(QStringLiteral("renamed")));
        QVERIFY(FileExists(path(QStringLiteral("renamed"))));
        QVERIFY_THROWS_EXCEPTION(RuntimeError,
                                 Name(path(QStringLiteral("renamed")), path(QStringLiteral("CU00001.jpg"))));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, FileCopy(path(QStringLiteral("gone")), path(QStringLiteral("x"))));

        FileCopy(path(QStringLiteral("CR00001.gif")), path(QStringLiteral("copy.gif")));
        QCOMPARE(FileLen(path(QStringLiteral("copy.gif"))), qint64(1));

        KillIgnoringErrors(path(QStringLiteral("CU*.*")));
        QVERIFY(Dir(path(QStringLiteral("CU*"))).isEmpty());
        KillIgnoringErrors(path(QStringLiteral("missing/*.*")));  // never fails
        try {
            Kill(path(QStringLiteral("CU*.*")));
            QFAIL("Kill of nothing must raise");
        } catch (const RuntimeError& e) {
            QCOMPARE(e.Number(), int(errFileNotFound));
        }
        MkDirIgnoringErrors(path(QStringLiteral("a/b")));  // one level only, quietly
        QVERIFY(!DirExists(path(QStringLiteral("a"))));
        MkDirIgnoringErrors(path(QStringLiteral("a")));
        QVERIFY(DirExists(path(QStringLiteral("a"))));
        QCOMPARE(FileNameOf(QStringLiteral("C:\\x\\y/z.bmp")), QStringLiteral("z.bmp"));
    }

    // A box is titled with the program's name; a question left alone takes
    // its default button; a break written as CR or CR LF shows as "\n" does.
    void messageBoxesTakeTitleDefaultAndBreaks() {
        QCOMPARE(MsgBox(QStringLiteral("Save?"), vbYesNoCancel | vbDefaultButton2), int(vbNo));
        QCOMPARE(MsgBoxScript::History()[0].title, QStringLiteral("Cartomar"));
        for (const char* text : {"Line\rnext", "Line\r\nnext"}) {
            MsgBox(QString::fromLatin1(text));
            QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Line\nnext"));
        }
    }

    // A real box over a screen that goes while the box waits (as a screen
    // unloaded just before the box was asked for goes at the next turn of
    // the event loop) ends with the Esc answer instead of a crash.
    void aBoxWhoseScreenGoesAnswersAsEsc() {
        MsgBoxScript::Disable();
        auto* screen = new QWidget;
        screen->show();
        QApplication::setActiveWindow(screen);
        screen->deleteLater();
        QCOMPARE(MsgBox(QStringLiteral("Save changes?"), vbYesNoCancel | vbQuestion), int(vbCancel));
        auto* other = new QWidget;
        other->show();
        QApplication::setActiveWindow(other);
        other->deleteLater();
        QCOMPARE(MsgBox(QStringLiteral("Done.")), int(vbOK));
        MsgBoxScript::Enable();
    }

    void errorsReportAndEndOnlyTheOperation() {
        bool after = false;
        const bool ok = Guarded([&] {
            BoundedArray<int> cards(1, 3);
            cards(3) = 1;
            cards(4) = 2;  // past the end: the toolkit's subscript error
            after = true;
        });
        QVERIFY(!ok);
        QVERIFY(!after);
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Run-time error '9':\n\nSubscript out of range")});
        QCOMPARE(MsgBoxScript::History()[0].style & 0x70, int(vbCritical));
        QVERIFY(Guarded([] {}));
    }

    void picturesLoadWithTheirSize() {
        QImage img(20, 10, QImage::Format_RGB32);
        img.fill(Qt::red);
        SavePictureAsBmp(img, path(QStringLiteral("p.bmp")));
        QVERIFY(img.save(path(QStringLiteral("p.jpg")), "JPG"));
        // The smallest GIF: 1 x 1, written by hand since Qt cannot write GIF.
        const QByteArray gif = QByteArray::fromHex(
            "47494638396101000100800000000000ffffff21f90401000000002c00000000010001000002024401003b");
        touch(QStringLiteral("p.gif"), gif);
        const Picture bmp = LoadPicture(path(QStringLiteral("p.bmp")));
        QCOMPARE(bmp.Width, 300);  // twips, 15 to the pixel
        QCOMPARE(bmp.Height, 150);
        QCOMPARE(LoadPicture(path(QStringLiteral("p.jpg"))).Width, 300);
        QCOMPARE(LoadPicture(path(QStringLiteral("p.gif"))).Height, 15);
        touch(QStringLiteral("fake.bmp"), "not a picture at all");
        try {
            LoadPicture(path(QStringLiteral("fake.bmp")));
            QFAIL("a file that is no picture must raise");
        } catch (const RuntimeError& e) {
            QCOMPARE(e.Number(), int(errInvalidPicture));
        }
        QVERIFY_THROWS_EXCEPTION(RuntimeError, LoadPicture(path(QStringLiteral("none.bmp"))));
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
