#pragma once
// A spread names up to ten decks it may be read with. When a deck goes, the
// spreads let go of it.
#include <QString>

#include "core/records/Records.h"

// A spread may work on at most this many named decks.
constexpr int MaxSpreadDecks = 10;

// Why one more deck may not be tied to a spread that works on `tied` decks:
// the message to show, or an empty text when it fits.
QString SpreadDeckLimitProblem(int tied);

// Whether some spread allows this deck and no other.
bool IsSoleDeckOfASpread(Integer deckId);

// Unties the deck from every spread: the entries behind it move up, the
// freed place is -1, and the changed spreads are written back together.
void RemoveDeckFromSpreads(Integer deckId);
