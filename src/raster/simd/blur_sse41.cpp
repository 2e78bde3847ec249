// The blur in SSE2, which every processor of the next path has: eight pixels at a time.
#include <cstdint>

#include <emmintrin.h>

namespace ombrel {
namespace {

constexpr std::int32_t kPixels = 8;
using Halves [[gnu::vector_size(2 * kPixels)]] = std::uint16_t;

[[gnu::always_inline]] inline Halves Average(Halves a, Halves b) {
    return (Halves)_mm_avg_epu16((__m128i)a, (__m128i)b);
}

} // namespace
} // namespace ombrel

#include "raster/simd/blur_lanes.h"

namespace ombrel {

void BlurRowSse41(const BlurRow& work) {
    BlurWhole(work);
}

} // namespace ombrel
