#include "store/Passwords.h"

#include "platform/MsgBox.h"
#include "store/frmGetPassword.h"
#include "store/frmSetPassword.h"
#include "store/mdlTypes.h"

bool CheckPassword(const QString& storedPassword) {
    frmGetPassword& screen = Get<frmGetPassword>();
    screen.Show(true);
    // Cancel unloads the screen; what it left in Password was "".
    const QString typed = IsLoaded<frmGetPassword>() ? RTrimField(screen.Password) : QString();
    bool result = false;
    if (typed.isEmpty()) {
        result = false;
    } else if (typed == RTrimField(storedPassword)) {
        result = true;
    } else {
        MsgBox(QStringLiteral("Incorrect password. Access Denied."), vbCritical);
    }
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
