#pragma once
// The interpretation page of a reading's location: the location that the
// reading screen asks about (QueryLocation), with the card dealt there if the
// deal has reached it.
#include "screens/readings/InterpretLocationScreen.h"

class frmReadingInterpretLocation : public InterpretLocationScreen {
    Q_OBJECT
public:
    frmReadingInterpretLocation();

protected:
    int Location() const override;
    bool CardLiesThere() const override;
    int CardNumber() const override;
    bool CardUpright() const override;
    void MarkLocation(int location, bool marked) override;
};
