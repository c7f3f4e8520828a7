#pragma once
// The folders of the user's desktop session that a program installed for
// every user needs: whether a folder can take new files, where the user's own
// data live, and the copying of an installed folder into the user's place.
#include <QString>
#include <QStringList>

// Whether new files can be made in a folder. Tried by making and removing a
// probe file, since the permission bits alone do not tell (a read-only mount,
// access lists).
bool FolderIsWritable(const QString& folder);

// The user's own data folder of the desktop: $XDG_DATA_HOME, or
// ~/.local/share when that is unset or not absolute. With a trailing '/'.
QString UserDataHome();

// A path made absolute against the working folder.
QString AbsolutePath(const QString& path);

// Makes a folder and every missing folder above it; false when it cannot.
bool MakePath(const QString& folder);

// Copies every file under `from` into `to`, making the subfolders on the way.
// A file that exists at the destination is left as it is; names in `skip`
// are passed over at the top level only. Raises on a failing copy.
void CopyMissingFiles(const QString& from, const QString& to, const QStringList& skip = {});

// Makes `to` a copy of `from` unless it holds the same bytes already, so that
// a file the program owns (not the user) follows the installed one. Returns
// whether it wrote. Raises on a failing copy.
bool RefreshFile(const QString& from, const QString& to);
// The same for every file under a folder; files only at the destination stay.
void RefreshFolder(const QString& from, const QString& to);
