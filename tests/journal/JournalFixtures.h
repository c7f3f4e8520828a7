#pragma once
// The sample the journal's tests read: four readings and four diary entries
// on three decks (one revised since, one removed) and two spreads, laid in
// the program folder in use.
//
// Readings: R1 "Move, "north"" and R2 "Work" on Tarot, R3 "Secret" locked,
// R4 "Bad date". Diary: D1 "Garden" on Tarot, D2 "Old deck" on a deck revised
// since, D3 "Gone deck" on a removed deck, D4 "Damaged" with a card beyond its
// deck.
#include <QDate>
#include <QTemporaryDir>
#include <initializer_list>

#include "core/journal/Journal.h"
#include "core/platform/OleDate.h"
#include "core/store/DeletePasses.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

namespace JournalFixtures {

struct Dealt {
    int Location;
    Integer Card;
    bool Upright;
};

// Saves an entry dealt on a deck and spread on a day.
template <class R>
inline void Save(const QString& path, R r, Integer deck, Integer spread, const QDate& day,
                 std::initializer_list<Dealt> cards) {
    r.ReadingDeckId = deck;
    r.ReadingDeckRevision = 1;
    r.ReadingSpreadId = spread;
    r.ReadingSpreadRevision = 1;
    r.SavedOn = ToOleDate(day);
    for (const Dealt& d : cards) {
        r.DealtCard[static_cast<std::size_t>(d.Location - 1)] = d.Card;
        r.DealtUpright[static_cast<std::size_t>(d.Location - 1)] = Flag(d.Upright);
    }
    AppendRecord(path, r);
}

struct Sample {
    Integer Tarot = 0, Other = 0, Gone = 0, Cross = 0, Line = 0;
};

inline Sample LaySample() {
    Sample s;
    s.Tarot = Fixtures::MakeDeck(QStringLiteral("Tarot"), 30, false);
    s.Other = Fixtures::MakeDeck(QStringLiteral("Other"), 10, false);
    s.Gone = Fixtures::MakeDeck(QStringLiteral("Gone"), 10, false);
    DeleteDeck(3);
    ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [](DeckRecord& d) { d.DeckRevision = 2; });
    s.Cross = Fixtures::MakeSpread(QStringLiteral("Cross"), 3, {}, true);
    s.Line = Fixtures::MakeSpread(QStringLiteral("Line"), 3, {}, true);

    ReadingRecord r = Fixtures::NamedReading(QStringLiteral("Move, \"north\""));
    r.Issue = QStringLiteral("the move");
    r.ReadingNotes = QStringLiteral("Talk to Anna");
    r.DealtCount = 3;
    Save(TheRun.Paths.ReadingsPath, r, s.Tarot, s.Cross, {2024, 1, 15}, {{1, 1, true}, {2, 23, false}, {3, 5, true}});
    r = Fixtures::NamedReading(QStringLiteral("Work"));
    r.ReadingNotes = QStringLiteral("New job; the MOVE maybe");
    Save(TheRun.Paths.ReadingsPath, r, s.Tarot, s.Line, {2024, 3, 2}, {{1, 1, false}, {2, 2, true}});
    r = Fixtures::NamedReading(QStringLiteral("Secret"));
    r.Issue = QStringLiteral("hidden words");
    r.EntryLocked = True16;
    r.EntryPassword = QStringLiteral("pw");
    Save(TheRun.Paths.ReadingsPath, r, s.Tarot, s.Line, {2024, 3, 10}, {{1, 1, true}});
    Save(TheRun.Paths.ReadingsPath, Fixtures::NamedReading(QStringLiteral("Bad date")), s.Tarot, s.Line, {2024, 1, 1},
         {{1, 3, true}});
    ChangeRecord<ReadingRecord>(TheRun.Paths.ReadingsPath, 4, [](ReadingRecord& bad) { bad.SavedOn = 1e9; });

    Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Garden")), s.Tarot, s.Cross, {2024, 1, 20},
         {{2, 5, true}, {3, 1, true}});
    Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Old deck")), s.Other, s.Line, {2024, 2, 5},
         {{1, 3, true}});
    Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Gone deck")), s.Gone, s.Line, {2024, 2, 6},
         {{1, 4, false}});
    Save(TheRun.Paths.DiaryPath, Fixtures::NamedDiary(QStringLiteral("Damaged")), s.Tarot, s.Line, {2024, 2, 7},
         {{1, 45, true}, {2, 2, false}});
    return s;
}

// A program folder holding the sample, and the journal as read from it.
class JournalRun {
protected:
    QTemporaryDir dir_;
    Sample s_;
    JournalCatalogue catalogue_;
    Journal journal_;

    void LayAndRead() {
        Fixtures::UseProgramDir(dir_.path());
        s_ = LaySample();
        Read();
    }
    void Read() {
        catalogue_ = LoadJournalCatalogue();
        journal_ = ReadJournal(catalogue_);
    }
};

}  // namespace JournalFixtures
