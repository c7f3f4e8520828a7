#include "core/platform/WriteFaults.h"

#include <unistd.h>
#include <QFile>
#include <QIODevice>
#include <csignal>
#include <cstdio>
#include <mutex>

namespace {

struct Plan {
    WriteFaults::Fault fault = WriteFaults::Fault::None;
    int step = 0;
    int count = 0;
    bool diskFull = false;
};

Plan& ThePlan() {
    static Plan plan;
    return plan;
}

// The picture import writes from several threads at once: the plan is
// counted under this lock.
std::mutex& PlanLock() {
    static std::mutex lock;
    return lock;
}

// Counts the step; true when this one meets the armed fault.
bool Faulted() {
    Plan& plan = ThePlan();
    ++plan.count;
    return plan.fault != WriteFaults::Fault::None && plan.count == plan.step;
}

[[noreturn]] void Die() {
    ::kill(::getpid(), SIGKILL);
    for (;;) ::pause();
}

}  // namespace

namespace WriteFaults {

void Arm(Fault fault, int step) {
    const std::lock_guard<std::mutex> locked(PlanLock());
    ThePlan() = Plan{fault, step, 0, false};
}

void Disarm() {
    const std::lock_guard<std::mutex> locked(PlanLock());
    ThePlan().fault = Fault::None;
    ThePlan().diskFull = false;
}

int Steps() {
    const std::lock_guard<std::mutex> locked(PlanLock());
    return ThePlan().count;
}

namespace {
bool gSyncs = true;
}

void SetSyncs(bool on) { gSyncs = on; }

bool Syncs() { return gSyncs; }

}  // namespace WriteFaults

qint64 WriteStep(QIODevice& device, const char* bytes, qint64 length) {
    using WriteFaults::Fault;
    Fault met = Fault::None;
    {
        const std::lock_guard<std::mutex> locked(PlanLock());
        Plan& plan = ThePlan();
        if (plan.diskFull) {
            ++plan.count;
            return -1;
        }
        if (Faulted()) met = plan.fault;
        if (met == Fault::DiskFull) plan.diskFull = true;
    }
    switch (met) {
    case Fault::Fail: return -1;
    case Fault::DiskFull: return device.write(bytes, length / 2);
    case Fault::Kill:
        device.write(bytes, length / 2);
        if (auto* file = qobject_cast<QFileDevice*>(&device)) file->flush();
        Die();
    case Fault::None: break;
    }
    return device.write(bytes, length);
}

namespace {
// Counts a step that writes nothing itself; true when it meets the armed
// fault, and the process dies here when that fault is a kill.
bool FaultedStep() {
    const std::lock_guard<std::mutex> locked(PlanLock());
    if (!Faulted()) return false;
    if (ThePlan().fault == WriteFaults::Fault::Kill) Die();
    return true;
}
}  // namespace

bool SyncStep(int fileDescriptor) {
    if (FaultedStep()) return false;
    return !WriteFaults::Syncs() || ::fsync(fileDescriptor) == 0;
}

bool RenameStep(const QString& from, const QString& to) {
    if (FaultedStep()) return false;
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool OtherStep() { return !FaultedStep(); }
