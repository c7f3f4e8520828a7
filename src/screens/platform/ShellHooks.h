#pragma once
// What the screens below the shell ask of it. The shell (the frame, the
// start-up and the main screen) stands above every subsystem; the screens
// below never name it and reach it only through these hooks, which the
// shell connects as it comes up. Unconnected (a test that runs a screen on
// its own) they do nothing. Each setter returns the hook it replaces.
#include <functional>

// The main screen's button of the journal, which the Past screens press on
// the user's behalf.
constexpr int MainScreenJournalButton = 10;

// Shows the main screen again, as a subsystem's first screen does when it
// closes; with a button, acts as that button of the main screen instead.
void ReturnToMainScreen(int button = 0);
using MainScreenHook = std::function<void(int button)>;
MainScreenHook SetMainScreenHook(MainScreenHook hook);

// Brings the frame window up if it is loaded and not up yet.
void ShowFrameIfLoaded();
using FrameHook = std::function<void()>;
FrameHook SetFrameHook(FrameHook hook);
