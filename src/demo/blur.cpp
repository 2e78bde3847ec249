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

void BlurPlain(const BlurRow& work) {
    for (std::int32_t x = 0; x < work.count; ++x) {
        const std::uint32_t sum = Spread(work.below[x + 2]) + Spread(work.above[x - 2]) +
                                  Spread(work.above[x + 2]) + Spread(work.below[x - 2]);
        work.row[x] = Gather((sum >> 2) & kSpread);
    }
}

} // namespace

constinit BlurRowTwin activeBlur = nullptr;

void UseBlur(VectorPath path) {
    activeBlur = BlurRowOf(path);
}

void ResetBlur() {
    activeBlur = nullptr;
}

void BlurFrame(Pixel16* pixels, std::ptrdiff_t step, std::int32_t width, std::int32_t height) {
    if (pixels == nullptr) {
        return;
    }
    // REQUIRED R45: in place, so the row above is the blurred one.
    const std::int32_t count = width - 5;
    const bool twin = activeBlur != nullptr && count >= kLeastBlurTwin;
    const BlurRowTwin blur = twin ? activeBlur : BlurPlain;
    for (std::int32_t y = 1; y <= height - 3; ++y) {
        Pixel16* const row = pixels + y * step + 2;
        blur({row, row - step, row + step, count});
    }
}

} // namespace ombrel
