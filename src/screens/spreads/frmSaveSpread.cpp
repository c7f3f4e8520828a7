#include "screens/spreads/frmSaveSpread.h"

#include <QLabel>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/widgets/ScreenPlacement.h"

frmSaveSpread::frmSaveSpread() {
    setObjectName(QStringLiteral("frmSaveSpread"));
    setCaption(tr("Save Spread"));
    resize(TwipsToPixels(5400), TwipsToPixels(4200));

    auto* lblSaveAs = new QLabel(tr("Save spread as:"), this);
    lblSaveAs->setGeometry(At(120, 120, 3600, 300));
    txtSaveAs = new TextBox(this);
    txtSaveAs->setObjectName(QStringLiteral("txtSaveAs"));
    txtSaveAs->setMaxLength(30);
    txtSaveAs->setGeometry(At(120, 420, 3600, 330));
    auto* lblNames = new QLabel(tr("Saved spreads:"), this);
    lblNames->setGeometry(At(120, 870, 3600, 300));
    lstSpreadNames = new ListBox(this);
    lstSpreadNames->setSorted(true);
    lstSpreadNames->setObjectName(QStringLiteral("lstSpreadNames"));
    lstSpreadNames->setGeometry(At(120, 1170, 3600, 2820));

    cmdSave = new QPushButton(tr("&Save"), this);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setGeometry(At(3900, 420, 1320, 420));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setGeometry(At(3900, 960, 1320, 420));

    connect(txtSaveAs, &TextBox::Change, this, Handler([this] { txtSaveAs_Change(); }));
    connect(lstSpreadNames, &ListBox::Click, this, Handler([this] { lstSpreadNames_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmSaveSpread::Form_Load() {
    CentreInFrame(*this);
    txtSaveAs->setText(TheRun.CurrentSpread.SpreadName.Trimmed());
    // Read into a scratch record, so that the spread in hand stays intact.
    RecordReader<SpreadRecord> reader(TheRun.Paths.SpreadsPath);
    while (reader.Next(TheRun.ScratchSpread)) lstSpreadNames->AddItem(TheRun.ScratchSpread.SpreadName.Trimmed());
    cmdSave->setEnabled(false);
}

void frmSaveSpread::txtSaveAs_Change() {
    if (!txtSaveAs->Text().isEmpty()) cmdSave->setEnabled(true);
}

void frmSaveSpread::lstSpreadNames_Click() {
    cmdSave->setEnabled(true);
    txtSaveAs->setText(lstSpreadNames->Text());
}

void frmSaveSpread::cmdCancel_Click() { Unload(); }

void frmSaveSpread::cmdSave_Click() {
    const SpreadNameCheck check = CheckSpreadName(txtSaveAs->Text());
    if (!check.Problem.isEmpty()) {
        MsgBox(check.Problem, vbExclamation);
        return;
    }
    if (!check.Question.isEmpty() && MsgBox(check.Question, vbYesNo | vbQuestion | vbDefaultButton2) == vbNo) return;
    const SpreadDesign saved = SaveSpread({TheRun.CurrentSpread, TheRun.SpreadLocations}, check.Name, check.Replacing);
    TheRun.CurrentSpread = saved.Spread;
    TheRun.SpreadLocations = saved.Locations;
    if (IsLoaded<frmDesignSpread>()) Get<frmDesignSpread>().SpreadSaved();
    Unload();
}

void frmSaveSpread::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
        (focusWidget() == txtSaveAs || focusWidget() == lstSpreadNames)) {
        handled = true;
        cmdSave_Click();
    }
}

void frmSaveSpread::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    }
}
