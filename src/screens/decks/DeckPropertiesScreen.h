#pragma once
// "Deck Properties": whether the deck has reversed cards, whether card
// titles are displayed, and the names of the four card types. The designer's
// screen (frmDeckCardProperties) lets them change while the deck is new; the
// viewer's (frmDeckCardPropertiesInfo) puts every check back as it is
// clicked.
#include <array>

#include "screens/platform/Form.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

class DeckPropertiesScreen : public Form {
    Q_OBJECT
public:
    QCheckBox* chkUseReversed;
    QCheckBox* chkDisplay;
    std::array<QCheckBox*, 4> chkType;
    std::array<QLineEdit*, 4> txtCardTypeName;
    QPushButton* cmdClose;

    virtual void cmdClose_Click();

protected:
    explicit DeckPropertiesScreen(bool editing);
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

    // Puts the deck's values into the controls.
    void FillProperties();
    virtual void chkUseReversed_Click() = 0;
    virtual void chkDisplay_Click() = 0;
    virtual void chkType_Click(int Index) = 0;

    bool Loading = false;
};
