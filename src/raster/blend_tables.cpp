// Builds the blend tables. Factors are single precision; channels 5-6-5.
#include "raster/blend_tables.h"

#include <algorithm>
#include <cstddef>

#include "base/convert.h"
#include "base/float_mode.h"

namespace ombrel {

constinit Pixel16 BlendTables[kBlendTableCount][kBlendTableSize] = {};
const Pixel16* const kBlendTableStarts[kBlendTableCount] = {
    BlendTables[0], BlendTables[1], BlendTables[2], BlendTables[3],
    BlendTables[4], BlendTables[5], BlendTables[6], BlendTables[7]};

namespace {

std::uint32_t Scale(std::int32_t channel, float factor) {
    return static_cast<std::uint32_t>(ToIntNearest(static_cast<float>(channel) * factor));
}

// Kept apart, so that no arithmetic moves to before the switch of the rounding mode.
[[gnu::noinline]] void FillTables(std::int32_t count, Pixel16* out) {
    const float step = 1.0F / static_cast<float>(count - 1);
    float factor = 0.0F;
    for (std::int32_t k = 0; k < count; ++k) {
        for (std::int32_t p = 0; p < kBlendTableSize; ++p) {
            const auto color = static_cast<Pixel16>(p);
            const std::uint32_t red = Scale(RedOf(color), factor);
            const std::uint32_t green = Scale(GreenOf(color), factor) & 63;
            const std::uint32_t blue = Scale(BlueOf(color), factor) & 31;
            *out++ = static_cast<Pixel16>((red << 11) + (green << 5) + blue);
        }
        // The trace above 1 at the last table is wanted: REQUIRED R3.
        factor = factor + step + 0.000001F;
    }
}

} // namespace

void ResetBlendTables() {
    std::fill_n(&BlendTables[0][0], std::size_t{kBlendTableCount} * kBlendTableSize, Pixel16{0});
}

int BuildBlendTables(std::int32_t count, Pixel16* destination) {
    if (destination == nullptr) {
        return -1;
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    FillTables(count, destination);
    return 1;
}

} // namespace ombrel
