// Bitmap fonts: 256 small surfaces cut from one sheet, blitted one after another with colour 0
// transparent. The target must be unlocked. Callers: start-up loads two, the scenes draw with them.
#pragma once

#include <cstdint>

#include "assets/bmp.h"
#include "base/single.h"
#include "platform/display.h"

namespace ombrel {

inline constexpr std::int32_t kGlyphCount = 256;
inline constexpr std::int32_t kGlyphWidth = 48; // pixels
inline constexpr std::int32_t kGlyphHeight = 42;

// GlyphSet::attributes
inline constexpr std::uint32_t GLYPHS_VISIBLE = 0x10; // without it nothing is drawn
inline constexpr std::uint32_t GLYPHS_FILLED = 0x80;  // a glyph has been filled
inline constexpr std::uint32_t kGlyphAttributesAtStart = 17;

struct GlyphSet {
    Single x, y; // pixels: where the next draw puts the current glyph's top-left corner
    std::int32_t width, height;
    std::int32_t glyphCount;
    std::int32_t currentGlyph; // character code, 0..255
    std::uint32_t attributes;
    Surface* glyphs[kGlyphCount];
};

// Written by start-up, read by the scenes. All zero, and so drawing nothing, until a sheet is
// loaded.
struct Fonts {
    GlyphSet big;   // font-48.bmp
    GlyphSet small; // font-48-16px.bmp
};
extern Fonts fonts;
extern BmpImage fontImage; // the sheet read last
void ResetFonts();         // frees glyphs and sheet

// The sheet is a grid of 16 x 16 cells with one-pixel lines between and around them; a cell (or a
// row of it) that the sheet does not reach stays black. 1, or 0 when the sheet cannot be read or is
// not 16 bits deep (then the set is left as it was).
int LoadGlyphSet(const char* path, GlyphSet* set, const DisplayFormat& format);
void ReleaseGlyphSet(GlyphSet* set); // releases the surfaces, clears the record

// Where a text begins and how far its glyphs are apart, in pixels.
struct TextPlace {
    Single x, y;
    std::int32_t advance;
};

// Draws zero-terminated text; bytes above 127 are glyphs 128 to 255. The place becomes whole pixels
// by truncation, once: glyphs are advance apart on both sides of column 0. Returns the number of
// characters times advance, or 0 for a null or empty text or a null surface.
std::int32_t DrawGlyphText(GlyphSet* set, const TextPlace& place, const char* text,
                           Surface* surface);

} // namespace ombrel
