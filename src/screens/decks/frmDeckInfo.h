#pragma once
// "Deck View": the read-only twin of the deck designer. Anybody may look at
// a deck this way, locked or not.
#include "screens/decks/DeckScreen.h"

class frmDeckInfo : public DeckScreen {
    Q_OBJECT
public:
    frmDeckInfo();

    void cmdEditCard_Click();
    void cmdProperties_Click();
    void cmdComments_Click();
    void cmdBack_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
