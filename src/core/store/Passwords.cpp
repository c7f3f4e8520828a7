#include "core/store/Passwords.h"

#include "core/records/Records.h"

PasswordJudgement JudgePassword(const QString& storedPassword, const QString& typed) {
    const QString given = RTrimField(typed);
    if (given.isEmpty()) return PasswordJudgement::NothingTyped;
    return given == RTrimField(storedPassword) ? PasswordJudgement::Right : PasswordJudgement::Wrong;
}
