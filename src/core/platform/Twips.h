#pragma once
// Lengths on screen are twips, 15 to the pixel.
constexpr int TwipsPerPixel = 15;
constexpr int TwipsToPixels(int twips) { return twips / TwipsPerPixel; }
constexpr int PixelsToTwips(int pixels) { return pixels * TwipsPerPixel; }
