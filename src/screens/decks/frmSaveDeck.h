#pragma once
// "Save Deck": writes the deck being designed to Decks.dck and Cards.crd
// under a new or an existing name, and moves its working pictures and sounds
// from Temp/ into Cards/ under fresh CU, CR and M names.
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

private:
    // Writes the deck in hand under the name, in place of deck record
    // `existing` (-1: none), with its pictures and sounds in Cards/.
    void SaveDeck(const QString& name, int existing);
};
