#pragma once
// The screen of a diary entry: a reading done with real cards. The keeper
// says, for each location of the spread, which card lay there and whether it
// lay reversed, in any order and as often as wanted; nothing is drawn. The
// cards each location may still take are the core's (DiaryLists: with
// duplicates off, a card chosen elsewhere leaves them); each location shows a
// button with the chosen card's title, which opens the card choice, and keeps
// a hidden box that holds the orientation.
#include "core/platform/Arrays.h"
#include "screens/readings/EntryScreen.h"

class QCheckBox;

class frmNewDiary : public EntryScreen {
    Q_OBJECT
public:
    frmNewDiary();

    bool DiaryChanged = false;
    bool OpeningDiary = false;  // a saved entry is being rebuilt
    Integer PickLocation = 0;   // the location the card choice and the interpretation work on
    Integer FocusLocation = 1;  // the location in focus; saved with the entry
    QString SelectedCardText;   // the focused location's row before the present change
    bool FillingLocation = false;

    BoundedArray<QPushButton*> cmdCardTitle;  // the location's button, captioned with its row
    BoundedArray<QCheckBox*> chkReversed;     // checked: the card lay reversed

    void Initialize() override;
    // Rebuilds the entry from a saved diary entry in CurrentDiary.
    void FillFields();
    void GiveFocusToCard(int index);
    // The location's title as its label shows it.
    QString LocationTitle(int location) const;
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
    // Opens the card choice for the focused location and shows what it chose.
    void ChooseCard(int Index);
    // Delete on a location: it goes back to its row of no card.
    void EmptyLocation(int Index);
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
    // Puts a location on a row of its list, as choosing the row does, and
    // shows the card it now holds.
    void SelectRow(int index, int row);
    // Sets the orientation box as a click on it does.
    void SetReversed(int index, bool reversed);
    void ShowRowOfLocation(int index);
};
