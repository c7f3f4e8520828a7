// The path table and the emptying of Temp/: all that readers of the record
// files need of start-up, kept apart from the screens start-up brings up so
// that a build of the readers alone can use them.
#include "platform/FileSys.h"
#include "store/Startup.h"
#include "store/mdlVariables.h"

void FormPaths(const QString& programDir) {
    AppPath = WithSlash(programDir);
    SettingsPath = AppPath + QStringLiteral("Settings.dat");
    SpreadsPath = AppPath + QStringLiteral("Spreads.spr");
    LocationsPath = AppPath + QStringLiteral("Location.loc");
    DecksPath = AppPath + QStringLiteral("Decks.dck");
    CardsDir = AppPath + QStringLiteral("Cards/");
    PackagesDir = AppPath + QStringLiteral("Packages/");
    AttachmentsDir = PackagesDir + QStringLiteral("Attachments/");
    CardsPath = AppPath + QStringLiteral("Cards.crd");
    ReadingsPath = AppPath + QStringLiteral("Readings.red");
    DiaryPath = AppPath + QStringLiteral("Diary.dry");
    DefaultPicturePath = CardsDir + DefaultPictureName;
    // Formed before TempDir has its value, so it holds the bare file name.
    // Nothing reads it.
    TempFilePath = QStringLiteral("temp.tmp");
    TempDir = AppPath + QStringLiteral("Temp/");
    TempCardsPath = TempDir + QStringLiteral("Cards.crd");
}

void ClearTemp() {
    // Without a formed TempDir the pattern would reach the working folder.
    if (TempDir.isEmpty()) return;
    KillIgnoringErrors(TempDir + QStringLiteral("*.*"));
}
