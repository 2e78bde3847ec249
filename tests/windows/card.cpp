// A test card through the display half of the seam, without the production: opens the display as
// start-up does, draws bars, corners, a fill and keyed glyphs, presents for a while and closes.
// Prints what the display said, one `name value` a line. The suite compares its screenshot.
//
//     card WIDTH HEIGHT (window | full) SECONDS
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/shell_state.h"
#include "platform/display.h"
#include "platform/system.h"
#include "platform/win32/win32_state.h"

namespace {

using namespace ombrel;

constexpr Pixel16 kBars[8] = {0xFFFF, 0xFFE0, 0x07FF, 0x07E0, 0xF81F, 0xF800, 0x001F, 0x0000};

Pixel16* RowOf(std::int32_t y) {
    return display.back.pixels + y * (display.back.pitch / 2);
}

void DrawBox(std::int32_t left, std::int32_t top, std::int32_t size, Pixel16 color) {
    for (std::int32_t y = top; y < top + size; ++y) {
        for (std::int32_t x = left; x < left + size; ++x) {
            RowOf(y)[x] = color;
        }
    }
}

// Eight bars above, a ramp of every green below, and a box of its own colour in each corner.
void DrawCard() {
    const std::int32_t w = display.width, h = display.height;
    LockFrame();
    for (std::int32_t y = 0; y < h; ++y) {
        for (std::int32_t x = 0; x < w; ++x) {
            RowOf(y)[x] = y < h * 2 / 3 ? kBars[x * 8 / w]
                                        : static_cast<Pixel16>(PackRgb565(
                                              0, static_cast<std::uint32_t>(x * 256 / w), 0));
        }
    }
    DrawBox(0, 0, 16, 0xF800);
    DrawBox(w - 16, 0, 16, 0x07E0);
    DrawBox(0, h - 16, 16, 0x001F);
    DrawBox(w - 16, h - 16, 16, 0xFFFF);
    UnlockFrame();
}

// A glyph: a white frame round a hole of the colour key.
Surface* MakeGlyph() {
    Surface* glyph = MakeOffscreenSurface(48, 42, SurfaceMemory::System, 0);
    FrameBuffer memory = {};
    if (!LockSurface(glyph, &memory)) {
        std::printf("glyph 0\n");
        return glyph;
    }
    for (std::int32_t y = 0; y < 42; ++y) {
        for (std::int32_t x = 0; x < 48; ++x) {
            const bool rim = x < 6 || x >= 42 || y < 6 || y >= 36;
            memory.pixels[y * (memory.pitch / 2) + x] = rim ? 0xFFFF : 0;
        }
    }
    UnlockSurface(glyph);
    return glyph;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 5) {
        std::fprintf(stderr, "card WIDTH HEIGHT (window | full) SECONDS\n");
        return 2;
    }
    win32State.instance = GetModuleHandleA(nullptr);
    shell.screenWidth = std::atoi(arguments[1]);
    shell.screenHeight = std::atoi(arguments[2]);
    shell.windowed = std::strcmp(arguments[3], "window") == 0;
    const std::uint32_t wait = static_cast<std::uint32_t>(std::atoi(arguments[4])) * 1000;

    std::printf("class %d\n", RegisterWindowClass());
    std::printf("window %d\n", CreateMainWindow());
    if (shell.windowed) {
        SetUpWindowedDesktop();
        std::printf("depth-before %u\n", shell.savedDesktopDepth);
    }
    std::printf("open %d\n",
                OpenDisplay(shell.screenWidth, shell.screenHeight, 16, shell.windowed, 0));
    std::printf("own-format %d\n", win32State.ownFormat);
    std::printf("path %d\n", static_cast<int>(win32State.path));

    DrawCard();
    const Rect fill = {100, 100, 140, 140};
    FillSurface(display.backSurface, 0x07FF, &fill);
    Surface* glyph = MakeGlyph();
    const std::int32_t w = shell.screenWidth;
    const Rect places[3] = {{200, 60, 248, 102}, {-24, 60, 24, 102}, {w - 24, 60, w + 24, 102}};
    for (const Rect& place : places) {
        std::printf("glyph %d\n", BlitKeyed(display.backSurface, &place, glyph));
    }
    std::fflush(stdout);

    // Present until the time is over or the window is closed.
    const std::uint32_t start = TickCount();
    int presented = 1;
    for (bool quit = false; !quit && TickCount() - start < wait;) {
        std::int32_t parameter = 0;
        quit = PumpMessage(&parameter) == Pump::Quit;
        presented &= PresentFrame();
        Sleep(20);
    }
    std::printf("presented %d\n", presented);
    ReleaseSurface(glyph);
    CloseDisplay();
    if (shell.windowed) {
        RestoreDesktopDepth();
    }
    RepaintDesktop();
    RestoreDisplayModeAtExit();
    return 0;
}
