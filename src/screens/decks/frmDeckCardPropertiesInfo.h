#pragma once
// The viewer's deck properties: the same controls, every check put back to
// the deck's value as soon as it is clicked.
#include "screens/decks/DeckPropertiesScreen.h"

class frmDeckCardPropertiesInfo : public DeckPropertiesScreen {
    Q_OBJECT
public:
    frmDeckCardPropertiesInfo();

protected:
    void chkUseReversed_Click() override;
    void chkDisplay_Click() override;
    void chkType_Click(int Index) override;
};
