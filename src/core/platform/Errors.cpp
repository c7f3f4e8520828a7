#include "core/platform/Errors.h"

RuntimeError::RuntimeError(int number, QString description)
    : number_(number),
      description_(description.isEmpty() ? ErrorDescription(number) : std::move(description)),
      what_(QStringLiteral("Run-time error %1: %2").arg(number_).arg(description_).toUtf8()) {}

void RaiseError(int number, const QString& description) { throw RuntimeError(number, description); }

QString ErrorDescription(int number) {
    switch (number) {
    case errSubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case errBadFileName: return QStringLiteral("Bad file name or number");
    case errFileNotFound: return QStringLiteral("File not found");
    case errFileAlreadyExists: return QStringLiteral("File already exists");
    case errDiskFull: return QStringLiteral("Disk full");
    case errInputPastEndOfFile: return QStringLiteral("Input past end of file");
    case errPermissionDenied: return QStringLiteral("Permission denied");
    case errPathFileAccess: return QStringLiteral("Path/File access error");
    case errPathNotFound: return QStringLiteral("Path not found");
    case errInvalidPicture: return QStringLiteral("Invalid picture");
    case errCancel: return QStringLiteral("Cancel was selected.");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}
