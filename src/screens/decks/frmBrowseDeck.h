#pragma once
// "Browse Decks": the small chooser with which the spread designer ties one
// more deck to its spread. It lists every saved deck; Select (or Enter in the
// list, or a double click) hands the chosen deck's name, as stored, to the
// caller and unloads; Cancel (or Esc) just unloads.
//
// The spread designer sets DeckChosen before it shows the screen modally:
//     auto& browse = Get<frmBrowseDeck>();
//     browse.DeckChosen = [this](const QString& deckName) { AddBrowsedDeck(deckName); };
//     browse.Show(true);
// DeckChosen adds the name to the designer's deck list and marks the spread as
// changed; the limit of ten tied decks is the designer's to keep.
#include <functional>

#include "screens/platform/Form.h"

class ListBox;
class QPushButton;

class frmBrowseDeck : public Form {
    Q_OBJECT
public:
    frmBrowseDeck();

    // Called by cmdSelect with the DeckName of the chosen deck, untrimmed as
    // it stands in Decks.dck.
    std::function<void(const QString& deckName)> DeckChosen;

    ListBox* lstDecks;
    QPushButton* cmdSelect;
    QPushButton* cmdCancel;

    void cmdSelect_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
