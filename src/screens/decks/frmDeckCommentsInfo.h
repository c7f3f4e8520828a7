#pragma once
// The deck's notes for the viewer, read-only.
#include "screens/decks/DeckNotesPanel.h"

class frmDeckCommentsInfo : public DeckNotesPanel {
    Q_OBJECT
public:
    frmDeckCommentsInfo();
};
