#include "screens/decks/frmDeckCommentsInfo.h"

frmDeckCommentsInfo::frmDeckCommentsInfo() : DeckNotesPanel(false) {
    setObjectName(QStringLiteral("frmDeckCommentsInfo"));
}
