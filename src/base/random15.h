// The 15-bit random sequence of the production: the same on every system.
#pragma once

#include <cstdint>

namespace ombrel {

// state' = state * 214013 + 2531011 (32 bits); the result is bits 16..30 of it: 0..32767.
void SeedRandom15(std::uint32_t seed);
std::int32_t Random15();
std::uint32_t Random15State(); // as a seed: goes on where the sequence is
void ResetRandom15();          // seed 1, as at process start

} // namespace ombrel
