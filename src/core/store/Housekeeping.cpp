// The program folder's housekeeping: the path table, the record files and
// folders made when missing, what a killed process left half-written, the
// default card picture, and the emptying of Temp/.
#include "core/store/Housekeeping.h"

#include "core/platform/BinaryFile.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/RunState.h"

namespace {

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
    for (const QString* path : {&TheRun.Paths.ReadingsPath, &TheRun.Paths.DiaryPath, &TheRun.Paths.SpreadsPath,
                                &TheRun.Paths.LocationsPath, &TheRun.Paths.DecksPath, &TheRun.Paths.CardsPath})
        KillIgnoringErrors(NewFileBeside(*path));
    RemoveUnfinishedRewrites();
    RemoveUnfinishedCopies(TheRun.Paths.CardsDir);
}

}  // namespace

void FormPaths(const QString& programDir) {
    TheRun.Paths.AppPath = WithSlash(programDir);
    TheRun.Paths.SettingsPath = TheRun.Paths.AppPath + QStringLiteral("Settings.dat");
    TheRun.Paths.SpreadsPath = TheRun.Paths.AppPath + QStringLiteral("Spreads.spr");
    TheRun.Paths.LocationsPath = TheRun.Paths.AppPath + QStringLiteral("Location.loc");
    TheRun.Paths.DecksPath = TheRun.Paths.AppPath + QStringLiteral("Decks.dck");
    TheRun.Paths.CardsDir = TheRun.Paths.AppPath + QStringLiteral("Cards/");
    TheRun.Paths.PackagesDir = TheRun.Paths.AppPath + QStringLiteral("Packages/");
    TheRun.Paths.AttachmentsDir = TheRun.Paths.PackagesDir + QStringLiteral("Attachments/");
    TheRun.Paths.CardsPath = TheRun.Paths.AppPath + QStringLiteral("Cards.crd");
    TheRun.Paths.ReadingsPath = TheRun.Paths.AppPath + QStringLiteral("Readings.red");
    TheRun.Paths.DiaryPath = TheRun.Paths.AppPath + QStringLiteral("Diary.dry");
    TheRun.Paths.DefaultPicturePath = TheRun.Paths.CardsDir + DefaultPictureName;
    // Formed before TempDir has its value, so it holds the bare file name.
    // Nothing reads it.
    TheRun.Paths.TempFilePath = QStringLiteral("temp.tmp");
    TheRun.Paths.TempDir = TheRun.Paths.AppPath + QStringLiteral("Temp/");
    TheRun.Paths.TempCardsPath = TheRun.Paths.TempDir + QStringLiteral("Cards.crd");
}

void ClearTemp() {
    // Without a formed TempDir the pattern would reach the working folder.
    if (TheRun.Paths.TempDir.isEmpty()) return;
    KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("*.*"));
}

void InitDatabase() {
    MkDirIgnoringErrors(TheRun.Paths.TempDir);
    ClearTemp();
    // The attachment folder lives inside Packages/, which is made only
    // below: on the very first start this fails quietly and the folder comes
    // at the next start.
    MkDirIgnoringErrors(TheRun.Paths.AttachmentsDir);
    // Location.loc is left out on purpose: its absence is what marks a
    // database of the old format.
    for (const QString* path : {&TheRun.Paths.ReadingsPath, &TheRun.Paths.DiaryPath, &TheRun.Paths.SpreadsPath,
                                &TheRun.Paths.DecksPath, &TheRun.Paths.CardsPath})
        MakeRecordFileIfMissing(*path);
    RemoveUnfinishedWrites();
    MkDirIgnoringErrors(TheRun.Paths.CardsDir);
    MkDirIgnoringErrors(TheRun.Paths.PackagesDir);
    SavePictureAsBmp(DefaultCardPicture(), TheRun.Paths.DefaultPicturePath);
}

QImage DefaultCardPicture() {
    // The picture sits in the program's static library, whose resources are
    // registered only when asked for by name.
    Q_INIT_RESOURCE(cartomar);
    return QImage(QStringLiteral(":/cartomar/C000000.bmp"));
}
