// Feeds arbitrary bytes to the package reader as a package file. The reader
// may refuse them, but it must never crash, never allocate more than the file
// holds, and never write anything outside Temp/.
//
//   CXX=clang++ cmake -S . -B build-fuzz -G Ninja && cmake --build build-fuzz --target fuzz_package_reader
//   build-fuzz/fuzz/fuzz_package_reader fuzz/seeds
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

#include "packages/mdlPackages.h"
#include "platform/FileSys.h"
#include "platform/MsgBox.h"
#include "store/Startup.h"
#include "store/mdlVariables.h"

namespace {
QTemporaryDir* Root() {
    static QTemporaryDir root;
    return &root;
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    static QCoreApplication app(*argc, *argv);
    MsgBoxScript::Enable();
    FormPaths(Root()->path() + QStringLiteral("/Cartomar"));
    QDir().mkpath(TempDir);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString package = Root()->path() + QStringLiteral("/p.pck");
    WriteWholeFile(package, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    ClearTemp();
    ExtractPackageFile(package, TempDir);
    MsgBoxScript::Clear();
    // Beside the package only the program directory, and in it only Temp/.
    const QStringList outer = QDir(Root()->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    const QStringList inner = QDir(AppPath).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    if (outer != QStringList{QStringLiteral("Cartomar"), QStringLiteral("p.pck")} ||
        inner != QStringList{QStringLiteral("Temp")})
        std::abort();
    for (const QString& name : QDir(TempDir).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        (void)name;
        std::abort();   // a member made a folder
    }
    return 0;
}
