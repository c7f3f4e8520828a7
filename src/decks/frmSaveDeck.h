#pragma once
// "Save Deck": writes the deck being designed to Decks.dck and Cards.crd
// under a new or an existing name, and moves its working pictures and sounds
// from Temp/ into Cards/ under fresh CU, CR and M names.
#include <array>
#include <vector>

#include "platform/Form.h"

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
    // Appends the cards of DeckCards to Cards.crd, giving each side's
    // picture and sound its final name.
    void WriteCards();
    // The next final picture stem for a side, from the names drawn for this
    // save.
    QString NextPictureName(int side);
    void BuildNameTable();

    // The names drawn for this save, one row per side, CardCount each.
    std::array<std::vector<QString>, 2> names_;
    bool namesBuilt_ = false;
    std::array<std::size_t, 2> drawn_{};
};
