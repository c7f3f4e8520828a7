#pragma once
// Design passwords. A locked deck or spread (and a saved entry made so) asks
// for its password before it is edited or reopened; the password stands in
// the record in plain text and counts only while the lock flag is set.
#include <QString>

enum class PasswordJudgement { NothingTyped, Right, Wrong };

// What a typed password is worth against the stored one: both are compared
// without trailing spaces, and nothing typed (or only spaces) is no answer
// rather than a wrong one.
PasswordJudgement JudgePassword(const QString& storedPassword, const QString& typed);
