#pragma once
// Yielding to the event loop, and the mouse pointer.
void DoEvents();

enum class MousePointer { Default, Arrow, Hourglass };
// The application-wide pointer (the toolkit's Screen.MousePointer).
void SetScreenPointer(MousePointer pointer);
