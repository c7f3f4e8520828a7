#include "screens/spreads/frmSpreads.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/OleDate.h"
#include "core/platform/Twips.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmSpreadInfo.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
QPushButton* MenuButton(QWidget* parent, const QString& name, const QString& caption, int top) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setGeometry(At(7920, top, 1500, 420));
    return button;
}

// A caption and the field beside it in the summary.
QLabel* SummaryLine(QWidget* frame, const QString& name, const QString& caption, int top) {
    auto* label = new QLabel(caption, frame);
    label->setGeometry(At(150, top, 1200, 300));
    auto* field = new QLabel(frame);
    field->setObjectName(name);
    field->setGeometry(At(1400, top, 2600, 300));
    return field;
}
}  // namespace

frmSpreads::frmSpreads() {
    setObjectName(QStringLiteral("frmSpreads"));
    setCaption(tr("Spreads' Menu"));
    resize(TwipsToPixels(9660), TwipsToPixels(4500));

    auto* lblAvailable = new QLabel(tr("Available Spreads:"), this);
    lblAvailable->setGeometry(At(120, 120, 3400, 300));
    lstSpreads = new ListBox(this);
    lstSpreads->setSorted(true);
    lstSpreads->setObjectName(QStringLiteral("lstSpreads"));
    lstSpreads->setGeometry(At(120, 420, 3400, 3840));

    fraQuickInfo = new QGroupBox(tr(" Brief Info "), this);
    fraQuickInfo->setObjectName(QStringLiteral("fraQuickInfo"));
    fraQuickInfo->setGeometry(At(3660, 360, 4100, 2400));
    lblTitleField = SummaryLine(fraQuickInfo, QStringLiteral("lblTitleField"), tr("Title:"), 360);
    lblDesignerNameField = SummaryLine(fraQuickInfo, QStringLiteral("lblDesignerNameField"), tr("Designer:"), 690);
    lblDesignDateField = SummaryLine(fraQuickInfo, QStringLiteral("lblDesignDateField"), tr("Modified On:"), 1020);
    lblDecksField = SummaryLine(fraQuickInfo, QStringLiteral("lblDecksField"), tr("Decks:"), 1350);
    // The summary calls the locations cards: one card lies in each.
    lblCardsField = SummaryLine(fraQuickInfo, QStringLiteral("lblCardsField"), tr("Cards:"), 1680);
    lblQueryField = SummaryLine(fraQuickInfo, QStringLiteral("lblQueryField"), tr("Query:"), 2010);

    cmdInfo = MenuButton(this, QStringLiteral("cmdInfo"), tr("&View"), 420);
    cmdDesign = MenuButton(this, QStringLiteral("cmdDesign"), tr("&New"), 960);
    cmdEdit = MenuButton(this, QStringLiteral("cmdEdit"), tr("&Edit"), 1500);
    cmdDelete = MenuButton(this, QStringLiteral("cmdDelete"), tr("&Delete"), 2040);
    cmdManager = MenuButton(this, QStringLiteral("cmdManager"), tr("&Manage"), 2580);
    cmdClose = MenuButton(this, QStringLiteral("cmdClose"), tr("&Close"), 3840);
    for (QPushButton* button : {cmdInfo, cmdEdit, cmdDelete, cmdManager}) button->setEnabled(false);

    connect(lstSpreads, &ListBox::Click, this, Handler([this] { lstSpreads_Click(); }));
    connect(cmdInfo, &QPushButton::clicked, this, Handler([this] { cmdInfo_Click(); }));
    connect(cmdDesign, &QPushButton::clicked, this, Handler([this] { cmdDesign_Click(); }));
    connect(cmdEdit, &QPushButton::clicked, this, Handler([this] { cmdEdit_Click(); }));
    connect(cmdDelete, &QPushButton::clicked, this, Handler([this] { cmdDelete_Click(); }));
    connect(cmdManager, &QPushButton::clicked, this, Handler([this] { cmdManager_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { cmdClose_Click(); });
}

void frmSpreads::Form_Load() {
    SetScreenPointer(MousePointer::Hourglass);
    CentreInFrame(*this);
    ResetSpread(TheRun.CurrentSpread);
    BriefInfo();
    RecordReader<SpreadRecord> reader(TheRun.Paths.SpreadsPath);
    while (reader.Next(TheRun.CurrentSpread)) lstSpreads->AddItem(TheRun.CurrentSpread.SpreadName.Value());
    if (lstSpreads->ListCount() > 0) lstSpreads->setListIndex(0);
    SetScreenPointer(MousePointer::Default);
}

void frmSpreads::Form_Activate() {
    if (lstSpreads->ListIndex() < 0) {
        cmdInfo->setEnabled(false);
        cmdEdit->setEnabled(false);
        cmdDelete->setEnabled(false);
    }
}

int frmSpreads::GetIndexOf(const QString& name) const {
    if (lstSpreads->ListCount() == 0) return -1;
    const QString wanted = TrimField(name);
    for (int i = 0; i < lstSpreads->ListCount(); ++i) {
        if (TrimField(lstSpreads->List(i)) == wanted) return i;
    }
    return 0;
}

void frmSpreads::SelectSpread(const QString& name) { lstSpreads->setListIndex(GetIndexOf(name)); }

void frmSpreads::BriefInfo() {
    if (lstSpreads->ListIndex() < 0) {
        for (QLabel* field :
             {lblTitleField, lblDesignerNameField, lblDesignDateField, lblDecksField, lblCardsField, lblQueryField})
            field->clear();
        return;
    }
    // A name that vanished from the file since the list was read fails here
    // with the store's own error.
    if (!GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(lstSpreads->Text()), TheRun.CurrentSpread))
        RaiseError(errInputPastEndOfFile);
    LoadSpreadLocations(TheRun.CurrentSpread.SpreadId, TheRun.CurrentSpread.LocationCount);
    lblQueryField->setText(TheRun.CurrentSpread.AskQuestion ? tr("Y") : tr("N"));
    lblCardsField->setText(QString::number(TheRun.CurrentSpread.LocationCount));
    lblDesignDateField->setText(FormatLongDate(TheRun.CurrentSpread.ModifiedOn));
    lblDesignerNameField->setText(TheRun.CurrentSpread.SpreadDesigner.DesignerName.Value());
    lblDecksField->setText(
        TheRun.CurrentSpread.AllowedDeckCount < 0 ? tr("All") : QString::number(TheRun.CurrentSpread.AllowedDeckCount));
    lblTitleField->setText(TheRun.CurrentSpread.SpreadTitle.Value());
}

void frmSpreads::SpreadMenuButtons() {
    const bool selected = lstSpreads->ListIndex() >= 0;
    for (QPushButton* button : {cmdDelete, cmdInfo, cmdEdit, cmdManager}) button->setEnabled(selected);
}

QString frmSpreads::ChosenSpreadName() const { return lstSpreads->Text(); }

void frmSpreads::lstSpreads_Click() {
    BriefInfo();
    for (QPushButton* button : {cmdEdit, cmdDelete, cmdInfo, cmdManager}) button->setEnabled(true);
}

void frmSpreads::cmdDesign_Click() {
    TheRun.DesignMode = 1;
    ResetSpread(TheRun.CurrentSpread);
    Get<frmDesignSpread>().Show();
    Unload();
}

void frmSpreads::cmdEdit_Click() {
    if (TheRun.CurrentSpread.SpreadLocked && !CheckPassword(TheRun.CurrentSpread.SpreadPassword.Value())) return;
    TheRun.DesignMode = 0;
    Get<frmDesignSpread>().Show();
    Unload();
}

void frmSpreads::cmdInfo_Click() {
    Get<frmSpreadInfo>().Show();
    Unload();
}

void frmSpreads::cmdManager_Click() {
    if (lstSpreads->ListIndex() < 0) {
        SpreadMenuButtons();
        return;
    }
    TheRun.ChooserManageMode = true;
    Get<frmDeckChooser>().Show();
    Unload();
}

void frmSpreads::cmdClose_Click() {
    Unload();
    ReturnToMainScreen();
}

void frmSpreads::cmdDelete_Click() {
    if (lstSpreads->ListIndex() < 0) {
        SpreadMenuButtons();
        return;
    }
    const QString name = TrimField(lstSpreads->Text());
    if (MsgBox(tr("Are you sure you want to delete spread '%1' ?").arg(name),
               vbYesNo | vbQuestion | vbDefaultButton2) == vbNo)
        return;
    const int noted = lstSpreads->ListIndex();
    SetScreenPointer(MousePointer::Hourglass);
    DeleteSpreadNamed(name);
    lstSpreads->RemoveItem(noted);
    lstSpreads->setListIndex(noted - 1);
    if (lstSpreads->ListIndex() < 0 && lstSpreads->ListCount() > 0) lstSpreads->setListIndex(0);
    if (lstSpreads->ListIndex() < 0) {
        ResetSpread(TheRun.CurrentSpread);
        BriefInfo();
    }
    SpreadMenuButtons();
    SetScreenPointer(MousePointer::Default);
}

void frmSpreads::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && focusWidget() == lstSpreads) {
        handled = true;
        if (cmdEdit->isEnabled()) cmdEdit_Click();
    }
}

void frmSpreads::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Delete && focusWidget() == lstSpreads) {
        handled = true;
        cmdDelete_Click();
    } else if (key == Qt::Key_Escape) {
        handled = true;
        cmdClose_Click();
    }
}
