#pragma once
// The designer's deck properties. On a new deck the card types and the
// reversed flag may change until this screen has closed once; from then on
// they are fixed, since cards refer to their type by its index. Whether card
// titles are displayed stays changeable.
#include "screens/decks/DeckPropertiesScreen.h"

class frmDeckCardProperties : public DeckPropertiesScreen {
    Q_OBJECT
public:
    frmDeckCardProperties();
    void cmdClose_Click() override;
    void txtCardTypeName_Change(int Index);

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void chkUseReversed_Click() override;
    void chkDisplay_Click() override;
    void chkType_Click(int Index) override;

private:
    bool Configured() const;
    void MarkModified();
};
