#include "screens/shell/Startup.h"

#include <QCoreApplication>

#include "core/platform/BinaryFile.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/platform/ProgramLock.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/platform/ShellHooks.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/store/frmConvert.h"

namespace {

ConversionScreenHook& TheConversionScreenHook() {
    static ConversionScreenHook hook;
    return hook;
}

void ShowConversionScreen() {
    if (const ConversionScreenHook& hook = TheConversionScreenHook()) hook();
    else RunConversionScreen();
}

// The main screen, in the frame brought up first.
void ShowMainScreen() {
    ShowFrameIfLoaded();
    Get<frmMainScreen>().Show();
}

}  // namespace

bool RunStartup(const QString& programDir, bool offerInstall) {
    FormPaths(programDir);
    // Before anything is touched: a second copy on the same folder would
    // empty the first one's Temp/ under its feet.
    if (!TakeProgramLock(programDir)) {
        MsgBox(QCoreApplication::translate("Startup",
                                           "Cartomar is already running from the folder '%1'. Only one copy can "
                                           "work on the same designs at a time.")
                   .arg(programDir),
               vbExclamation);
        EndProcess(1);
        return false;
    }
    TheRun.CurrentLocationColour = 4;
    TheRun.OtherLocationColour = 14;
    TheRun.SpreadLocations.Redim(1, 1);
    TheRun.DesignExistsChoice = 0;
    InitDatabase();
    ClearTemp();

    if (!FileExists(TheRun.Paths.LocationsPath)) {
        if (FileExists(TheRun.Paths.DecksPath + QStringLiteral(".bkp"))) {
            // A conversion was begun here before; doing it again would
            // overwrite the only copies of the old data.
            MsgBox(QCoreApplication::translate("Startup",
                                               "Unable to convert to new database format as existing backups exist.  "
                                               "Please reinstall in a new directory or contact %1.")
                       .arg(SupportAddress));
            EndProcess(1);
            return false;
        }
        // The converter stands over the frame, so the frame comes up first.
        ShowFrameIfLoaded();
        ShowConversionScreen();
    }

    const int spreadCount = CountSpreads();
    const int deckCount = CountDecks();
    ShowMainScreen();
    if (offerInstall && spreadCount == 0 && deckCount == 0) {
        const int answer = MsgBox(QCoreApplication::translate(
                                      "Startup", "You don't have any designs installed. Do you want install any now?"),
                                  vbYesNo | vbInformation);
        if (answer == vbYes) {
            frmMainScreen& mainScreen = Get<frmMainScreen>();
            mainScreen.Hide();
            mainScreen.lblButton_Click(7);
        }
    }
    return true;
}

ConversionScreenHook SetConversionScreenHook(ConversionScreenHook hook) {
    ConversionScreenHook previous = std::move(TheConversionScreenHook());
    TheConversionScreenHook() = std::move(hook);
    return previous;
}
