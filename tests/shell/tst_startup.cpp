// Start-up on a program folder: the files and folders a first and a second
// start make, Temp/ emptied, the default picture rewritten, the
// old-database test with its two outcomes, the offer to install designs, and
// the ways the process ends.
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <csignal>

#include "core/platform/Picture.h"
#include "core/platform/ProgramLock.h"
#include "core/records/Records.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"
#include "support/ScreenTest.h"

namespace {

int gConversions = 0;
QList<int> gEnds;

}  // namespace

class TestStartup : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        SetConversionScreenHook([] { ++gConversions; });
        SetEndProcessHook([](int code) { gEnds.append(code); });
    }

    void init() {
        ResetRun();
        MsgBoxScript::Clear();
        gConversions = 0;
        gEnds.clear();
    }

    void cleanup() {
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        ReleaseProgramLock();  // before the folder goes
        UnloadScreen<frmMainScreen>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void firstAndSecondStartInAnEmptyFolder() {
        QTemporaryDir dir;
        const QString root = dir.path() + QLatin1Char('/');
        MsgBoxScript::Answer(vbNo);
        QVERIFY(RunStartup(dir.path()));

        for (const char* name : {"Readings.red", "Diary.dry", "Spreads.spr", "Decks.dck", "Cards.crd"}) {
            QVERIFY2(QFileInfo(root + QLatin1String(name)).isFile(), name);
            QCOMPARE(QFileInfo(root + QLatin1String(name)).size(), 0);
        }
        for (const char* name : {"Cards", "Packages", "Temp"})
            QVERIFY2(QFileInfo(root + QLatin1String(name)).isDir(), name);
        for (const char* name : {"Packages/Attachments", "Location.loc", "Settings.dat"})
            QVERIFY2(!QFileInfo::exists(root + QLatin1String(name)), name);
        QCOMPARE(gConversions, 1);

        const Picture picture = LoadPicture(root + QStringLiteral("Cards/C000000.bmp"));
        QCOMPARE(picture.Image.convertToFormat(QImage::Format_RGB32),
                 DefaultCardPicture().convertToFormat(QImage::Format_RGB32));

        // No designs: the main screen stands and the offer to install comes.
        QVERIFY(Get<frmMainScreen>().Visible());
        QCOMPARE(Prompts(),
                 QStringList{QStringLiteral("You don't have any designs installed. Do you want install any now?")});

        // The second start makes the attachment folder, now that Packages/
        // exists, and still asks for the conversion.
        MsgBoxScript::Answer(vbNo);
        QVERIFY(RunStartup(dir.path()));
        QVERIFY(QFileInfo(root + QStringLiteral("Packages/Attachments")).isDir());
        QCOMPARE(gConversions, 2);
    }

    void staleTempFilesAndABrokenDefaultPictureDoNotSurvive() {
        QTemporaryDir dir;
        const QString root = dir.path() + QLatin1Char('/');
        QDir().mkpath(root + QStringLiteral("Temp"));
        QDir().mkpath(root + QStringLiteral("Cards"));
        WriteWholeFile(root + QStringLiteral("Temp/TempUp.bmp"), "stale");
        WriteWholeFile(root + QStringLiteral("Temp/Cards.crd"), "stale");
        WriteWholeFile(root + QStringLiteral("Cards/C000000.bmp"), "not a picture");
        WriteWholeFile(root + QStringLiteral("Location.loc"), QByteArray());
        WriteWholeFile(root + QStringLiteral("Decks.dck"), QByteArray(DeckRecord::Length, '\0'));
        WriteWholeFile(root + QStringLiteral("Readings.red"), "kept");
        // What a process killed while writing leaves beside the files it
        // wrote; the design file beside them is kept.
        const QStringList leftovers = {QStringLiteral("Decks.dck.new"), QStringLiteral("Cards.tmp"),
                                       QStringLiteral("Cards/CU00001.bmp.part")};
        for (const QString& name : leftovers) WriteWholeFile(root + name, "unfinished");
        WriteWholeFile(root + QStringLiteral("Cards/CU00002.bmp"), "a design's picture");

        QVERIFY(RunStartup(dir.path()));
        for (const QString& name : leftovers) QVERIFY2(!QFileInfo::exists(root + name), qPrintable(name));
        QVERIFY(QFileInfo::exists(root + QStringLiteral("Cards/CU00002.bmp")));
        QVERIFY(QDir(root + QStringLiteral("Temp")).entryList(QDir::Files).isEmpty());
        QVERIFY(!LoadPicture(root + QStringLiteral("Cards/C000000.bmp")).IsNull());
        QCOMPARE(ReadWholeFile(root + QStringLiteral("Readings.red")), QByteArray("kept"));
        // A new-format database with a deck: no conversion, no question.
        QCOMPARE(gConversions, 0);
        QVERIFY(MsgBoxScript::History().isEmpty());
    }

    void oldDatabaseWithBackupsEndsAtOnce() {
        QTemporaryDir dir;
        WriteWholeFile(dir.path() + QStringLiteral("/Decks.dck.bkp"), "old");
        QVERIFY(!RunStartup(dir.path()));
        QCOMPARE(gEnds.size(), 1);
        QCOMPARE(gConversions, 0);
        QCOMPARE(
            Prompts(),
            QStringList{QStringLiteral("Unable to convert to new database format as existing backups exist.  Please "
                                       "reinstall in a new directory or contact ") +
                        SupportAddress + QLatin1Char('.')});
        QVERIFY(!IsLoaded<frmMainScreen>());
    }

    void fatalErrorShowsTheMessageAndEnds() {
        FatalError();
        QCOMPARE(gEnds.size(), 1);
        QCOMPARE(Prompts(), QStringList{QStringLiteral(
                                "Cartomar Error. If this problem persists, please contact Ondine Software Inc.")});
    }

    void clearTempBeforeThePathsAreFormedDeletesNothing() {
        QTemporaryDir dir;
        const QString here = QDir::currentPath();
        QDir::setCurrent(dir.path());
        WriteWholeFile(dir.path() + QStringLiteral("/keep.txt"), "x");
        ClearTemp();
        QDir::setCurrent(here);
        QVERIFY(QFileInfo::exists(dir.path() + QStringLiteral("/keep.txt")));
    }

    // A second copy on the same folder is refused before it touches Temp/;
    // once the first copy has died its lock is taken over.
    void aSecondCopyOnTheSameFolderIsRefused() {
        QTemporaryDir dir;
        const QString root = dir.path() + QLatin1Char('/');
        WriteWholeFile(root + QStringLiteral("Location.loc"), QByteArray());
        int ready[2];
        QVERIFY(::pipe(ready) == 0);
        const pid_t first = ::fork();
        if (first == 0) {
            // The first copy: holds the folder, then waits to be killed.
            const char taken = TakeProgramLock(dir.path()) ? 'y' : 'n';
            (void)!::write(ready[1], &taken, 1);
            for (;;) ::pause();
        }
        char taken = 0;
        QVERIFY(::read(ready[0], &taken, 1) == 1 && taken == 'y');
        QDir().mkpath(root + QStringLiteral("Temp"));
        WriteWholeFile(root + QStringLiteral("Temp/working.bmp"), "in use");

        QVERIFY(!RunStartup(dir.path()));
        QCOMPARE(gEnds, QList<int>{1});
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Cartomar is already running from the folder '") + dir.path() +
                                        QStringLiteral("'. Only one copy can work on the same designs at a time.")});
        QVERIFY(QFileInfo::exists(root + QStringLiteral("Temp/working.bmp")));
        QVERIFY(!QFileInfo::exists(root + QStringLiteral("Decks.dck")));

        ::kill(first, SIGKILL);
        ::waitpid(first, nullptr, 0);
        ::close(ready[0]);
        ::close(ready[1]);
        MsgBoxScript::Answer(vbNo);  // no designs: the offer to install some
        QVERIFY(RunStartup(dir.path()));
        QVERIFY(!QFileInfo::exists(root + QStringLiteral("Temp/working.bmp")));
    }
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
