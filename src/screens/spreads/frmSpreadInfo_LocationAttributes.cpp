#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"

#include "screens/spreads/frmSpreadInfo.h"
#include "core/store/RunState.h"

// The description's limit holds for typing only, and nothing can be typed
// here: a longer description shows whole.
frmSpreadInfo_LocationAttributes::frmSpreadInfo_LocationAttributes() : LocationAttributesForm(true, 500) {
    setObjectName(QStringLiteral("frmSpreadInfo_LocationAttributes"));
}

QPushButton* frmSpreadInfo_LocationAttributes::AttributesButtonBeneath() const {
    if (!IsLoaded<frmSpreadInfo>()) return nullptr;
    return Get<frmSpreadInfo>().cmdCardAttributes(SelectedLocation);
}
