#pragma once
// The operations on the record files and the deck in memory: counting,
// lookups by name and id, free ids, the delete passes (each rewrites its file
// without the records that go), loading a spread's locations and a deck's
// cards, the new-design values of every record, whether a spread or deck can
// be dealt, and the names of the picture files in Cards/.
//
// No file stays open between calls. Record numbers count from 1 and are only
// positions of the moment; a delete moves later records up.
#include <QSet>
#include <QString>
#include <QStringList>
#include <cstring>

#include "core/platform/Arrays.h"
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

// ---- Counting: the whole records in a file ---------------------------------
int CountCards(const QString& path = CardsPath);
int CountDecks(const QString& path = DecksPath);
int CountSpreads(const QString& path = SpreadsPath);
int CountReadings(const QString& path = ReadingsPath);
int CountDiaries(const QString& path = DiaryPath);

// ---- Lookups ---------------------------------------------------------------
// Names are compared with both sides trimmed, exactly; the first match wins.
// Record numbers, or -1 when nothing matches.
int FindSpreadByName(const QString& name);
int FindDeckByName(const QString& name);
int FindReadingByName(const QString& name);
int FindDiaryByName(const QString& name);
Integer FindDeckIdByName(const QString& name);     // the DeckId, or -1
int FindDeckRecordById(Integer deckId);
int FindSpreadRecordById(Integer spreadId);
QString DeckNameById(Integer deckId);              // untrimmed, or ""
QString SpreadNameById(Integer spreadId);          // untrimmed, or ""

// The smallest positive id that no record carries: ids of deleted designs are
// used again. A deck save that replaces a deck asks as if the replaced
// record (its number) were already gone.
Integer NextDeckId(int leavingOut = 0);
Integer NextSpreadId();

// ---- Delete passes ---------------------------------------------------------
// Each builds the file anew without what goes and puts it in place of the old
// one; the order of what stays does not change.
void DeleteSpread(int recordNumber);          // with its locations and background
void DeleteSpreadLocations(Integer spreadId);
// Saves SpreadLocations(1 .. count) as the spread's locations, numbered 1 to
// count, after the locations of every other spread.
void ReplaceSpreadLocations(Integer spreadId, int count);
void DeleteReading(const QString& name);      // every reading of that name
void DeleteDiary(const QString& name);        // every diary entry of that name
void DeleteDeck(int recordNumber);            // with its cards and their files
void DeleteDeckCards(Integer deckId);
// Removes the replacements that a process killed during a delete pass left
// beside the record files.
void RemoveUnfinishedRewrites();
// Deletes a design's picture, sound or background file from Cards/; a blank
// name or one holding a wildcard deletes nothing.
void KillDesignFile(const QString& name);
// The path in Cards/ of a design's file, or "" for a name that names none
// (blank, or holding a wildcard).
QString DesignFilePath(const QString& name);
// The files in Cards/ that go with a card: its pictures (never the shared
// default picture) and its sounds, as paths.
QStringList CardFilesOf(const CardRecord& card);

// Fills SpreadLocations(1 .. count) with the spread's locations by their
// LocationNumber; numbers not found stay all zero.
void LoadSpreadLocations(Integer spreadId, int count);
void LoadSpreadLocationsFrom(const QString& path, Integer spreadId, int count);

// ---- New-design values -----------------------------------------------------
void ResetSpread(SpreadRecord& spread = CurrentSpread);
void ResetReading(ReadingRecord& reading = CurrentReading);
void ResetDiary(DiaryRecord& diary = CurrentDiary);
void ResetCard(CardRecord& card = CurrentCard);
void ResetLocation(LocationRecord& location);
void ResetDesigner(Designer& designer);
void ResetDeck();   // CurrentDeck, with an empty card array

// ---- Can it be dealt? ------------------------------------------------------
bool IsSpreadUsable(const QString& spreadName);
bool IsDeckUsable(Integer deckId, int neededCardCount);
bool IsReversedComplete(Integer deckId, int cardCount);

// ---- The deck in memory ----------------------------------------------------
// Brings the deck whose record stands in ListDeck into CurrentDeck and its
// cards into DeckCards. False when cards are missing: the deck cannot be
// used, and the screen that asked for it offers to remove it.
bool LoadDeckCards();
void StoreListDeck();   // CurrentDeck's fields into ListDeck
// Points each side whose picture file is missing from Cards/ at the default
// picture; true if it changed anything.
bool ValidateCardPictures(CardRecord& card);

// Index 0 to 3 of CurrentDeck's card type of that name (trimmed), or -1.
int CardTypeIndex(const QString& typeName);
// Cards of DeckCards of that type.
int CountCardsOfTypeName(const QString& typeName);
// Cards 1 .. cardCount of that type, or 0 when the type is not selected in
// CardTypeSelected.
int CountSelectedCardsOfType(const BoundedArray<CardRecord>& cards, int cardCount, int typeIndex);

// ---- Names of picture files ------------------------------------------------
QString CardUprightName(int number);     // "CU00012"
QString CardReversedName(int number);    // "CR00012"
QString CardPictureStem(int side, int number);   // by side: 0 upright, 1 reversed
QString SpreadPictureName(int number);   // "S000007"

// The stems ("CU00012", "S000007") that the files of some folders take. A
// file takes a stem when its name is the stem followed by a dot and anything,
// or by at most four more characters: every name the program gives is a stem
// and the last four characters of a source, and that source may have lost its
// dot ("photo.jpeg" gives "CU00001jpeg"). Letters count without case, as in
// the program's wildcard matching. Every search for a free picture name goes
// by this one rule, so two pictures never meet under one name in Cards/.
class TakenStems {
public:
    // Files about to go (full paths in `going`) take nothing.
    explicit TakenStems(const QStringList& folders, const QStringList& going = {});
    bool Contains(const QString& stem) const;
    // Counts a file that is not there yet as if it were.
    void Take(const QString& fileName);

private:
    QSet<QString> stems_;
};

// The first S name that no file takes, with the source's extension.
QString NewBackgroundName(const QString& sourcePath);
QString NewBackgroundName(const QString& sourcePath, const TakenStems& taken);
// The first number from `from` upward whose upright (side 0) or reversed
// (side 1) picture stem no file in the folders takes.
int FreeCardNumber(int side, const QStringList& folders, int from = 1);

// ---- Small helpers of every screen ------------------------------------------
QString AddTrailingBackslash(const QString& path);   // ends the path in '/'
QString FormatLongDate(double oleDate);              // "dd-mmm-yyyy"
QString FormatSortDate(double oleDate);              // "yyyy/mm/dd"
