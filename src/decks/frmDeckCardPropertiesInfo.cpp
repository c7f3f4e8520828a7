#include "decks/frmDeckCardPropertiesInfo.h"

#include "store/mdlVariables.h"

frmDeckCardPropertiesInfo::frmDeckCardPropertiesInfo() : DeckPropertiesScreen(false) {
    setObjectName(QStringLiteral("frmDeckCardPropertiesInfo"));
}

void frmDeckCardPropertiesInfo::chkUseReversed_Click() { FillProperties(); }
void frmDeckCardPropertiesInfo::chkDisplay_Click() { FillProperties(); }
void frmDeckCardPropertiesInfo::chkType_Click(int) { FillProperties(); }
