#pragma once
// What happens between the start of the process and the moment the main
// screen stands (the folder's housekeeping, the test for an old database),
// and the ways the process ends.
#include <QString>
#include <functional>

#include "core/store/Housekeeping.h"
#include "core/store/MakerAddresses.h"

// For a state the program holds impossible: the critical message, then the
// end of the process.
void FatalError();

// Runs the whole start-up for a program directory: paths, colours, the
// record files, Temp/, the old-database test with its conversion screen, then
// the main screen and, with no designs at all, the offer to install some.
// Returns false when the process was ended on the way (only a test's
// end-of-process hook lets control come back here). A run started on a
// package file goes to the installer itself, so it passes offerInstall false
// and the offer is not made.
bool RunStartup(const QString& programDir, bool offerInstall = true);

// Ends the process at once. Everything that ends the program goes through
// here; a test may put its own hook in place to see the end without dying,
// and the caller then simply returns. Both setters return the hook they
// replace.
void EndProcess(int exitCode = 0);
using EndProcessHook = std::function<void(int exitCode)>;
EndProcessHook SetEndProcessHook(EndProcessHook hook);

// The screen that offers to convert a database of the old format, shown
// modally. A test may put its own in place to see that it is asked for.
using ConversionScreenHook = std::function<void()>;
ConversionScreenHook SetConversionScreenHook(ConversionScreenHook hook);
