#pragma once
#include "screens/platform/Form.h"

class QLineEdit;
class QPushButton;

// "Confirm Password": the password of a locked design or entry.
class frmGetPassword : public Form {
    Q_OBJECT
public:
    frmGetPassword();
    QString Password;  // the text taken from the box; "" when cancelled

    QLineEdit* txtPassword;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
