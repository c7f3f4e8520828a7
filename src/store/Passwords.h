#pragma once
// Design passwords. A locked deck or spread (and a saved entry made so) asks
// for its password before it is edited or reopened; the password stands in
// the record in plain text and counts only while the lock flag is set.
#include <QString>

// True only if the user typed exactly the stored password (both compared
// without trailing spaces). Cancelling, or typing nothing, is silent; a wrong
// password says "Incorrect password. Access Denied.".
bool CheckPassword(const QString& storedPassword);

// Asks for a new password twice. The new password, or the present value if
// the user cancelled.
QString AskNewPassword(const QString& presentValue);
