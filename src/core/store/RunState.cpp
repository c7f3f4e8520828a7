#include "core/store/RunState.h"

RunState TheRun;

void ResetRunState() { TheRun = RunState{}; }
