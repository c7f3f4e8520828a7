#pragma once
// "Save Deck": asks the name under which the deck being designed is saved,
// and whether it may replace the deck of that name; the save itself is
// DeckStore's.
#include "screens/platform/Form.h"

class QLineEdit;
class ListBox;
class QPushButton;

class frmSaveDeck : public Form {
    Q_OBJECT
public:
    frmSaveDeck();

    QLineEdit* txtSaveAs;
    ListBox* lstDeckNames;
    QPushButton* cmdSave;
    QPushButton* cmdCancel;

    void lstDeckNames_Click();
    void txtSaveAs_Change();
    void cmdSave_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
