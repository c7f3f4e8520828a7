#include "core/store/Usability.h"

#include "core/store/Lookups.h"
#include "core/store/RecordPasses.h"

using namespace RecordPasses;

bool IsReversedComplete(Integer deckId, int cardCount) {
    RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
    CardRecord card;
    int checked = 0;
    while (checked < cardCount && reader.Next(card)) {
        if (card.CardDeckId != deckId) continue;
        ++checked;
        // The trimmed name never equals the default constant, which ends in a
        // space, so only a missing file fails here: a deck whose reversed
        // sides still show the default picture counts as complete.
        if (!FileExists(TheRun.Paths.CardsDir + card.CardPicture[1].Value()) ||
            card.CardPicture[1].Trimmed() == DefaultPictureName)
            return false;
    }
    return checked >= cardCount;
}

namespace {

// The test of IsDeckUsable on a deck record already in hand.
bool DeckQualifies(const DeckRecord& deck, int neededCardCount) {
    if (deck.CardCount < neededCardCount) return false;
    if (deck.IncludesReversed) return IsReversedComplete(deck.DeckId, deck.CardCount);
    return true;
}

}  // namespace

bool IsDeckUsable(Integer deckId, int neededCardCount) {
    DeckRecord deck;
    const int number = FindRecord<DeckRecord>(TheRun.Paths.DecksPath, [&](const DeckRecord& r) {
        if (r.DeckId != deckId) return false;
        deck = r;
        return true;
    });
    return number >= 0 && DeckQualifies(deck, neededCardCount);
}

bool IsSpreadUsable(const QString& spreadName) {
    const int number = FindSpreadByName(spreadName);
    if (number < 0) return false;
    SpreadRecord spread;
    if (!GetRecord(TheRun.Paths.SpreadsPath, number, spread)) return false;
    if (spread.LocationCount < 1) return false;
    if (spread.AllowedDeckCount < 0) {
        // Each deck is judged by the first record that carries its id, as a
        // lookup by id would find it; a later record of the same id adds
        // nothing.
        std::vector<bool> seen(65536, false);
        RecordReader<DeckRecord> reader(TheRun.Paths.DecksPath);
        DeckRecord deck;
        while (reader.Next(deck)) {
            const auto slot = static_cast<std::size_t>(static_cast<std::uint16_t>(deck.DeckId));
            if (seen[slot]) continue;
            seen[slot] = true;
            if (DeckQualifies(deck, spread.LocationCount)) return true;
        }
    }
    const int allowed = qMin<int>(spread.AllowedDeckCount, static_cast<int>(spread.AllowedDeckId.size()));
    for (int i = 0; i < allowed; ++i) {
        if (IsDeckUsable(spread.AllowedDeckId[static_cast<std::size_t>(i)], spread.LocationCount)) return true;
    }
    return false;
}
