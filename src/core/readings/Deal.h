#pragma once
// The deal of a reading, one value: the table of face-down cards (which deck
// card and which orientation lies at each of its positions, in the order the
// shuffle settled, and which positions still lie face down), the card dealt
// into each location and which way up, the location that takes the next card
// and the cards left on the table. The reading screen and the table below it
// show it; only the functions here change it. The deal in hand is
// ReadingDeal, in the run-wide state: it outlives the table, so that a
// finished deal can still be saved.
#include <QList>
#include <array>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

struct DeckInMemory;

struct Deal {
    // Positions on the table and locations of a spread: the reading record
    // keeps as many.
    static constexpr int TableSize = 100;
    static constexpr int MaxLocations = 32;

    // The table in its shuffled order: the deck card at each position, its
    // orientation (-1 upright, 0 reversed), and whether it still lies there
    // face down (-1) or has been drawn or cleared away (0).
    BoundedArray<Integer> LocationCard = BoundedArray<Integer>(1, TableSize);
    BoundedArray<Integer> LocationIsUpright = BoundedArray<Integer>(1, TableSize);
    BoundedArray<Integer> FaceDown = BoundedArray<Integer>(1, TableSize);
    // The card dealt into each location and its orientation; 0 and -1 while
    // the location is empty.
    BoundedArray<Integer> DealtCard = BoundedArray<Integer>(1, MaxLocations);
    BoundedArray<Integer> DealtUpright = BoundedArray<Integer>(1, MaxLocations);
    Integer ThisLocationNumber = 1;  // receives the next card; cards dealt = this - 1
    Integer DeckCardsLeft = 0;       // cards left on the table
    Integer MaxCardsUsed = 0;        // positions in use: bounds the random pick and the animation
    bool LoadingReading = false;     // a saved reading is being restored: the shuffle leaves its record alone
};

// What a reading chose on its selection screen.
struct DealOptions {
    bool UseReversed = false;
    bool AllowDuplicateCards = false;
    std::array<bool, 4> CardTypeSelected{};
};
// The options of the run (UseReversed, AllowDuplicateCards, CardTypeSelected).
DealOptions RunDealOptions();

// A fresh deal over the spread and deck in hand: every location empty,
// location 1 next, the whole deck counted as left until a table is laid.
void NewDeal(Deal& deal, int deckCardCount);

// Lays the table: the pool of the chosen card types face down at positions
// 1 onwards, counted as the cards left and the positions in use, and
// shuffled (see ShuffleDeal).
void LayTable(Deal& deal, const DeckInMemory& deck, const DealOptions& options, ReadingRecord& reading);
// Lists the pool into the table and shuffles as many positions as there are
// cards left. The order and orientations go into the reading record as well,
// unless a saved reading is being restored.
void ShuffleDeal(Deal& deal, const DeckInMemory& deck, const DealOptions& options, ReadingRecord& reading);
// The table has gone: no card lies face down on it any more. Its order stays.
void TableRemoved(Deal& deal);

// Deals the card at a table position into the next location, whatever
// position it was: the location takes the card and the position's
// orientation. With duplicates off the card leaves the table. Returns the
// location dealt into.
int DealFromPosition(Deal& deal, int position, bool allowDuplicates);
// After a draw with duplicates on and locations still open, the whole table
// is shuffled anew and shown moving.
bool ReshufflesAfterDraw(const Deal& deal, int locationCount, bool allowDuplicates);
// What becomes of the table after a draw.
enum class TableFate { Stays, RanEmpty, DealComplete };
TableFate TableAfterDraw(const Deal& deal, int locationCount);
// The Shuffle button is for a table of two cards or more.
bool ShuffleAllowed(const Deal& deal);
// A random position in use whose card still lies face down, drawn until one
// is found; 0 when none is.
int PickRandomPosition(const Deal& deal);
// Takes a named card off the table: the first position that holds it is
// cleared, and the count of cards left falls by one whether or not one was
// found. True when the table is then empty and must be laid anew.
bool EliminateCard(Deal& deal, Integer card);

// Deal pressed. Over a complete deal the reading starts again: its name and
// notes stay, everything else is reset, the options of the run are taken
// afresh and the locations empty; true then. In any case the whole deck
// counts as left for the table about to be laid.
bool DealAgain(Deal& deal, ReadingRecord& reading, int deckCardCount, int locationCount, const DealOptions& options);

// A card lies in the location.
bool CardLiesAt(const Deal& deal, int location);
// The location Interpret shows: the last card dealt, location 1 before the
// first card, the last location once the deal is complete; 0 for none, and
// Interpret then goes off.
int LocationToInterpret(const Deal& deal, int locationCount);

// The reading in hand as its save writes it: the cards still face down (only
// while cards are left and locations open), the cards dealt and their count,
// the deck and spread with their revisions, the issue as the screen holds it
// and the table's order.
void GatherReading(const Deal& deal, ReadingRecord& reading, const DeckRecord& deck, const SpreadRecord& spread,
                   const QString& issue);
// The deal of a saved reading, as opening it rebuilds it: its dealt cards,
// a table laid afresh (as the first Continue lays it) with the positions the
// reading kept face down while locations are open, and its saved order. The
// cards still face down are counted on top of the fresh pool, so that the
// count of cards left stands above the true number, as it always has. Leaves
// LoadingReading on; the caller clears it once its screens show the deal.
void RestoreDeal(Deal& deal, const ReadingRecord& reading, const DeckInMemory& deck, int locationCount,
                 const DealOptions& options);

// The card types chosen (one index for each chosen row of the type list, as
// its name gives it) hold at least as many cards of the deck as the spread
// has locations.
bool EnoughCardsSelected(const DeckInMemory& deck, const QList<int>& chosenTypes, int locationCount);
