#pragma once
// The last step of the starter package: the designs saved in the tool's
// program folder go into Temp/ as the package creation stages them, and Temp/
// is packed into the package file.
#include <QString>
#include <QStringList>

// Stages the named decks (with their cards and pictures) and spreads (with
// their locations) of the program folder whose paths are formed, packs them
// into packagePath (made afresh) and empties Temp/. False when the packing
// failed.
bool PackStarterPackage(const QStringList& deckNames, const QStringList& spreadNames, const QString& packagePath);
