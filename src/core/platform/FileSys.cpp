#include "core/platform/FileSys.h"

#include <fcntl.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>

#include "core/platform/Errors.h"
#include "core/platform/WriteFaults.h"

namespace {

// A copy made without waiting for the disk is built under this suffix beside
// its destination.
const QString UnfinishedCopySuffix = QStringLiteral(".part");

// Wildcard match of the toolkit: '*' any run, '?' one character, letters
// compared without case.
bool WildMatch(const QString& pattern, const QString& name) {
    qsizetype p = 0, n = 0, starP = -1, starN = 0;
    while (n < name.size()) {
        if (p < pattern.size() &&
            (pattern[p] == QLatin1Char('?') || pattern[p].toCaseFolded() == name[n].toCaseFolded())) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == QLatin1Char('*')) {
            starP = p++;
            starN = n;
        } else if (starP >= 0) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == QLatin1Char('*')) ++p;
    return p == pattern.size();
}

void SplitPattern(const QString& pattern, QString& folder, QString& mask) {
    const QString clean = NativePath(pattern);
    const qsizetype slash = clean.lastIndexOf(QLatin1Char('/'));
    folder = slash < 0 ? QStringLiteral(".") : clean.left(slash + 1);
    mask = slash < 0 ? clean : clean.mid(slash + 1);
    if (mask == QLatin1String("*.*")) mask = QStringLiteral("*");
}

bool HasWildcards(const QString& s) { return s.contains(QLatin1Char('*')) || s.contains(QLatin1Char('?')); }

void SyncFile(const QString& path) {
    if (!WriteFaults::Syncs()) return;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

}  // namespace

QString NativePath(const QString& path) {
    QString p = path;
    p.replace(QLatin1Char('\\'), QLatin1Char('/'));
    qsizetype end = p.size();
    while (end > 0 && (p[end - 1] == QLatin1Char(' ') || p[end - 1] == QChar(0))) --end;
    p.truncate(end);
    return p;
}

QString WithSlash(const QString& folder) {
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

bool FileExists(const QString& path) {
    const QString p = NativePath(path);
    if (p.isEmpty() || p.endsWith(QLatin1Char('/'))) return false;
    // One look at the file: isFile() is false for a name that is not there,
    // and asking exists() first costs the file system a second visit.
    return QFileInfo(p).isFile();
}

bool DirExists(const QString& path) {
    const QString p = NativePath(path);
    return !p.isEmpty() && QFileInfo(p).isDir();
}

QStringList Dir(const QString& pattern) {
    QString folder, mask;
    SplitPattern(pattern, folder, mask);
    QStringList names;
    if (!HasWildcards(mask)) {
        if (FileExists(folder + mask)) names.append(QFileInfo(folder + mask).fileName());
        return names;
    }
    const QStringList all = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString& name : all)
        if (WildMatch(mask, name)) names.append(name);
    return names;
}

bool AnyFileMatches(const QString& pattern) { return !Dir(pattern).isEmpty(); }

QStringList SubDirs(const QString& folder) {
    return QDir(NativePath(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

void FileCopy(const QString& source, const QString& destination) {
    const QString from = NativePath(source);
    const QString to = NativePath(destination);
    if (!FileExists(from)) RaiseError(errFileNotFound);
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly)) RaiseError(errPermissionDenied);
    // The copy is built beside its destination and renamed over it, so the
    // destination is never half-written.
    QSaveFile out(to);
    if (!out.open(QIODevice::WriteOnly)) RaiseError(errPathNotFound);
    char buffer[1 << 16];
    for (;;) {
        const qint64 n = in.read(buffer, sizeof buffer);
        if (n < 0) RaiseError(errPathFileAccess);
        if (n == 0) break;
        if (WriteStep(out, buffer, n) != n) RaiseError(errDiskFull);
    }
    if (!OtherStep() || !out.commit()) RaiseError(errPathFileAccess);
}

void FileCopyUnsynced(const QString& source, const QString& destination) {
    const QString from = NativePath(source);
    const QString to = NativePath(destination);
    if (!FileExists(from)) RaiseError(errFileNotFound);
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) RaiseError(errPermissionDenied);
    const QString part = to + UnfinishedCopySuffix;
    {
        QFile out(part);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) RaiseError(errPathNotFound);
        QByteArray buffer(1 << 20, Qt::Uninitialized);
        for (;;) {
            const qint64 n = in.read(buffer.data(), buffer.size());
            if (n < 0 || (n > 0 && WriteStep(out, buffer.constData(), n) != n)) {
                out.close();
                QFile::remove(part);
                RaiseError(n < 0 ? errPathFileAccess : errDiskFull);
            }
            if (n == 0) break;
        }
    }
    if (!RenameStep(part, to)) {
        QFile::remove(part);
        RaiseError(errPathFileAccess);
    }
}

void RemoveUnfinishedCopies(const QString& folder) {
    KillIgnoringErrors(WithSlash(folder) + QLatin1Char('*') + UnfinishedCopySuffix);
}

void FileMoveUnsynced(const QString& source, const QString& destination) {
    const QString from = NativePath(source);
    if (!FileExists(from)) RaiseError(errFileNotFound);
    errno = 0;
    if (RenameStep(from, NativePath(destination))) return;
    if (errno != EXDEV) RaiseError(errPathFileAccess);
    FileCopyUnsynced(source, destination);
}

void SyncFileSystem(const QString& folder) {
    if (!WriteFaults::Syncs()) return;
    const int fd = ::open(QFile::encodeName(NativePath(folder)).constData(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return;
    ::syncfs(fd);
    ::close(fd);
}

void Name(const QString& oldPath, const QString& newPath) {
    const QString from = NativePath(oldPath);
    const QString to = NativePath(newPath);
    if (!QFileInfo::exists(from)) RaiseError(errFileNotFound);
    if (QFileInfo::exists(to)) RaiseError(errFileAlreadyExists);
    if (!QFile::rename(from, to)) RaiseError(errPathFileAccess);
}

void ReplaceFile(const QString& newFile, const QString& realFile) {
    const QString from = NativePath(newFile);
    const QString to = NativePath(realFile);
    if (!QFileInfo::exists(from)) RaiseError(errFileNotFound);
    SyncFile(from);
    RenameOver(from, to);
}

void RenameOver(const QString& newFile, const QString& realFile) {
    const QString to = NativePath(realFile);
    if (!RenameStep(NativePath(newFile), to)) RaiseError(errPathFileAccess);
    SyncFile(FolderOf(to));
}

void Kill(const QString& pattern) {
    QString folder, mask;
    SplitPattern(pattern, folder, mask);
    const QStringList names = Dir(pattern);
    if (names.isEmpty()) RaiseError(errFileNotFound);
    for (const QString& name : names)
        if (!QFile::remove(folder + name)) RaiseError(errPathFileAccess);
}

void KillIgnoringErrors(const QString& pattern) {
    QString folder, mask;
    SplitPattern(pattern, folder, mask);
    for (const QString& name : Dir(pattern)) QFile::remove(folder + name);
}

void MkDir(const QString& path) {
    const QString p = NativePath(path);
    if (QFileInfo::exists(p)) RaiseError(errPathFileAccess);
    if (!QDir().mkdir(p)) RaiseError(errPathNotFound);
}

void MkDirIgnoringErrors(const QString& path) { QDir().mkdir(NativePath(path)); }

qint64 FileLen(const QString& path) {
    QFileInfo info(NativePath(path));
    if (!info.exists() || !info.isFile()) RaiseError(errFileNotFound);
    return info.size();
}

QByteArray ReadWholeFile(const QString& path) {
    QFile f(NativePath(path));
    if (!f.open(QIODevice::ReadOnly)) RaiseError(errFileNotFound);
    return f.readAll();
}

void WriteWholeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile f(NativePath(path));
    if (!f.open(QIODevice::WriteOnly)) RaiseError(errPathNotFound);
    if (WriteStep(f, bytes.constData(), bytes.size()) != bytes.size()) RaiseError(errDiskFull);
    if (!OtherStep() || !f.commit()) RaiseError(errPathFileAccess);
}

QString FolderOf(const QString& path) {
    const QString p = NativePath(path);
    const qsizetype slash = p.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QStringLiteral("./") : p.left(slash + 1);
}

QString FileNameOf(const QString& path) {
    const qsizetype cut = std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(cut + 1);
}

QString AddTrailingBackslash(const QString& path) {
    if (path.endsWith(QLatin1Char('/')) || path.endsWith(QLatin1Char('\\'))) return path;
    return path + QLatin1Char('/');
}
