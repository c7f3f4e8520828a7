#pragma once
// Every write of a saved deck: a deck saved under a name, new or in place of
// the deck of that name, with its cards and their pictures and sounds; and a
// deck deleted with everything that hangs on it. The save and deck list
// screens ask the user; these find what there is to ask, and do the work.
#include <QString>
#include <QStringList>
#include <optional>

#include "core/platform/Errors.h"
#include "core/store/RunState.h"

// What a save under the typed name meets before anything is written.
struct DeckSaveCheck {
    QString Name;        // the name the deck is saved under: the text trimmed
    QString Refusal;     // why nothing can be saved under it, or empty
    int Replacing = -1;  // the record of the deck of that name, which the save replaces
    QString Question;    // to be answered Yes before the save, or empty
};
DeckSaveCheck CheckDeckSave(const QString& typed);

struct DeckSaveResult {
    // The deck as saved: its name, id, revision and date, and its cards with
    // the names of their files in Cards/ (which Temp/ now holds as well).
    DeckInMemory Deck;
    // What the file pass met and passed over, each a message, in order.
    QStringList Problems;
    // The error that stopped the save before anything was replaced; the
    // disk is then as it was.
    std::optional<RuntimeError> Failure;
};

// Saves `deck` as `name` in one step, in place of deck record `replacing`
// (-1 for none), with the pictures and sounds that its cards name in Temp/.
// The deck takes the replaced deck's id, or the smallest free one for a new
// deck, and its files fresh CU, CR and M names in Cards/, drawn as if the
// replaced deck were gone already; its cards
// are added after every other card. Card records that stand under the id it
// takes belong to no deck and go in the same step, with the files that they
// alone name. Every side gets a file of its own, one on the default picture a
// copy of it; a side whose working file has gone is told twice in Problems
// and left on the default picture, or without its sound. Temp/ follows the
// new names, so that the deck can be saved again from it.
DeckSaveResult SaveDeck(const DeckInMemory& deck, const QString& name, int replacing);

// What deleting the deck listed under `name` asks first: each question is
// to be answered Yes, in order, before RemoveDeck.
struct DeckDeleteCheck {
    int RecordNumber = -1;
    QStringList Questions;
};
DeckDeleteCheck CheckDeckDelete(const QString& name);

// Unties the deck from every spread, then deletes its record, its cards and
// their files.
void RemoveDeck(int recordNumber);
