// Random numbers for tests: the same ones on every system and in every rounding mode.
#pragma once

#include <cstdint>

namespace ombrel {

// A small generator of our own: 64 bits of state, never 0.
struct RandomNumbers {
    std::uint64_t state;

    explicit RandomNumbers(std::uint64_t seed) { // any seed
        // Spread small seeds over all bits.
        std::uint64_t z = seed * 0xD1342543DE82EF95ULL + 0x9E3779B97F4A7C15ULL;
        z ^= z >> 32;
        z *= 0xDABA0B6EB09322E3ULL;
        z ^= z >> 29;
        state = z == 0 ? 1 : z;
    }
    std::uint64_t Next() {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return state * 0x2545F4914F6CDD1DULL;
    }
    std::uint32_t Word() { return static_cast<std::uint32_t>(Next() >> 32); }
    // 0 to count - 1.
    std::int32_t Below(std::int32_t count) {
        const std::uint64_t high = Next() >> 32;
        return static_cast<std::int32_t>((high * static_cast<std::uint64_t>(count)) >> 32);
    }
    // Both ends included; last - first below 2^31.
    std::int32_t Between(std::int32_t first, std::int32_t last) {
        return first + Below(last - first + 1);
    }
    float WholeBetween(std::int32_t first, std::int32_t last) {
        return static_cast<float>(Between(first, last));
    }
};

} // namespace ombrel
