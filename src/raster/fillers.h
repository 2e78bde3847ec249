// The family of 45 triangle fillers, as one table. Numbers, functions, tests, bench names and the
// gallery all come from the rows below; the rules that the cells name are types of rules.h. Called
// by the dispatcher (through activeFillers), by tests and by tools.
//
// Every filler draws the one triangle of a ScreenPolygon, clipped to the target's rectangle, and
// writes the rounded x and y back into it. x, y in pixels, z > 0, u, v in texels inside the
// texture. Pitches in bytes.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

#include "base/pixel16.h"
#include "base/rect.h"
#include "raster/draw_job.h"

namespace ombrel {

// clang-format off
//      name                       depth    texel     light    write  edges
#define OMBREL_FILLERS(ROW)                                                   \
    ROW(FillFlat,                  NoDepth, NoTexel,  Flat,    Set,   Open)   \
    ROW(FillFlatBlend,             NoDepth, NoTexel,  Flat,    Blend, Open)   \
    ROW(FillGouraud,               NoDepth, NoTexel,  Gouraud, Set,   Open)   \
    ROW(FillGouraudBlend,          NoDepth, NoTexel,  Gouraud, Blend, Open)   \
    ROW(FillTex,                   NoDepth, Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexAlt,                NoDepth, Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexBlend,              NoDepth, Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexFlat,               NoDepth, Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatBlend,          NoDepth, Affine,   Flat,    Blend, Open)   \
    ROW(FillTexGouraud,            NoDepth, Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudBlend,       NoDepth, Affine,   Gouraud, Blend, Open)   \
    ROW(FillFlatZ,                 Z,       NoTexel,  Flat,    Set,   Closed) \
    ROW(FillFlatZBlend,            Z,       NoTexel,  Flat,    Blend, Open)   \
    ROW(FillGouraudZ,              Z,       NoTexel,  Gouraud, Set,   Open)   \
    ROW(FillGouraudZKeyedKind,     Z,       NoTexel,  Gouraud, Set,   Open)   \
    ROW(FillGouraudZBlend,         Z,       NoTexel,  Gouraud, Blend, Open)   \
    ROW(FillTexZ,                  Z,       Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexZKeyed,             Z,       Keyed,    Unlit,   Set,   Open)   \
    ROW(FillTexKeyedZWrite,        ZWrite,  Keyed,    Unlit,   Set,   Open)   \
    ROW(FillTexZAlt,               Z,       Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexZBlend,             Z,       Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexFlatZ,              Z,       Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatKeyedZWrite,    ZWrite,  Keyed,    Flat,    Set,   Open)   \
    ROW(FillTexFlatZBlend,         Z,       Affine,   Flat,    Blend, Open)   \
    ROW(FillTexGouraudZ,           Z,       Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudZBlend,      Z,       Affine,   Gouraud, Blend, Open)   \
    ROW(FillFlatW,                 W,       NoTexel,  Flat,    Set,   Open)   \
    ROW(FillFlatWBlend,            W,       NoTexel,  Flat,    Blend, Open)   \
    ROW(FillGouraudW,              W,       NoTexel,  Gouraud, Set,   Open)   \
    ROW(FillGouraudWBlend,         W,       NoTexel,  Gouraud, Blend, Open)   \
    ROW(FillTexWAffine,            W,       Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexWAlt,               W,       Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexWPerPixel,          W,       PerPixel, Unlit,   Set,   Open)   \
    ROW(FillTexWSpan,              W,       Span,     Unlit,   Set,   Open)   \
    ROW(FillTexWAffineBlend,       W,       Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexWPerPixelBlend,     W,       PerPixel, Unlit,   Blend, Open)   \
    ROW(FillTexWSpanBlend,         W,       Span,     Unlit,   Blend, Open)   \
    ROW(FillTexFlatWAffine,        W,       Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatWPerPixel,      W,       PerPixel, Flat,    Set,   Open)   \
    ROW(FillTexFlatWSpan,          W,       Span,     Flat,    Set,   Open)   \
    ROW(FillTexFlatWAffineBlend,   W,       Affine,   Flat,    Blend, Open)   \
    ROW(FillTexFlatWPerPixelBlend, W,       PerPixel, Flat,    Blend, Open)   \
    ROW(FillTexFlatWSpanBlend,     W,       Span,     Flat,    Blend, Open)   \
    ROW(FillTexGouraudW,           W,       Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudWBlend,      W,       Affine,   Gouraud, Blend, Open)
// clang-format on

// The fillers by number, in table order.
enum class FillerId : std::uint8_t {
#define OMBREL_NUMBER(name, ...) name,
    OMBREL_FILLERS(OMBREL_NUMBER)
#undef OMBREL_NUMBER
};

// The cells of a row, as words.
struct FillerRow {
    const char* name;
    std::string_view depth, texel, light, write, edges;
};
inline constexpr FillerRow kFillerTable[] = {
#define OMBREL_WORDS(name, depth, texel, light, write, edges)                                      \
    {#name, #depth, #texel, #light, #write, #edges},
    OMBREL_FILLERS(OMBREL_WORDS)
#undef OMBREL_WORDS
};
inline constexpr std::int32_t kFillerCount = std::size(kFillerTable);

// Where a filler draws; members that a filler's rules do not use are not read.
struct FillTarget {
    Pixel16* frame;
    std::int32_t framePitch; // bytes
    std::uint32_t* depth;
    std::int32_t depthPitch; // bytes
    std::uint32_t level;     // of blending, 0..7
    Rect clip;
};
// One shape for all, so that a filler can be replaced by that of another lane set.
using Filler = void (*)(ScreenPolygon* polygon, const FillTarget& target);

// The fillers in use, by FillerId: what the dispatcher calls. Written at start-up by UseFillers
// (paths.h); the plain ones until then.
extern Filler activeFillers[kFillerCount];
void ResetFillers(); // the plain ones again

} // namespace ombrel
