// The blur in AVX2: sixteen pixels at a time.
#include <cstdint>

#include <immintrin.h>

namespace ombrel {
namespace {

constexpr std::int32_t kPixels = 16;
using Halves [[gnu::vector_size(2 * kPixels)]] = std::uint16_t;

[[gnu::always_inline]] inline Halves Average(Halves a, Halves b) {
    return (Halves)_mm256_avg_epu16((__m256i)a, (__m256i)b);
}

} // namespace
} // namespace ombrel

#include "raster/simd/blur_lanes.h"

namespace ombrel {

void BlurRowAvx2(const BlurRow& work) {
    BlurWhole(work);
}

} // namespace ombrel
