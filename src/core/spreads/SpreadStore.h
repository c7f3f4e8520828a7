#pragma once
// Every write of a spread: its save with its locations and background, the
// decks it is tied to, its delete, and the copy of its background in Temp/
// that the designer works on. Each takes the spread as a value and gives back
// the spread as it now stands and what it found; none touches the spread in
// hand (CurrentSpread, SpreadLocations): the screen passes it in and keeps
// what comes back. None asks the user either: a question to answer first
// comes back as its text, for the screen to ask before it goes on.
#include <QImage>
#include <QString>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

// A spread with its locations, numbered from 1.
struct SpreadDesign {
    SpreadRecord Spread;
    BoundedArray<LocationRecord> Locations;
};

// What saving under a typed name finds before anything is written.
struct SpreadNameCheck {
    QString Problem;    // why nothing can be saved under it, or empty
    QString Name;       // the name as it is saved: trimmed
    int Replacing = 0;  // the record of the spread of that name, 0 when the name is new
    QString Question;   // to ask before a spread is replaced, or empty
};
SpreadNameCheck CheckSpreadName(const QString& typed);

// Writes the design under the name, in one step, and gives it back as
// written: named, dated today, one revision on, its locations numbered 1 up
// and carrying its id, its background under its S name in Cards/. A new name
// (`replacing` 0) makes a new spread with the next free id after the others;
// otherwise the design, keeping its own id, takes the place of that record,
// whose background goes. A working background that is not in Temp/ is saved
// as none. A failure raises the error and leaves the old spread whole.
SpreadDesign SaveSpread(SpreadDesign design, const QString& name, int replacing);

// Writes the spread as given over the spread of its name, to tie it to the
// decks it names; its date and revision stay, for this is no new revision of
// the design. The message when no spread has its name (nothing is written
// then), or an empty text.
QString SaveSpreadDecks(const SpreadRecord& spread);

// Deletes the first spread of that name with its locations and background,
// the record first, so that a failure on the way leaves no half spread.
// False, and nothing changed, when no spread has the name.
bool DeleteSpreadNamed(const QString& name);

// The background as the designer works on it: a copy in Temp/.
struct WorkingBackground {
    QString Problem;      // why the chosen file cannot be the background; nothing changed then
    SpreadRecord Spread;  // with its background's name (blank for none) and stretch
    QString Path;         // the copy in Temp/ to show, or empty for none
    QImage Picture;       // the chosen picture, for a preview
};

// The copy of the spread's background from Cards/ that the designer opens
// with. A background that cannot be copied (gone from Cards/) leaves the
// spread without one, silently.
WorkingBackground OpenWorkingBackground(SpreadRecord spread);

// The question to answer before `typed` becomes the background: taking the
// background away from a spread that has one asks first. Empty when nothing
// is asked.
QString WorkingBackgroundQuestion(const SpreadRecord& spread, const QString& typed);

// Makes the file typed the spread's background, copied into Temp/ under
// its working name; a blank name takes the background away.
WorkingBackground ChooseWorkingBackground(SpreadRecord spread, const QString& typed, bool stretch);

// The working name of a background in Temp/: "sprpic" and the last four
// characters of the chosen file's name, in the case they were typed.
QString WorkingBackgroundName(const QString& fileName);
