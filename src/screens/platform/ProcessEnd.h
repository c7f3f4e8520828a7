#pragma once
// The ways the process ends. Every screen may have to end the run (a state
// the program holds impossible), so this sits below them all.
#include <functional>

// For a state the program holds impossible: the critical message, then the
// end of the process.
void FatalError();

// Ends the process at once. Everything that ends the program goes through
// here; a test may put its own hook in place to see the end without dying,
// and the caller then simply returns. The setter returns the hook it
// replaces.
void EndProcess(int exitCode = 0);
using EndProcessHook = std::function<void(int exitCode)>;
EndProcessHook SetEndProcessHook(EndProcessHook hook);
