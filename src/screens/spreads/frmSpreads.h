#pragma once
// "Spreads' Menu": the list of every spread with a brief summary of the one
// selected, and the way to the designer, the viewer and the deck chooser.
// Selecting a spread here is what loads it into CurrentSpread and
// SpreadLocations; the screens opened from here find it ready.
#include "screens/platform/Form.h"

class QGroupBox;
class QLabel;
class QPushButton;
class ListBox;

class frmSpreads : public Form {
    Q_OBJECT
public:
    frmSpreads();

    ListBox* lstSpreads;
    QGroupBox* fraQuickInfo;
    QLabel* lblTitleField;
    QLabel* lblDesignerNameField;
    QLabel* lblDesignDateField;
    QLabel* lblDecksField;
    QLabel* lblCardsField;
    QLabel* lblQueryField;
    QPushButton* cmdInfo;
    QPushButton* cmdDesign;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdManager;
    QPushButton* cmdClose;

    // Position of the first entry whose trimmed text is the trimmed name; 0
    // when none is, -1 when the list is empty.
    int GetIndexOf(const QString& name) const;
    // Selects that entry again, loading its spread (the designer and the
    // viewer call it as they close).
    void SelectSpread(const QString& name);
    // The name on the selected line, as listed; "" when none is selected.
    QString ChosenSpreadName() const;
    void BriefInfo();
    void SpreadMenuButtons();

    void lstSpreads_Click();
    void cmdInfo_Click();
    void cmdDesign_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdManager_Click();
    void cmdClose_Click();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
