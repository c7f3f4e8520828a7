#pragma once
// "Add Card": edits one card, CurrentCard, on both its sides, and stores it
// into the deck in memory. Pictures and sounds picked for it wait in Temp/
// under working names and take their CU, CR and M names when the card is
// stored.
#include "screens/decks/CardScreen.h"

class ListBox;

class frmAddCard : public CardScreen {
    Q_OBJECT
public:
    frmAddCard();

    ListBox* lstCardType;
    QPushButton* cmdEditImage;
    QPushButton* cmdGetSound;
    QPushButton* cmdSaveClose;
    QPushButton* cmdSaveNew;

    bool DesignModified = false;
    bool Loading = false;
    bool AddTolstCards = true;
    bool SaveSuccessful = true;
    int CardPositionBeingEdited = 0;
    QString CardTitle;
    bool CloseForm = false;

    // The sound chooser's pick for a side: its working name becomes the
    // side's sound until the card is stored.
    void TakeWorkingSound(int side, const QString& workingName);

    void txtCardTitle_Change();
    void txtDescription_Change();
    void txtKeywords_Change();
    void lstCardType_Click();
    void imgCard_Click();
    void cmdEditImage_Click();
    void cmdGetSound_Click();
    void cmdSaveClose_Click();
    void cmdSaveNew_Click();
    void cmdBack_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void ShowCardType() override;
    void optPosition_Click() override;

private:
    // The common part of both save commands.
    void StoreCard();
    // Writes CurrentCard into DeckCards and refreshes the designer's list.
    void UpdateThisCartoDeck_frmDesignDeck();
    int getCardPositionInTempDeckCards() const;
};
