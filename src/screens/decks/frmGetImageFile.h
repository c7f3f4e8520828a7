#pragma once
// "Select Upright Image" / "Select Reversed Image": picks a BMP, JPG or GIF
// file for one side of the card being edited, with an optional preview.
#include "screens/decks/FileChooser.h"

class ImageBox;
class QCheckBox;

class frmGetImageFile : public FileChooser {
    Q_OBJECT
public:
    frmGetImageFile();

    QCheckBox* chkPreview;
    ImageBox* imgCard;

    void chkPreview_Click();

protected:
    void Form_Load() override;
    void ShowSelectedFile(const QString& path) override;
    void ClearSelectedFile() override;
    void TakeFile(int side, const QString& source) override;
    void ReportSelected(bool selected) override;

private:
    int IMGTop = 0;
    int IMGLeft = 0;
    int IMGHeight = 0;
    int IMGWidth = 0;
};
