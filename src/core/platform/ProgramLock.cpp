#include "core/platform/ProgramLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <QDir>
#include <QFile>

namespace {

// The lock is the system's own lock on the open lock file: it lasts as long
// as this process keeps the file open and goes with the process however it
// ends, so a copy that died never leaves a lock behind. The file itself stays
// in the folder; only the lock on it counts.
struct HeldLock {
    QString folder;
    int fd = -1;

    void Release() {
        if (fd >= 0) ::close(fd);
        fd = -1;
        folder.clear();
    }
    ~HeldLock() { Release(); }
};

HeldLock& Held() {
    static HeldLock held;
    return held;
}

}  // namespace

bool TakeProgramLock(const QString& programDir) {
    const QString folder = QDir(programDir).absolutePath();
    HeldLock& held = Held();
    if (held.fd >= 0 && held.folder == folder) return true;
    const QByteArray path = QFile::encodeName(QDir(folder).filePath(ProgramLockName));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    // A folder where no lock file can be made (read-only) cannot be shared
    // either: start-up finds out soon enough what else it cannot do there.
    if (fd < 0) return true;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return false;
    }
    // The holder's process number, for a person who wonders who holds it.
    const QByteArray pid = QByteArray::number(static_cast<qint64>(::getpid())) + '\n';
    if (::ftruncate(fd, 0) == 0) (void)!::write(fd, pid.constData(), static_cast<size_t>(pid.size()));
    held.Release();
    held.fd = fd;
    held.folder = folder;
    return true;
}

void ReleaseProgramLock() { Held().Release(); }
