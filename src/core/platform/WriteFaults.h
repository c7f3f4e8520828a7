#pragma once
// Every step by which the program changes a file on the disk passes through
// here: a write of bytes, a flush of a file to the disk, and the rename that
// puts a new file in place of the old. A test can make any one step meet a
// fault and then look at what the files hold: the step fails outright, the
// disk fills in the middle of it (half the bytes go, then nothing more), or
// the process is killed there (half the bytes go, then the process dies).
// Unarmed, every step simply does its work.
#include <QString>

class QIODevice;

namespace WriteFaults {

enum class Fault {
    None,
    Fail,      // the step does nothing and reports failure
    DiskFull,  // a write stores half its bytes; every later write stores none
    Kill,      // the process dies at the step (a write stores half first)
};

// Counts steps from 1 afresh; step number `step` meets the fault.
void Arm(Fault fault, int step);
// Stops faults; the count goes on, so Steps() tells how many a run took.
void Disarm();
// Steps counted since the last Arm.
int Steps();
// Tests on throwaway folders may leave out the syncs to the disk (the steps
// are still counted): a killed process loses nothing that reached the
// system; only a machine that stops does.
void SetSyncs(bool on);
bool Syncs();

}  // namespace WriteFaults

// The steps themselves, for the platform's writers. Each returns what the
// plain operation would: bytes written (-1 on failure), or success.
qint64 WriteStep(QIODevice& device, const char* bytes, qint64 length);
bool SyncStep(int fileDescriptor);
bool RenameStep(const QString& from, const QString& to);
// A step that writes nothing itself, such as the commit of a file written
// through another class: true when it may go ahead.
bool OtherStep();
