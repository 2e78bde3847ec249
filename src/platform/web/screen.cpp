// There is no screen: the page fetches the picture that it wants to show out of the back surface.
#include "platform/web/web.h"

#include <cstddef>

#include "platform/soft/soft.h"
#include "platform/web/web_state.h"

namespace ombrel {

namespace {

// 0xAABBGGRR: bytes in the order red, green, blue, alpha.
std::uint32_t RgbaOf(Pixel16 p) {
    const auto red = static_cast<std::uint32_t>(RedOf(p));
    const auto green = static_cast<std::uint32_t>(GreenOf(p));
    const auto blue = static_cast<std::uint32_t>(BlueOf(p));
    return 0xFF000000U | ((blue << 3 | blue >> 2) << 16) | ((green << 2 | green >> 4) << 8) |
           (red << 3 | red >> 2);
}

} // namespace

void ToRgba(const Pixel16* pixels, std::int32_t pitch, std::int32_t width, std::int32_t height,
            std::uint8_t* out) {
    for (std::int32_t y = 0; y < height; ++y) {
        const Pixel16* const row = pixels + static_cast<std::ptrdiff_t>(y) * (pitch / 2);
        auto* const to =
            reinterpret_cast<std::uint32_t*>(out) + static_cast<std::ptrdiff_t>(y) * width;
        for (std::int32_t x = 0; x < width; ++x) {
            to[x] = RgbaOf(row[x]);
        }
    }
}

int OpenScreen(const ScreenRequest& request) {
    (void)request;
    return 1;
}
std::int32_t ScreenRgbBits() {
    return 16;
}
int AttachScreenToWindow() {
    return 1;
}
int ShowPicture(const FrameBuffer& picture, const Rect& source) {
    (void)picture;
    (void)source;
    constexpr std::uint32_t kMsPerFrame = 25;
    web.tick += kMsPerFrame; // every figure is that of a machine that keeps up
    return 1;
}
void CloseScreen() {}

} // namespace ombrel
