// Feeds arbitrary bytes to the package reader as a package file. The reader
// may refuse them, but it must never crash, never allocate more than the file
// holds, and never write anything but plain files inside Temp/.
#include <QDir>

#include "FuzzSupport.h"
#include "core/packages/PackageFile.h"
#include "core/platform/FileSys.h"
#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"

using Fuzz::Expect;

namespace {
QStringList Entries(const QString& folder, QDir::Filters filters) {
    return QDir(folder).entryList(filters | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    Fuzz::Initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The package lies in Packages/, as the installation's file dialogue
    // finds it.
    const QString package = TheRun.Paths.PackagesDir + QStringLiteral("p.pck");
    WriteWholeFile(package, Fuzz::Bytes(data, size));
    const QStringList before = Entries(TheRun.Paths.AppPath, QDir::AllEntries);
    ClearTemp();
    ExtractPackageFile(package, TheRun.Paths.TempDir);

    Expect(Entries(TheRun.Paths.AppPath, QDir::AllEntries) == before, "a member landed beside Temp/");
    Expect(Entries(TheRun.Paths.PackagesDir, QDir::Files) == QStringList{QStringLiteral("p.pck")},
           "a member landed in Packages/");
    Expect(Entries(TheRun.Paths.TempDir, QDir::Dirs).isEmpty(), "a member made a folder");
    Fuzz::CheckNothingOutsideTouched();
    return 0;
}
