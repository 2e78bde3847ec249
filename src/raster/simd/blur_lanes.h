// The blur's inner loop, kPixels at a time. Included once by each blur_*.cpp, which defines before
// it: Halves, a vector of kPixels 16-bit numbers, and Average, half of a sum with the bit that it
// carries out.
//
//   pixel    15..11 red | 10..5 green | 4..0 blue
//   low      the two lowest bits of each channel: four of them add up inside the channel
//   high     the others: averaged twice they are a quarter of their sum, exactly, for the two bits
//            that go lost are zero
#pragma once

#include <cstring>

#include "raster/simd/blur.h"

namespace ombrel {
namespace {

constexpr std::uint16_t kLow = 0x1863;
constexpr std::uint16_t kHigh = 0xFFFF ^ kLow;

[[gnu::always_inline]] inline Halves Load(const Pixel16* from) {
    Halves v;
    std::memcpy(&v, from, sizeof v);
    return v;
}

[[gnu::always_inline]] inline void BlurSome(const BlurRow& work, std::int32_t x) {
    const Halves a = Load(work.above + x - 2);
    const Halves b = Load(work.above + x + 2);
    const Halves c = Load(work.below + x - 2);
    const Halves d = Load(work.below + x + 2);
    const Halves high = Average(Average(a & kHigh, b & kHigh), Average(c & kHigh, d & kHigh));
    const Halves low = (a & kLow) + (b & kLow) + (c & kLow) + (d & kLow);
    const Halves mean = high + ((low >> 2) & kLow);
    std::memcpy(work.row + x, &mean, sizeof mean);
}

// The last pixels are done with some before them once more: the row itself is not read.
[[gnu::always_inline]] inline void BlurWhole(const BlurRow& work) {
    for (std::int32_t x = 0; x + kPixels <= work.count; x += kPixels) {
        BlurSome(work, x);
    }
    BlurSome(work, work.count - kPixels);
}

} // namespace
} // namespace ombrel
