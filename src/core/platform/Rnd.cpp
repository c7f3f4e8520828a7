#include "core/platform/Rnd.h"

#include <QDateTime>

// The generator's state stays beside the generator: the platform sits below
// the run-wide state and cannot name it. ResetRun puts it back through
// ResetRnd, so the run still has one reset. The test seed is the test's own.
namespace {
constexpr std::uint32_t kMask = 0xFFFFFF;
constexpr std::uint32_t kFreshState = 0x50000;  // the toolkit's state before any Randomize
std::uint32_t gState = kFreshState;
std::optional<std::uint32_t> gTestSeed;
}  // namespace

float Rnd() {
    gState = static_cast<std::uint32_t>((static_cast<std::uint64_t>(gState) * 1140671485u + 12820163u) & kMask);
    return static_cast<float>(gState) / 16777216.0f;
}

void Randomize() {
    if (gTestSeed) {
        gState = *gTestSeed & kMask;
        return;
    }
    const qint64 ms = QDateTime::currentMSecsSinceEpoch();
    gState = static_cast<std::uint32_t>((ms ^ (ms >> 24)) & kMask);
}

void SetRndState(std::uint32_t state) { gState = state & kMask; }
void ResetRnd() { gState = kFreshState; }
std::uint32_t RndState() { return gState; }
void SetRandomizeSeedForTests(std::optional<std::uint32_t> seed) { gTestSeed = seed; }
