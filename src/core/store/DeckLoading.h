#pragma once
// The deck in memory (CurrentDeck and its cards), and the names the
// program gives picture files in Cards/.
#include <QSet>
#include <QString>
#include <QStringList>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"
#include "core/store/RunState.h"

// Brings the deck whose record stands in ListDeck into CurrentDeck and its
// cards into DeckCards. False when cards are missing: the deck cannot be
// used, and the screen that asked for it offers to remove it.
bool LoadDeckCards();
void StoreListDeck();  // CurrentDeck's fields into ListDeck
// Points each side whose picture file is missing from Cards/ at the default
// picture; true if it changed anything.
bool ValidateCardPictures(CardRecord& card);

// Index 0 to 3 of CurrentDeck's card type of that name (trimmed), or -1.
int CardTypeIndex(const QString& typeName);
// Cards of DeckCards of that type.
int CountCardsOfTypeName(const QString& typeName);
// Cards 1 .. cardCount of that type, or 0 when the type is not selected in
// CardTypeSelected.
int CountSelectedCardsOfType(const BoundedArray<CardRecord>& cards, int cardCount, int typeIndex);

QString CardUprightName(int number);            // "CU00012"
QString CardReversedName(int number);           // "CR00012"
QString CardPictureStem(int side, int number);  // by side: 0 upright, 1 reversed
QString SpreadPictureName(int number);          // "S000007"

// The stems ("CU00012", "S000007") that the files of some folders take. A
// file takes a stem when its name is the stem followed by a dot and anything,
// or by at most four more characters: every name the program gives is a stem
// and the last four characters of a source, and that source may have lost its
// dot ("photo.jpeg" gives "CU00001jpeg"). Letters count without case, as in
// the program's wildcard matching. Every search for a free picture name goes
// by this one rule, so two pictures never meet under one name in Cards/.
class TakenStems {
public:
    // Files about to go (full paths in `going`) take nothing.
    explicit TakenStems(const QStringList& folders, const QStringList& going = {});
    bool Contains(const QString& stem) const;
    // Counts a file that is not there yet as if it were.
    void Take(const QString& fileName);

private:
    QSet<QString> stems_;
};

// The first S name that no file takes, with the source's extension.
QString NewBackgroundName(const QString& sourcePath);
QString NewBackgroundName(const QString& sourcePath, const TakenStems& taken);
// The first number from `from` upward whose upright (side 0) or reversed
// (side 1) picture stem no file in the folders takes.
int FreeCardNumber(int side, const QStringList& folders, int from = 1);
