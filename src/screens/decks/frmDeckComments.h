#pragma once
// The deck's notes for the designer: every change goes straight into the
// deck in memory and marks the design as changed.
#include "screens/decks/DeckNotesPanel.h"

class frmDeckComments : public DeckNotesPanel {
    Q_OBJECT
public:
    frmDeckComments();
    void txtComments_Change();
};
