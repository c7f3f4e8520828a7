// Which folder a run works on: the executable's own when it can take files,
// else the user's own copy, filled once from the installed folder and never
// over the user's files; and a run started on a package file, which opens
// the installer on it instead of offering to install designs.
#include <QDir>
#include <QFile>

#include "core/platform/ProgramLock.h"
#include "core/platform/UserFolders.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/FileLists.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/ProgramFolder.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"
#include "support/ScreenTest.h"

namespace {

void WriteFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    WriteWholeFile(path, bytes);
}

QByteArray ReadFile(const QString& path) { return FileExists(path) ? ReadWholeFile(path) : QByteArray("<missing>"); }

bool Exists(const QString& path) { return QFileInfo::exists(path); }

}  // namespace

class TestProgramFolder : public QObject {
    Q_OBJECT
    QTemporaryDir root_;
    QString installed_, home_;
    ProgramFolderPlaces places_;

private slots:
    void init() {
        MsgBoxScript::Enable();
        MsgBoxScript::Clear();
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

    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

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
        ReleaseProgramLock();
    }
};

QTEST_MAIN(TestProgramFolder)
#include "tst_programfolder.moc"
