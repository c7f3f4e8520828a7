#pragma once
// The attributes of one location on the spread viewer, shown and never
// changed.
#include "screens/spreads/LocationAttributesForm.h"

class frmSpreadInfo_LocationAttributes : public LocationAttributesForm {
    Q_OBJECT
public:
    frmSpreadInfo_LocationAttributes();

protected:
    void FocusAttributesButtonBeneath() const override;
};
