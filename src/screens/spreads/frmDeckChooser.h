#pragma once
// "Decks Available": ties the spread in CurrentSpread to decks. Opened from
// the spread list (manage mode), it writes the choice into the spread's record
// without making a new revision of the design; opened modally by package
// installation, it starts empty, offers the decks the installation will
// leave, and leaves the choice in memory only.
#include "screens/platform/Form.h"
#include "screens/spreads/DeckLists.h"

class QCheckBox;
class QLabel;
class QPushButton;
class ListBox;

class frmDeckChooser : public Form {
    Q_OBJECT
public:
    frmDeckChooser();

    bool ChooserDirty = false;
    // The spread to select again on the list when the chooser closes.
    QString RememberedSpreadName;

    ListBox* lstAvailableDecks;
    ListBox* lstDecks;
    QLabel* lblAvailable;
    QLabel* lblDecks;
    QCheckBox* chkAnyDeck;
    QPushButton* cmdAddDeck;
    QPushButton* cmdDeleteDeck;
    QPushButton* cmdLink;
    QPushButton* cmdClose;
    QCheckBox* chkInstallAll;

    void AddDeckNames();
    void UpdateDeckButtons();
    void cmdAddDeck_Click();
    void cmdDeleteDeck_Click();
    void chkAnyDeck_Click();
    void chkInstallAll_Click();
    void cmdLink_Click();
    void cmdClose_Click();
    void UnloadThisForm();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    DeckLists decks_;
};
