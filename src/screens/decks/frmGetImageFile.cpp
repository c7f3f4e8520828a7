#include "screens/decks/frmGetImageFile.h"

#include <QCheckBox>

#include "core/decks/CardEditing.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmAddCard.h"
#include "screens/platform/FileLists.h"
#include "screens/shell/FitPicture.h"
#include "screens/shell/ImageBox.h"

frmGetImageFile::frmGetImageFile()
    : FileChooser({tr("Select Upright Image"), tr("Select Reversed Image")}, QStringLiteral("*.bmp;*.jpg;*.gif"),
                  RememberedPictureFolder()) {
    setObjectName(QStringLiteral("frmGetImageFile"));
    chkPreview = new QCheckBox(tr("&Preview"), this);
    chkPreview->setObjectName(QStringLiteral("chkPreview"));
    chkPreview->setChecked(true);
    chkPreview->setGeometry(At(6000, 120, 2160, 300));
    imgCard = new ImageBox(this);
    imgCard->setObjectName(QStringLiteral("imgCard"));
    imgCard->Move(6000, 480, 2160, 3000);
    connect(chkPreview, &QCheckBox::clicked, this, Handler([this] { chkPreview_Click(); }));
}

void frmGetImageFile::Form_Load() {
    IMGTop = imgCard->Top();
    IMGLeft = imgCard->Left();
    IMGHeight = imgCard->Height();
    IMGWidth = imgCard->Width();
    FileChooser::Form_Load();
}

void frmGetImageFile::ClearSelectedFile() { imgCard->ClearPicture(); }

void frmGetImageFile::ShowSelectedFile(const QString& path) {
    if (!chkPreview->isChecked()) return;
    imgCard->ClearPicture();
    imgCard->Move(IMGLeft, IMGTop, IMGWidth, IMGHeight);
    FitPicture(*imgCard, path, true, false);
}

void frmGetImageFile::chkPreview_Click() {
    if (!chkPreview->isChecked()) {
        ClearSelectedFile();
        return;
    }
    if (!filSelection->FileName().isEmpty()) ShowSelectedFile(SelectedFile(GetPictureCode == 2 ? 1 : 0));
}

void frmGetImageFile::TakeFile(int side, const QString& source) {
    TakePickedPicture(side, source);
    if (IsLoaded<frmAddCard>()) {
        frmAddCard& editor = Get<frmAddCard>();
        editor.DesignModified = true;
        editor.UpdatePictures();
    }
}

void frmGetImageFile::ReportSelected(bool selected) { WorkingFiles().ImageSelected = selected; }
