#pragma once
// The package file: the files of a folder, end to end. Each member is its
// name's length (16-bit), the name (single-byte text: the path the file had
// on the machine that packed it), its size (32-bit signed) and its bytes, all
// little-endian, with no header, count or end mark. Only the part of the name
// after the last separator means anything to a reader.
//
// A package comes from elsewhere and is not trusted: the reader writes only
// plain file names inside Temp/, and never allocates more than what is left
// of the file.
#include <QByteArray>
#include <QString>
#include <optional>

#include "core/platform/Errors.h"

// The head of one member as it stands in memory.
struct PackageMemberHeader {
    QString MemberName;
    qint32 MemberSize = 0;
};

// Packs every plain file of sourceFolder into packagePath. False when the
// package could not be written whole; `failure` then holds the error that
// stopped it.
bool CreatePackageFile(const QString& sourceFolder, const QString& packagePath,
                       std::optional<RuntimeError>* failure = nullptr);
// Unpacks every member of packagePath into Temp/. The target folder is
// passed over: the members always go to Temp/. False when the package could
// not be opened or read.
bool ExtractPackageFile(const QString& packagePath, const QString& targetFolder);

// The bytes of a member's head: name length, name, size.
QByteArray EncodeMemberHead(const QString& memberName, qint32 memberSize);
// The name under which a folder's file is recorded in a package: its full
// path with backslashes, the separator of the package's own name.
QString MemberNameOf(const QString& path);
// The plain file name a member unpacks to: what follows the last "\" or "/".
// Empty when that name is empty, "." or "..", or holds a zero byte: such a
// member could reach outside Temp/ and is refused.
QString MemberFileName(const QString& memberName);
