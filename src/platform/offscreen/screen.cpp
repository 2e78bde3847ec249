// The screen that is not there: takes frames and hands them to the hook.
#include <cstring>

#include "base/shell_state.h"
#include "platform/offscreen/offscreen.h"
#include "platform/soft/soft.h"

namespace ombrel {

namespace {

constexpr std::int32_t kMaxWidth = 2048;
constexpr std::int32_t kMaxHeight = 1536;

constinit Pixel16 shownPixels[kMaxHeight][kMaxWidth]{};

} // namespace

int OpenScreen(const ScreenRequest& request) {
    LogSeamCall("OpenDisplay %d %d %d %d %d", request.width, request.height, request.bitsPerPixel,
                request.windowed, 0);
    if (script.failure == Failure::Screen || request.width > kMaxWidth ||
        request.height > kMaxHeight) {
        return 0;
    }
    std::memset(shownPixels, 0, sizeof shownPixels);
    offscreen.screenOpen = 1;
    offscreen.fullScreenMode = request.windowed == 0 ? 1 : 0;
    return 1;
}

std::int32_t ScreenRgbBits() {
    return script.screenRgbBits;
}

int AttachScreenToWindow() {
    return script.failure == Failure::WindowClipper ? 0 : 1;
}

int ShowPicture(const FrameBuffer& picture, const Rect& source) {
    // Every try takes its time; a scripted failure leaves what was shown before.
    const std::int64_t present = offscreen.presents++;
    offscreen.tick += script.msPerPresent;
    offscreen.idleReads = script.msPerPresent != 0 ? 0 : offscreen.idleReads;
    const bool fails = present >= script.failShowFrom && present < script.failShowTo;
    if (fails || offscreen.screenOpen == 0) {
        LogSeamCall("PresentFrame fails");
        return 0;
    }
    const std::int32_t width = source.right - source.left;
    const std::int32_t height = source.bottom - source.top;
    for (std::int32_t y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const unsigned char*>(picture.pixels) +
                          static_cast<std::ptrdiff_t>(source.top + y) * picture.pitch;
        std::memcpy(shownPixels[y], row + source.left * 2, static_cast<std::size_t>(width) * 2);
    }
    const PresentedFrame shown{shownPixels[0],
                               kMaxWidth * 2,
                               width,
                               height,
                               offscreen.windowX + shell.clientOffsetX,
                               offscreen.windowY + shell.clientOffsetY,
                               offscreen.shown};
    LogSeamCall("PresentFrame %d %d", shown.x, shown.y);
    ++offscreen.shown;
    if (script.onFrame != nullptr) {
        script.onFrame(shown, script.user);
    }
    return 1;
}

void CloseScreen() {
    LogSeamCall("CloseDisplay");
    offscreen.screenOpen = 0;
    offscreen.fullScreenMode = 0;
}

Pixel16 ShownPixel(std::int32_t x, std::int32_t y) {
    return shownPixels[y][x];
}

} // namespace ombrel
