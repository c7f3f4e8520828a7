#pragma once
// Builds a program directory for a test: the run-wide paths pointed at it,
// the record files, the folders and the default picture as a fresh start
// leaves them, and decks and spreads written straight into the record files
// with real picture files in Cards/.
#include <QColor>
#include <QList>
#include <QString>
#include <functional>

#include "core/records/RecordFile.h"
#include "core/records/Records.h"

namespace Fixtures {

// Puts the run-wide state back to its start (ResetRun), forms every path under dir as
// start-up does, and lays out an empty database of the present format: the
// six record files (Location.loc too, so nothing asks for a conversion),
// Cards/ with the default picture, Temp/, Packages/ and Packages/Attachments/.
void UseProgramDir(const QString& dir);

#ifdef QT_WIDGETS_LIB
// Stands the frame up on dir, a present-format database with one deck (no
// conversion, no offer to install), so that the screens live in its area as
// they do in the program; screen tests then point each run at a program
// directory of its own. The frame is a screen: only a test that links the
// screens sees it, and it is defined in the screens' part of the support.
void StandUpFrame(const QString& dir);
#endif

// Writes a small bitmap at path (a few pixels of one colour).
void WritePicture(const QString& path, const QColor& colour = QColor(Qt::darkBlue));

// The colour of the picture of card i on one side, as MakeDeck paints it.
QColor CardColour(int i, bool upright);

// Appends a saved deck of cardCount cards to Decks.dck and Cards.crd and
// returns its DeckId (the smallest free one). Card i is titled "Card i", is
// of type 0 ("Major Arcana") for i up to 22 and of type 1 ("Minor Arcana")
// after, and has an upright picture CUnnnnn.bmp in Cards/; withReversed also
// gives it a reversed picture CRnnnnn.bmp, otherwise its reversed side is the
// default picture.
Integer MakeDeck(const QString& name, int cardCount, bool withReversed);

// Appends a saved spread with locationCount locations ("Position i") to
// Spreads.spr and Location.loc and returns its SpreadId. The spread is tied
// to the decks listed (at most 10), or to any deck with anyDeck.
Integer MakeSpread(const QString& name, int locationCount, const QList<Integer>& allowedDeckIds = {},
                   bool anyDeck = false);

// A reading and a diary entry of that name, blank otherwise, saved on one
// fixed day.
ReadingRecord NamedReading(const QString& name);
DiaryRecord NamedDiary(const QString& name);

// Runs the writes in a child process that dies at write step `step`, half
// the bytes of a write stored first, as a crash leaves the folder; whether
// it died there rather than ending before the step came.
bool KilledAt(int step, const std::function<void()>& writes);

}  // namespace Fixtures

// Rewrites record n of a record file through a change.
template <class R>
void ChangeRecord(const QString& path, int n, const std::function<void(R&)>& change) {
    R r;
    GetRecord(path, n, r);
    change(r);
    PutRecord(path, n, r);
}
