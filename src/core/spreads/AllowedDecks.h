#pragma once
// A spread names up to ten decks it may be read with. When a deck goes, the
// spreads let go of it.
#include "core/records/Records.h"

// Whether some spread allows this deck and no other.
bool IsSoleDeckOfASpread(Integer deckId);

// Unties the deck from every spread: the entries behind it move up, the
// freed place is -1, and the changed spreads are written back together.
void RemoveDeckFromSpreads(Integer deckId);
