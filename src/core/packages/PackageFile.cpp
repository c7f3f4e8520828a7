#include "core/packages/PackageFile.h"

#include <QFile>
#include <QtEndian>
#include <exception>
#include <new>

#include "core/platform/CodePage.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/WriteFaults.h"
#include "core/store/RunState.h"

namespace {

constexpr int errOutOfMemory = 7;

// Opens a file for binary access as the toolkit does: made if missing, never
// cut short. The error tells a missing folder from a refused file.
void OpenBinary(QFile& file, const QString& path, QIODevice::OpenMode mode) {
    file.setFileName(NativePath(path));
    if (file.open(mode)) return;
    if (!DirExists(FolderOf(file.fileName()))) RaiseError(errPathNotFound);
    RaiseError(errPathFileAccess);
}

void WriteAll(QFile& file, const char* bytes, qint64 length) {
    if (WriteStep(file, bytes, length) != length) RaiseError(errDiskFull);
}

// A buffer indexed from 1 to size: none can be made for a size below 1.
QByteArray MakeBuffer(qint64 size) {
    if (size < 1) RaiseError(errSubscriptOutOfRange);
    try {
        return QByteArray(static_cast<qsizetype>(size), Qt::Uninitialized);
    } catch (const std::bad_alloc&) {
        RaiseError(errOutOfMemory);
    }
}

void PackMember(QFile& package, const QString& path) {
    PackageMemberHeader header;
    header.MemberName = MemberNameOf(path);
    const qint64 length = FileLen(path);
    if (length > 0x7fffffff) RaiseError(errOutOfMemory);
    header.MemberSize = static_cast<qint32>(length);
    QFile member;
    OpenBinary(member, path, QIODevice::ReadOnly);
    const QByteArray head = EncodeMemberHead(header.MemberName, header.MemberSize);
    WriteAll(package, head.constData(), head.size());
    // The whole file moves through memory in one piece.
    const QByteArray buffer = MakeBuffer(header.MemberSize);
    if (member.read(const_cast<char*>(buffer.constData()), buffer.size()) != buffer.size())
        RaiseError(errInputPastEndOfFile);
    WriteAll(package, buffer.constData(), buffer.size());
}

// Reads exactly `length` bytes, or nothing when fewer are left.
bool ReadExactly(QFile& file, char* into, qint64 length) {
    if (length > file.size() - file.pos()) return false;
    return file.read(into, length) == length;
}

// The next member's head. False at the end of the package and for a head
// that cannot be whole: a name length below 0 or past the end, a size that
// is cut off. Nothing is allocated before it is known to be there.
bool ReadMemberHead(QFile& package, PackageMemberHeader& header) {
    char lengthBytes[2];
    if (!ReadExactly(package, lengthBytes, 2)) return false;
    const qint16 nameLength = qFromLittleEndian<qint16>(lengthBytes);
    if (nameLength < 0 || nameLength > package.size() - package.pos()) return false;
    QByteArray name(nameLength, Qt::Uninitialized);
    if (nameLength > 0 && !ReadExactly(package, name.data(), nameLength)) return false;
    char sizeBytes[4];
    if (!ReadExactly(package, sizeBytes, 4)) return false;
    header.MemberName = FromAnsi(name);
    header.MemberSize = qFromLittleEndian<qint32>(sizeBytes);
    return true;
}

// Writes over the target in place, without cutting it short, as binary
// access does: a later member of the same name over a longer earlier one
// keeps the earlier one's tail.
void WriteMember(const QString& target, const QByteArray& data) {
    QFile out;
    OpenBinary(out, target, QIODevice::ReadWrite);
    WriteAll(out, data.constData(), data.size());
}

}  // namespace

QByteArray EncodeMemberHead(const QString& memberName, qint32 memberSize) {
    const QByteArray name = ToAnsi(memberName);
    QByteArray head(2, Qt::Uninitialized);
    qToLittleEndian<qint16>(static_cast<qint16>(name.size()), head.data());
    head += name;
    char size[4];
    qToLittleEndian<qint32>(memberSize, size);
    head.append(size, 4);
    return head;
}

QString MemberNameOf(const QString& path) {
    QString name = path;
    name.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return name;
}

QString MemberFileName(const QString& memberName) {
    const int cut = std::max(memberName.lastIndexOf(QLatin1Char('\\')), memberName.lastIndexOf(QLatin1Char('/')));
    QString name = memberName.mid(cut + 1);
    // The file system drops trailing spaces and zero bytes, so ".. " is "..".
    while (!name.isEmpty() && (name.back() == QLatin1Char(' ') || name.back() == QChar(0))) name.chop(1);
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..") || name.contains(QChar(0)))
        return QString();
    return name;
}

namespace {

bool PackFolder(const QString& packagePath, const QString& sourceFolder, std::optional<RuntimeError>* failure) {
    QFile package;
    try {
        OpenBinary(package, packagePath, QIODevice::ReadWrite);
        // Plain files only: folders are not descended into, and hidden files
        // (a leading dot on this system) are not listed.
        for (const QString& name : Dir(sourceFolder + QStringLiteral("*.*"))) {
            if (name.startsWith(QLatin1Char('.'))) continue;
            PackMember(package, sourceFolder + name);
        }
        package.close();
        return true;
    } catch (const RuntimeError& error) {
        package.close();
        if (failure) *failure = error;
    } catch (const std::exception&) {
        package.close();
        if (failure) *failure = RuntimeError(errOutOfMemory, ErrorDescription(errOutOfMemory));
    }
    return false;
}

bool UnpackPackage(const QString& packagePath) {
    QFile package;
    try {
        OpenBinary(package, packagePath, QIODevice::ReadOnly);
        const QString tempFolder = AddTrailingBackslash(TheRun.Paths.AppPath + QStringLiteral("Temp"));
        for (;;) {
            PackageMemberHeader header;
            if (!ReadMemberHead(package, header)) break;
            // A member cut short, or one claiming more than the file holds,
            // is dropped without a word; nothing is allocated for it.
            if (header.MemberSize < 0 || header.MemberSize > package.size() - package.pos()) break;
            QByteArray buffer = MakeBuffer(header.MemberSize);
            if (!ReadExactly(package, buffer.data(), buffer.size())) break;
            const QString fileName = MemberFileName(header.MemberName);
            if (fileName.isEmpty()) RaiseError(errBadFileName);
            header.MemberName = tempFolder + fileName;
            WriteMember(header.MemberName, buffer);
        }
        package.close();
        return true;
    } catch (const std::exception&) {
        package.close();
    }
    return false;
}

}  // namespace

bool CreatePackageFile(const QString& sourceFolder, const QString& packagePath, std::optional<RuntimeError>* failure) {
    return PackFolder(packagePath, AddTrailingBackslash(sourceFolder), failure);
}

bool ExtractPackageFile(const QString& packagePath, const QString& targetFolder) {
    (void)targetFolder;  // the members always go to Temp/
    return UnpackPackage(packagePath);
}
