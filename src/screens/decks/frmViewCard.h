#pragma once
// "View Card": the read-only twin of the card editor. Shows both sides of
// CurrentCard with their pictures and sounds from Temp/.
#include "screens/decks/CardScreen.h"

class frmViewCard : public CardScreen {
    Q_OBJECT
public:
    frmViewCard();

    QLineEdit* txtCardType;

    void cmdBack_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void ShowCardType() override;
};
