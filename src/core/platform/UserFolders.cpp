#include "core/platform/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "core/platform/FileSys.h"

bool FolderIsWritable(const QString& folder) {
    if (!DirExists(folder)) return false;
    QTemporaryFile probe(WithSlash(folder) + QStringLiteral(".cartomar-probe-XXXXXX"));
    return probe.open();  // removed again when the probe goes
}

QString UserDataHome() {
    // The desktop's own rule: $XDG_DATA_HOME when absolute, else
    // ~/.local/share.
    return WithSlash(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString AbsolutePath(const QString& path) { return QFileInfo(NativePath(path)).absoluteFilePath(); }

bool MakePath(const QString& folder) { return QDir().mkpath(NativePath(folder)); }

void CopyMissingFiles(const QString& from, const QString& to, const QStringList& skip) {
    const QDir source(NativePath(from));
    const QString target = WithSlash(NativePath(to));
    MakePath(target);
    const QFileInfoList entries =
        source.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (skip.contains(entry.fileName())) continue;
        const QString destination = target + entry.fileName();
        if (entry.isDir()) CopyMissingFiles(entry.filePath(), destination);
        else if (!QFileInfo::exists(destination)) FileCopy(entry.filePath(), destination);
    }
}

bool RefreshFile(const QString& from, const QString& to) {
    if (FileExists(to) && ReadWholeFile(from) == ReadWholeFile(to)) return false;
    MakePath(FolderOf(to));
    FileCopy(from, to);
    return true;
}

void RefreshFolder(const QString& from, const QString& to) {
    const QDir source(NativePath(from));
    const QString target = WithSlash(NativePath(to));
    const QFileInfoList entries = source.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir()) RefreshFolder(entry.filePath(), target + entry.fileName());
        else RefreshFile(entry.filePath(), target + entry.fileName());
    }
}
