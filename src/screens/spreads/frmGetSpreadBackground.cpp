#include "screens/spreads/frmGetSpreadBackground.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmGetSpreadBackground::frmGetSpreadBackground() {
    setObjectName(QStringLiteral("frmGetSpreadBackground"));
    setCaption(tr("Set Spread Background"));
    resize(TwipsToPixels(6600), TwipsToPixels(3300));

    auto* label = new QLabel(tr("Picture file:"), this);
    label->setGeometry(At(120, 120, 4200, 270));
    txtFilename = new TextBox(this);
    txtFilename->setObjectName(QStringLiteral("txtFilename"));
    txtFilename->setGeometry(At(120, 390, 4800, 330));
    cmdBrowse = new QPushButton(tr("&Browse..."), this);
    cmdBrowse->setObjectName(QStringLiteral("cmdBrowse"));
    cmdBrowse->setGeometry(At(5040, 360, 1440, 400));
    chkStretchPicture = new QCheckBox(tr("Stretch picture to fit"), this);
    chkStretchPicture->setObjectName(QStringLiteral("chkStretchPicture"));
    chkStretchPicture->setGeometry(At(120, 900, 3600, 330));
    Image1 = new ImageBox(this);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setStretch(true);
    Image1->Move(120, 1380, 2400, 1560);
    cmdOK = new QPushButton(tr("&OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setGeometry(At(5040, 2040, 1440, 400));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setGeometry(At(5040, 2560, 1440, 400));

    connect(cmdBrowse, &QPushButton::clicked, this, Handler([this] { cmdBrowse_Click(); }));
    connect(cmdOK, &QPushButton::clicked, this, Handler([this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmGetSpreadBackground::Form_Load() {
    CentreInFrame(*this);
    // Whatever the spread holds, the screen starts empty and stretching.
    txtFilename->setText(QString());
    chkStretchPicture->setChecked(true);
}

void frmGetSpreadBackground::cmdBrowse_Click() {
    CommonDialog1.Filter =
        tr("Bitmaps (*.bmp)|*.bmp|Joint Photographic Experts Group (*.jpg)|*.jpg|Graphics Interchange Format "
           "(*.gif)|*.gif|All Supported Types (*.bmp; *.jpg; *.gif)|*.bmp;*.jpg;*.gif");
    CommonDialog1.FilterIndex = 4;
    CommonDialog1.DialogTitle = tr("Select Background Picture");
    CommonDialog1.Flags = CommonDialog::cdlOFNHideReadOnly;
    CommonDialog1.ShowOpen();
    txtFilename->setText(CommonDialog1.FileName);
}

void frmGetSpreadBackground::cmdOK_Click() {
    const QString typed = txtFilename->Text();
    const QString question = WorkingBackgroundQuestion(TheRun.CurrentSpread, typed);
    if (!question.isEmpty() && MsgBox(question, vbYesNo | vbQuestion) == vbNo) return;
    const WorkingBackground chosen =
        ChooseWorkingBackground(TheRun.CurrentSpread, typed, chkStretchPicture->isChecked());
    if (!chosen.Problem.isEmpty()) {
        MsgBox(chosen.Problem, vbCritical);
        return;
    }
    if (!chosen.Picture.isNull()) Image1->setPicture(chosen.Picture);
    TheRun.CurrentSpread = chosen.Spread;
    if (IsLoaded<frmDesignSpread>()) {
        frmDesignSpread& designer = Get<frmDesignSpread>();
        if (chosen.Path.isEmpty()) designer.ClearBackground();
        else designer.ShowBackground(chosen.Path, TheRun.CurrentSpread.StretchBackground != 0);
        designer.SpreadDirty = true;
    }
    Unload();
}

void frmGetSpreadBackground::cmdCancel_Click() { Unload(); }

void frmGetSpreadBackground::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && focusWidget() == txtFilename) {
        handled = true;
        cmdOK_Click();
    }
}

void frmGetSpreadBackground::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdCancel_Click();
}
