#pragma once
// Saved entries for the reading and diary tests, written by the core alone.
#include <type_traits>

#include "core/records/RecordFile.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

namespace ReadingFixtures {

// A saved entry "Saved", reading or diary, made with the deck and spread
// given, card i in location i of the first 20 locations, highCard at
// highCardAt if any.
template <class R>
R StoredEntry(const QString& path, Integer deckId, Integer spreadId, int highCardAt, Integer highCard) {
    R r;
    if constexpr (std::is_same_v<R, ReadingRecord>) {
        r = Fixtures::NamedReading(QStringLiteral("Saved"));
        r.DealtCount = 20;
    } else {
        r = Fixtures::NamedDiary(QStringLiteral("Saved"));
    }
    r.SavedOn = 46000;
    r.ReadingDeckId = deckId;
    r.ReadingDeckRevision = 1;
    r.ReadingSpreadId = spreadId;
    r.ReadingSpreadRevision = 1;
    for (int i = 1; i <= 20; ++i) r.DealtCard[std::size_t(i - 1)] = Integer(i);
    if (highCardAt > 0) r.DealtCard[std::size_t(highCardAt - 1)] = highCard;
    r.CardTypeSelected = {True16, True16, False16, False16};
    AppendRecord(path, r);
    return r;
}

// A deck "Tarot" of 22 cards and a spread "Big" of 20 locations for it, in
// the program folder in use, and complete entries saved with them.
class EntryDesigns {
protected:
    Integer deckId_ = 0;
    Integer spreadId_ = 0;

    void MakeDesigns() {
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), 22, false);
        spreadId_ = Fixtures::MakeSpread(QStringLiteral("Big"), 20, {deckId_});
    }
    ReadingRecord SavedReading(int highCardAt = 0, Integer highCard = 0) {
        return StoredEntry<ReadingRecord>(TheRun.Paths.ReadingsPath, deckId_, spreadId_, highCardAt, highCard);
    }
    void SavedDiary(int highCardAt = 0, Integer highCard = 0) {
        StoredEntry<DiaryRecord>(TheRun.Paths.DiaryPath, deckId_, spreadId_, highCardAt, highCard);
    }
};

}  // namespace ReadingFixtures
