// The largest picture of the icon file as the window's icon.
#include "platform/sdl2/icon.h"

#include <cstdint>
#include <cstring>

#include "platform/sdl2/sdl2_state.h"

namespace ombrel {

namespace {

constexpr std::size_t kDirectoryHeader = 6, kDirectoryEntry = 16, kPictureHeader = 40; // bytes
constexpr int kSide = 64;                                                              // pixels
constexpr std::size_t kRow = kSide * 4; // bytes, as blue, green, red, alpha

std::uint32_t Number(std::size_t at, std::size_t bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = bytes; i-- > 0;) {
        value = value << 8 | kIconFile[at + i];
    }
    return value;
}

// Where the pixels of the picture stand in the file, the lowest row first; 0: there is none.
std::size_t PictureAt() {
    const std::uint32_t count = Number(4, 2);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t entry = kDirectoryHeader + i * kDirectoryEntry;
        const std::size_t pixels = Number(entry + 12, 4) + kPictureHeader;
        if (kIconFile[entry] == kSide && pixels + kSide * kRow <= kIconFileSize) {
            return pixels;
        }
    }
    return 0;
}

} // namespace

void SetWindowIcon(SDL_Window* window) {
    const std::size_t from = PictureAt();
    if (from == 0) {
        return;
    }
    // Turn it upside down.
    unsigned char pixels[kSide * kRow];
    for (std::size_t y = 0; y < kSide; ++y) {
        std::memcpy(pixels + y * kRow, kIconFile + from + (kSide - 1 - y) * kRow, kRow);
    }
    SDL_Surface* const icon = sdl.CreateRGBSurfaceWithFormatFrom(
        pixels, kSide, kSide, 32, static_cast<int>(kRow), SDL_PIXELFORMAT_BGRA32);
    if (icon != nullptr) {
        sdl.SetWindowIcon(window, icon); // copies it
        sdl.FreeSurface(icon);
    }
}

} // namespace ombrel
