#pragma once
// What happens between the start of the process and the moment the main
// screen stands (the folder's housekeeping, the test for an old database).
#include <QString>
#include <functional>

#include "core/store/Housekeeping.h"
#include "core/store/MakerAddresses.h"

// Runs the whole start-up for a program directory: paths, colours, the
// record files, Temp/, the old-database test with its conversion screen, then
// the main screen and, with no designs at all, the offer to install some.
// Returns false when the process was ended on the way (only a test's
// end-of-process hook lets control come back here). A run started on a
// package file goes to the installer itself, so it passes offerInstall false
// and the offer is not made.
bool RunStartup(const QString& programDir, bool offerInstall = true);

// The screen that offers to convert a database of the old format, shown
// modally. A test may put its own in place to see that it is asked for; the
// setter returns the hook it replaces.
using ConversionScreenHook = std::function<void()>;
ConversionScreenHook SetConversionScreenHook(ConversionScreenHook hook);
