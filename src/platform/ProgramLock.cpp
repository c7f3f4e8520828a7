#include "platform/ProgramLock.h"

#include <QDir>
#include <QLockFile>
#include <memory>

namespace {

struct HeldLock {
    QString folder;
    std::unique_ptr<QLockFile> file;
};

HeldLock& Held() {
    static HeldLock held;
    return held;
}

}  // namespace

bool TakeProgramLock(const QString& programDir) {
    const QString folder = QDir(programDir).absolutePath();
    HeldLock& held = Held();
    if (held.file && held.folder == folder) return true;
    auto file = std::make_unique<QLockFile>(QDir(folder).filePath(ProgramLockName));
    // A lock never goes stale by age while its process lives: a reading may
    // stay open for days. A dead holder is found by its process number.
    file->setStaleLockTime(0);
    if (!file->tryLock(0)) return false;
    held.file = std::move(file);
    held.folder = folder;
    return true;
}

void ReleaseProgramLock() {
    HeldLock& held = Held();
    held.file.reset();
    held.folder.clear();
}
