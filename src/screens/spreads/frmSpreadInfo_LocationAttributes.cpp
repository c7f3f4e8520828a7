#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"

#include "core/store/RunState.h"
#include "screens/spreads/frmSpreadInfo.h"

// The description's limit holds for typing only, and nothing can be typed
// here: a longer description shows whole.
frmSpreadInfo_LocationAttributes::frmSpreadInfo_LocationAttributes() : LocationAttributesForm(true, 500) {
    setObjectName(QStringLiteral("frmSpreadInfo_LocationAttributes"));
}

void frmSpreadInfo_LocationAttributes::FocusAttributesButtonBeneath() const {
    if (IsLoaded<frmSpreadInfo>()) Get<frmSpreadInfo>().FocusAttributesButton(TheRun.SelectedLocation);
}
