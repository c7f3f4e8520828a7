#pragma once
// The password screens as the other screens use them: asking for a locked
// design's or entry's password, and for a new one.
#include <QString>

// True only if the user typed the stored password (see JudgePassword).
// Cancelling, or typing nothing, is silent; a wrong password says so.
bool CheckPassword(const QString& storedPassword);

// Asks for a new password twice. The new password, or the present value if
// the user cancelled.
QString AskNewPassword(const QString& presentValue);
