#pragma once
// How a new card joins the deck in memory, one at a time from the card editor
// or many at once from a folder of pictures: its working pictures take their
// CU and CR names in Temp/, the deck holds at most MaxDeckCards cards, and a
// card's title must be given and new to the deck. No screen is involved; the
// callers show the messages.
#include <QString>
#include <QStringList>

#include "core/records/Records.h"
#include "core/store/RunState.h"

// Gives a working file in Temp/ its final name there. A move that fails
// leaves the card with a name that no file answers to; the store goes on
// regardless. Temp/ is emptied at every start, so nothing here waits for the
// disk.
void RenameWorkingFile(const QString& workingName, const QString& finalName, bool keepWorkingFile = false);

// The final name of a side's working picture (side 0 upright, 1 reversed):
// the first CU or CR number that no file in Temp/ takes and the working
// name's last four characters. The working file takes that name.
QString PlaceWorkingPicture(int side, const QString& workingName, bool keepWorkingFile = false);

// Stores the card editor's picks into the card: each side's newly picked
// picture takes its CU or CR name in Temp/, each newly picked sound the M
// name of its side's picture; the working names are then forgotten. A media
// player must have let go of the sounds.
void StoreWorkingFiles(CardRecord& card);

// Takes card `position` out of the deck in memory: the later cards move up
// by one, and its pictures leave Temp/ (its sounds stay there until the
// designer closes; nothing saves them).
void RemoveDeckCard(DeckInMemory& deck, int position);

// Appends a new card to CurrentDeck's DeckCards and counts it; its position.
int AppendDeckCard(const CardRecord& card);

// "The number of cards in a deck cannot exceed 100."
QString CardLimitMessage();

// Why a new card may not take this title: the message to show, or an empty
// text when it may. Titles compare trimmed, against the deck's cards and the
// other titles given (cards about to join with it).
QString NewCardTitleProblem(const QString& title, const QStringList& otherTitles = {});
