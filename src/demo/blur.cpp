// Four-neighbour blur in place; all channels of a pixel in one word.
#include "demo/blur.h"

namespace ombrel {

namespace {

// Red and blue stay in the low half, green goes to the high half, so that each has two free bits
// above it: sums of four do not run into each other.
//    bits 31..22 0 | 26..21 green | 20..16 0 | 15..11 red | 10..5 0 | 4..0 blue
constexpr std::uint32_t kSpread = 0x07E0F81F;

constexpr std::uint32_t Spread(Pixel16 p) {
    return (p | static_cast<std::uint32_t>(p) << 16) & kSpread;
}
constexpr Pixel16 Gather(std::uint32_t spread) {
    return static_cast<Pixel16>((spread | spread >> 16) & 0xFFFF);
}

} // namespace

void BlurFrame(Pixel16* pixels, std::ptrdiff_t step, std::int32_t width, std::int32_t height) {
    if (pixels == nullptr) {
        return;
    }
    // REQUIRED R45: in place, so the row above is the blurred one.
    for (std::int32_t y = 1; y <= height - 3; ++y) {
        Pixel16* const row = pixels + y * step;
        const Pixel16* const above = row - step;
        const Pixel16* const below = row + step;
        for (std::int32_t x = 2; x <= width - 4; ++x) {
            const std::uint32_t sum = Spread(below[x + 2]) + Spread(above[x - 2]) +
                                      Spread(above[x + 2]) + Spread(below[x - 2]);
            row[x] = Gather((sum >> 2) & kSpread);
        }
    }
}

} // namespace ombrel
