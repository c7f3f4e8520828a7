#pragma once
// What the card editor works on beside CurrentCard: the files picked for the
// card in Temp/, and where its file choosers were last left. One value for
// the run, held in the run-wide state: the card screens set the working names
// when a card opens and when it is stored, the choosers when a file is
// picked, and the deck designer reads whether the pick of a new card's
// pictures went through.
#include <QString>
#include <array>

#include "core/records/Records.h"

struct CardWorkingFiles {
    // The name in Temp/ of each side's present picture and sound (0 upright,
    // 1 reversed): a final name (CU..., CR..., M...), a working name below,
    // or for the reversed picture of a deck without reversed cards the path
    // of the default picture.
    std::array<QString, 2> Picture;
    std::array<QString, 2> Sound;
    // Whether the last chooser of that kind ended with a pick.
    bool ImageSelected = false;
    bool SoundSelected = false;
};
CardWorkingFiles& WorkingFiles();

// A picked file is copied into Temp/ under one of these stems followed by the
// source's last four characters.
inline const QString UprightPictureStem = QStringLiteral("TempUp");
inline const QString ReversedPictureStem = QStringLiteral("TempRev");
inline const QString UprightSoundStem = QStringLiteral("TsndUp");
inline const QString ReversedSoundStem = QStringLiteral("TsndRev");

// A file picked from the disk for a side of the card (0 upright, 1
// reversed) is copied into Temp/ under the side's working name, which then
// becomes the side's present picture or sound; the name is returned. A file
// that cannot be copied (gone since it was listed) raises, and the card stays
// as it was.
QString TakePickedPicture(int side, const QString& source);
QString TakePickedSound(int side, const QString& source);

// A card of a deck without reversed cards shows the default picture on its
// reversed side, from a working copy in Temp/.
void PointReversedAtDefault(CardRecord& card);

// Removes the working files of picks that the card editor leaves unstored.
void DropUnstoredWorkingFiles();

// Empties Temp/ for a deck opened in the designer or viewer and fills it
// with the deck's files: with copyIn, every file that the first CardCount
// cards of the deck's id in Cards.crd name (without a reversed side on the
// default picture when skipDefaultReversed); always the default picture.
void OpenWorkingFolder(const DeckRecord& deck, bool copyIn, bool skipDefaultReversed);

// Where a file chooser was last left in this run: its folder and the index
// of the file picked there. One for pictures, one for sounds.
struct ChooserMemory {
    QString Folder;
    int FileIndex = -1;
};
ChooserMemory& RememberedPictureFolder();
ChooserMemory& RememberedSoundFolder();
