#pragma once
// "Set Spread Background": chooses the spread's background picture, or takes
// it away. The store checks the chosen file and copies it to Temp/ under its
// working name; this screen asks, tells and shows it on the designer's
// canvas. Only a save gives it its permanent name in Cards/.
#include "screens/platform/CommonDialog.h"
#include "screens/platform/Form.h"

class ImageBox;
class QCheckBox;
class QPushButton;
class TextBox;

class frmGetSpreadBackground : public Form {
    Q_OBJECT
public:
    frmGetSpreadBackground();

    TextBox* txtFilename;
    QCheckBox* chkStretchPicture;
    ImageBox* Image1;
    QPushButton* cmdBrowse;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    CommonDialog CommonDialog1;

    void cmdBrowse_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
