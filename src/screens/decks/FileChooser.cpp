#include "screens/decks/FileChooser.h"

#include <QDir>
#include <QPushButton>

#include "core/decks/CardEditing.h"
#include "core/platform/FileSys.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/store/Startup.h"

FileChooser::FileChooser(const std::array<QString, 2>& captions, const QString& pattern, ChooserMemory& memory)
    : captions_(captions), memory_(memory) {
    resize(TwipsToPixels(8400), TwipsToPixels(5400));
    MakeLabel(this, tr("Drive:"), At(240, 120, 3000, 255));
    drvSelection = new DriveListBox(this);
    drvSelection->setObjectName(QStringLiteral("drvSelection"));
    drvSelection->setGeometry(At(240, 390, 3000, 360));
    MakeLabel(this, tr("Folders:"), At(240, 870, 3000, 255));
    dirSelection = new DirListBox(this);
    dirSelection->setObjectName(QStringLiteral("dirSelection"));
    dirSelection->setGeometry(At(240, 1140, 3000, 3360));
    MakeLabel(this, tr("Files:"), At(3360, 120, 2400, 255));
    filSelection = new FileListBox(this);
    filSelection->setObjectName(QStringLiteral("filSelection"));
    filSelection->setPattern(pattern);
    filSelection->setGeometry(At(3360, 390, 2400, 4110));
    cmdSelect = MakeButton(this, "cmdSelect", tr("&Select"), At(5160, 4800, 1380, 420));
    cmdCancel = MakeButton(this, "cmdCancel", tr("&Cancel"), At(6780, 4800, 1380, 420));
    cmdSelect->setEnabled(false);

    connect(filSelection, &FileListBox::Click, this, Handler([this] { filSelection_Click(); }));
    connect(filSelection, &FileListBox::DblClick, this, Handler([this] { cmdSelect_Click(); }));
    connect(dirSelection, &DirListBox::Change, this, Handler([this] { dirSelection_Change(); }));
    connect(drvSelection, &DriveListBox::Change, this, Handler([this] { drvSelection_Change(); }));
    connect(cmdSelect, &QPushButton::clicked, this, Handler([this] { cmdSelect_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void FileChooser::ShowFor(int code) {
    GetPictureCode = code;
    setCaption(captions_[static_cast<std::size_t>(Side())]);
    Show(true);
}

void FileChooser::Form_Load() {
    CentreInFrame(*this);
    // A first use in the run starts in the user's home folder.
    const QString folder = memory_.Folder.isEmpty() ? QDir::homePath() : memory_.Folder;
    try {
        drvSelection->setDrive(folder);
        dirSelection->setPath(folder);
        filSelection->setPath(folder);
        if (!memory_.Folder.isEmpty() && memory_.FileIndex >= 0 && memory_.FileIndex < filSelection->ListCount())
            filSelection->setListIndex(memory_.FileIndex);
    } catch (const RuntimeError&) {
        // A remembered folder that has gone: the lists stay where they are.
    }
}

void FileChooser::filSelection_Click() {
    const QString name = filSelection->FileName();
    cmdSelect->setEnabled(!name.isEmpty());
    if (name.isEmpty()) return;
    selected_[static_cast<std::size_t>(Side())] = AddTrailingBackslash(filSelection->Path()) + name;
    ShowSelectedFile(selected_[static_cast<std::size_t>(Side())]);
}

void FileChooser::dirSelection_Change() {
    filSelection->setPath(dirSelection->Path());
    ClearSelectedFile();
    cmdSelect->setEnabled(false);
}

void FileChooser::drvSelection_Change() {
    try {
        dirSelection->setPath(drvSelection->Drive());
    } catch (const RuntimeError&) {
        MsgBox(tr("This device is currently unavailable!"));
        drvSelection->setDrive(dirSelection->Path());
    }
}

void FileChooser::cmdSelect_Click() {
    if (filSelection->FileName().isEmpty()) return;
    if (GetPictureCode != 1 && GetPictureCode != 2) {
        MsgBox(tr("Error in application. If this problem persists, please contact Ondine Software."));
        EndProcess(1);
        return;
    }
    TakeFile(Side(), selected_[static_cast<std::size_t>(Side())]);
    memory_.Folder = dirSelection->Path();
    memory_.FileIndex = filSelection->ListIndex();
    ReportSelected(true);
    Unload();
}

void FileChooser::cmdCancel_Click() {
    ReportSelected(false);
    Unload();
}

void FileChooser::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if (focusWidget() == filSelection && (key == Qt::Key_Return || key == Qt::Key_Enter) &&
               !filSelection->FileName().isEmpty()) {
        handled = true;
        cmdSelect_Click();
    }
}
