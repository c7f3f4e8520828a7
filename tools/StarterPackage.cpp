#include "StarterPackage.h"

#include "core/packages/PackageFile.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/FileSys.h"
#include "core/store/RunState.h"
#include "screens/shell/Startup.h"

bool PackStarterPackage(const QStringList& deckNames, const QStringList& spreadNames, const QString& packagePath) {
    // As the create-package screen does: Temp/ empty before and after, and a
    // package file of that name deleted first, since packing never cuts an
    // existing file short.
    MkDirIgnoringErrors(TheRun.Paths.AppPath + QStringLiteral("Temp"));
    ClearTemp();
    KillIgnoringErrors(packagePath);
    PackageStaging staging;
    staging.DeckNames = deckNames;
    staging.SpreadNames = spreadNames;
    staging.StageAll();
    const bool packed = staging.DecksPacked == deckNames.size() && staging.SpreadsPacked == spreadNames.size() &&
                        CreatePackageFile(TheRun.Paths.TempDir, packagePath);
    ClearTemp();
    return packed;
}
