#include "screens/decks/DeckPropertiesScreen.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/widgets/ScreenPlacement.h"

DeckPropertiesScreen::DeckPropertiesScreen(bool editing) {
    resize(TwipsToPixels(5400), TwipsToPixels(3900));
    chkUseReversed = new QCheckBox(tr("Deck Includes Reversed Cards"), this);
    chkUseReversed->setObjectName(QStringLiteral("chkUseReversed"));
    chkUseReversed->setGeometry(At(240, 180, 4800, 300));
    chkDisplay = new QCheckBox(tr("Display Card Titles"), this);
    chkDisplay->setObjectName(QStringLiteral("chkDisplay"));
    chkDisplay->setGeometry(At(240, 540, 4800, 300));
    for (int i = 0; i < 4; ++i) {
        const int top = 1080 + i * 480;
        chkType[static_cast<std::size_t>(i)] = new QCheckBox(tr("Type %1:").arg(i + 1), this);
        QCheckBox* check = chkType[static_cast<std::size_t>(i)];
        check->setObjectName(QStringLiteral("chkType%1").arg(i));
        check->setGeometry(At(240, top + 30, 1200, 300));
        auto* name = new QLineEdit(this);
        txtCardTypeName[static_cast<std::size_t>(i)] = name;
        name->setObjectName(QStringLiteral("txtCardTypeName%1").arg(i));
        name->setMaxLength(20);
        name->setReadOnly(!editing);
        name->setGeometry(At(1500, top, 3600, 360));
        connect(check, &QCheckBox::clicked, this, Handler([this, i] { chkType_Click(i); }));
    }
    cmdClose = MakeButton(this, "cmdClose", tr("&Close"), At(3600, 3120, 1500, 420));
    connect(chkUseReversed, &QCheckBox::clicked, this, Handler([this] { chkUseReversed_Click(); }));
    connect(chkDisplay, &QCheckBox::clicked, this, Handler([this] { chkDisplay_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { cmdClose_Click(); });
}

void DeckPropertiesScreen::Form_Load() {
    setCaption(tr("Deck Properties"));
    CentreInFrame(*this);
    Loading = true;
    FillProperties();
    Loading = false;
}

void DeckPropertiesScreen::FillProperties() {
    chkUseReversed->setChecked(TheRun.CurrentDeck.IncludesReversed != 0);
    chkDisplay->setChecked(TheRun.CurrentDeck.DisplayCardTitles != 0);
    for (std::size_t i = 0; i < 4; ++i) {
        txtCardTypeName[i]->setText(TheRun.CurrentDeck.CardTypeName[i].Trimmed());
        chkType[i]->setChecked(TheRun.CurrentDeck.CardTypeUsed[i] != 0);
    }
}

void DeckPropertiesScreen::cmdClose_Click() { Unload(); }

// Esc acts as Close.
void DeckPropertiesScreen::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdClose_Click();
    }
}
