#pragma once
// Deleting designs and entries, and the files of a design in Cards/.
#include <QString>
#include <QStringList>

#include "core/records/Records.h"
#include "core/store/RunState.h"

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
