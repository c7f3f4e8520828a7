#pragma once
#include "screens/platform/Form.h"

class QLineEdit;
class QPushButton;

// "Set Password": a new password typed twice.
class frmSetPassword : public Form {
    Q_OBJECT
public:
    frmSetPassword();
    bool PasswordSet = false;
    QString Password;

    QLineEdit* txtPassword1;
    QLineEdit* txtPassword2;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
