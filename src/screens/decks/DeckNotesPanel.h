#pragma once
// "Deck Notes": the panel beside the frame that holds the deck's notes
// (DeckComments). frmDeckComments edits them for the designer;
// frmDeckCommentsInfo shows them read-only. Close, Esc and the loss of the
// focus close the panel.
#include "screens/platform/Form.h"

class QPlainTextEdit;
class QPushButton;

class DeckNotesPanel : public Form {
    Q_OBJECT
public:
    QPlainTextEdit* txtComments;
    QPushButton* cmdClose;

    void cmdClose_Click();

protected:
    explicit DeckNotesPanel(bool editing);
    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

    bool Loading = false;
};
