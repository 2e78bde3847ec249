// The family of 45 triangle fillers, as one table. Declarations, definitions, tests, bench names
// and the gallery all come from the rows below; the rules are carried out in fillers.cpp. Called by
// the dispatcher (through activeFillers), by tests and by tools.
//
// Every filler draws the one triangle of a ScreenPolygon, clipped to clipRect, and writes the
// rounded x and y back into it. x, y in pixels, z > 0, u, v in texels inside the texture. Pitches
// in bytes.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "raster/draw_job.h"

namespace ombrel {

enum class DepthRule : std::uint8_t {
    None,   // no depth buffer: always drawn
    Z,      // smaller is nearer: 16.16 depth; drawn where below the cell, unsigned; written
    ZWrite, // the same value, written but never tested
    W,      // larger is nearer: 2^28 / depth; drawn where above the cell, unsigned; written
};
enum class TexelRule : std::uint8_t {
    None,     // no texture
    Affine,   // u, v linear over the triangle, 16.16
    Keyed,    // as Affine; a texel of 0 leaves pixel and depth alone
    Bilinear, // as Affine, mixed from four texels
    Span,     // in perspective at both ends of a span, linear between, 10.22
    PerPixel, // in perspective at every pixel, whole texels
};
enum class LightRule : std::uint8_t {
    Unlit,   // the texel as it is
    Flat,    // colour 0, or the texel times colour 0
    Gouraud, // the colour between the three colours, or the texel times it
};
enum class WriteRule : std::uint8_t {
    Set,   // replaces the pixel
    Blend, // BlendTables[7 - level][pixel] + BlendTables[level][source]
};
enum class EdgeRule : std::uint8_t {
    Open,   // right column and bottom row belong to the neighbour
    Closed, // right column and bottom row are drawn, up to the clip rectangle: REQUIRED R2
};

// clang-format off
//         name                       depth   texel     light    write  edges
#define OMBREL_FILLERS(ROW)                                                    \
    ROW(FillFlat,                     None,   None,     Flat,    Set,   Open)   \
    ROW(FillFlatBlend,                None,   None,     Flat,    Blend, Open)   \
    ROW(FillGouraud,                  None,   None,     Gouraud, Set,   Open)   \
    ROW(FillGouraudBlend,             None,   None,     Gouraud, Blend, Open)   \
    ROW(FillTex,                      None,   Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexAlt,                   None,   Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexBlend,                 None,   Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexFlat,                  None,   Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatBlend,             None,   Affine,   Flat,    Blend, Open)   \
    ROW(FillTexGouraud,               None,   Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudBlend,          None,   Affine,   Gouraud, Blend, Open)   \
    ROW(FillFlatZ,                    Z,      None,     Flat,    Set,   Closed) \
    ROW(FillFlatZBlend,               Z,      None,     Flat,    Blend, Open)   \
    ROW(FillGouraudZ,                 Z,      None,     Gouraud, Set,   Open)   \
    ROW(FillGouraudZKeyedKind,        Z,      None,     Gouraud, Set,   Open)   \
    ROW(FillGouraudZBlend,            Z,      None,     Gouraud, Blend, Open)   \
    ROW(FillTexZ,                     Z,      Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexZKeyed,                Z,      Keyed,    Unlit,   Set,   Open)   \
    ROW(FillTexKeyedZWrite,           ZWrite, Keyed,    Unlit,   Set,   Open)   \
    ROW(FillTexZAlt,                  Z,      Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexZBlend,                Z,      Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexFlatZ,                 Z,      Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatKeyedZWrite,       ZWrite, Keyed,    Flat,    Set,   Open)   \
    ROW(FillTexFlatZBlend,            Z,      Affine,   Flat,    Blend, Open)   \
    ROW(FillTexGouraudZ,              Z,      Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudZBlend,         Z,      Affine,   Gouraud, Blend, Open)   \
    ROW(FillFlatW,                    W,      None,     Flat,    Set,   Open)   \
    ROW(FillFlatWBlend,               W,      None,     Flat,    Blend, Open)   \
    ROW(FillGouraudW,                 W,      None,     Gouraud, Set,   Open)   \
    ROW(FillGouraudWBlend,            W,      None,     Gouraud, Blend, Open)   \
    ROW(FillTexWAffine,               W,      Affine,   Unlit,   Set,   Open)   \
    ROW(FillTexWAlt,                  W,      Bilinear, Unlit,   Set,   Open)   \
    ROW(FillTexWPerPixel,             W,      PerPixel, Unlit,   Set,   Open)   \
    ROW(FillTexWSpan,                 W,      Span,     Unlit,   Set,   Open)   \
    ROW(FillTexWAffineBlend,          W,      Affine,   Unlit,   Blend, Open)   \
    ROW(FillTexWPerPixelBlend,        W,      PerPixel, Unlit,   Blend, Open)   \
    ROW(FillTexWSpanBlend,            W,      Span,     Unlit,   Blend, Open)   \
    ROW(FillTexFlatWAffine,           W,      Affine,   Flat,    Set,   Open)   \
    ROW(FillTexFlatWPerPixel,         W,      PerPixel, Flat,    Set,   Open)   \
    ROW(FillTexFlatWSpan,             W,      Span,     Flat,    Set,   Open)   \
    ROW(FillTexFlatWAffineBlend,      W,      Affine,   Flat,    Blend, Open)   \
    ROW(FillTexFlatWPerPixelBlend,    W,      PerPixel, Flat,    Blend, Open)   \
    ROW(FillTexFlatWSpanBlend,        W,      Span,     Flat,    Blend, Open)   \
    ROW(FillTexGouraudW,              W,      Affine,   Gouraud, Set,   Open)   \
    ROW(FillTexGouraudWBlend,         W,      Affine,   Gouraud, Blend, Open)

// The arguments that a cell of the depth and write columns adds to a filler, and their use.
#define OMBREL_DEPTH_PARAMETERS_None
#define OMBREL_DEPTH_PARAMETERS_Z      , std::uint32_t* depth, std::int32_t depthPitch
#define OMBREL_DEPTH_PARAMETERS_ZWrite , std::uint32_t* depth, std::int32_t depthPitch
#define OMBREL_DEPTH_PARAMETERS_W      , std::uint32_t* depth, std::int32_t depthPitch
#define OMBREL_WRITE_PARAMETERS_Set
#define OMBREL_WRITE_PARAMETERS_Blend  , std::uint32_t level
#define OMBREL_DEPTH_VALUES_None   nullptr, 0
#define OMBREL_DEPTH_VALUES_Z      depth, depthPitch
#define OMBREL_DEPTH_VALUES_ZWrite depth, depthPitch
#define OMBREL_DEPTH_VALUES_W      depth, depthPitch
#define OMBREL_WRITE_VALUES_Set    0
#define OMBREL_WRITE_VALUES_Blend  level
// clang-format on

// The fillers by name: (polygon, frame, framePitch[, depth, depthPitch][, level]); level 0..7.
#define OMBREL_DECLARE(name, depthRule, texel, light, write, edges)                                \
    void name(ScreenPolygon* polygon, Pixel16* frame,                                              \
              std::int32_t framePitch                                                              \
                  OMBREL_DEPTH_PARAMETERS_##depthRule OMBREL_WRITE_PARAMETERS_##write);
OMBREL_FILLERS(OMBREL_DECLARE)
#undef OMBREL_DECLARE

// The fillers by number, in table order.
enum class FillerId : std::uint8_t {
#define OMBREL_ENUMERATE(name, depth, texel, light, write, edges) name,
    OMBREL_FILLERS(OMBREL_ENUMERATE)
#undef OMBREL_ENUMERATE
};
inline constexpr std::int32_t kFillerCount = 45;

struct FillerRules {
    DepthRule depth;
    TexelRule texel;
    LightRule light;
    WriteRule write;
    EdgeRule edges;
};
struct FillerRow {
    const char* name;
    FillerRules rules;
};
inline constexpr FillerRow kFillerTable[] = {
#define OMBREL_ROW(name, depth, texel, light, write, edges)                                        \
    {#name,                                                                                        \
     {DepthRule::depth, TexelRule::texel, LightRule::light, WriteRule::write, EdgeRule::edges}},
    OMBREL_FILLERS(OMBREL_ROW)
#undef OMBREL_ROW
};
static_assert(sizeof(kFillerTable) / sizeof(kFillerTable[0]) == kFillerCount);

// Where a filler draws; members that a filler's rules do not use are not read.
struct FillTarget {
    Pixel16* frame;
    std::int32_t framePitch; // bytes
    std::uint32_t* depth;
    std::int32_t depthPitch; // bytes
    std::uint32_t level;     // 0..7
};
// One shape for all, so that a whole filler can be replaced by a faster twin of the same bits.
using Filler = void (*)(ScreenPolygon* polygon, const FillTarget& target);

// The fillers in use, by FillerId; the named fillers and the dispatcher go through it.
// Written at start-up by the choice of twins; the plain family until then.
extern Filler activeFillers[kFillerCount];
// The plain family, which every twin must match bit for bit.
extern const Filler kScalarFillers[kFillerCount];
void ResetFillers(); // the plain family again

} // namespace ombrel
