#include "core/store/RunState.h"

#include "core/platform/Rnd.h"

RunState TheRun;

void ResetRun() {
    TheRun = RunState{};
    ResetRnd();
}
