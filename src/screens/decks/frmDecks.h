#pragma once
// "Decks' Menu": the hub of deck designing. Lists every saved deck with its
// brief info and card titles, and leads to designing a new deck, editing one
// (asking the password of a locked deck), viewing one, and deleting one with
// its cards and files.
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class FocusComboBox;
class ListBox;
class QGroupBox;
class QLabel;
class QPushButton;

class frmDecks : public Form {
    Q_OBJECT
public:
    frmDecks();

    ListBox* lstDecks;
    QPushButton* cmdDesign;
    QPushButton* cmdEdit;
    QPushButton* cmdInfo;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;
    QGroupBox* fraQuickInfo;
    QLabel* lblTitleField;
    QLabel* lblDesignDateField;
    QLabel* lblDesignerNameField;
    QLabel* lblCardsField;
    FocusComboBox* cboCards;

    void lstDecks_Click();
    void cboCards_GotFocus();
    void cmdDesign_Click();
    void cmdEdit_Click();
    void cmdInfo_Click();
    void cmdDelete_Click();
    void cmdClose_Click();

    // Selects the line of a deck by name (trimmed) as a click would; a name
    // not in the list leaves the selection as it is. The designer and the
    // viewer come back to the deck they left.
    void SelectDeck(const QString& deckName);
    // The name on the selected line, as listed; "" when none is selected.
    QString ChosenDeckName() const;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void UpdateButtons();
    void ClearBriefInfo();
    // Loads the selected deck for a designer or viewer; on a deck that
    // failed to load and was removed, drops its line.
    bool LoadSelectedDeck();
};
