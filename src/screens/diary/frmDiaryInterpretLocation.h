#pragma once
// The interpretation page of a diary entry's location: the location the
// keeper focused, with the card chosen for it if there is one.
#include "screens/readings/InterpretLocationScreen.h"

class frmDiaryInterpretLocation : public InterpretLocationScreen {
    Q_OBJECT
public:
    frmDiaryInterpretLocation();

protected:
    int Location() const override;
    bool CardLiesThere() const override;
    int CardNumber() const override;
    bool CardUpright() const override;
    void MarkLocation(int location, bool marked) override;
};
