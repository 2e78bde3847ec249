#include "base/random15.h"

namespace ombrel {

namespace {
constinit std::uint32_t state = 1;
}

void SeedRandom15(std::uint32_t seed) {
    state = seed;
}

std::int32_t Random15() {
    state = state * 214013U + 2531011U;
    return static_cast<std::int32_t>((state >> 16) & 0x7FFF);
}

std::uint32_t Random15State() {
    return state;
}

void ResetRandom15() {
    state = 1;
}

} // namespace ombrel
