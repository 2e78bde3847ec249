// How a triangle is drawn, in the order in which it is described:
//
//            T               prepare the vertices, reject, sort by y
//           / \              two edges start at T: T-M (short) and T-B (long)
//          /   \             one row: a span from the left edge to the right edge
//         M     \            after row YM the short edge becomes M-B
//           \    \           .
//              \  \          Flat on top or at the bottom: two long edges, no M
//                 \\         .
//                   B
//
// Nothing here is meant to be fast.
#include "reference_fillers.h"

#include <cstring>
#include <utility>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/log2_table.h"

namespace ombrel::reference {

// clang-format off
constinit const Filler kFillers[kCount] = {
    // name                      depth              mapping              sampling                light                 blended  last column and row
    {"FillFlat",                 Depth::Nothing,    Mapping::Untextured, Sampling::None,         Light::FlatColor,     false,   false},
    {"FillFlatBlend",            Depth::Nothing,    Mapping::Untextured, Sampling::None,         Light::FlatColor,     true,    false},
    {"FillGouraud",              Depth::Nothing,    Mapping::Untextured, Sampling::None,         Light::GouraudColors, false,   false},
    {"FillGouraudBlend",         Depth::Nothing,    Mapping::Untextured, Sampling::None,         Light::GouraudColors, true,    false},
    {"FillTex",                  Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         false,   false},
    {"FillTexAlt",               Depth::Nothing,    Mapping::Affine,     Sampling::Bilinear,     Light::Unlit,         false,   false},
    {"FillTexBlend",             Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         true,    false},
    {"FillTexFlat",              Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     false,   false},
    {"FillTexFlatBlend",         Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     true,    false},
    {"FillTexGouraud",           Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, false,   false},
    {"FillTexGouraudBlend",      Depth::Nothing,    Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, true,    false},
    {"FillFlatZ",                Depth::TestZ,      Mapping::Untextured, Sampling::None,         Light::FlatColor,     false,   true},
    {"FillFlatZBlend",           Depth::TestZ,      Mapping::Untextured, Sampling::None,         Light::FlatColor,     true,    false},
    {"FillGouraudZ",             Depth::TestZ,      Mapping::Untextured, Sampling::None,         Light::GouraudColors, false,   false},
    {"FillGouraudZKeyedKind",    Depth::TestZ,      Mapping::Untextured, Sampling::None,         Light::GouraudColors, false,   false},
    {"FillGouraudZBlend",        Depth::TestZ,      Mapping::Untextured, Sampling::None,         Light::GouraudColors, true,    false},
    {"FillTexZ",                 Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         false,   false},
    {"FillTexZKeyed",            Depth::TestZ,      Mapping::Affine,     Sampling::NearestKeyed, Light::Unlit,         false,   false},
    {"FillTexKeyedZWrite",       Depth::OnlyWriteZ, Mapping::Affine,     Sampling::NearestKeyed, Light::Unlit,         false,   false},
    {"FillTexZAlt",              Depth::TestZ,      Mapping::Affine,     Sampling::Bilinear,     Light::Unlit,         false,   false},
    {"FillTexZBlend",            Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         true,    false},
    {"FillTexFlatZ",             Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     false,   false},
    {"FillTexFlatKeyedZWrite",   Depth::OnlyWriteZ, Mapping::Affine,     Sampling::NearestKeyed, Light::FlatColor,     false,   false},
    {"FillTexFlatZBlend",        Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     true,    false},
    {"FillTexGouraudZ",          Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, false,   false},
    {"FillTexGouraudZBlend",     Depth::TestZ,      Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, true,    false},
    {"FillFlatW",                Depth::TestW,      Mapping::Untextured, Sampling::None,         Light::FlatColor,     false,   false},
    {"FillFlatWBlend",           Depth::TestW,      Mapping::Untextured, Sampling::None,         Light::FlatColor,     true,    false},
    {"FillGouraudW",             Depth::TestW,      Mapping::Untextured, Sampling::None,         Light::GouraudColors, false,   false},
    {"FillGouraudWBlend",        Depth::TestW,      Mapping::Untextured, Sampling::None,         Light::GouraudColors, true,    false},
    {"FillTexWAffine",           Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         false,   false},
    {"FillTexWAlt",              Depth::TestW,      Mapping::Affine,     Sampling::Bilinear,     Light::Unlit,         false,   false},
    {"FillTexWPerPixel",         Depth::TestW,      Mapping::EveryPixel, Sampling::Nearest,      Light::Unlit,         false,   false},
    {"FillTexWSpan",             Depth::TestW,      Mapping::SpanEnds,   Sampling::Nearest,      Light::Unlit,         false,   false},
    {"FillTexWAffineBlend",      Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::Unlit,         true,    false},
    {"FillTexWPerPixelBlend",    Depth::TestW,      Mapping::EveryPixel, Sampling::Nearest,      Light::Unlit,         true,    false},
    {"FillTexWSpanBlend",        Depth::TestW,      Mapping::SpanEnds,   Sampling::Nearest,      Light::Unlit,         true,    false},
    {"FillTexFlatWAffine",       Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     false,   false},
    {"FillTexFlatWPerPixel",     Depth::TestW,      Mapping::EveryPixel, Sampling::Nearest,      Light::FlatColor,     false,   false},
    {"FillTexFlatWSpan",         Depth::TestW,      Mapping::SpanEnds,   Sampling::Nearest,      Light::FlatColor,     false,   false},
    {"FillTexFlatWAffineBlend",  Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::FlatColor,     true,    false},
    {"FillTexFlatWPerPixelBlend",Depth::TestW,      Mapping::EveryPixel, Sampling::Nearest,      Light::FlatColor,     true,    false},
    {"FillTexFlatWSpanBlend",    Depth::TestW,      Mapping::SpanEnds,   Sampling::Nearest,      Light::FlatColor,     true,    false},
    {"FillTexGouraudW",          Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, false,   false},
    {"FillTexGouraudWBlend",     Depth::TestW,      Mapping::Affine,     Sampling::Nearest,      Light::GouraudColors, true,    false},
};
// clang-format on

namespace {

// --- 32-bit integers that wrap -----------------------------------------------------------------

std::int32_t Cut(std::int64_t value) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}
std::int32_t Add(std::int32_t a, std::int32_t b) {
    return Cut(static_cast<std::int64_t>(a) + b);
}
std::int32_t Subtract(std::int32_t a, std::int32_t b) {
    return Cut(static_cast<std::int64_t>(a) - b);
}
std::int32_t Multiply(std::int32_t a, std::int32_t b) {
    return Cut(static_cast<std::int64_t>(a) * b);
}
std::int32_t ShiftLeft(std::int32_t a, int bits) {
    return Cut(static_cast<std::int64_t>(a) * (std::int64_t{1} << bits));
}
// Toward minus infinity.
std::int32_t ShiftRight(std::int32_t a, int bits) {
    return a >> bits;
}
// Toward zero. By zero: 0. The one quotient that does not fit wraps.
std::int32_t Divide(std::int32_t a, std::int32_t b) {
    if (b == 0) {
        return 0;
    }
    return Cut(static_cast<std::int64_t>(a) / b);
}

// --- vertices and edges ------------------------------------------------------------------------

// Everything that runs along edges and spans; a filler uses some of it.
struct Attributes {
    std::int32_t depth;            // Z 16.16 or W
    std::int32_t u, v;             // affine: 16.16
    std::int32_t uOverZ, vOverZ;   // perspective
    std::int32_t red, green, blue; // 8.16
};

constexpr std::int32_t Attributes::*kAll[] = {
    &Attributes::depth,  &Attributes::u,   &Attributes::v,     &Attributes::uOverZ,
    &Attributes::vOverZ, &Attributes::red, &Attributes::green, &Attributes::blue,
};

struct Corner {
    float x, y; // rounded
    std::int32_t column, row;
    Attributes at;
};

struct Edge {
    std::int32_t x; // 16.16
    std::int32_t xStep;
    Attributes at;
    Attributes step;
};

struct Triangle {
    Corner corner[3]; // top to bottom
    bool flatTop;     // corner 0 and 1 in one row, 0 the left one
    bool flatBottom;  // corner 1 and 2 in one row, 1 the left one
    bool insideColumns;
};

// x + 0.5, cut to a whole number, as a float again.
float RoundCoordinate(float value) {
    return static_cast<float>(ToIntChop(value + 0.5F));
}

void RoundVertices(ScreenPolygon* polygon) {
    for (Vertex& vertex : polygon->vertices) {
        vertex.x = RoundCoordinate(vertex.x);
        vertex.y = RoundCoordinate(vertex.y);
    }
}

bool TriviallyRejected(const ScreenPolygon& polygon, const Rect& clip) {
    const Vertex* v = polygon.vertices;
    const auto top = static_cast<float>(clip.top);
    const auto bottom = static_cast<float>(clip.bottom);
    const auto left = static_cast<float>(clip.left);
    const auto right = static_cast<float>(clip.right);
    if (v[0].y < top && v[1].y < top && v[2].y < top) {
        return true;
    }
    if (v[0].y > bottom && v[1].y > bottom && v[2].y > bottom) {
        return true;
    }
    if (v[0].x < left && v[1].x < left && v[2].x < left) {
        return true;
    }
    return v[0].x > right && v[1].x > right && v[2].x > right;
}

bool IsWDepth(const Filler& filler) {
    return filler.depth == Depth::TestW;
}
bool IsZDepth(const Filler& filler) {
    return filler.depth == Depth::TestZ || filler.depth == Depth::OnlyWriteZ;
}
bool IsPerspective(const Filler& filler) {
    return filler.mapping == Mapping::SpanEnds || filler.mapping == Mapping::EveryPixel;
}

// The attributes of vertex number i, only those that the filler uses; the others stay 0.
Attributes AttributesOf(const Filler& filler, const ScreenPolygon& polygon, int i) {
    const Vertex& vertex = polygon.vertices[i];
    Attributes at = {};
    if (IsZDepth(filler)) {
        at.depth = ShiftLeft(ToIntChop(vertex.z + 0.5F), 16);
    }
    if (IsWDepth(filler)) {
        at.depth = Divide(0x10000000, ToIntChop(vertex.z + 0.5F));
    }
    if (filler.mapping == Mapping::Affine) {
        at.u = ShiftLeft(ToIntChop(vertex.u), 16);
        at.v = ShiftLeft(ToIntChop(vertex.v), 16);
    }
    if (IsPerspective(filler)) {
        const std::int32_t z = ToIntChop(vertex.z + 0.5F);
        at.uOverZ = Divide(ShiftLeft(ToIntChop(vertex.u + 0.5F), 22), z);
        at.vOverZ = Divide(ShiftLeft(ToIntChop(vertex.v + 0.5F), 22), z);
    }
    if (filler.light == Light::GouraudColors) {
        const std::uint32_t k = polygon.litColors[i] & 0xFFFF;
        at.red = static_cast<std::int32_t>((k >> 8) & 248) << 16;
        at.green = static_cast<std::int32_t>((k >> 3) & 252) << 16;
        at.blue = static_cast<std::int32_t>((k & 31) * 8) << 16;
    }
    return at;
}

// Sorts by y, finds flat tops and bottoms; there the corner with the smaller x comes first.
Triangle SortCorners(const Filler& filler, const ScreenPolygon& polygon, const Rect& clip) {
    Triangle triangle = {};
    Corner* corner = triangle.corner;
    for (int i = 0; i < 3; ++i) {
        const Vertex& vertex = polygon.vertices[i];
        corner[i] = {vertex.x, vertex.y, ToIntChop(vertex.x), ToIntChop(vertex.y),
                     AttributesOf(filler, polygon, i)};
    }
    // Corners of equal y keep the order of the record.
    if (corner[1].y < corner[0].y) {
        std::swap(corner[0], corner[1]);
    }
    if (corner[2].y < corner[1].y) {
        std::swap(corner[1], corner[2]);
    }
    if (corner[1].y < corner[0].y) {
        std::swap(corner[0], corner[1]);
    }
    triangle.flatTop = corner[1].y - corner[0].y < 0.001F;
    triangle.flatBottom = !triangle.flatTop && corner[2].y - corner[1].y < 0.001F;
    if (triangle.flatTop && corner[1].x < corner[0].x) {
        std::swap(corner[0], corner[1]);
    }
    if (triangle.flatBottom && corner[2].x < corner[1].x) {
        std::swap(corner[1], corner[2]);
    }
    triangle.insideColumns = true;
    for (int i = 0; i < 3; ++i) {
        if (corner[i].column < clip.left || corner[i].column > clip.right) {
            triangle.insideColumns = false;
        }
    }
    return triangle;
}

bool HasNoArea(const Triangle& triangle) {
    const Corner* c = triangle.corner;
    const bool oneColumn = c[0].column == c[1].column && c[1].column == c[2].column;
    const bool oneRow = c[0].row == c[1].row && c[1].row == c[2].row;
    return oneColumn || oneRow;
}

Edge EdgeBetween(const Corner& from, const Corner& to) {
    const std::int32_t rows = Subtract(to.row, from.row);
    Edge edge = {};
    edge.x = ShiftLeft(from.column, 16);
    edge.xStep = Divide(ShiftLeft(Subtract(to.column, from.column), 16), rows);
    edge.at = from.at;
    for (auto attribute : kAll) {
        edge.step.*attribute = Divide(Subtract(to.at.*attribute, from.at.*attribute), rows);
    }
    return edge;
}

void Advance(Edge* edge, std::int32_t rows) {
    edge->x = Add(edge->x, Multiply(edge->xStep, rows));
    for (auto attribute : kAll) {
        edge->at.*attribute = Add(edge->at.*attribute, Multiply(edge->step.*attribute, rows));
    }
}

// --- texels and pixels -------------------------------------------------------------------------

struct Texels {
    const Pixel16* pixels;
    std::int32_t width, height;
    int rowShift;
};

Texels TexelsOf(const Filler& filler, const ScreenPolygon& polygon) {
    if (filler.mapping == Mapping::Untextured) {
        return {};
    }
    const Texture& texture = *polygon.texture.single;
    return {static_cast<const Pixel16*>(texture.pixels), texture.width, texture.height,
            Log2Table[static_cast<std::size_t>(texture.width)]};
}

// Coordinates in whole texels.
Pixel16 TexelAt(const Texels& texels, std::int32_t u, std::int32_t v) {
    return texels.pixels[Add(ShiftLeft(v, texels.rowShift), u)];
}

// The same, held inside the texture: rounding in perspective can lead outside.
Pixel16 TexelAtBounded(const Texels& texels, std::int32_t u, std::int32_t v) {
    std::int32_t index = Add(ShiftLeft(v, texels.rowShift), u);
    const std::int32_t last = texels.width * texels.height - 1;
    if (index > last) {
        index = last;
    }
    if (index < 0) {
        index = 0;
    }
    return texels.pixels[index];
}

// u, v in 16.16.
Pixel16 BilinearTexel(const Texels& texels, std::int32_t u, std::int32_t v) {
    const std::int32_t x0 = ShiftRight(u, 16);
    const std::int32_t y0 = ShiftRight(v, 16);
    const std::int32_t x1 = x0 + 1 < texels.width - 1 ? x0 + 1 : texels.width - 1;
    const std::int32_t y1 = y0 + 1 < texels.width - 1 ? y0 + 1 : texels.width - 1;
    const std::int32_t fu = ShiftRight(u, 8) & 255;
    const std::int32_t fv = ShiftRight(v, 8) & 255;
    const Pixel16 t00 = TexelAt(texels, x0, y0);
    const Pixel16 t10 = TexelAt(texels, x1, y0);
    const Pixel16 t01 = TexelAt(texels, x0, y1);
    const Pixel16 t11 = TexelAt(texels, x1, y1);
    const std::int32_t w00 = (256 - fu) * (256 - fv);
    const std::int32_t w10 = fu * (256 - fv);
    const std::int32_t w01 = (256 - fu) * fv;
    const std::int32_t w11 = fu * fv;
    const std::int32_t red =
        w00 * RedOf(t00) + w10 * RedOf(t10) + w01 * RedOf(t01) + w11 * RedOf(t11);
    const std::int32_t green =
        w00 * GreenOf(t00) + w10 * GreenOf(t10) + w01 * GreenOf(t01) + w11 * GreenOf(t11);
    const std::int32_t blue =
        w00 * BlueOf(t00) + w10 * BlueOf(t10) + w01 * BlueOf(t01) + w11 * BlueOf(t11);
    return static_cast<Pixel16>(((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16));
}

Pixel16 ModulateFlat(Pixel16 t, Pixel16 k) {
    const std::int32_t green = ((((t >> 5) & 63) * ((k >> 5) & 63)) >> 1) & 0x7FE0;
    const std::int32_t red = (((t >> 11) * ((k >> 11) & 31)) & 0xFFE0) * 64;
    const std::int32_t blue = (((t & 31) * (k & 31)) & 0xFFFF) >> 5;
    return static_cast<Pixel16>(green + red + blue);
}

Pixel16 GouraudPixel(std::int32_t red, std::int32_t green, std::int32_t blue) {
    const std::int32_t pixel =
        Add(Add(ShiftRight(green, 13) & 0xFFE0, ShiftRight(red, 8) & 0xF800), ShiftRight(blue, 19));
    return static_cast<Pixel16>(pixel);
}

Pixel16 ModulateGouraud(Pixel16 t, std::int32_t red, std::int32_t green, std::int32_t blue) {
    const std::int32_t g = ShiftRight(Multiply((t >> 5) & 63, green), 19) & 0x1FE0;
    const std::int32_t r = ShiftRight(Multiply(t >> 11, red), 13) & 0xF800;
    const std::int32_t b = ShiftRight(Multiply(t & 31, blue), 24);
    return static_cast<Pixel16>(g + r + b);
}

Pixel16 Blend(const Target& target, Pixel16 framePixel, Pixel16 source) {
    const std::uint32_t level = target.level;
    const Pixel16 kept = target.blendTables[(7 - level) * kBlendTableLength + framePixel];
    const Pixel16 added = target.blendTables[level * kBlendTableLength + source];
    return static_cast<Pixel16>(kept + added);
}

// --- spans -------------------------------------------------------------------------------------

// One row of a triangle: the values at its left end and their steps per column.
struct Span {
    std::int32_t row;
    std::int32_t left, right;
    Attributes at;
    Attributes step;
};

bool PassesDepth(const Filler& filler, std::int32_t value, std::uint32_t cell) {
    const auto depth = static_cast<std::uint32_t>(value);
    switch (filler.depth) {
    case Depth::TestZ:
        return depth < cell;
    case Depth::TestW:
        return depth > cell;
    case Depth::Nothing:
    case Depth::OnlyWriteZ:
        break;
    }
    return true;
}

Pixel16 Texel(const Filler& filler, const Texels& texels, const Attributes& at) {
    switch (filler.mapping) {
    case Mapping::Untextured:
        break;
    case Mapping::Affine:
        if (filler.sampling == Sampling::Bilinear) {
            return BilinearTexel(texels, at.u, at.v);
        }
        return TexelAt(texels, ShiftRight(at.u, 16), ShiftRight(at.v, 16));
    case Mapping::SpanEnds:
        return TexelAtBounded(texels, ShiftRight(at.u, 22), ShiftRight(at.v, 22));
    case Mapping::EveryPixel:
        return TexelAtBounded(texels, Divide(ShiftLeft(at.uOverZ, 6), at.depth),
                              Divide(ShiftLeft(at.vOverZ, 6), at.depth));
    }
    return 0;
}

Pixel16 SourcePixel(const Filler& filler, const ScreenPolygon& polygon, Pixel16 texel,
                    const Attributes& at) {
    const auto color0 = static_cast<Pixel16>(polygon.litColors[0]);
    if (filler.mapping == Mapping::Untextured) {
        return filler.light == Light::FlatColor ? color0 : GouraudPixel(at.red, at.green, at.blue);
    }
    switch (filler.light) {
    case Light::Unlit:
        break;
    case Light::FlatColor:
        return ModulateFlat(texel, color0);
    case Light::GouraudColors:
        return ModulateGouraud(texel, at.red, at.green, at.blue);
    }
    return texel;
}

void DrawPixel(const Filler& filler, const ScreenPolygon& polygon, const Target& target,
               const Span& span, std::int32_t column) {
    Pixel16* pixel =
        target.frame + static_cast<std::ptrdiff_t>(span.row) * (target.framePitch >> 1) + column;
    std::uint32_t* cell = nullptr;
    if (filler.depth != Depth::Nothing) {
        cell = target.depth + static_cast<std::ptrdiff_t>(span.row) * (target.depthPitch >> 2) +
               column;
        if (!PassesDepth(filler, span.at.depth, *cell)) {
            return;
        }
    }
    const Texels texels = TexelsOf(filler, polygon);
    Pixel16 texel = 0;
    if (filler.mapping != Mapping::Untextured) {
        texel = Texel(filler, texels, span.at);
        if (filler.sampling == Sampling::NearestKeyed && texel == 0) {
            return;
        }
    }
    const Pixel16 source = SourcePixel(filler, polygon, texel, span.at);
    *pixel = filler.blended ? Blend(target, *pixel, source) : source;
    if (cell != nullptr) {
        *cell = static_cast<std::uint32_t>(span.at.depth);
    }
}

// u and v in 10.22 from the perspective terms at one end of a span.
void FindTexelAtSpanEnd(Attributes* at) {
    const std::int32_t w = ShiftRight(at->depth, 6);
    at->u = ShiftLeft(Divide(ShiftLeft(at->uOverZ, 6), w), 16);
    at->v = ShiftLeft(Divide(ShiftLeft(at->vOverZ, 6), w), 16);
}

// Half a unit of the last place that will be cut off, once at the start of the span.
void AddSpanBias(const Filler& filler, Attributes* at) {
    if (IsZDepth(filler)) {
        at->depth = Add(at->depth, 0x8000);
    }
    if (filler.light == Light::GouraudColors) {
        at->red = Add(at->red, 0x8000);
        at->green = Add(at->green, 0x8000);
        at->blue = Add(at->blue, 0x8000);
    }
}

Span SpanBetween(const Filler& filler, const Edge& left, const Edge& right, std::int32_t row) {
    Span span = {};
    span.row = row;
    span.left = ShiftRight(Add(left.x, 0x8000), 16);
    span.right = ShiftRight(Add(right.x, 0x8000), 16);
    Attributes first = left.at;
    Attributes last = right.at;
    if (filler.mapping == Mapping::SpanEnds) {
        FindTexelAtSpanEnd(&first);
        FindTexelAtSpanEnd(&last);
    }
    const std::int32_t columns = Subtract(span.right, span.left);
    for (auto attribute : kAll) {
        const std::int32_t difference = Subtract(last.*attribute, first.*attribute);
        span.step.*attribute = columns > 0 ? Divide(difference, columns) : difference;
    }
    span.at = first;
    AddSpanBias(filler, &span.at);
    return span;
}

// Moves the left end right by some columns.
void SkipColumns(Span* span, std::int32_t columns) {
    span->left = Add(span->left, columns);
    for (auto attribute : kAll) {
        span->at.*attribute = Add(span->at.*attribute, Multiply(span->step.*attribute, columns));
    }
}

void DrawSpan(const Filler& filler, const ScreenPolygon& polygon, const Target& target, Span span,
              bool insideColumns) {
    // One after the last column to draw.
    std::int32_t end = filler.lastColumnAndRow ? Add(span.right, 1) : span.right;
    if (!insideColumns && span.left < target.clip.left) {
        SkipColumns(&span, Subtract(target.clip.left, span.left));
    }
    if (end > target.clip.right) {
        end = target.clip.right;
    }
    for (std::int32_t column = span.left; column < end; ++column) {
        DrawPixel(filler, polygon, target, span, column);
        for (auto attribute : kAll) {
            span.at.*attribute = Add(span.at.*attribute, span.step.*attribute);
        }
    }
}

// --- the walk ----------------------------------------------------------------------------------

// One after the last row to draw.
std::int32_t RowsEnd(const Filler& filler, std::int32_t bottomRow, const Rect& clip) {
    std::int32_t end = bottomRow < clip.bottom ? bottomRow : clip.bottom;
    if (filler.lastColumnAndRow && end < clip.bottom) {
        ++end;
    }
    return end;
}

void WalkFlat(const Filler& filler, const ScreenPolygon& polygon, const Target& target,
              const Triangle& triangle) {
    const Corner* c = triangle.corner;
    Edge left = triangle.flatTop ? EdgeBetween(c[0], c[2]) : EdgeBetween(c[0], c[1]);
    Edge right = triangle.flatTop ? EdgeBetween(c[1], c[2]) : EdgeBetween(c[0], c[2]);
    std::int32_t row = c[0].row;
    if (row < target.clip.top) {
        const std::int32_t skipped = Subtract(target.clip.top, row);
        Advance(&left, skipped);
        Advance(&right, skipped);
        row = target.clip.top;
    }
    const std::int32_t end = RowsEnd(filler, c[2].row, target.clip);
    for (; row < end; ++row) {
        DrawSpan(filler, polygon, target, SpanBetween(filler, left, right, row),
                 triangle.insideColumns);
        Advance(&left, 1);
        Advance(&right, 1);
    }
}

void WalkGeneral(const Filler& filler, const ScreenPolygon& polygon, const Target& target,
                 const Triangle& triangle) {
    const Corner& top = triangle.corner[0];
    const Corner& middle = triangle.corner[1];
    const Corner& bottom = triangle.corner[2];
    Edge shortEdge = EdgeBetween(top, middle);
    Edge longEdge = EdgeBetween(top, bottom);
    const bool middleOnRight = longEdge.xStep < shortEdge.xStep;
    std::int32_t row = top.row;
    if (row < target.clip.top) {
        const std::int32_t skipped = Subtract(target.clip.top, row);
        Advance(&longEdge, skipped);
        if (middle.row < target.clip.top) {
            shortEdge = EdgeBetween(middle, bottom);
            Advance(&shortEdge, Subtract(target.clip.top, middle.row));
        } else {
            Advance(&shortEdge, skipped);
        }
        row = target.clip.top;
    }
    const std::int32_t end = RowsEnd(filler, bottom.row, target.clip);
    for (; row < end; ++row) {
        const Edge& left = middleOnRight ? longEdge : shortEdge;
        const Edge& right = middleOnRight ? shortEdge : longEdge;
        DrawSpan(filler, polygon, target, SpanBetween(filler, left, right, row),
                 triangle.insideColumns);
        Advance(&longEdge, 1);
        // The row of the middle corner still belongs to the edge that ends there.
        if (row == middle.row) {
            shortEdge = EdgeBetween(middle, bottom);
        }
        Advance(&shortEdge, 1);
    }
}

} // namespace

const Filler* FindFiller(const char* name) {
    for (const Filler& filler : kFillers) {
        if (std::strcmp(filler.name, name) == 0) {
            return &filler;
        }
    }
    return nullptr;
}

void Fill(const Filler& filler, ScreenPolygon* polygon, const Target& target) {
    RoundVertices(polygon);
    if (TriviallyRejected(*polygon, target.clip)) {
        return;
    }
    const Triangle triangle = SortCorners(filler, *polygon, target.clip);
    if (HasNoArea(triangle)) {
        return;
    }
    if (triangle.flatTop || triangle.flatBottom) {
        WalkFlat(filler, *polygon, target, triangle);
    } else {
        WalkGeneral(filler, *polygon, target, triangle);
    }
}

void BuildTables(Pixel16* tables) {
    const ScopedFloatMode nearest(FloatMode::Nearest);
    float scale = 0.0F;
    for (std::int32_t k = 0; k < 8; ++k) {
        for (std::int32_t p = 0; p < kBlendTableLength; ++p) {
            const auto pixel = static_cast<Pixel16>(p);
            const std::int32_t red = ToIntNearest(static_cast<float>(RedOf(pixel)) * scale);
            const std::int32_t green = ToIntNearest(static_cast<float>(GreenOf(pixel)) * scale);
            const std::int32_t blue = ToIntNearest(static_cast<float>(BlueOf(pixel)) * scale);
            tables[k * kBlendTableLength + p] =
                static_cast<Pixel16>((red << 11) + ((green & 63) << 5) + (blue & 31));
        }
        scale = scale + 1.0F / 7.0F + 0.000001F;
    }
}

} // namespace ombrel::reference
