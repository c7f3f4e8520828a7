#pragma once
// The two deck lists that tie a spread to decks: the decks it may not use yet
// (lstAvailableDecks) and those it works on (lstDecks), with the buttons
// between them and the any-deck box. The spread designer's deck page and the
// deck chooser both work through this one piece; each screen hands it its own
// controls and its own way of marking the choice as changed.
#include <QList>
#include <functional>
#include <vector>

#include "core/records/Records.h"

class QCheckBox;
class QPushButton;
class QWidget;
class ListBox;

class DeckLists {
public:
    ListBox* lstAvailableDecks = nullptr;
    ListBox* lstDecks = nullptr;
    QCheckBox* chkAnyDeck = nullptr;
    QPushButton* cmdAddDeck = nullptr;
    QPushButton* cmdDeleteDeck = nullptr;
    // Controls that are usable only while the spread is not an any-deck one.
    QList<QWidget*> NamedDeckControls;
    std::function<void()> MarkDirty;
    // The decks to choose from, when they are not those of Decks.dck.
    const std::vector<DeckRecord>* Decks = nullptr;

    // Every deck's trimmed name into lstAvailableDecks.
    void ShowDeckLists();
    // The spread's decks that still exist into lstDecks, out of
    // lstAvailableDecks; a deck that has gone is passed over.
    void AddDeckNames(const SpreadRecord& spread);
    void UpdateDeckButtons();
    void cmdAddDeck_Click();
    void cmdDeleteDeck_Click();
    // Enables the named-deck controls when chkAnyDeck is clear.
    void EnableForAnyDeck();
    // AllowedDeckCount and AllowedDeckId from the lists: -1 for any deck,
    // the ids of lstDecks in list order, -1 for the rest.
    void WriteChoice(SpreadRecord& spread) const;

private:
    void Move(ListBox* from, ListBox* to);
    // The id of the first deck of that name among the decks to choose from.
    Integer DeckIdByName(const QString& name) const;
};

// Selects position `noted` again after an entry went: one up when it lies
// past the end now, the first entry when that selects nothing.
void RestoreListPosition(ListBox* list, int noted);
