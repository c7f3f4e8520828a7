#pragma once
// The saved readings and diary entries: listing them, saving one under a
// name, deleting one, and judging whether a saved one can still be opened.
// The twin records go one code path, each kind with its own file and its own
// words. Nothing here asks the user: a question comes back as its text, for
// the screen to ask.
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <utility>
#include <vector>

#include "core/records/Records.h"

// The names of the saved entries of a kind, trimmed, and their dates with the
// names as stored, in file order.
QStringList SavedEntryNames(EntryKind kind);
std::vector<std::pair<double, QString>> SavedEntryDates(EntryKind kind);

// What a name typed on a save screen comes to.
struct EntryNameCheck {
    QString Problem;    // it is no name: the message to show; nothing may be written
    QString Question;   // an entry has the name: ask this before writing over it
    int Replacing = 0;  // the record of that name, 0 for a new one
};
EntryNameCheck CheckEntryName(EntryKind kind, const QString& typed);

template <class R>
struct EntrySave {
    R Saved;  // the entry as written: named, dated, counted, with its card types
    int RecordNumber = 0;
    QString Problem;  // when set, nothing was written
};

// Writes the entry under the name (trimmed) in place of record `replacing`
// (the number CheckEntryName found), or after the last record when that is
// 0: named, dated today, its save count raised by one, with the card types
// given. The file is replaced whole in one step. The entry passed in is not
// changed; the screen keeps the one returned.
EntrySave<ReadingRecord> SaveEntry(const ReadingRecord& reading, const QString& name, int replacing,
                                   const std::array<bool, 4>& cardTypes);
EntrySave<DiaryRecord> SaveEntry(const DiaryRecord& diary, const QString& name, int replacing,
                                 const std::array<bool, 4>& cardTypes);

// Deletes every entry of the kind with that name (compared trimmed).
void DeleteEntry(EntryKind kind, const QString& name);

// What opening a saved entry meets, in the order of the checks: its password
// if it is locked, then its deck (still installed; if changed, still holding
// the cards of the first locations, and the user's consent) and its spread
// (still installed; if changed, the user's consent). A refusal ends the
// opening; so does a question answered No. Nothing is written either way.
struct OpeningStep {
    bool Refusal = false;  // told with the information icon; else asked Yes or No
    QString Text;
};
template <class R>
struct EntryOpening {
    bool Found = false;  // an entry of that name is saved
    R Entry;
    bool Locked = false;
    QString Password;
    QList<OpeningStep> Steps;
    DeckRecord Deck;  // the entry's deck and spread as they stand, to take once it opens
    SpreadRecord Spread;
};
// Only the cards of the first locations are checked against a changed deck.
inline constexpr int CheckedLocations = 15;
EntryOpening<ReadingRecord> JudgeReadingOpening(const QString& name);
EntryOpening<DiaryRecord> JudgeDiaryOpening(const QString& name);
