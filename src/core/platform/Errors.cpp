#include "core/platform/Errors.h"

#include <QCoreApplication>

RuntimeError::RuntimeError(int number, QString description)
    : number_(number),
      description_(description.isEmpty() ? ErrorDescription(number) : std::move(description)),
      // For logs and debuggers; the user sees the error box's own text.
      what_(QStringLiteral("Run-time error %1: %2").arg(number_).arg(description_).toUtf8()) {}

void RaiseError(int number, const QString& description) { throw RuntimeError(number, description); }

QString ErrorDescription(int number) {
    switch (number) {
    case errSubscriptOutOfRange: return QCoreApplication::translate("Errors", "Subscript out of range");
    case errBadFileName: return QCoreApplication::translate("Errors", "Bad file name or number");
    case errFileNotFound: return QCoreApplication::translate("Errors", "File not found");
    case errFileAlreadyExists: return QCoreApplication::translate("Errors", "File already exists");
    case errDiskFull: return QCoreApplication::translate("Errors", "Disk full");
    case errInputPastEndOfFile: return QCoreApplication::translate("Errors", "Input past end of file");
    case errPermissionDenied: return QCoreApplication::translate("Errors", "Permission denied");
    case errPathFileAccess: return QCoreApplication::translate("Errors", "Path/File access error");
    case errPathNotFound: return QCoreApplication::translate("Errors", "Path not found");
    case errInvalidPicture: return QCoreApplication::translate("Errors", "Invalid picture");
    case errCancel: return QCoreApplication::translate("Errors", "Cancel was selected.");
    default: return QCoreApplication::translate("Errors", "Application-defined or object-defined error");
    }
}
