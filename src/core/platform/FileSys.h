#pragma once
// File operations of the toolkit, with wildcards. Paths use '/' as separator;
// a name may carry trailing spaces as record fields do ("C000000.bmp "): every
// path is cleaned by NativePath before it reaches the file system.
//
// Operations that the program cannot do without (copy, rename, open) raise a
// RuntimeError on failure; the ...IgnoringErrors forms never fail.
#include <QString>
#include <QStringList>

// Trims trailing spaces and zero bytes from the file name part of a path and
// turns backslashes into '/'.
QString NativePath(const QString& path);

bool FileExists(const QString& path);  // a regular file
bool DirExists(const QString& path);
bool AnyFileMatches(const QString& pattern);  // Dir(pattern) <> ""

// Names (not paths) of the regular files in the pattern's folder whose names
// match the pattern's last part ('*' and '?', "*.*" matches every name),
// sorted by name. An empty list when the folder does not exist.
QStringList Dir(const QString& pattern);

// Names of the subfolders of a folder, sorted, without "." and "..".
QStringList SubDirs(const QString& folder);

void FileCopy(const QString& source, const QString& destination);  // overwrites
// The same copy without waiting for the disk: for working files in Temp/,
// which every start empties, and for a batch of copies that SyncFileSystem
// then makes durable with one wait instead of one a file. The destination is
// still never seen half-written.
void FileCopyUnsynced(const QString& source, const QString& destination);
// Puts a file under a new name, overwriting, without waiting for the disk: a
// rename, or FileCopyUnsynced when the names lie on two file systems. The
// source may be gone afterwards.
void FileMoveUnsynced(const QString& source, const QString& destination);
// Removes the copies that a process killed during FileCopyUnsynced left in
// a folder.
void RemoveUnfinishedCopies(const QString& folder);
// Waits until everything written to the file system that holds folder is
// on the disk.
void SyncFileSystem(const QString& folder);
void Name(const QString& oldPath, const QString& newPath);  // rename; fails if new exists
// Replaces a file by another in one step (rename over it): a reader finds
// either the old or the new file, never none.
void ReplaceFile(const QString& newFile, const QString& realFile);
// The same for a new file its writer has synced already: renames it over the
// real one and syncs the folder.
void RenameOver(const QString& newFile, const QString& realFile);
void Kill(const QString& pattern);                // fails when nothing matches
void KillIgnoringErrors(const QString& pattern);  // deletes matching files
void MkDir(const QString& path);
void MkDirIgnoringErrors(const QString& path);  // one level, like the toolkit
qint64 FileLen(const QString& path);            // raises when missing

QByteArray ReadWholeFile(const QString& path);  // raises when missing
// Writes a whole file beside the target, flushes it, and renames it over the
// target.
void WriteWholeFile(const QString& path, const QByteArray& bytes);

// A folder's path ending in '/'.
QString WithSlash(const QString& folder);
// The folder of a path, with a trailing '/'.
QString FolderOf(const QString& path);
// The part after the last '/' or '\'.
QString FileNameOf(const QString& path);

QString AddTrailingBackslash(const QString& path);  // ends the path in '/'
