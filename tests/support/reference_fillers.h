// The 45 triangle fillers a second time, slow and word for word: one plain function a step, every
// attribute by its name, no composition, no table in common with the fast family. The tests hold
// the fast family against it, bit for bit.
//
// Formats: edge x, affine u and v, and Z depth 16.16; W depth 2^28 / z; perspective u and v inside
// a span 10.22; colour intensities 8.16. All integers wrap at 32 bits; every division cuts toward
// zero.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "base/rect.h"
#include "raster/draw_job.h"

namespace ombrel::reference {

enum class Depth {
    Nothing,    // always drawn, no depth cell
    TestZ,      // 16.16, smaller is nearer
    OnlyWriteZ, // the same value, but drawn without a test
    TestW,      // 2^28 / z, larger is nearer
};
enum class Mapping {
    Untextured,
    Affine,     // u, v linear over the triangle
    SpanEnds,   // in perspective at the two ends of a span, linear between
    EveryPixel, // in perspective at every pixel
};
enum class Light { Unlit, FlatColor, GouraudColors };
enum class Sampling {
    None,
    Nearest,
    NearestKeyed, // a texel of value 0 is skipped: no colour, no depth
    Bilinear,
};

// One filler and what it does.
struct Filler {
    const char* name;
    Depth depth;
    Mapping mapping;
    Sampling sampling;
    Light light;
    bool blended;
    bool lastColumnAndRow; // both span ends and the bottom row are drawn
};

inline constexpr std::int32_t kCount = 45;
extern const Filler kFillers[kCount];

// The row of a name; null if there is none.
const Filler* FindFiller(const char* name);

// Where to draw. Pitches in bytes; depth may be null for fillers without depth, blendTables (eight
// tables of 65,536, one after the other) for those that do not blend.
struct Target {
    Pixel16* frame;
    std::int32_t framePitch;
    std::uint32_t* depth;
    std::int32_t depthPitch;
    std::uint32_t level; // 0..7
    Rect clip;
    const Pixel16* blendTables;
};

// Draws the polygon's triangle; replaces x and y of its vertices by their rounded values.
void Fill(const Filler& filler, ScreenPolygon* polygon, const Target& target);

// Writes the eight tables, in whatever rounding mode is set, as if it were to nearest.
inline constexpr std::int32_t kBlendTableLength = 65536;
void BuildTables(Pixel16* tables);

} // namespace ombrel::reference
