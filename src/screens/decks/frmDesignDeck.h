#pragma once
// "Deck Design": edits the deck in memory (CurrentDeck and its DeckCards)
// with its pictures and sounds as working copies in Temp/. Nothing reaches
// the record files until the deck is saved through frmSaveDeck.
#include "core/records/Records.h"
#include "screens/decks/DeckScreen.h"

class frmDesignDeck : public DeckScreen {
    Q_OBJECT
public:
    // The deck was saved under that name: nothing is left unsaved.
    void DeckSaved(const QString& name);
    // Back from the card editor: the card list takes the keys again.
    void FocusCardList();
    frmDesignDeck();

    QPushButton* cmdAddCard;
    QPushButton* cmdDeleteCard;
    QPushButton* cmdSave;
    QPushButton* cmdImportPictures;

    bool DesignModified = false;
    bool Loading = false;
    // False on a new deck until its properties screen has closed once: until
    // then the card types and the reversed flag may still change.
    bool DeckCardProperties_Configured = false;

    void cmdAddCard_Click();
    void cmdEditCard_Click();
    void cmdDeleteCard_Click();
    void cmdSave_Click();
    // Makes cards of the pictures of a folder, many at once.
    void cmdImportPictures_Click();
    void cmdProperties_Click();
    void cmdComments_Click();
    void cmdBack_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void UpdateCardButtons() override;

private:
    void txtDeckTitle_Change();
    // The boxes other than the title mark the deck changed at every change.
    template <int N>
    void StoreDeckField(FixedText<N>& field, const QString& text);
};
