#pragma once
// Placing a screen inside the frame. Every screen's load calls one of these;
// CentreInFrame is the rule, the others are its variants for the reading
// screen, the notes panels, the attribute panels and the help panels.
// Positions are twips in the frame's inner area; a screen too large for the
// frame goes to 50 twips from the edge instead of off it.
#include <QRect>

#include "core/platform/Twips.h"

class Form;

// A control's rectangle given in twips, as the screens are laid out.
inline QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}

void CentreInFrame(Form& form);
// The reading screen. With atFrameTop the screen goes 150 twips below the
// frame's own top.
void PlaceInFrameRight(Form& form, bool atFrameTop);
// The notes panels: like CentreInFrame, but centred in the frame less 200
// twips across.
void PlaceBesideFrame(Form& form, bool atFrameTop);
// The location attribute panels.
void CentreLowInFrame(Form& form);
// The help and interpretation panels. With atFrameCorner the screen goes 150
// twips in from the frame's own top left corner.
void PlaceTopLeft(Form& form, bool atFrameCorner);
