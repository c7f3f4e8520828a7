#pragma once
// The cards each location of a diary entry may still take, one value for the
// whole entry. Every location has its list: the row of no card, then the
// cards of the chosen types in deck order, each with its number. With
// duplicates off a card chosen for one location leaves the other lists; when
// it is replaced or set back it returns to their ends by its title only, with
// no number, as the lists always did. The lists in hand are DiaryLists, in
// the run-wide state; the diary screen shows the row each location stands on
// and the card choice offers the rows of one location.
#include <QList>
#include <QString>
#include <array>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

struct DeckInMemory;

struct CardRow {
    QString Text;
    Integer Card = 0;  // the card's number; 0 for the row of no card and for a card that came back
};

struct DiaryCardLists {
    static constexpr int MaxLocations = 32;
    BoundedArray<QList<CardRow>> Rows = BoundedArray<QList<CardRow>>(1, MaxLocations);
    BoundedArray<int> Selected = BoundedArray<int>(1, MaxLocations);  // the row each location stands on; -1 for none
};

// The text of the row of no card.
QString SelectPrompt();

// Lists afresh, for each of the spread's locations, the row of no card and the
// cards of the chosen types, and puts every location on its row of no card.
void FillCardLists(DiaryCardLists& lists, const DeckInMemory& deck, int locationCount,
                   const std::array<bool, 4>& types);
// The first row of a location's list that is the row of no card.
int IndexOfNone(const DiaryCardLists& lists, int location);
// The text and the card number of the row the location stands on ("" and 0
// when it stands on none).
QString SelectedText(const DiaryCardLists& lists, int location);
Integer SelectedCard(const DiaryCardLists& lists, int location);
// A card is chosen for the location.
bool HasCardIn(const DiaryCardLists& lists, int location);
// The card the location's row stands for, found by its title: two cards of
// one title count as the first of them; 0 for the row of no card.
int CardNumberOfRow(const DiaryCardLists& lists, int location, const DeckInMemory& deck);
// The first row of the location's list with that card number, or the row of
// no card when none has it.
int RowOfCard(const DiaryCardLists& lists, int location, Integer card);

// Puts the location on a row of its list as choosing it does. With
// duplicates off, the card the location held before (its row's text,
// `before`) returns to the other lists, unless a saved entry is being
// rebuilt, and the card now chosen leaves them. The entry records the card
// (0 for none), which is returned.
int ChooseRow(DiaryCardLists& lists, DiaryRecord& diary, int location, int row, const QString& before,
              bool allowDuplicates, bool rebuilding, const DeckInMemory& deck, int locationCount);
// The row a location of a saved entry goes back to: that of the title of the
// card it holds, or the row of no card for a card the deck or the list no
// longer holds.
int RowToRestore(const DiaryCardLists& lists, const DiaryRecord& diary, int location, const DeckInMemory& deck);

// The diary entry in hand as its save writes it: the deck and spread with
// their revisions, the issue, and the location in focus.
void GatherDiary(DiaryRecord& diary, const DeckRecord& deck, const SpreadRecord& spread, const QString& issue,
                 int focusLocation);
