#pragma once
// Deleting designs and entries, and the files of a design in Cards/.
#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "core/records/Records.h"
#include "core/store/RunState.h"

// Each builds the file anew without what goes and puts it in place of the old
// one; the order of what stays does not change.
void DeleteSpread(int recordNumber);  // with its locations and background
void DeleteSpreadLocations(Integer spreadId);
// Saves SpreadLocations(1 .. count) as the spread's locations, numbered 1 to
// count, after the locations of every other spread.
void ReplaceSpreadLocations(Integer spreadId, int count);
void DeleteReading(const QString& name);  // every reading of that name
void DeleteDiary(const QString& name);    // every diary entry of that name
// With its cards and their files, unless another deck record carries its id
// (a damaged file): the cards of an id belong to the decks that carry it.
void DeleteDeck(int recordNumber);
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
// The files in Cards/ that go with a card: its pictures and its sounds, as
// paths, never the shared default picture.
QStringList CardFilesOf(const CardRecord& card);

// The files in Cards/ that go with the cards that a rewrite of Cards.crd
// leaves out: every file those cards name that no card staying names too.
// It is told the bytes of every card that leaves, then of every card that
// stays; a staying card costs no more than a look at its four names.
class LeavingCardFiles {
public:
    void Leaving(const char* rawCard);
    void Staying(const char* rawCard);
    bool IsEmpty() const { return leaving_.isEmpty(); }
    QStringList Files() const;

private:
    QHash<QByteArray, QString> leaving_;  // a name's bytes as the file system meets them -> its path
    QSet<QByteArray> kept_;
};
