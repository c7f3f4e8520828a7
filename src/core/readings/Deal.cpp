#include "core/readings/Deal.h"

#include "core/readings/Element.h"
#include "core/readings/Shuffle.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"

namespace {

int CardsFaceDown(const Deal& deal) {
    int count = 0;
    for (int i = 1; i <= Deal::TableSize; ++i)
        if (deal.FaceDown(i) != 0) ++count;
    return count;
}

void EmptyLocations(Deal& deal) {
    for (Integer& card : deal.DealtCard) card = 0;
    for (Integer& upright : deal.DealtUpright) upright = True16;
}

// The shuffle of as many positions as there are cards left, in the deal alone.
void ShuffleTableOf(Deal& deal, const DeckInMemory& deck, const DealOptions& options) {
    ListPool(deal.LocationCard, deck.DeckCards, deck.CardCount, options.CardTypeSelected);
    ShuffleTable(deal.LocationCard, deal.LocationIsUpright, deal.DeckCardsLeft, options.UseReversed);
}

// The pool laid face down and shuffled, in the deal alone.
void LayPool(Deal& deal, const DeckInMemory& deck, const DealOptions& options) {
    const int pool = PoolSize(deck.DeckCards, deck.CardCount, options.CardTypeSelected);
    deal.DeckCardsLeft = static_cast<Integer>(pool);
    deal.MaxCardsUsed = static_cast<Integer>(pool);
    for (int i = 1; i <= Deal::TableSize; ++i) deal.FaceDown(i) = Flag(i <= pool);
    ShuffleTableOf(deal, deck, options);
}

// The reading in hand keeps a copy of the order the shuffle settled, except
// while a saved reading is being restored.
void KeepOrder(const Deal& deal, ReadingRecord& reading) {
    if (deal.LoadingReading) return;
    for (int i = 1; i <= Deal::TableSize; ++i) {
        Element(reading.LocationIsUpright, i) = deal.LocationIsUpright(i);
        Element(reading.LocationCard, i) = deal.LocationCard(i);
    }
}

}  // namespace

DealOptions RunDealOptions() { return {TheRun.UseReversed, TheRun.AllowDuplicateCards, TheRun.CardTypeSelected}; }

void NewDeal(Deal& deal, int deckCardCount) {
    deal.DeckCardsLeft = static_cast<Integer>(deckCardCount);
    deal.ThisLocationNumber = 1;
    EmptyLocations(deal);
}

void LayTable(Deal& deal, const DeckInMemory& deck, const DealOptions& options, ReadingRecord& reading) {
    LayPool(deal, deck, options);
    KeepOrder(deal, reading);
}

void ShuffleDeal(Deal& deal, const DeckInMemory& deck, const DealOptions& options, ReadingRecord& reading) {
    ShuffleTableOf(deal, deck, options);
    KeepOrder(deal, reading);
}

void TableRemoved(Deal& deal) {
    for (Integer& faceDown : deal.FaceDown) faceDown = False16;
}

int DealFromPosition(Deal& deal, int position, bool allowDuplicates) {
    const Integer card = deal.LocationCard(position);
    const Integer upright = deal.LocationIsUpright(position);
    const int location = deal.ThisLocationNumber;
    deal.DealtCard(location) = card;
    deal.DealtUpright(location) = upright;
    deal.ThisLocationNumber = static_cast<Integer>(location + 1);
    if (!allowDuplicates) {
        deal.FaceDown(position) = False16;
        --deal.DeckCardsLeft;
    }
    return location;
}

bool ReshufflesAfterDraw(const Deal& deal, int locationCount, bool allowDuplicates) {
    return allowDuplicates && deal.ThisLocationNumber <= locationCount;
}

TableFate TableAfterDraw(const Deal& deal, int locationCount) {
    if (deal.ThisLocationNumber > locationCount) return TableFate::DealComplete;
    return deal.DeckCardsLeft == 0 ? TableFate::RanEmpty : TableFate::Stays;
}

bool ShuffleAllowed(const Deal& deal) { return deal.DeckCardsLeft > 1; }

int PickRandomPosition(const Deal& deal) {
    return PickFaceDownPosition(deal.MaxCardsUsed, Deal::TableSize, [&deal](int at) { return deal.FaceDown(at) != 0; });
}

bool EliminateCard(Deal& deal, Integer card) {
    for (int i = 1; i <= Deal::TableSize; ++i) {
        if (deal.LocationCard(i) != card) continue;
        deal.FaceDown(i) = False16;
        break;
    }
    --deal.DeckCardsLeft;
    return deal.DeckCardsLeft == 0;
}

bool DealAgain(Deal& deal, ReadingRecord& reading, int deckCardCount, int locationCount, const DealOptions& options) {
    const bool complete = deal.ThisLocationNumber > locationCount;
    if (complete) {
        const FixedText<2500> notes = reading.ReadingNotes;
        const FixedText<50> name = reading.ReadingName;
        ResetReading(reading);
        reading.ReadingNotes = notes;
        reading.ReadingName = name;
        reading.UseReversed = Flag(options.UseReversed);
        reading.AllowDuplicateCards = Flag(options.AllowDuplicateCards);
        for (std::size_t t = 0; t < 4; ++t) reading.CardTypeSelected[t] = Flag(options.CardTypeSelected[t]);
        deal.ThisLocationNumber = 1;
        EmptyLocations(deal);
    }
    deal.DeckCardsLeft = static_cast<Integer>(deckCardCount);
    return complete;
}

bool CardLiesAt(const Deal& deal, int location) { return location < deal.ThisLocationNumber; }

int LocationToInterpret(const Deal& deal, int locationCount) {
    const int t = deal.ThisLocationNumber;
    if (t > locationCount) return locationCount;
    if (t >= 2) return t - 1;
    if (t == 1) return 1;
    return 0;
}

void GatherReading(const Deal& deal, ReadingRecord& reading, const DeckRecord& deck, const SpreadRecord& spread,
                   const QString& issue) {
    const bool onTable = deal.DeckCardsLeft != 0 && deal.ThisLocationNumber <= spread.LocationCount;
    for (int i = 1; i <= Deal::TableSize; ++i)
        Element(reading.TableCardVisible, i) = Flag(onTable && deal.FaceDown(i) != 0);
    reading.DealtCount = static_cast<Integer>(deal.ThisLocationNumber - 1);
    reading.ReadingDeckId = deck.DeckId;
    reading.ReadingDeckRevision = deck.DeckRevision;
    reading.Issue = issue;
    reading.ReadingSpreadId = spread.SpreadId;
    reading.ReadingSpreadRevision = spread.SpreadRevision;
    for (int i = 1; i <= Deal::TableSize; ++i) {
        Element(reading.LocationIsUpright, i) = deal.LocationIsUpright(i);
        Element(reading.LocationCard, i) = deal.LocationCard(i);
    }
    for (int i = 1; i <= Deal::MaxLocations; ++i) {
        Element(reading.DealtCard, i) = deal.DealtCard(i);
        Element(reading.DealtUpright, i) = deal.DealtUpright(i);
    }
}

void RestoreDeal(Deal& deal, const ReadingRecord& reading, const DeckInMemory& deck, int locationCount,
                 const DealOptions& options) {
    deal.LoadingReading = true;
    NewDeal(deal, deck.CardCount);
    // The first passage to the spread page lays a table, and the saved
    // reading then takes its place.
    LayPool(deal, deck, options);

    const int dealt = reading.DealtCount;
    for (int i = 1; i <= Deal::MaxLocations; ++i) {
        deal.DealtCard(i) = Element(reading.DealtCard, i);
        deal.DealtUpright(i) = Element(reading.DealtUpright, i);
    }
    deal.ThisLocationNumber = static_cast<Integer>(dealt + 1);
    if (dealt < locationCount) {
        for (int i = 1; i <= deck.CardCount; ++i) deal.FaceDown(i) = Flag(Element(reading.TableCardVisible, i) != 0);
    } else {
        TableRemoved(deal);
    }
    for (int i = 1; i <= Deal::TableSize; ++i) {
        deal.LocationCard(i) = Element(reading.LocationCard, i);
        deal.LocationIsUpright(i) = Element(reading.LocationIsUpright, i);
    }
    const int faceDown = CardsFaceDown(deal);
    deal.MaxCardsUsed = static_cast<Integer>(faceDown + dealt);
    deal.DeckCardsLeft = static_cast<Integer>(deal.DeckCardsLeft + faceDown);
}

bool EnoughCardsSelected(const DeckInMemory& deck, const QList<int>& chosenTypes, int locationCount) {
    int cards = 0;
    for (int type : chosenTypes)
        for (const CardRecord& card : deck.DeckCards)
            if (card.CardType == type) ++cards;
    return cards >= locationCount;
}
