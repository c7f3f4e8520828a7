#pragma once
// "Save Spread": the dialogue that writes the spread in the designer to disk,
// under a new name (a new design with its own id, locations and picture) or
// over an existing one. Shown modally by the designer's Save.
#include "screens/platform/Form.h"

class QPushButton;
class ListBox;
class TextBox;

class frmSaveSpread : public Form {
    Q_OBJECT
public:
    frmSaveSpread();

    TextBox* txtSaveAs;
    ListBox* lstSpreadNames;
    QPushButton* cmdSave;
    QPushButton* cmdCancel;

    void txtSaveAs_Change();
    void lstSpreadNames_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
