#include "screens/store/PasswordPrompts.h"

#include <QCoreApplication>

#include "core/store/Passwords.h"
#include "screens/platform/MsgBox.h"
#include "screens/store/frmGetPassword.h"
#include "screens/store/frmSetPassword.h"

bool CheckPassword(const QString& storedPassword) {
    frmGetPassword& screen = Get<frmGetPassword>();
    screen.Show(true);
    // Cancel unloads the screen; what it left in Password was "".
    const QString typed = IsLoaded<frmGetPassword>() ? screen.Password : QString();
    const PasswordJudgement judgement = JudgePassword(storedPassword, typed);
    if (judgement == PasswordJudgement::Wrong)
        MsgBox(QCoreApplication::translate("PasswordPrompts", "Incorrect password. Access Denied."), vbCritical);
    const bool result = judgement == PasswordJudgement::Right;
    UnloadScreen<frmGetPassword>();
    return result;
}

QString AskNewPassword(const QString& presentValue) {
    frmSetPassword& screen = Get<frmSetPassword>();
    screen.Show(true);
    QString result = presentValue;
    if (IsLoaded<frmSetPassword>() && screen.PasswordSet) result = screen.Password;
    UnloadScreen<frmSetPassword>();
    return result;
}
