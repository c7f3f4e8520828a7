#pragma once
// Loading a deck for a screen: a deck that has lost cards cannot be used, and
// the user is offered its removal there and then.

// Loads the deck whose record stands in ListDeck (see LoadDeckCards). False
// when cards are missing; DeckRemoved then tells whether the user chose to
// delete the deck.
bool LoadDeck(bool& DeckRemoved);
