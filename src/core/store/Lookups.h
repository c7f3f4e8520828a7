#pragma once
// Counting the records of a file, finding a record by name or id, the
// smallest free ids, and a spread's locations read into memory. Record
// numbers count from 1 and are positions of the moment: a delete moves later
// records up.
#include <QString>
#include <cstring>

#include "core/records/Records.h"
#include "core/store/RunState.h"

// A record as a fresh allocation leaves it: every byte zero, its text fields
// included (they then read as empty, not as spaces).
template <class R>
R ZeroRecord() {
    char zeros[R::Length];
    std::memset(zeros, 0, sizeof zeros);
    R r;
    DecodeRecord(zeros, r);
    return r;
}

int CountCards(const QString& path = TheRun.Paths.CardsPath);
int CountDecks(const QString& path = TheRun.Paths.DecksPath);
int CountSpreads(const QString& path = TheRun.Paths.SpreadsPath);
int CountReadings(const QString& path = TheRun.Paths.ReadingsPath);
int CountDiaries(const QString& path = TheRun.Paths.DiaryPath);

// Names are compared with both sides trimmed, exactly; the first match wins.
// Record numbers, or -1 when nothing matches.
int FindSpreadByName(const QString& name);
int FindDeckByName(const QString& name);
int FindReadingByName(const QString& name);
int FindDiaryByName(const QString& name);
Integer FindDeckIdByName(const QString& name);  // the DeckId, or -1
// The first deck record carrying the id, record number leavingOut not
// counted.
int FindDeckRecordById(Integer deckId, int leavingOut = 0);
int FindSpreadRecordById(Integer spreadId);
QString DeckNameById(Integer deckId);      // untrimmed, or ""
QString SpreadNameById(Integer spreadId);  // untrimmed, or ""

// The smallest positive id that no record carries: ids of deleted designs are
// used again. A deck save that replaces a deck asks as if the replaced
// record (its number) were already gone.
Integer NextDeckId(int leavingOut = 0);
Integer NextSpreadId();

// Fills SpreadLocations(1 .. count) with the spread's locations by their
// LocationNumber; numbers not found stay all zero.
void LoadSpreadLocations(Integer spreadId, int count);
void LoadSpreadLocationsFrom(const QString& path, Integer spreadId, int count);
