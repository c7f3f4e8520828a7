#include "screens/decks/frmDeckComments.h"

#include <QPlainTextEdit>

#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDesignDeck.h"

frmDeckComments::frmDeckComments() : DeckNotesPanel(true) {
    setObjectName(QStringLiteral("frmDeckComments"));
    connect(txtComments, &QPlainTextEdit::textChanged, this, Handler([this] { txtComments_Change(); }));
}

// Opening the panel fills the box; only what the designer types afterwards
// counts as a change of the deck.
void frmDeckComments::txtComments_Change() {
    ClipText(txtComments, 200);
    TheRun.CurrentDeck.DeckComments = txtComments->toPlainText();
    if (!Loading && IsLoaded<frmDesignDeck>()) Get<frmDesignDeck>().DesignModified = true;
}
