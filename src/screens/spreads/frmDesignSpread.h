#pragma once
// "Spread Design": edits one spread, CurrentSpread with its SpreadLocations,
// on three pages lying on one another: the details, the canvas on which the
// locations are laid out, and the deck page whose lists the save reads. Every
// box writes straight into the spread in memory; nothing reaches the disk but
// through frmSaveSpread.
#include <QString>

#include "core/records/Records.h"
#include "screens/platform/Form.h"
#include "screens/spreads/DeckLists.h"
#include "screens/spreads/SpreadDetailsPage.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QWidget;
class ListBox;
class SpreadCanvas;
class TextBox;
class MultiLineTextBox;
class LocationBox;

class frmDesignSpread : public Form {
    Q_OBJECT
public:
    frmDesignSpread();

    // ---- Screen state ----
    bool SpreadDirty = false;
    bool SnapOn = false;
    bool Dragging = false;
    Integer DragX = 0;
    Integer DragY = 0;
    Integer GridStepX = 0;
    Integer GridStepY = 0;
    QString RememberedSpreadName;

    // ---- Pages ----
    SpreadDetailsPage* picDesignInfo;
    SpreadCanvas* picDesignLocations;
    QWidget* picDecks;

    // The controls of the details page.
    TextBox* txtSpreadTitle() const;
    MultiLineTextBox* txtSpreadDescription() const;
    TextBox* txtSpreadDesigner() const;
    TextBox* txtDesignerEmail() const;
    TextBox* txtDesignerWebPage() const;
    QCheckBox* chkQuestion() const;
    QLabel* lblModifiedOnDate() const;

    // The controls of a location, index 1 to 32 (0 is the hidden template).
    LocationBox* picLocation(int Index) const;
    QLabel* lblCardNumber(int Index) const;
    QLabel* lblCardTitle(int Index) const;
    // Shows a location's title as it is being typed on its attributes.
    void ShowLocationTitle(int location, const QString& title);
    // The spread was saved under CurrentSpread's name: nothing is left unsaved.
    void SpreadSaved();
    QPushButton* cmdCardAttributes(int Index) const;
    // For the location screen above, when it closes.
    void FocusAttributesButton(int Index) const;

    // ---- Deck page ----
    ListBox* lstAvailableDecks;
    ListBox* lstDecks;
    QLabel* Label1;
    QLabel* lblDecks;
    QCheckBox* chkAnyDeck;
    QPushButton* cmdAddDeck;
    QPushButton* cmdDeleteDeck;
    QPushButton* cmdRemoveDeck;
    QPushButton* cmdBrowseDeck;

    // ---- The column of buttons (pnlControl) ----
    QPushButton* cmdDesignInfo;
    QPushButton* cmdSpread;
    QPushButton* cmdDecks;
    QPushButton* cmdAddCard;
    QPushButton* cmdRemoveCard;
    QPushButton* cmdGrid;
    QPushButton* cmdSnap;
    QPushButton* cmdPicture;
    QPushButton* cmdComments;
    QPushButton* cmdSave;
    QPushButton* cmdBack;

    void FillFields();
    void ShowDeckLists();
    void AddDeckNames();
    void UpdateDeckButtons();
    // The deck that frmBrowseDeck chose joins the spread's list.
    void AddBrowsedDeck(const QString& deckName);

    void cmdDesignInfo_Click();
    void cmdSpread_Click();
    void cmdDecks_Click();
    void cmdAddCard_Click();
    void cmdRemoveCard_Click();
    void cmdGrid_Click();
    void cmdSnap_Click();
    void cmdPicture_Click();
    void cmdComments_Click();
    void cmdSave_Click();
    void cmdBack_Click();
    void chkAnyDeck_Click();
    void cmdAddDeck_Click();
    void cmdDeleteDeck_Click();
    void cmdRemoveDeck_Click();
    void cmdBrowseDeck_Click();

    void picLocation_MouseDown(int Index, int Button, int Shift, double X, double Y);
    void picLocation_MouseMove(int Index, int Button, int Shift, double X, double Y);
    void picLocation_MouseUp(int Index, int Button, int Shift, double X, double Y);
    void picLocation_GotFocus(int Index);
    void cmdCardAttributes_GotFocus(int Index) { picLocation_GotFocus(Index); }
    // handled tells the toolkit that the key was used.
    void picLocation_KeyDown(int Index, int KeyCode, int Shift, bool& handled);
    void picLocation_KeyUp(int Index, int KeyCode, int Shift);
    void cmdCardAttributes_Click(int Index);

    void SnapLocation(int Index);
    void KeepLocationOnCanvas(int Index);

    // The background on the canvas: a picture, or none.
    void ShowBackground(const QString& path, bool stretch);
    void ClearBackground();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void ShowPage(SpreadPages::Page page);
    void ShowBrowseDeck();
    void SetFocusTo(QWidget* control, int Index);
    void txtSpreadTitle_Change();

    DeckLists decks_;
};
