#include "screens/packages/frmInstallPackage.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "core/packages/PackageFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Twips.h"
#include "core/records/RecordFile.h"
#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"
#include "screens/packages/PackageSummary.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/platform/ShellHooks.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/store/frmDesignExists.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
QPushButton* MakeButton(QWidget* parent, const QString& caption, const char* name, const QRect& where) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QLatin1String(name));
    b->setGeometry(where);
    return b;
}

QString TempFile(const char* name) { return TheRun.Paths.TempDir + QLatin1String(name); }

}  // namespace

// ---- The screen ------------------------------------------------------------

frmInstallPackage::frmInstallPackage() {
    setObjectName(QStringLiteral("frmInstallPackage"));
    setCaption(tr("Install Package"));
    resize(TwipsToPixels(7560), TwipsToPixels(5160));

    drvSelection = new DriveListBox(this);
    drvSelection->setObjectName(QStringLiteral("drvSelection"));
    drvSelection->setGeometry(At(240, 240, 3360, 360));
    dirSelection = new DirListBox(this);
    dirSelection->setObjectName(QStringLiteral("dirSelection"));
    dirSelection->setGeometry(At(240, 720, 3360, 3480));
    filSelection = new FileListBox(this);
    filSelection->setObjectName(QStringLiteral("filSelection"));
    filSelection->setPattern(QStringLiteral("*.pck"));
    filSelection->setGeometry(At(3720, 240, 3600, 3960));
    lblStatus = new QLabel(this);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setGeometry(At(240, 4320, 7080, 270));
    cmdInstall = MakeButton(this, tr("&Install"), "cmdInstall", At(240, 4620, 1680, 400));
    cmdInfo = MakeButton(this, tr("In&fo"), "cmdInfo", At(2040, 4620, 1680, 400));
    cmdDelete = MakeButton(this, tr("&Delete"), "cmdDelete", At(3840, 4620, 1680, 400));
    cmdCancel = MakeButton(this, tr("&Close"), "cmdCancel", At(5640, 4620, 1680, 400));

    connect(drvSelection, &DriveListBox::Change, this, Handler([this] { drvSelection_Change(); }));
    connect(dirSelection, &DirListBox::Change, this, Handler([this] { dirSelection_Change(); }));
    connect(filSelection, &FileListBox::Click, this, Handler([this] { filSelection_Click(); }));
    connect(cmdInstall, &QPushButton::clicked, this, Handler([this] { cmdInstall_Click(); }));
    connect(cmdInfo, &QPushButton::clicked, this, Handler([this] { cmdInfo_Click(); }));
    connect(cmdDelete, &QPushButton::clicked, this, Handler([this] { cmdDelete_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void frmInstallPackage::Form_Load() {
    CentreInFrame(*this);
    lblStatus->clear();
    ShowFolder(TheRun.Paths.PackagesDir);
}

void frmInstallPackage::ShowFolder(const QString& folder) {
    drvSelection->setDrive(folder);
    dirSelection->setPath(folder);
    filSelection->setPath(dirSelection->Path());
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::SelectPackage(const QString& packageFile) {
    ShowFolder(FolderOf(packageFile));
    const QString name = FileNameOf(packageFile);
    for (int i = 0; i < filSelection->ListCount(); ++i)
        if (filSelection->List(i) == name) filSelection->setListIndex(i);
    UpdateButtons();
}

void frmInstallPackage::UpdateButtons() {
    const bool selected = !filSelection->FileName().isEmpty();
    cmdDelete->setEnabled(selected);
    cmdInstall->setEnabled(selected);
    cmdInfo->setEnabled(selected);
}

void frmInstallPackage::drvSelection_Change() {
    try {
        dirSelection->setPath(drvSelection->Drive());
        filSelection->setPath(dirSelection->Path());
    } catch (const RuntimeError&) {
        MsgBox(tr("This device is currently unavailable!"), vbCritical);
        drvSelection->setDrive(dirSelection->Path());
    }
    if (filSelection->FileName().isEmpty()) cmdInstall->setEnabled(false);
    PackageExtracted = false;
}

void frmInstallPackage::dirSelection_Change() {
    filSelection->setPath(dirSelection->Path());
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::filSelection_Click() {
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if (focusWidget() == filSelection && key == Qt::Key_Delete) {
        handled = true;
        cmdDelete_Click();
    } else if (focusWidget() == filSelection && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdInstall_Click();
    }
}

void frmInstallPackage::cmdCancel_Click() {
    ReturnToMainScreen();
    Unload();
}

void frmInstallPackage::cmdDelete_Click() {
    const QString name = filSelection->FileName();
    if (name.isEmpty()) return;
    if (MsgBox(tr("Are you sure you want to delete package '%1' ?").arg(name),
               vbYesNo | vbQuestion | vbDefaultButton2) != vbYes)
        return;
    SetScreenPointer(MousePointer::Hourglass);
    Kill(AddTrailingBackslash(filSelection->Path()) + name);
    filSelection->Refresh();
    UpdateButtons();
    SetScreenPointer(MousePointer::Default);
}

void frmInstallPackage::cmdInfo_Click() {
    ExtractFiles();
    if (!ExtractFailed) Get<frmPackageInfo>().Show(true);
}

void frmInstallPackage::ExtractFiles() {
    MkDirIgnoringErrors(TheRun.Paths.TempDir);
    ClearTemp();
    const QString path = AddTrailingBackslash(filSelection->Path()) + filSelection->FileName();
    ExtractFailed = !ExtractPackageFile(path, TheRun.Paths.TempDir);
    if (ExtractFailed) {
        MsgBox(tr("Unable to open package"), vbCritical);
        return;
    }
    const QStringList attachments = Dir(TheRun.Paths.TempDir + AttachmentPrefix + QStringLiteral("*.*"));
    AttachmentFile = attachments.isEmpty() ? QString() : attachments.first().mid(AttachmentPrefix.size());
    HasAttachment = !TrimField(AttachmentFile).isEmpty();
    PackageExtracted = true;
}

void frmInstallPackage::cmdInstall_Click() {
    SetScreenPointer(MousePointer::Hourglass);
    TheRun.DesignExistsChoice = 0;
    DecksInstalled = 0;
    SpreadsInstalled = 0;
    AttachmentSaved = false;
    if (!PackageExtracted) ExtractFiles();
    bool ended = false;
    if (!ExtractFailed) {
        // An error part-way (a file that cannot be written) ends the
        // installation with the error box and nothing written; a damaged
        // package is refused before anything is asked. Either way the
        // screen stays for another choice.
        try {
            ended = Install();
        } catch (const RuntimeError& error) {
            SetScreenPointer(MousePointer::Default);
            ReportError(error);
        }
        if (ended) ShowPackageSummary();
    }
    lblStatus->clear();
    ClearTemp();
    PackageExtracted = false;
    SetScreenPointer(MousePointer::Default);
    if (ended) {
        ReturnToMainScreen();
        Unload();
    }
}

bool frmInstallPackage::Install() {
    PackageInstallation installation(*this, HasAttachment ? AttachmentFile : QString());
    const InstallOutcome outcome = installation.Install();
    AttachmentSaved = installation.AttachmentSaved;
    AttachmentFile = installation.AttachmentFile;
    DecksInstalled = installation.DecksInstalled;
    SpreadsInstalled = installation.SpreadsInstalled;
    if (outcome == InstallOutcome::Refused) {
        SetScreenPointer(MousePointer::Default);
        MsgBox(installation.Refusal, vbExclamation);
        return false;
    }
    if (outcome == InstallOutcome::Incompatible) {
        SetScreenPointer(MousePointer::Default);
        MsgBox(tr("Unable to install: Incompatible Cartomar Package."));
        if (AnyFileMatches(TheRun.Paths.TempDir + QStringLiteral("*.*"))) ClearTemp();
    }
    return true;
}

QString frmInstallPackage::AttachmentTarget(const QString& proposed) {
    CommonDialog1.Filter =
        tr("All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt");
    CommonDialog1.FilterIndex = 1;
    CommonDialog1.FileName = proposed;
    CommonDialog1.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    CommonDialog1.DialogTitle = tr("Save Attachment As");
    if (!CommonDialog1.ShowSave()) return QString();
    if (!CommonDialog1.FileName.contains(CommonDialog1.FileTitle)) FatalError();
    return CommonDialog1.FileName;
}

DesignExistsReply frmInstallPackage::DesignExists(int design, const QString& title,
                                                  const std::function<bool(const QString&)>& nameInUse) {
    frmDesignExists& question = Get<frmDesignExists>();
    question.NameInUse = [nameInUse](int, const QString& padded) { return nameInUse(padded); };
    question.Ask(design, title);
    return {TheRun.DesignExistsChoice, TheRun.DesignExistsNewName};
}

void frmInstallPackage::ChooseDecks(const std::vector<DeckRecord>& decks) {
    TheRun.ChooserManageMode = false;
    TheRun.DecksOnOffer = &decks;
    try {
        Get<frmDeckChooser>().Show(true);
    } catch (...) {
        TheRun.DecksOnOffer = nullptr;
        throw;
    }
    TheRun.DecksOnOffer = nullptr;
}

void frmInstallPackage::ShowPackageSummary() {
    SetScreenPointer(MousePointer::Default);
    frmPackageSummary& summary = Get<frmPackageSummary>();
    summary.SetAttachment(AttachmentSaved, AttachmentFile);
    summary.ShowCounts(DecksInstalled, SpreadsInstalled);
    summary.UpdateInfo();
    summary.Show(true);
    SetScreenPointer(MousePointer::Hourglass);
}

// ---- Package Info ----------------------------------------------------------

frmPackageInfo::frmPackageInfo() {
    setObjectName(QStringLiteral("frmPackageInfo"));
    setCaption(tr("Package Info"));
    resize(TwipsToPixels(6720), TwipsToPixels(4680));
    auto* spreadsLabel = new QLabel(tr("Spreads:"), this);
    spreadsLabel->setGeometry(At(240, 120, 3000, 270));
    lstSpreads = new QListWidget(this);
    lstSpreads->setObjectName(QStringLiteral("lstSpreads"));
    lstSpreads->setGeometry(At(240, 420, 3000, 2880));
    auto* decksLabel = new QLabel(tr("Decks:"), this);
    decksLabel->setGeometry(At(3480, 120, 3000, 270));
    lstDecks = new QListWidget(this);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setGeometry(At(3480, 420, 3000, 2880));
    auto* attachmentLabel = new QLabel(tr("Attachment:"), this);
    attachmentLabel->setGeometry(At(240, 3420, 1200, 270));
    txtAttachment = new QLineEdit(this);
    txtAttachment->setObjectName(QStringLiteral("txtAttachment"));
    txtAttachment->setReadOnly(true);
    txtAttachment->setGeometry(At(1440, 3420, 5040, 330));
    cmdInstall = MakeButton(this, tr("&Install"), "cmdInstall", At(3480, 3960, 1440, 400));
    cmdCancel = MakeButton(this, tr("&Close"), "cmdCancel", At(5040, 3960, 1440, 400));
    connect(cmdInstall, &QPushButton::clicked, this, Handler([this] { cmdInstall_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmPackageInfo::Form_Load() {
    CentreInFrame(*this);
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")))
        lstSpreads->addItem(spread.SpreadName.Value());
    for (const DeckRecord& deck : ReadAllRecords<DeckRecord>(TempFile("Temp.dck")))
        lstDecks->addItem(deck.DeckName.Value());
    txtAttachment->setText(Get<frmInstallPackage>().AttachmentFile);
}

void frmPackageInfo::cmdCancel_Click() { Unload(); }

void frmPackageInfo::cmdInstall_Click() {
    Unload();
    // The package is still unpacked: the installation takes it from Temp/.
    Get<frmInstallPackage>().cmdInstall_Click();
}

void frmPackageInfo::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdCancel_Click();
}
