// The services every data operation relies on: the code page of record text,
// dates, the random generator, wildcard file operations and pictures.
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

#include "core/platform/CodePage.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "core/platform/Rnd.h"

class TestPlatform : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    QString path(const char* name) { return dir_.filePath(QLatin1String(name)); }
    void touch(const char* name, const QByteArray& bytes = "x") { WriteWholeFile(path(name), bytes); }
    // The error number a step raises; 0 when it raises none.
    static int ErrorOf(const std::function<void()>& step) {
        try {
            step();
        } catch (const RuntimeError& e) {
            return e.Number();
        }
        return 0;
    }

private slots:
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
        for (const char* name : {"CU00001.jpg", "CU00002.JPG", "CR00001.gif", "noext"}) touch(name);
        QCOMPARE(Dir(path("CU*.jpg")), QStringList({"CU00001.jpg", "CU00002.JPG"}));
        QCOMPARE(Dir(path("C?00001.*")), QStringList({"CR00001.gif", "CU00001.jpg"}));
        QCOMPARE(Dir(path("*.*")).size(), 4);  // "*.*" means every name
        QVERIFY(Dir(path("nothere/*.*")).isEmpty());

        // Record fields carry names with trailing spaces; the file is found.
        QVERIFY(FileExists(path("CU00001.jpg  ")));
        QVERIFY(!FileExists(dir_.path()));  // a folder is not a file

        Name(path("noext"), path("renamed"));
        QVERIFY(FileExists(path("renamed")));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Name(path("renamed"), path("CU00001.jpg")));
        QCOMPARE(ErrorOf([&] { FileCopy(path("gone"), path("x")); }), int(errFileNotFound));

        FileCopy(path("CR00001.gif"), path("copy.gif"));
        QCOMPARE(FileLen(path("copy.gif")), qint64(1));

        KillIgnoringErrors(path("CU*.*"));
        QVERIFY(Dir(path("CU*")).isEmpty());
        KillIgnoringErrors(path("missing/*.*"));  // never fails
        QCOMPARE(ErrorOf([&] { Kill(path("CU*.*")); }), int(errFileNotFound));
        MkDirIgnoringErrors(path("a/b"));  // one level only, quietly
        QVERIFY(!DirExists(path("a")));
        MkDirIgnoringErrors(path("a"));
        QVERIFY(DirExists(path("a")));
        QCOMPARE(FileNameOf(QStringLiteral("C:\\x\\y/z.bmp")), QStringLiteral("z.bmp"));
    }

    void picturesLoadWithTheirSize() {
        QImage img(20, 10, QImage::Format_RGB32);
        img.fill(Qt::red);
        SavePictureAsBmp(img, path("p.bmp"));
        QVERIFY(img.save(path("p.jpg"), "JPG"));
        // The smallest GIF: 1 x 1, written by hand since Qt cannot write GIF.
        touch("p.gif",
              QByteArray::fromHex("47494638396101000100800000000000ffffff21f90401000000002c00000000010001000002"
                                  "024401003b"));
        const Picture bmp = LoadPicture(path("p.bmp"));
        QCOMPARE(QList<int>({bmp.Width, bmp.Height}), QList<int>({300, 150}));  // twips, 15 to the pixel
        QCOMPARE(LoadPicture(path("p.jpg")).Width, 300);
        QCOMPARE(LoadPicture(path("p.gif")).Height, 15);
        touch("fake.bmp", "not a picture at all");
        QCOMPARE(ErrorOf([&] { LoadPicture(path("fake.bmp")); }), int(errInvalidPicture));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, LoadPicture(path("none.bmp")));
    }
};

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
