#include "screens/decks/frmViewCard.h"

#include <QLineEdit>
#include <QPushButton>

#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/widgets/ScreenPlacement.h"

frmViewCard::frmViewCard() : CardScreen(tr("View Card"), false) {
    setObjectName(QStringLiteral("frmViewCard"));
    txtCardType = new QLineEdit(this);
    txtCardType->setObjectName(QStringLiteral("txtCardType"));
    txtCardType->setReadOnly(true);
    txtCardType->setGeometry(At(1560, 720, 4200, 360));
    connect(cmdBack, &QPushButton::clicked, this, Handler([this] { cmdBack_Click(); }));
    setWayOut([this] { cmdBack_Click(); });
}

void frmViewCard::Form_Load() {
    OpenCard();
    CentreInFrame(*this);
    FillFields();
}

void frmViewCard::ShowCardType() {
    const int type = TheRun.CurrentCard.CardType;
    txtCardType->setText(
        type >= 0 && type < 4 ? TheRun.CurrentDeck.CardTypeName[static_cast<std::size_t>(type)].Trimmed() : QString());
}

// Closing a card empties Temp/: every card viewed after it in this viewing
// shows the default picture, until the deck is opened for viewing again.
void frmViewCard::cmdBack_Click() {
    ClearTemp();
    Unload();
}

void frmViewCard::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdBack_Click();
    }
}
