// Four-neighbour blur in place, row by row.
#include "demo/blur.h"

namespace ombrel {

namespace {
constexpr std::int32_t kMargin = 5; // pixels of a row that stay as they are
} // namespace

constinit RowBlur activeBlur = nullptr;

void UseBlur(VectorPath path) {
    activeBlur = RasterPathOf(path).blurRow;
}

void ResetBlur() {
    activeBlur = nullptr;
}

void BlurFrame(Pixel16* pixels, std::ptrdiff_t step, std::int32_t width, std::int32_t height) {
    if (pixels == nullptr) {
        return;
    }
    const RowBlur blur = activeBlur != nullptr ? activeBlur : kPlainPath.blurRow;
    // REQUIRED R45: in place, so the row above is the blurred one.
    for (std::int32_t y = 1; y <= height - 3; ++y) {
        Pixel16* const row = pixels + y * step + 2;
        blur({row, row - step, row + step, width - kMargin});
    }
}

} // namespace ombrel
