#include "screens/decks/frmDeckCardPropertiesInfo.h"

#include "core/store/RunState.h"

frmDeckCardPropertiesInfo::frmDeckCardPropertiesInfo() : DeckPropertiesScreen(false) {
    setObjectName(QStringLiteral("frmDeckCardPropertiesInfo"));
}

void frmDeckCardPropertiesInfo::chkUseReversed_Click() { FillProperties(); }
void frmDeckCardPropertiesInfo::chkDisplay_Click() { FillProperties(); }
void frmDeckCardPropertiesInfo::chkType_Click(int) { FillProperties(); }
