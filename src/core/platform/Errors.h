#pragma once
// The run-time error of the toolkit: an operation that meets a failure it has no
// answer for raises one of these; the screens catch it (see ErrorReport.h),
// show the error box with its number and description, and the program keeps
// running.
#include <QString>
#include <exception>

// Error numbers as the toolkit reports them.
enum ErrorNumber : int {
    errSubscriptOutOfRange = 9,
    errBadFileName = 52,
    errFileNotFound = 53,
    errFileAlreadyExists = 58,
    errDiskFull = 61,
    errInputPastEndOfFile = 62,
    errPermissionDenied = 70,
    errPathFileAccess = 75,
    errPathNotFound = 76,
    errInvalidPicture = 481,
    errCancel = 32755,
};

class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString description);
    int Number() const { return number_; }
    const QString& Description() const { return description_; }
    const char* what() const noexcept override { return what_.constData(); }

private:
    int number_;
    QString description_;
    QByteArray what_;
};

[[noreturn]] void RaiseError(int number, const QString& description = QString());

// The standard description of a toolkit error number ("File not found", ...).
QString ErrorDescription(int number);
