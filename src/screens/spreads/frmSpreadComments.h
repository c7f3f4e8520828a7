#pragma once
// "Spread Notes": the designer's notes on the spread, written straight into
// SpreadComments at every change. Nothing needs saving here, so the screen
// goes without a question on Close, Esc, or as soon as it loses the focus.
#include "screens/platform/Form.h"

class QPushButton;
class MultiLineTextBox;

class frmSpreadComments : public Form {
    Q_OBJECT
public:
    frmSpreadComments();

    MultiLineTextBox* txtComments;
    QPushButton* cmdClose;

    void txtComments_Change();
    void cmdClose_Click();

protected:
    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
