#pragma once
// The screen of a diary entry: a reading done with real cards. The keeper
// says, for each location of the spread, which card lay there and whether it
// lay reversed, in any order and as often as wanted; nothing is drawn. Each
// location keeps a hidden list of the cards it may still take (with duplicates
// off, a card chosen elsewhere leaves it), a visible button with the chosen
// card's title, which opens the card choice, and a hidden box that holds the
// orientation.
#include "core/platform/Arrays.h"
#include "screens/readings/EntryScreen.h"

class QCheckBox;
class QComboBox;

class frmNewDiary : public EntryScreen {
    Q_OBJECT
public:
    frmNewDiary();

    bool DiaryChanged = false;
    bool OpeningDiary = false;       // a saved entry is being rebuilt
    Integer PickLocation = 0;        // the location the card choice and the interpretation work on
    Integer FocusLocation = 1;       // the location in focus; saved with the entry
    QString SelectedCardText;        // the focused location's row before the present change
    QString SelectPrompt;            // the row of no card
    bool Initializing = false;
    bool FillingLocation = false;

    BoundedArray<QComboBox*> cboCardName;     // row 0 " [Select]", then card titles with their numbers
    BoundedArray<QPushButton*> cmdCardTitle;  // the location's button, captioned with the selected row
    BoundedArray<QCheckBox*> chkReversed;     // checked: the card lay reversed

    void Initialize() override;
    // Rebuilds the entry from a saved diary entry in CurrentDiary.
    void FillFields();
    void GiveFocusToCard(int index);
    int getIndexOfNONE(int index) const;
    // Whether a card is selected for the location.
    bool HasCardIn(int location) const;
    // The location's title as its label shows it.
    QString LocationTitle(int location) const;
    // The rows of the location's card box: the text and the card number
    // (0 for the row of no card).
    QList<QPair<QString, int>> CardRows(int location) const;
    // The card number a location's selected row stands for, 0 for none.
    int CardNumberOfRow(int index) const;
    // The reversal box is marked with its location.
    void MarkLocation(int location, bool marked) override;

    void cmdContinue_Click() override;
    void cmdInterpret_Click();
    void cmdNotes_Click();
    void cmdPrint_Click();
    void cmdSave_Click() override;
    void cmdQuickHelp_Click();
    void cmdClose_Click() override;
    void cmdCardTitle_Click(int Index);
    void cboCardName_DropDown(int Index);
    void cboCardName_Click(int Index);
    void cboCardName_KeyUp(int Index, int KeyCode);
    void chkReversed_Click(int Index);
    void txtIssue_LostFocus() override;
    void picLocation_Click(int Index) override;
    void imgCard_Click(int Index) override;
    void imgCard_DblClick(int Index) override;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void ResetOrientation();
    void FillCardLists();
    void ReturnCardToLists(int index, const QString& text);
    void TakeCardFromLists(int index);
    // Selects a row of a location's list as a click on it does.
    void SelectRow(int index, int row);
    // Sets the orientation box as a click on it does.
    void SetReversed(int index, bool reversed);
    void ShowRowOfLocation(int index);
};
