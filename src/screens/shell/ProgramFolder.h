#pragma once
// Which folder a run works on. The record files, Cards/, Packages/ and Temp/
// live in the program folder, which is the executable's own folder when new
// files can be made there: a folder unpacked or installed under the user's
// home, or the build tree. An executable installed for every user (under
// /usr, by the package manager) cannot keep data beside itself, so each user
// gets a program folder of their own in the desktop's data folder, filled at
// the first start from the installed folder.
#include <QString>

struct ProgramFolderPlaces {
    QString ExecutableFolder;  // where the running executable lies
    QString ExecutableName;    // never copied into a user's folder
    bool ExecutableFolderWritable = false;
    QString UserDataHome;  // $XDG_DATA_HOME or ~/.local/share
};

// The folder name under the user's data folder.
inline const QString UserProgramFolderName = QStringLiteral("cartomar");

// The places of this run, read from the executable and the session.
ProgramFolderPlaces InstalledPlaces();

// Whether the executable's folder is shared by every user and so holds only
// the installed copy: a folder where no file can be made, or one in the
// package manager's tree under /usr (where even the administrator's run
// would leave its records behind in a folder the package manager owns).
bool IsSharedProgramFolder(const ProgramFolderPlaces& places);

// The program folder of this run, with a trailing '/'. For a shared
// executable folder it is the user's own one, made on the way: a folder that
// holds no record file yet gets every file of the installed folder that it
// lacks (the help, the empty Location.loc, the starter packages), and at
// every start the help follows the installed one. A user's file is never
// overwritten.
QString FindProgramDirectory(const ProgramFolderPlaces& places);
