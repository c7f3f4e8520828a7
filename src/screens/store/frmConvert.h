#pragma once
// The screen that offers to convert a database of the earlier format. It
// opens at start-up when Location.loc is missing and no backups stand in the
// way.
#include "screens/platform/Form.h"

class QLabel;
class QPushButton;

class frmConvert : public Form {
    Q_OBJECT
public:
    frmConvert();

    QLabel* lblMessage = nullptr;
    QPushButton* cmdConvert = nullptr;
    QPushButton* cmdClose = nullptr;

    void cmdConvert_Click();
    void cmdClose_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};

// Shows frmConvert modally and returns whether a conversion ran to its end.
bool RunConversionScreen();
