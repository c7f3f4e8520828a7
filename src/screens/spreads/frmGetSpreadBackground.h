#pragma once
// "Set Spread Background": chooses the spread's background picture, or takes
// it away. The chosen file is checked, copied to Temp/ under the working name
// "sprpic" with its own extension and shown on the designer's canvas; only a
// save gives it its permanent name in Cards/.
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

private:
    // False, after its message, when the file cannot be a background.
    bool Validate(const QString& fileName);
};

// The working name of a background in Temp/: "sprpic" and the last four
// characters of the chosen file's name, in the case they were typed.
QString WorkingBackgroundName(const QString& fileName);
