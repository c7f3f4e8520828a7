#include "screens/packages/frmCreatePackage.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "core/packages/PackageFile.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Twips.h"
#include "core/records/RecordFile.h"
#include "core/store/Housekeeping.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/packages/PackageSummary.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
template <class W>
W* Named(W* widget, const char* name, const QRect& where) {
    widget->setObjectName(QLatin1String(name));
    widget->setGeometry(where);
    return widget;
}

QListWidget* CheckList(QWidget* parent, const char* name, const QRect& where) {
    auto* list = Named(new QListWidget(parent), name, where);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    return list;
}

void AddCheckRow(QListWidget* list, const QString& text) {
    auto* item = new QListWidgetItem(text, list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
}

bool IsChecked(const QListWidget* list, int row) { return list->item(row)->checkState() == Qt::Checked; }

// The text of every checked row, in list order.
QStringList CheckedNames(const QListWidget* list) {
    QStringList names;
    for (int row = 0; row < list->count(); ++row)
        if (IsChecked(list, row)) names << list->item(row)->text();
    return names;
}

}  // namespace

QString AddPackageExtension(const QString& name) {
    if (name.contains(QStringLiteral(".pck"), Qt::CaseInsensitive)) return name;
    return name + QStringLiteral(".pck");
}

frmCreatePackage::frmCreatePackage() {
    setObjectName(QStringLiteral("frmCreatePackage"));
    setCaption(tr("Create Package"));
    resize(TwipsToPixels(9840), TwipsToPixels(7560));

    (new QLabel(tr("Decks:"), this))->setGeometry(At(240, 120, 4560, 270));
    lstAvailableDecks = CheckList(this, "lstAvailableDecks", At(240, 390, 4560, 2400));
    (new QLabel(tr("Spreads:"), this))->setGeometry(At(5040, 120, 4560, 270));
    lstAvailableSpreads = CheckList(this, "lstAvailableSpreads", At(5040, 390, 4560, 2400));
    chkAutoSelect = Named(new QCheckBox(tr("Automatically select the decks a spread works with"), this),
                          "chkAutoSelect", At(5040, 2880, 4560, 300));
    chkAutoSelect->setChecked(true);
    chkPassword =
        Named(new QCheckBox(tr("Protect all designs with a password."), this), "chkPassword", At(240, 2880, 4560, 300));
    (new QLabel(tr("Attachment:"), this))->setGeometry(At(240, 3300, 1200, 270));
    txtAttachment = Named(new QLineEdit(this), "txtAttachment", At(1440, 3300, 5400, 330));
    txtAttachment->setReadOnly(true);
    cmdAttach = Named(new QPushButton(tr("&Attach..."), this), "cmdAttach", At(6960, 3270, 1260, 400));
    cmdDeAttach = Named(new QPushButton(tr("&Remove"), this), "cmdDeAttach", At(8340, 3270, 1260, 400));
    cmdDeAttach->setEnabled(false);
    drvSelection = Named(new DriveListBox(this), "drvSelection", At(240, 3840, 4560, 360));
    dirSelection = Named(new DirListBox(this), "dirSelection", At(240, 4260, 4560, 2280));
    filSelection = Named(new FileListBox(this), "filSelection", At(5040, 3840, 4560, 2700));
    filSelection->setPattern(QStringLiteral("*.pck"));
    (new QLabel(tr("File name:"), this))->setGeometry(At(240, 6660, 1200, 270));
    txtFilename = Named(new QLineEdit(this), "txtFilename", At(1440, 6660, 4800, 330));
    txtFilename->setMaxLength(100);
    cmdCreate = Named(new QPushButton(tr("C&reate"), this), "cmdCreate", At(6600, 6630, 1440, 400));
    cmdCancel = Named(new QPushButton(tr("&Cancel"), this), "cmdCancel", At(8160, 6630, 1440, 400));

    connect(lstAvailableDecks, &QListWidget::itemChanged, this, Handler([this] { lstAvailableDecks_Click(); }));
    connect(lstAvailableSpreads, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        const int row = lstAvailableSpreads->row(item);
        Handler([this, row] { lstAvailableSpreads_ItemCheck(row); })();
    });
    connect(chkPassword, &QCheckBox::toggled, this, Handler([this] { chkPassword_Click(); }));
    connect(cmdAttach, &QPushButton::clicked, this, Handler([this] { cmdAttach_Click(); }));
    connect(cmdDeAttach, &QPushButton::clicked, this, Handler([this] { cmdDeAttach_Click(); }));
    connect(drvSelection, &DriveListBox::Change, this, Handler([this] { drvSelection_Change(); }));
    connect(dirSelection, &DirListBox::Change, this, Handler([this] { dirSelection_Change(); }));
    connect(filSelection, &FileListBox::Click, this, Handler([this] { filSelection_Click(); }));
    connect(txtFilename, &QLineEdit::textChanged, this, Handler([this] { txtFilename_Change(); }));
    connect(txtFilename, &QLineEdit::editingFinished, this,
            [this] { txtFilename->setText(txtFilename->text().trimmed()); });
    connect(cmdCreate, &QPushButton::clicked, this, Handler([this] { cmdCreate_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void frmCreatePackage::Form_Load() {
    CentreInFrame(*this);
    ProtectedWarningShown = false;
    MkDirIgnoringErrors(TheRun.Paths.AppPath + QStringLiteral("Temp"));
    ClearTemp();
    SuggestFilename();
    for (const DeckRecord& deck : ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath)) {
        AddCheckRow(lstAvailableDecks, deck.DeckName.Value());
        DeckListNames.push_back(deck.DeckName.Value());
        DeckListIds.push_back(deck.DeckId);
    }
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath))
        AddCheckRow(lstAvailableSpreads, spread.SpreadName.Value());
    cmdCreate->setEnabled(CanCreate());
}

void frmCreatePackage::SuggestFilename() {
    drvSelection->setDrive(TheRun.Paths.AppPath);
    dirSelection->setPath(TheRun.Paths.PackagesDir);
    filSelection->setPath(dirSelection->Path());
    const QString folder = AddTrailingBackslash(dirSelection->Path());
    for (int n = 1; n <= 1000; ++n) {
        const QString name = AddPackageExtension(tr("Cartomar Package - %1").arg(n));
        if (!FileExists(folder + name)) {
            txtFilename->setText(name);
            return;
        }
    }
}

bool frmCreatePackage::AnyChecked(const QListWidget* list) const {
    for (int row = 0; row < list->count(); ++row)
        if (IsChecked(list, row)) return true;
    return false;
}

bool frmCreatePackage::CanCreate() const {
    if (txtFilename->text().trimmed().isEmpty()) return false;
    return AnyChecked(lstAvailableDecks) || AnyChecked(lstAvailableSpreads) ||
           !txtAttachment->text().trimmed().isEmpty();
}

void frmCreatePackage::lstAvailableDecks_Click() { cmdCreate->setEnabled(CanCreate()); }

void frmCreatePackage::lstAvailableSpreads_ItemCheck(int item) {
    const int deckRow = lstAvailableDecks->currentRow();
    // Clearing a spread clears none of its decks; decks chosen for it can be
    // cleared by hand.
    if (chkAutoSelect->isChecked() && IsChecked(lstAvailableSpreads, item))
        SelectRequiredDecks(lstAvailableSpreads->item(item)->text());
    lstAvailableDecks->setCurrentRow(deckRow);
    cmdCreate->setEnabled(CanCreate());
}

void frmCreatePackage::SelectRequiredDecks(const QString& spreadName) {
    const int at = FindSpreadByName(spreadName);
    if (at < 1) return;
    GetRecord(TheRun.Paths.SpreadsPath, at, TheRun.CurrentSpread);
    const int allowed = TheRun.CurrentSpread.AllowedDeckCount;
    auto check = [this](const QString& deckName) {
        for (int row = 0; row < lstAvailableDecks->count(); ++row)
            if (TrimField(lstAvailableDecks->item(row)->text()) == TrimField(deckName)) {
                lstAvailableDecks->item(row)->setCheckState(Qt::Checked);
                return;
            }
    };
    for (std::size_t r = 0; r < DeckListIds.size(); ++r) {
        if (allowed < 0) {
            check(DeckListNames[r]);
            continue;
        }
        for (int k = 0; k < allowed && k < 10; ++k)
            if (TheRun.CurrentSpread.AllowedDeckId[static_cast<std::size_t>(k)] == DeckListIds[r]) {
                check(DeckListNames[r]);
                break;
            }
    }
}

void frmCreatePackage::chkPassword_Click() {
    if (!chkPassword->isChecked() || InPasswordClick) return;
    InPasswordClick = true;
    PackagePassword = AskNewPassword(QString());
    if (PackagePassword.trimmed().isEmpty()) {
        chkPassword->setChecked(false);
        PasswordSet = false;
    } else {
        PasswordSet = true;
    }
    InPasswordClick = false;
}

void frmCreatePackage::cmdAttach_Click() {
    CommonDialog1.Filter =
        tr("All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt");
    CommonDialog1.FilterIndex = 1;
    CommonDialog1.DialogTitle = tr("Select Attachment");
    CommonDialog1.Flags = CommonDialog::cdlOFNHideReadOnly;
    const bool chosen = CommonDialog1.ShowOpen();
    if (!chosen && !FileExists(CommonDialog1.FileName)) {
        MsgBox(tr("There is no file with the name you provided!"), vbCritical);
        return;
    }
    AttachmentName = CommonDialog1.FileTitle;
    txtAttachment->setText(CommonDialog1.FileName);
    cmdCreate->setEnabled(CanCreate());
    cmdDeAttach->setEnabled(true);
    cmdAttach->setEnabled(false);
}

void frmCreatePackage::cmdDeAttach_Click() {
    KillIgnoringErrors(TheRun.Paths.TempDir + AttachmentName);
    txtAttachment->clear();
    cmdAttach->setEnabled(true);
    cmdDeAttach->setEnabled(false);
}

void frmCreatePackage::drvSelection_Change() {
    try {
        dirSelection->setPath(drvSelection->Drive());
        filSelection->setPath(dirSelection->Path());
    } catch (const RuntimeError&) {
        MsgBox(tr("This device is currently unavailable!"), vbCritical);
        drvSelection->setDrive(dirSelection->Path());
    }
}

void frmCreatePackage::dirSelection_Change() {
    // Temp/ is emptied by every design operation: a package there would be
    // lost. Its subfolders pass.
    if (dirSelection->Path().trimmed() == TheRun.Paths.AppPath + QStringLiteral("Temp")) {
        MsgBox(tr("This folder and its subfolders are solely for the use of Cartomar. Please select a "
                  "different folder."),
               vbInformation);
        dirSelection->setPath(filSelection->Path());
        return;
    }
    filSelection->setPath(dirSelection->Path());
}

void frmCreatePackage::filSelection_Click() { txtFilename->setText(filSelection->FileName()); }

void frmCreatePackage::txtFilename_Change() {
    cmdCreate->setEnabled(CanCreate());
    const QString text = txtFilename->text();
    int lead = 0;
    while (lead < text.size() && text[lead] == QLatin1Char(' ')) ++lead;
    if (lead > 0) txtFilename->setText(text.mid(lead));
}

bool frmCreatePackage::IsValidFilename() const {
    // A name is valid when a file of it can be made: none of the characters
    // the message lists, and no control character. Nothing is written to try.
    const QString name = txtFilename->text();
    if (name.isEmpty()) return false;
    for (const QChar c : name)
        if (c.unicode() < 32 || QStringLiteral("\\/:*?<>|\"").contains(c)) return false;
    return name != QLatin1String(".") && name != QLatin1String("..");
}

void frmCreatePackage::CheckInputs() {
    AbortCreate = false;
    if (!AnyChecked(lstAvailableDecks) && !AnyChecked(lstAvailableSpreads) &&
        txtAttachment->text().trimmed().isEmpty()) {
        SetScreenPointer(MousePointer::Default);
        MsgBox(tr("You have selected nothing to pack. Please select at least one design."), vbInformation);
        AbortCreate = true;
    } else if (!IsValidFilename()) {
        SetScreenPointer(MousePointer::Default);
        MsgBox(tr("Invalid FileName!\nA valid filename cannot contain \\, /, :, *, ?, <, > or |."), vbCritical);
        AbortCreate = true;
    } else {
        // The name as typed: a name without ".pck" is looked for without it.
        const QString path = AddTrailingBackslash(dirSelection->Path()) + txtFilename->text().trimmed();
        if (!FileExists(path)) return;
        SetScreenPointer(MousePointer::Default);
        if (MsgBox(tr("Package already exists. Overwrite?"), vbYesNo | vbQuestion) == vbYes) KillIgnoringErrors(path);
        else AbortCreate = true;
    }
}

void frmCreatePackage::cmdCreate_Click() {
    SetScreenPointer(MousePointer::Hourglass);
    CreateFailed = false;
    CheckInputs();
    if (AbortCreate) {
        SetScreenPointer(MousePointer::Default);
        return;
    }
    try {
        StageDesigns();
    } catch (const RuntimeError& error) {
        // A card file or a deck attachment that cannot be copied stops the
        // creation before anything is packed; the screen stays for another go.
        ClearTemp();
        SetScreenPointer(MousePointer::Default);
        ReportError(error);
        return;
    }
    const QString path = AddTrailingBackslash(PackageFolder.trimmed()) + PackageFileName.trimmed();
    std::optional<RuntimeError> failure;
    if (!CreatePackageFile(TheRun.Paths.TempDir, path, &failure)) {
        CreateFailed = true;
        MsgBox(tr("Unable to create package.  Error%1: %2")
                   .arg(QString::number(failure->Number()), failure->Description()),
               vbCritical);
    }
    ClearTemp();
    if (!CreateFailed) ShowSummary();
    SetScreenPointer(MousePointer::Default);
    ReturnToMainScreen();
    Unload();
}

void frmCreatePackage::StageDesigns() {
    PackageFolder = dirSelection->Path();
    PackageFileName = AddPackageExtension(txtFilename->text());
    PackageStaging staging;
    staging.DeckNames = CheckedNames(lstAvailableDecks);
    staging.SpreadNames = CheckedNames(lstAvailableSpreads);
    staging.UsePassword = chkPassword->isChecked();
    staging.Password = PackagePassword;
    staging.ProtectedDesignMet = [this] { WarnProtectedDesign(); };
    staging.StageAll();
    DecksPacked = staging.DecksPacked;
    SpreadsPacked = staging.SpreadsPacked;
    if (!txtAttachment->text().trimmed().isEmpty()) StageAttachment();
}

void frmCreatePackage::WarnProtectedDesign() {
    if (ProtectedWarningShown) return;
    ProtectedWarningShown = true;
    SetScreenPointer(MousePointer::Default);
    MsgBox(tr("Some designs were intially protected. Their passwords cannot be replaced.\n"
              "However, they will still be added to the package."),
           vbInformation);
    SetScreenPointer(MousePointer::Hourglass);
}

void frmCreatePackage::StageAttachment() {
    try {
        FileCopyUnsynced(txtAttachment->text(),
                         TheRun.Paths.TempDir + QStringLiteral("ATT - ") + AttachmentName.trimmed());
        AttachmentStaged = true;
    } catch (const RuntimeError&) {
        AttachmentStaged = false;
        SetScreenPointer(MousePointer::Default);
        MsgBox(tr("The selected attachment could not be copied because either it is in use or it has "
                  "been removed from disk."),
               vbInformation);
        SetScreenPointer(MousePointer::Hourglass);
    }
}

void frmCreatePackage::ShowSummary() {
    frmCreatePackageSummary& summary = Get<frmCreatePackageSummary>();
    summary.ShowPackageFile(PackageFileName.trimmed(), PackageFolder.trimmed());
    summary.ShowCounts(DecksPacked, SpreadsPacked);
    summary.SetAttachment(AttachmentStaged, AttachmentName.trimmed());
    SetScreenPointer(MousePointer::Default);
    summary.Show(true);
}

void frmCreatePackage::cmdCancel_Click() {
    if (AnyChecked(lstAvailableDecks) || AnyChecked(lstAvailableSpreads) ||
        !txtAttachment->text().trimmed().isEmpty()) {
        if (MsgBox(tr("Are you sure you want to cancel creating this package?"),
                   vbYesNo | vbQuestion | vbDefaultButton2) == vbNo)
            return;
    }
    ReturnToMainScreen();
    Unload();
}

void frmCreatePackage::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdCancel_Click();
}
