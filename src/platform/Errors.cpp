#include "platform/Errors.h"

#include "platform/MsgBox.h"

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

void ReportError(const RuntimeError& error) {
    MsgBox(QStringLiteral("Run-time error '%1':\n\n%2").arg(error.Number()).arg(error.Description()),
           vbOKOnly | vbCritical);
}

void ReportUnexpected(const std::exception& error) {
    MsgBox(QStringLiteral("Run-time error '%1':\n\n%2").arg(51).arg(QString::fromLocal8Bit(error.what())),
           vbOKOnly | vbCritical);
}

bool Guarded(const std::function<void()>& operation) {
    try {
        operation();
        return true;
    } catch (const RuntimeError& e) {
        ReportError(e);
    } catch (const std::bad_alloc&) {
        ReportError(RuntimeError(7, QStringLiteral("Out of memory")));
    } catch (const std::exception& e) {
        ReportUnexpected(e);
    }
    return false;
}
