#include "core/platform/Rnd.h"

#include <QDateTime>

namespace {
constexpr std::uint32_t kMask = 0xFFFFFF;
std::uint32_t gState = 0x50000;  // the toolkit's state before any Randomize
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
std::uint32_t RndState() { return gState; }
void SetRandomizeSeedForTests(std::optional<std::uint32_t> seed) { gTestSeed = seed; }
