#pragma once
// Conversion of a database of the earlier format, which kept the locations of
// a spread inside its spread record and had shorter text fields, into the
// present layout. The old layouts are read nowhere else.
#include <QString>

#include "core/records/Records.h"

// One record of the old layout rewritten into the present one, field by
// field. Text moves byte for byte into its (equal or wider) new field and is
// padded with spaces, so nothing is re-encoded on the way.
DeckRecord ConvertDeck(const OldDeckRecord& old);
CardRecord ConvertCard(const OldCardRecord& old);
SpreadRecord ConvertSpread(const OldSpreadRecord& old);
// Location number (from 1) of the spread whose id is given.
LocationRecord ConvertLocation(const OldLocation& old, Integer spreadId, Integer number);

// How many locations an old spread record really carries: its count, kept
// within the 15 places the old record has.
int OldLocationsHeld(const OldSpreadRecord& old);

// Whole-file rewrites: the old file is read a record at a time (a partial
// last record is not a record) and one new record is written per old one.
void ConvertDeckFile(const QString& oldPath, const QString& newPath);
void ConvertCardFile(const QString& oldPath, const QString& newPath);
// Each old spread gives its locations, numbered from 1, to the locations
// file and its spread record to the spreads file.
void ConvertSpreadFile(const QString& oldPath, const QString& newSpreadsPath, const QString& newLocationsPath);

// The whole conversion of the database under the run-wide paths: the ".bkp"
// copies of the five old files first, then the new files built in Temp/, then
// each put over its real file and its Temp/ copy deleted. Raises on failure.
void ConvertDatabase();
