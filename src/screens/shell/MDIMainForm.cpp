#include "screens/shell/MDIMainForm.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QScreen>
#include <QVBoxLayout>

#include "core/platform/Errors.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/Application.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/platform/ShellHooks.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

constexpr int FrameWidth = 1024;  // pixels
constexpr int FrameHeight = 740;

QString& TheProgramDirectory() {
    static QString dir;
    return dir;
}

QString& ThePackageToOpen() {
    static QString file;
    return file;
}

// The installer, as its main-screen button opens it, with the package chosen.
void OpenPackageFile(const QString& packageFile) {
    Get<frmMainScreen>().lblButton_Click(7);
    if (IsLoaded<frmInstallPackage>()) Get<frmInstallPackage>().SelectPackage(packageFile);
}

}  // namespace

MDIMainForm::MDIMainForm() {
    setCaption(tr("Cartomar - Unlock the Door to Future Possibilities"));
    area_ = new QMdiArea(this);
    area_->setBackground(QColor(24, 20, 48));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area_);
    resize(FrameWidth, FrameHeight);
    SetFrameArea(area_);
    // The start-up asks for the frame before the converter and the main
    // screen, without naming it.
    SetFrameHook([] {
        if (IsLoaded<MDIMainForm>()) Get<MDIMainForm>().ShowFrame();
    });
    // The close box only asks; Yes ends the process from within the question.
    setWayOut(ExitQuestion);
}

void MDIMainForm::SetProgramDirectory(const QString& programDir) { TheProgramDirectory() = programDir; }

void MDIMainForm::SetPackageToOpen(const QString& packageFile) { ThePackageToOpen() = packageFile; }

QString MDIMainForm::ProgramDirectory() {
    return TheProgramDirectory().isEmpty() ? ExecutableFolder() : TheProgramDirectory();
}

void MDIMainForm::ShowFrame() {
    if (isVisible()) return;
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect room = screen ? screen->availableGeometry() : QRect(0, 0, FrameWidth, FrameHeight);
    if (room.width() <= FrameWidth || room.height() <= FrameHeight) {
        showMaximized();
    } else {
        move(room.center() - rect().center());
        show();
    }
}

void MDIMainForm::Form_Load() {
    // An error here stops the start-up where it stands: its box shows, and
    // the frame stays for the exit question.
    const QString package = ThePackageToOpen();
    Guarded([&package] {
        if (RunStartup(ProgramDirectory(), package.isEmpty()) && !package.isEmpty()) OpenPackageFile(package);
    });
}

void MDIMainForm::Form_Unload(bool&) {
    Guarded([] { ClearTemp(); });
}

void MDIMainForm::resizeEvent(QResizeEvent* e) {
    Form::resizeEvent(e);
    // The hub keeps to the middle of the frame when the frame changes size.
    if (IsLoaded<frmMainScreen>()) CentreInFrame(Get<frmMainScreen>());
}

void ExitQuestion() {
    const int answer = MsgBox(MDIMainForm::tr("Are you sure you want to EXIT Cartomar?"),
                              vbYesNo | vbQuestion | vbDefaultButton2, MDIMainForm::tr("Cartomar"));
    if (answer != vbYes) return;
    if (IsLoaded<MDIMainForm>()) Get<MDIMainForm>().Unload();
    EndProcess(0);
}
