#include "screens/decks/DeckNotesPanel.h"

#include <QPlainTextEdit>
#include <QPushButton>

#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/widgets/ScreenPlacement.h"

DeckNotesPanel::DeckNotesPanel(bool editing) {
    resize(TwipsToPixels(4800), TwipsToPixels(3600));
    txtComments = new QPlainTextEdit(this);
    txtComments->setObjectName(QStringLiteral("txtComments"));
    txtComments->setReadOnly(!editing);
    txtComments->setGeometry(At(120, 120, 4560, 2760));
    cmdClose = MakeButton(this, "cmdClose", tr("&Close"), At(3180, 3000, 1500, 420));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
}

void DeckNotesPanel::Form_Load() {
    setCaption(tr("Deck Notes"));
    PlaceBesideFrame(*this, false);
    Loading = true;
    txtComments->setPlainText(TheRun.CurrentDeck.DeckComments.Trimmed());
    Loading = false;
}

void DeckNotesPanel::cmdClose_Click() { Unload(); }

void DeckNotesPanel::Form_Deactivate() { Unload(); }

void DeckNotesPanel::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdClose_Click();
    }
}
