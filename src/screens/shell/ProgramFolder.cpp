#include "screens/shell/ProgramFolder.h"

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/ProgramLock.h"
#include "core/platform/UserFolders.h"
#include "screens/platform/Application.h"
#include "screens/platform/ErrorReport.h"

namespace {

const QString HelpFileName = QStringLiteral("Cartomar.hlp");
const QString HelpFolderName = QStringLiteral("Help");

// A folder the program has worked in: every start makes Decks.dck, and an old
// database waiting for conversion has one too. The installed folder never
// holds one.
bool HoldsRecords(const QString& folder) { return FileExists(folder + QStringLiteral("Decks.dck")); }

}  // namespace

ProgramFolderPlaces InstalledPlaces() {
    ProgramFolderPlaces places;
    places.ExecutableFolder = ExecutableFolder();
    places.ExecutableName = ExecutableName();
    places.ExecutableFolderWritable = FolderIsWritable(places.ExecutableFolder);
    places.UserDataHome = UserDataHome();
    return places;
}

bool IsSharedProgramFolder(const ProgramFolderPlaces& places) {
    return !places.ExecutableFolderWritable || WithSlash(places.ExecutableFolder).startsWith(QStringLiteral("/usr/"));
}

QString FindProgramDirectory(const ProgramFolderPlaces& places) {
    const QString installed = WithSlash(places.ExecutableFolder);
    if (!IsSharedProgramFolder(places)) return installed;

    const QString own = WithSlash(places.UserDataHome) + UserProgramFolderName + QLatin1Char('/');
    // A copy that fails shows the error box; the run goes on in the user's
    // folder, where the start-up makes what is missing.
    Guarded([&] {
        MakePath(own);
        // Only a folder without records is filled: once the user works
        // there, a package they deleted must not come back at the next start.
        if (!HoldsRecords(own))
            CopyMissingFiles(installed, own, {places.ExecutableName, ProgramLockName, QStringLiteral("Temp")});
        // The help belongs to the program, not to the user: it follows the
        // installed copy, so that an upgrade brings the new manual.
        if (FileExists(installed + HelpFileName)) RefreshFile(installed + HelpFileName, own + HelpFileName);
        if (DirExists(installed + HelpFolderName)) RefreshFolder(installed + HelpFolderName, own + HelpFolderName);
    });
    return own;
}
