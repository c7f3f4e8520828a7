#pragma once
// "Select card for location: ": the keeper picks the card that lay in one
// location of a diary entry by looking at it, and says whether it lay
// reversed. The cards offered are those the location's own list still holds,
// so that with duplicates off a card chosen elsewhere is not offered again.
#include "screens/platform/Form.h"

class ImageBox;
class QCheckBox;
class QLabel;
class ListBox;
class QPushButton;

class frmDiaryCards : public Form {
    Q_OBJECT
public:
    frmDiaryCards();

    QLabel* lblCardTypes = nullptr;
    ListBox* lstCardTypes = nullptr;
    QLabel* lblCards = nullptr;
    ListBox* lstCards = nullptr;
    QLabel* lblCardImage = nullptr;
    ImageBox* imgCard = nullptr;
    QCheckBox* chkReserved = nullptr;  // "Reversed"
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;

    void lstCardTypes_ItemCheck();
    void lstCards_Click();
    void chkReserved_Click();
    void cmdSelect_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void ShowCardTypes();
    void UpdateCards();
    void ShowSelectedCard();
    void UpdatePictures();

    // The picture frame, kept from the screen's load.
    int CardFrameTop = 0, CardFrameLeft = 0, CardFrameWidth = 0, CardFrameHeight = 0;
    int pick_ = 0;
};
