#include "store/Startup.h"

#include <cstdio>
#include <cstdlib>

#include "platform/BinaryFile.h"
#include "platform/FileSys.h"
#include "platform/MsgBox.h"
#include "platform/ProgramLock.h"
#include "platform/Picture.h"
#include "shell/MDIMainForm.h"
#include "shell/frmMainScreen.h"
#include "store/DesignCommit.h"
#include "store/frmConvert.h"
#include "store/mdlSubRoutines.h"
#include "store/mdlVariables.h"

namespace {

EndProcessHook& TheEndProcessHook() {
    static EndProcessHook hook;
    return hook;
}

ConversionScreenHook& TheConversionScreenHook() {
    static ConversionScreenHook hook;
    return hook;
}

void ShowConversionScreen() {
    if (const ConversionScreenHook& hook = TheConversionScreenHook()) hook();
    else RunConversionScreen();
}

// A record file that cannot be opened for reading is taken as missing and
// made empty; if even that fails, the error stops the start-up.
void MakeRecordFileIfMissing(const QString& path) {
    if (!FileExists(path)) WriteWholeFile(path, QByteArray());
}

// A process that died while replacing a record file leaves the new file it
// was building beside the real one, which stayed whole. Nothing reads it.
// A design save that died after writing down its plan is finished first,
// as the plan says, from the files it had prepared.
void RemoveUnfinishedWrites() {
    FinishUnfinishedCommit();
    for (const QString* path : {&ReadingsPath, &DiaryPath, &SpreadsPath, &LocationsPath, &DecksPath, &CardsPath})
        KillIgnoringErrors(NewFileBeside(*path));
    RemoveUnfinishedRewrites();
    RemoveUnfinishedCopies(CardsDir);
}

}  // namespace

void InitDatabase() {
    MkDirIgnoringErrors(TempDir);
    ClearTemp();
    // The attachment folder lives inside Packages/, which is made only
    // below: on the very first start this fails quietly and the folder comes
    // at the next start.
    MkDirIgnoringErrors(AttachmentsDir);
    // Location.loc is left out on purpose: its absence is what marks a
    // database of the old format.
    for (const QString* path : {&ReadingsPath, &DiaryPath, &SpreadsPath, &DecksPath, &CardsPath})
        MakeRecordFileIfMissing(*path);
    RemoveUnfinishedWrites();
    MkDirIgnoringErrors(CardsDir);
    MkDirIgnoringErrors(PackagesDir);
    SavePictureAsBmp(DefaultCardPicture(), DefaultPicturePath);
}

void FatalError() {
    MsgBox(QStringLiteral("Cartomar Error. If this problem persists, please contact Ondine Software Inc."),
           vbCritical);
    EndProcess(1);
}

QImage DefaultCardPicture() {
    // The picture sits in the program's static library, whose resources are
    // registered only when asked for by name.
    Q_INIT_RESOURCE(cartomar);
    return QImage(QStringLiteral(":/cartomar/C000000.bmp"));
}

bool RunStartup(const QString& programDir, bool offerInstall) {
    FormPaths(programDir);
    // Before anything is touched: a second copy on the same folder would
    // empty the first one's Temp/ under its feet.
    if (!TakeProgramLock(programDir)) {
        MsgBox(QStringLiteral("Cartomar is already running from the folder '") + programDir +
                   QStringLiteral("'. Only one copy can work on the same designs at a time."),
               vbExclamation);
        EndProcess(1);
        return false;
    }
    CurrentLocationColour = 4;
    OtherLocationColour = 14;
    SpreadLocations.Redim(1, 1);
    DesignExistsChoice = 0;
    InitDatabase();
    ClearTemp();

    if (!FileExists(LocationsPath)) {
        if (FileExists(DecksPath + QStringLiteral(".bkp"))) {
            // A conversion was begun here before; doing it again would
            // overwrite the only copies of the old data.
            MsgBox(QStringLiteral("Unable to convert to new database format as existing backups exist.  "
                                  "Please reinstall in a new directory or contact ") +
                   SupportAddress + QLatin1Char('.'));
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
        const int answer = MsgBox(QStringLiteral("You don't have any designs installed. Do you want install any now?"),
                                  vbYesNo | vbInformation);
        if (answer == vbYes) {
            frmMainScreen& mainScreen = Get<frmMainScreen>();
            mainScreen.Hide();
            mainScreen.lblButton_Click(7);
        }
    }
    return true;
}

void EndProcess(int exitCode) {
    if (const EndProcessHook& hook = TheEndProcessHook()) {
        hook(exitCode);
        return;
    }
    // The toolkit's End: no further event runs and no screen gets to object.
    // Every file is closed after each operation, so nothing is left unwritten.
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

EndProcessHook SetEndProcessHook(EndProcessHook hook) {
    EndProcessHook previous = std::move(TheEndProcessHook());
    TheEndProcessHook() = std::move(hook);
    return previous;
}

ConversionScreenHook SetConversionScreenHook(ConversionScreenHook hook) {
    ConversionScreenHook previous = std::move(TheConversionScreenHook());
    TheConversionScreenHook() = std::move(hook);
    return previous;
}
