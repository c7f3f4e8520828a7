#pragma once
// The program folder's housekeeping, which every start and every reader of
// the record files needs, and no screen.
#include <QImage>
#include <QString>

// Forms every run-wide path from the program directory, in the fixed order.
void FormPaths(const QString& programDir);

// Makes Temp/ (and empties it), the attachment folder, every missing record
// file except Location.loc, Cards/ and Packages/, and writes the default card
// picture afresh.
void InitDatabase();

// Deletes every file in Temp/, ignoring every error; the folder stays.
void ClearTemp();

// The default card picture carried inside the program.
QImage DefaultCardPicture();
