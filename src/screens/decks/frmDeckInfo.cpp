#include "screens/decks/frmDeckInfo.h"

#include <QPushButton>

#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDeckCardPropertiesInfo.h"
#include "screens/decks/frmDeckCommentsInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmViewCard.h"
#include "screens/platform/ListBox.h"

frmDeckInfo::frmDeckInfo() : DeckScreen(tr("Deck View"), false) {
    setObjectName(QStringLiteral("frmDeckInfo"));
    connect(lstCards, &ListBox::DblClick, this, Handler([this] { cmdEditCard_Click(); }));
    connect(cmdEditCard, &QPushButton::clicked, this, Handler([this] { cmdEditCard_Click(); }));
    connect(cmdProperties, &QPushButton::clicked, this, Handler([this] { cmdProperties_Click(); }));
    connect(cmdComments, &QPushButton::clicked, this, Handler([this] { cmdComments_Click(); }));
    connect(cmdBack, &QPushButton::clicked, this, Handler([this] { cmdBack_Click(); }));
    setWayOut([this] { cmdBack_Click(); });
}

// After a New that stored no card DesignMode is still 1: the deck's files
// are then not copied in, and its cards show the default picture.
void frmDeckInfo::Form_Load() { OpenDeck(TheRun.DesignMode == 0, false); }

void frmDeckInfo::cmdEditCard_Click() {
    const int position = SelectedCardPosition();
    if (position < 1) {
        UpdateCardButtons();
        return;
    }
    TheRun.CurrentCard = TheRun.CurrentDeck.DeckCards(position);
    TheRun.DesignMode = 0;
    UnloadScreen<frmViewCard>();
    Get<frmViewCard>().Show();
}

void frmDeckInfo::cmdProperties_Click() { Get<frmDeckCardPropertiesInfo>().Show(true); }

void frmDeckInfo::cmdComments_Click() { Get<frmDeckCommentsInfo>().Show(); }

void frmDeckInfo::cmdBack_Click() {
    UnloadScreen<frmViewCard>();
    Get<frmDecks>().Show();
    Unload();
}

void frmDeckInfo::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdBack->setFocus();
        cmdBack_Click();
    } else if (lstCards->hasFocus() && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdEditCard_Click();
    }
}
