// Start-up on a program folder: the files and folders a first and a second
// start make, Temp/ emptied, the default picture rewritten, the old-database
// test, the offer to install designs, and the ways the process ends; which
// folder a run works on (the executable's own when it can take files, else
// the user's own copy, filled from the installed folder and never over the
// user's files); and a start on a package file, which opens the installer.
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <csignal>

#include "core/platform/Picture.h"
#include "core/platform/ProgramLock.h"
#include "core/platform/UserFolders.h"
#include "core/records/Records.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/ProgramFolder.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"
#include "support/ScreenTest.h"

namespace {

int gConversions = 0;
QList<int> gEnds;

void WriteFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    WriteWholeFile(path, bytes);
}

QByteArray ReadFile(const QString& path) { return FileExists(path) ? ReadWholeFile(path) : QByteArray("<missing>"); }

bool Exists(const QString& path) { return QFileInfo::exists(path); }

}  // namespace

class TestStartup : public QObject {
    Q_OBJECT
    QTemporaryDir root_;
    QString installed_, home_;
    ProgramFolderPlaces places_;

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
        installed_ = root_.path() + QStringLiteral("/opt/cartomar/");
        home_ = root_.path() + QStringLiteral("/home/.local/share/");
        QDir(root_.path()).removeRecursively();
        QDir().mkpath(root_.path());
        // What an installation lays out: the executable, the help with its
        // pictures, the empty location file and the starter package; the
        // lock and Temp/ of a run from there must not travel.
        WriteFile(installed_ + QStringLiteral("cartomar"), "ELF");
        WriteFile(installed_ + QStringLiteral("Cartomar.hlp"), "<html>help 1</html>");
        WriteFile(installed_ + QStringLiteral("Help/images/main.png"), "png 1");
        WriteFile(installed_ + QStringLiteral("Location.loc"), QByteArray());
        WriteFile(installed_ + QStringLiteral("Packages/Cartomar Starter.pck"), "starter 1");
        WriteFile(installed_ + ProgramLockName, "123");
        WriteFile(installed_ + QStringLiteral("Temp/work.tmp"), "x");
        places_ = {installed_, QStringLiteral("cartomar"), false, home_};
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
        WriteFile(root + QStringLiteral("Temp/TempUp.bmp"), "stale");
        WriteFile(root + QStringLiteral("Temp/Cards.crd"), "stale");
        WriteFile(root + QStringLiteral("Cards/C000000.bmp"), "not a picture");
        WriteFile(root + QStringLiteral("Location.loc"), QByteArray());
        WriteFile(root + QStringLiteral("Decks.dck"), QByteArray(DeckRecord::Length, '\0'));
        WriteFile(root + QStringLiteral("Readings.red"), "kept");
        // What a process killed while writing leaves beside the files it
        // wrote; the design file beside them is kept.
        const QStringList leftovers = {QStringLiteral("Decks.dck.new"), QStringLiteral("Cards.tmp"),
                                       QStringLiteral("Cards/CU00001.bmp.part")};
        for (const QString& name : leftovers) WriteFile(root + name, "unfinished");
        WriteFile(root + QStringLiteral("Cards/CU00002.bmp"), "a design's picture");

        QVERIFY(RunStartup(dir.path()));
        for (const QString& name : leftovers) QVERIFY2(!Exists(root + name), qPrintable(name));
        QVERIFY(Exists(root + QStringLiteral("Cards/CU00002.bmp")));
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
        WriteFile(root + QStringLiteral("Temp/working.bmp"), "in use");

        QVERIFY(!RunStartup(dir.path()));
        QCOMPARE(gEnds, QList<int>{1});
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Cartomar is already running from the folder '") + dir.path() +
                                        QStringLiteral("'. Only one copy can work on the same designs at a time.")});
        QVERIFY(Exists(root + QStringLiteral("Temp/working.bmp")));
        QVERIFY(!Exists(root + QStringLiteral("Decks.dck")));

        ::kill(first, SIGKILL);
        ::waitpid(first, nullptr, 0);
        ::close(ready[0]);
        ::close(ready[1]);
        MsgBoxScript::Answer(vbNo);  // no designs: the offer to install some
        QVERIFY(RunStartup(dir.path()));
        QVERIFY(!Exists(root + QStringLiteral("Temp/working.bmp")));
    }

    void aFolderThatTakesFilesIsTheProgramFolder() {
        QVERIFY(FolderIsWritable(root_.path()));
        QVERIFY(QDir(root_.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());  // no probe left
        places_.ExecutableFolderWritable = true;
        QVERIFY(!IsSharedProgramFolder(places_));
        QCOMPARE(FindProgramDirectory(places_), installed_);
        QVERIFY(!Exists(home_));

        // The package manager's tree is shared even where the administrator
        // could write.
        places_.ExecutableFolder = QStringLiteral("/usr/local/lib/cartomar/");
        QVERIFY(IsSharedProgramFolder(places_));
    }

    void aSharedFolderIsCopiedForTheUserAtTheFirstStart() {
        const QString own = FindProgramDirectory(places_);
        QCOMPARE(own, home_ + QStringLiteral("cartomar/"));
        for (const auto& [file, bytes] : {std::pair{"Cartomar.hlp", "<html>help 1</html>"},
                                          {"Help/images/main.png", "png 1"},
                                          {"Location.loc", ""},
                                          {"Packages/Cartomar Starter.pck", "starter 1"}})
            QCOMPARE(ReadFile(own + QLatin1String(file)), QByteArray(bytes));
        for (const QString& left : {QStringLiteral("cartomar"), ProgramLockName, QStringLiteral("Temp")})
            QVERIFY2(!Exists(own + left), qPrintable(left));
    }

    void laterStartsKeepTheUsersFilesAndFollowTheInstalledHelp() {
        const QString own = FindProgramDirectory(places_);
        // The user works: records appear, the starter package is deleted,
        // Location.loc fills, a picture of their own lies in Help/.
        WriteFile(own + QStringLiteral("Decks.dck"), "deck");
        WriteFile(own + QStringLiteral("Location.loc"), "locations");
        QVERIFY(QFile::remove(own + QStringLiteral("Packages/Cartomar Starter.pck")));
        WriteFile(own + QStringLiteral("Help/images/mine.png"), "mine");
        // An upgrade brings a new manual, a new picture and a new package.
        WriteFile(installed_ + QStringLiteral("Cartomar.hlp"), "<html>help 2</html>");
        WriteFile(installed_ + QStringLiteral("Help/images/main.png"), "png 2");
        WriteFile(installed_ + QStringLiteral("Packages/More.pck"), "more");

        QCOMPARE(FindProgramDirectory(places_), own);
        // The help follows the installation; the user's own files stay.
        for (const auto& [file, bytes] : {std::pair{"Cartomar.hlp", "<html>help 2</html>"},
                                          {"Help/images/main.png", "png 2"},
                                          {"Help/images/mine.png", "mine"},
                                          {"Location.loc", "locations"},
                                          {"Decks.dck", "deck"}})
            QCOMPARE(ReadFile(own + QLatin1String(file)), QByteArray(bytes));
        QVERIFY(!Exists(own + QStringLiteral("Packages/Cartomar Starter.pck")));
        QVERIFY(!Exists(own + QStringLiteral("Packages/More.pck")));
    }

    void aFolderWithoutRecordsIsFilledAroundWhatItHolds() {
        // A folder the user made, or a first start that stopped half-way.
        const QString own = home_ + QStringLiteral("cartomar/");
        WriteFile(own + QStringLiteral("Packages/Cartomar Starter.pck"), "the user's own");
        QCOMPARE(FindProgramDirectory(places_), own);
        QCOMPARE(ReadFile(own + QStringLiteral("Packages/Cartomar Starter.pck")), QByteArray("the user's own"));
        QCOMPARE(ReadFile(own + QStringLiteral("Location.loc")), QByteArray());
    }

    void aPackageFileOpensTheInstallerInsteadOfTheOffer() {
        // An empty database would be offered the installer; a start on a
        // package goes there straight, asking nothing.
        const QString own = FindProgramDirectory(places_);
        const QString downloads = root_.path() + QStringLiteral("/Downloads/");
        WriteFile(downloads + QStringLiteral("A Deck.pck"), "a");
        WriteFile(downloads + QStringLiteral("Tarot Deck.pck"), "t");
        WriteFile(downloads + QStringLiteral("Z Deck.pck"), "z");
        MDIMainForm::SetProgramDirectory(own);
        MDIMainForm::SetPackageToOpen(downloads + QStringLiteral("Tarot Deck.pck"));
        Get<MDIMainForm>();

        QVERIFY(MsgBoxScript::History().isEmpty());
        QVERIFY(IsLoaded<frmInstallPackage>() && !Get<frmMainScreen>().Visible());
        frmInstallPackage& installer = Get<frmInstallPackage>();
        QCOMPARE(QDir(installer.filSelection->Path()).absolutePath(), QDir(downloads).absolutePath());
        QCOMPARE(installer.filSelection->FileName(), QStringLiteral("Tarot Deck.pck"));
    }
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
