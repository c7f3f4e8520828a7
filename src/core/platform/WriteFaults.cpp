#include "core/platform/WriteFaults.h"

#include <QFile>
#include <QIODevice>
#include <csignal>
#include <cstdio>
#include <unistd.h>

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

void Arm(Fault fault, int step) { ThePlan() = Plan{fault, step, 0, false}; }

void Disarm() {
    ThePlan().fault = Fault::None;
    ThePlan().diskFull = false;
}

int Steps() { return ThePlan().count; }

namespace {
bool gSyncs = true;
}

void SetSyncs(bool on) { gSyncs = on; }

bool Syncs() { return gSyncs; }

}  // namespace WriteFaults

qint64 WriteStep(QIODevice& device, const char* bytes, qint64 length) {
    using WriteFaults::Fault;
    Plan& plan = ThePlan();
    if (plan.diskFull) {
        ++plan.count;
        return -1;
    }
    if (!Faulted()) return device.write(bytes, length);
    switch (plan.fault) {
    case Fault::Fail:
        return -1;
    case Fault::DiskFull:
        plan.diskFull = true;
        return device.write(bytes, length / 2);
    case Fault::Kill:
        device.write(bytes, length / 2);
        if (auto* file = qobject_cast<QFileDevice*>(&device)) file->flush();
        Die();
    case Fault::None:
        break;
    }
    return device.write(bytes, length);
}

bool SyncStep(int fileDescriptor) {
    if (Faulted()) {
        if (ThePlan().fault == WriteFaults::Fault::Kill) Die();
        return false;
    }
    return !WriteFaults::Syncs() || ::fsync(fileDescriptor) == 0;
}

bool RenameStep(const QString& from, const QString& to) {
    if (Faulted()) {
        if (ThePlan().fault == WriteFaults::Fault::Kill) Die();
        return false;
    }
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool OtherStep() {
    if (!Faulted()) return true;
    if (ThePlan().fault == WriteFaults::Fault::Kill) Die();
    return false;
}
