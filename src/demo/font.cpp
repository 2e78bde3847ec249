// Cutting font sheets into surfaces and drawing text with them.
#include "demo/font.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "assets/bmp.h"
#include "base/convert.h"

namespace ombrel {

namespace {

constexpr std::int32_t kColumns = 16;
constexpr std::uint32_t kKeyColor = 0;

// A text may stand anywhere, also where whole numbers end; a glyph there is not drawn.
std::int32_t WrappingSum(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

// The part of a sheet that belongs to a character, cut to the sheet.
Rect CellOf(std::int32_t code, std::int32_t sheetWidth, std::int32_t sheetHeight) {
    Rect cell;
    cell.left = code % kColumns * (kGlyphWidth + 1) + 1;
    cell.top = code / kColumns * (kGlyphHeight + 1) + 1;
    cell.right = std::min(cell.left + kGlyphWidth, sheetWidth);
    cell.bottom = std::min(cell.top + kGlyphHeight, sheetHeight);
    return cell;
}

void FillGlyph(GlyphSet* set, std::int32_t code, const BmpImage& sheet) {
    FrameBuffer memory{};
    if (LockSurface(set->glyphs[code], &memory) == 0) {
        return;
    }
    const std::int32_t sheetWidth = sheet.infoHeader.width;
    const Rect cell = CellOf(code, sheetWidth, sheet.infoHeader.height);
    const std::size_t columns = static_cast<std::size_t>(std::max(cell.right - cell.left, 0));
    const std::size_t sheetPitch = static_cast<std::size_t>(sheetWidth) * 2;
    for (std::int32_t y = 0; y < kGlyphHeight; ++y) {
        Pixel16* const row = memory.pixels + static_cast<std::ptrdiff_t>(y) * (memory.pitch / 2);
        std::memset(row, 0, kGlyphWidth * sizeof(Pixel16));
        if (cell.top + y < cell.bottom && columns > 0) {
            const std::size_t from = static_cast<std::size_t>(cell.top + y) * sheetPitch +
                                     static_cast<std::size_t>(cell.left) * 2;
            std::memcpy(row, sheet.pixels + from, columns * sizeof(Pixel16));
        }
    }
    UnlockSurface(set->glyphs[code]);
    set->attributes |= GLYPHS_FILLED;
}

// Blits the current glyph at the set's position.
void DrawGlyph(const GlyphSet& set, Surface* surface) {
    if ((set.attributes & GLYPHS_VISIBLE) == 0) {
        return;
    }
    Rect target;
    target.left = ToIntChop(set.x);
    target.top = ToIntChop(set.y);
    target.right = WrappingSum(target.left, set.width);
    target.bottom = WrappingSum(target.top, set.height);
    BlitKeyed(surface, &target, set.glyphs[set.currentGlyph]);
}

} // namespace

constinit Fonts fonts = {};
constinit BmpImage fontImage = {};

void ResetFonts() {
    ReleaseGlyphSet(&fonts.big);
    ReleaseGlyphSet(&fonts.small);
    releaseBmp(&fontImage);
    fontImage = BmpImage{};
}

int LoadGlyphSet(const char* path, GlyphSet* set, const DisplayFormat& format) {
    if (loadBmp(&fontImage, path, format) == 0 || fontImage.infoHeader.bitCount != 16) {
        return 0;
    }
    ReleaseGlyphSet(set);
    set->width = kGlyphWidth;
    set->height = kGlyphHeight;
    set->glyphCount = kGlyphCount;
    set->attributes = kGlyphAttributesAtStart;
    for (Surface*& glyph : set->glyphs) {
        glyph = MakeOffscreenSurface(kGlyphWidth, kGlyphHeight, SurfaceMemory::System, kKeyColor);
    }
    for (std::int32_t code = 0; code < kGlyphCount; ++code) {
        FillGlyph(set, code, fontImage);
    }
    return 1;
}

void ReleaseGlyphSet(GlyphSet* set) {
    for (Surface* const glyph : set->glyphs) {
        ReleaseSurface(glyph);
    }
    *set = GlyphSet{};
}

std::int32_t DrawGlyphText(GlyphSet* set, const TextPlace& place, const char* text,
                           Surface* surface) {
    if (text == nullptr || surface == nullptr || *text == '\0') {
        return 0;
    }
    std::int32_t x = ToIntChop(place.x);
    const std::int32_t y = ToIntChop(place.y);
    std::int32_t width = 0;
    for (const char* p = text; *p != '\0'; ++p) {
        set->x = static_cast<Single>(x);
        set->y = static_cast<Single>(y);
        set->currentGlyph = static_cast<unsigned char>(*p);
        DrawGlyph(*set, surface);
        x = WrappingSum(x, place.advance);
        width = WrappingSum(width, place.advance);
    }
    return width;
}

} // namespace ombrel
