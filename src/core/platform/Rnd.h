#pragma once
// The toolkit's random numbers. The generator is
//   state = (state * 1140671485 + 12820163) mod 2^24,  value = state / 2^24
// so that a seeded sequence can be computed by hand.
#include <cstdint>
#include <optional>

float Rnd();
// Seeds the generator from the clock, or from the test seed when one is set.
void Randomize();
void SetRndState(std::uint32_t state);
// Puts the generator back to its state before any Randomize, as a new run
// finds it.
void ResetRnd();
std::uint32_t RndState();
// While set, every Randomize() puts the generator to this state.
void SetRandomizeSeedForTests(std::optional<std::uint32_t> seed);
