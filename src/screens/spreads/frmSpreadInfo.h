#pragma once
// "View Spread": shows the spread in CurrentSpread on the designer's pages,
// with its notes, and lets nothing be changed: the boxes are locked, the
// question box keeps its value, and only the Attributes button of a location
// answers, opening the read-only attributes.
#include <QString>

#include "core/records/Records.h"
#include "screens/platform/Form.h"

class QCheckBox;
class QLabel;
class QPushButton;
class LocationBox;
class ListBox;
class SpreadCanvas;
class SpreadDetailsPage;

class frmSpreadInfo : public Form {
    Q_OBJECT
public:
    frmSpreadInfo();

    SpreadDetailsPage* picDesignInfo;
    SpreadCanvas* picDesignLocations;
    QWidget* picDecks;
    ListBox* lstDecks;
    QPushButton* cmdDesignInfo;
    QPushButton* cmdSpread;
    QPushButton* cmdDecks;
    QPushButton* cmdGrid;
    QPushButton* cmdClose;
    Integer GridStepX = 0;
    Integer GridStepY = 0;
    QString RememberedSpreadName;

    QCheckBox* chkQuestion() const;
    LocationBox* picLocation(int Index) const;
    QLabel* lblCardTitle(int Index) const;
    QPushButton* cmdCardAttributes(int Index) const;
    // For the location screen above, when it closes.
    void FocusAttributesButton(int Index) const;

    void FillFields();
    void AddDeckNames();
    void cmdDesignInfo_Click();
    void cmdSpread_Click();
    void cmdDecks_Click();
    void cmdGrid_Click();
    void cmdClose_Click();
    void chkQuestion_Click();
    void cmdCardAttributes_Click(int Index);

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void ShowPage(int page);
};
