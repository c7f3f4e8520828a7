#pragma once
// The program's own decorative pictures, painted at run time so that they
// cost nothing in the executable and stay sharp at any size: the night sky
// behind the main screen's buttons, and the strip beside a spread's
// introduction on the reading and diary screens. They are the same at every
// start (their stars are placed by a fixed sequence, not by chance).
#include <QImage>

// The picture behind the main screen's buttons, drawn for a size in pixels.
// Its layout follows the main screen's: the name in the upper third, a band
// for the buttons below the middle.
QImage MainScreenPicture(int width, int height);

// The tall strip beside a spread's introduction: the moon's phases between
// a sun and a fan of cards, in a gold frame.
QImage IntroductionSidePicture(int width, int height);
