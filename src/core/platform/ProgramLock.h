#pragma once
// One program folder, one running copy. Two copies working on the same
// folder would empty each other's Temp/ and write the same record files in
// turn, so the first copy holds a lock file in the folder for as long as it
// runs. The lock goes with the process that holds it, however that process
// ends, so a copy that died never keeps the folder from the next start.
#include <QString>

inline const QString ProgramLockName = QStringLiteral("Cartomar.lck");

// Takes the lock of a program folder for this process. Returns false when
// another running process holds it. A process holds one lock at a time: taking the
// lock of another folder lets go of the one it held.
bool TakeProgramLock(const QString& programDir);

// Lets go of the lock this process holds, if any.
void ReleaseProgramLock();
