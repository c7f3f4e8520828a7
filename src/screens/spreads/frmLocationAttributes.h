#pragma once
// The attributes of one location on the spread designer: every keystroke goes
// straight into SpreadLocations(SelectedLocation) and marks the design as
// changed; the title shows on the rectangle as it is typed. There is no OK
// and no Cancel.
#include "screens/spreads/LocationAttributesForm.h"

class frmLocationAttributes : public LocationAttributesForm {
    Q_OBJECT
public:
    frmLocationAttributes();

    void txtTitle_Change();
    void txtDescription_Change();
    void txtQuestion_Change(int Index);

protected:
    void FocusAttributesButtonBeneath() const override;
};
