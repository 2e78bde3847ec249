// All coordinates are made from whole numbers divided by powers of two, so that no rounding mode
// changes them.
#include "random_triangles.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "base/hash.h"
#include "base/parse_number.h"

namespace ombrel {

namespace {

// A multiple of 1/16 from first to last.
float RandomSixteenth(RandomNumbers* source, std::int32_t first, std::int32_t last) {
    return static_cast<float>(source->Between(first * 16, last * 16)) / 16.0F;
}

void RandomBytes(RandomNumbers* source, void* bytes, std::size_t size) {
    auto* out = static_cast<unsigned char*>(bytes);
    for (std::size_t i = 0; i < size; i += 8) {
        const std::uint64_t random = source->Next();
        std::memcpy(out + i, &random, size - i < 8 ? size - i : 8);
    }
}

// --- the stage ---------------------------------------------------------------------------------

struct TextureSize {
    std::int32_t width, height;
};
constexpr TextureSize kTextureSizes[] = {
    {1, 1},   {2, 2},   {4, 4}, {8, 8},   {16, 16},  {32, 32},   {64, 64}, {128, 128}, {256, 256},
    {64, 16}, {16, 64}, {8, 2}, {128, 1}, {256, 32}, {32, 256},  {1, 16},  {256, 256}, {64, 64},
    {4, 1},   {2, 0},   {1, 0}, {2, 8},   {64, 64},  {128, 128}, {512, 8}, {1024, 4},  {512, 512},
};

constexpr std::int32_t kMaxFramePitch = (kMaxFrameWidth + 8) * 2;
constexpr std::int32_t kMaxDepthPitch = (kMaxFrameWidth + 8) * 4;

// Rows of texels that a filler may read with valid coordinates: where the texture is wider than
// high, the bilinear filter touches the row after the last one.
std::int32_t RowsRead(const TextureSize& size) {
    const std::int32_t lastRow = size.height > 0 ? size.height - 1 : 0;
    const std::int32_t below = lastRow + 1 < size.width - 1 ? lastRow + 1 : size.width - 1;
    const std::int32_t rows = (below > lastRow ? below : lastRow) + 1;
    return rows > size.height ? rows : size.height;
}

void AddTexture(RandomStage* stage, RandomNumbers* source, const TextureSize& size) {
    const auto count =
        static_cast<std::size_t>(size.width) * static_cast<std::size_t>(RowsRead(size));
    const bool after = source->Below(4) != 0;
    GuardMemory memory = MakeGuardMemory(count * 2, after ? GuardSide::After : GuardSide::Before);
    auto* pixels = reinterpret_cast<Pixel16*>(memory.bytes);
    const bool keyed = source->Below(2) == 0;
    // A mip level without rows has only guard texels, and those are 0.
    for (std::size_t i = 0; i < count && size.height > 0; ++i) {
        const auto texel = static_cast<Pixel16>(source->Next() >> 48);
        pixels[i] = keyed && source->Below(3) == 0 ? Pixel16{0} : texel;
    }
    Texture texture = {};
    texture.valid = 1;
    texture.texFlags = TEX_FILLED;
    texture.width = size.width;
    texture.height = size.height;
    texture.byteSize = 2 * size.width * size.height;
    texture.bitsPerPixel = 16;
    texture.pixels = memory.bytes;
    stage->texels.push_back(memory);
    stage->textures.push_back(texture);
}

} // namespace

RandomStage MakeRandomStage() {
    RandomStage stage = {};
    RandomNumbers source(1);
    for (int i = 0; i < 2; ++i) {
        const GuardSide side = i == 0 ? GuardSide::Before : GuardSide::After;
        stage.frame[i] = MakeGuardMemory(kMaxFramePitch * kMaxFrameHeight, side);
        stage.depth[i] = MakeGuardMemory(kMaxDepthPitch * kMaxFrameHeight, side);
        stage.frameCopy[i].assign(stage.frame[i].size, 0);
        stage.depthCopy[i].assign(stage.depth[i].size, 0);
    }
    for (const TextureSize& size : kTextureSizes) {
        AddTexture(&stage, &source, size);
    }
    stage.blendTables.assign(8 * reference::kBlendTableLength, 0);
    reference::BuildTables(stage.blendTables.data());
    return stage;
}

void FreeRandomStage(RandomStage* stage) {
    for (int i = 0; i < 2; ++i) {
        FreeGuardMemory(&stage->frame[i]);
        FreeGuardMemory(&stage->depth[i]);
    }
    for (GuardMemory& memory : stage->texels) {
        FreeGuardMemory(&memory);
    }
    stage->texels.clear();
    stage->textures.clear();
}

namespace {

// --- one scene ---------------------------------------------------------------------------------

struct DepthRange {
    std::int32_t first, last;
};
constexpr DepthRange kDepthRanges[] = {
    {50, 4000}, {1, 40}, {1, 32000}, {100, 101}, {1000, 60000}, {600, 700}, {1, 3}, {5, 500},
};

// What both implementations draw into, as offsets into the stage's memory.
struct Scene {
    std::int32_t width, height;
    std::int32_t framePitch, depthPitch;
    int side; // which of the two memories
    std::size_t frameOffset, frameSize;
    std::size_t depthOffset, depthSize;
    Rect clip;
    DepthRange depthRange;
    bool wildDepth; // depths that the pipeline never sends
    Texture* texture;
    std::uint32_t level;
};

bool UsesDepth(const reference::Filler& row) {
    return row.depth != reference::Depth::Nothing;
}
bool UsesTexture(const reference::Filler& row) {
    return row.mapping != reference::Mapping::Untextured;
}

Rect RandomClip(RandomNumbers* source, std::int32_t width, std::int32_t height) {
    if (source->Below(4) < 3) {
        return {0, 0, width, height};
    }
    Rect clip = {};
    clip.left = source->Between(0, width);
    clip.right = source->Between(clip.left, width);
    clip.top = source->Between(0, height);
    clip.bottom = source->Between(clip.top, height);
    return clip;
}

Scene RandomScene(RandomStage* stage, RandomNumbers* source) {
    Scene scene = {};
    const bool tiny = source->Below(8) == 0;
    scene.width = source->Between(1, tiny ? 9 : kMaxFrameWidth);
    scene.height = source->Between(1, tiny ? 9 : kMaxFrameHeight);
    // Pitches that are no whole number of pixels are cut to one.
    const std::int32_t framePixels = scene.width + source->Below(8);
    const std::int32_t depthCells = scene.width + source->Below(8);
    scene.framePitch = framePixels * 2 + source->Below(2);
    scene.depthPitch = depthCells * 4 + source->Below(4);
    scene.side = source->Below(2);
    scene.frameSize =
        static_cast<std::size_t>((framePixels * (scene.height - 1) + scene.width) * 2);
    scene.depthSize = static_cast<std::size_t>((depthCells * (scene.height - 1) + scene.width) * 4);
    if (scene.side == 1) {
        scene.frameOffset = stage->frame[1].size - scene.frameSize;
        scene.depthOffset = stage->depth[1].size - scene.depthSize;
    }
    scene.clip = RandomClip(source, scene.width, scene.height);
    scene.depthRange = kDepthRanges[source->Below(8)];
    scene.wildDepth = source->Below(32) == 0;
    const auto textureCount = static_cast<std::int32_t>(stage->textures.size());
    scene.texture = &stage->textures[static_cast<std::size_t>(source->Below(textureCount))];
    scene.level = static_cast<std::uint32_t>(source->Below(8));
    return scene;
}

std::uint32_t RandomCell(RandomNumbers* source, const reference::Filler& row,
                         const DepthRange& range) {
    const std::int32_t z = source->Between(range.first, range.last);
    if (row.depth == reference::Depth::TestW) {
        return static_cast<std::uint32_t>(0x10000000 / z + source->Below(2));
    }
    return (static_cast<std::uint32_t>(z) << 16) +
           static_cast<std::uint32_t>(source->Below(0x10000));
}

// Fills the depth buffer as a frame finds it: cleared, full of other depths, or partly so.
void RandomDepths(RandomNumbers* source, const reference::Filler& row, const Scene& scene,
                  std::uint32_t* cells) {
    const bool isW = row.depth == reference::Depth::TestW;
    const std::uint32_t cleared = isW ? 0 : (source->Below(2) == 0 ? 0x7FFFFFFFU : 0xFFFFFFFFU);
    const std::int32_t clearedOfEight = source->Between(0, 8);
    for (std::size_t i = 0; i < scene.depthSize / 4; ++i) {
        const bool clear = clearedOfEight == 8 || source->Below(8) < clearedOfEight;
        cells[i] = clear ? cleared : RandomCell(source, row, scene.depthRange);
    }
}

// --- one triangle ------------------------------------------------------------------------------

struct Point {
    float x, y;
};
struct Points {
    Point p[3];
};

Point PointIn(RandomNumbers* source, std::int32_t left, std::int32_t top, std::int32_t right,
              std::int32_t bottom) {
    const float x = RandomSixteenth(source, left, right);
    const float y = RandomSixteenth(source, top, bottom);
    return {x, y};
}

void PointsIn(RandomNumbers* source, Points* points, const Rect& area) {
    for (Point& point : points->p) {
        point = PointIn(source, area.left, area.top, area.right, area.bottom);
    }
}

enum class Shape {
    Inside,
    AcrossLeft,
    AcrossRight,
    AcrossTop,
    AcrossBottom,
    Around,
    FlatTop,
    FlatBottom,
    Thin,
    OnePixel,
    Huge,
    EqualVertices,
    Small,
    Upright,
    Outside,
    OneRow
};
// One entry is drawn; what mostly shows nothing has one, what shows much has more.
constexpr Shape kShapes[] = {
    Shape::Inside,        Shape::Inside,       Shape::Inside,       Shape::AcrossLeft,
    Shape::AcrossLeft,    Shape::AcrossRight,  Shape::AcrossRight,  Shape::AcrossTop,
    Shape::AcrossTop,     Shape::AcrossBottom, Shape::AcrossBottom, Shape::Around,
    Shape::Around,        Shape::Around,       Shape::Around,       Shape::FlatTop,
    Shape::FlatTop,       Shape::FlatTop,      Shape::FlatBottom,   Shape::FlatBottom,
    Shape::FlatBottom,    Shape::Thin,         Shape::Thin,         Shape::OnePixel,
    Shape::Huge,          Shape::Huge,         Shape::Huge,         Shape::Huge,
    Shape::Upright,       Shape::Upright,      Shape::Small,        Shape::Small,
    Shape::EqualVertices, Shape::Outside,      Shape::OneRow,
};
constexpr auto kShapeCount = static_cast<std::int32_t>(sizeof(kShapes) / sizeof(kShapes[0]));

Points RandomPoints(RandomNumbers* source, const Scene& scene) {
    const std::int32_t w = scene.width;
    const std::int32_t h = scene.height;
    const Rect& clip = scene.clip;
    Points points = {};
    Point* p = points.p;
    PointsIn(source, &points, {0, 0, w, h});
    switch (kShapes[source->Below(kShapeCount)]) {
    case Shape::Inside:
        break;
    case Shape::AcrossLeft:
        p[0] = PointIn(source, clip.left - 40, 0, clip.left, h);
        break;
    case Shape::AcrossRight:
        p[0] = PointIn(source, clip.right, 0, clip.right + 40, h);
        break;
    case Shape::AcrossTop:
        p[0] = PointIn(source, 0, clip.top - 40, w, clip.top);
        if (source->Below(2) == 0) {
            p[1] = PointIn(source, 0, clip.top - 40, w, clip.top);
        }
        break;
    case Shape::AcrossBottom:
        p[0] = PointIn(source, 0, clip.bottom, w, clip.bottom + 40);
        if (source->Below(2) == 0) {
            p[1] = PointIn(source, 0, clip.bottom, w, clip.bottom + 40);
        }
        break;
    case Shape::Around:
        PointsIn(source, &points, {-w, -h, 2 * w, 2 * h});
        break;
    case Shape::FlatTop:
        PointsIn(source, &points, {-w / 2, -h / 2, w + w / 2, h + h / 2});
        p[0].y = p[1].y < p[2].y ? p[1].y : p[2].y;
        p[1].y = p[0].y;
        break;
    case Shape::FlatBottom:
        PointsIn(source, &points, {-w / 2, -h / 2, w + w / 2, h + h / 2});
        p[0].y = p[1].y > p[2].y ? p[1].y : p[2].y;
        p[1].y = p[0].y;
        break;
    case Shape::Thin:
        PointsIn(source, &points, {-w / 4, -h / 4, w + w / 4, h + h / 4});
        p[2].x = (p[0].x + p[1].x) / 2.0F + RandomSixteenth(source, -1, 1);
        p[2].y = (p[0].y + p[1].y) / 2.0F + RandomSixteenth(source, -1, 1);
        break;
    case Shape::OnePixel: {
        const std::int32_t x = source->Between(-1, w);
        const std::int32_t y = source->Between(-1, h);
        PointsIn(source, &points, {x, y, x + 1, y + 1});
        break;
    }
    case Shape::Huge:
        PointsIn(source, &points, {-4096, -4096, 4096, 4096});
        if (source->Below(2) == 0) {
            p[0] = PointIn(source, 0, 0, w, h);
        }
        break;
    case Shape::EqualVertices:
        p[1] = p[0];
        if (source->Below(8) == 0) {
            p[2] = p[0];
        }
        break;
    case Shape::Small: {
        const std::int32_t x = source->Between(-3, w);
        const std::int32_t y = source->Between(-3, h);
        PointsIn(source, &points, {x, y, x + 5, y + 5});
        break;
    }
    case Shape::Upright:
        p[1].x = p[0].x;
        if (source->Below(8) == 0) {
            p[2].x = p[0].x;
        }
        break;
    case Shape::Outside: {
        const std::int32_t dx = source->Between(-1, 1) * (w + source->Below(3));
        const std::int32_t dy = source->Between(-1, 1) * (h + source->Below(3));
        PointsIn(source, &points, {dx, dy, dx + w, dy + h});
        break;
    }
    case Shape::OneRow: {
        const std::int32_t y = source->Between(-1, h);
        PointsIn(source, &points, {-2, y, w + 2, y + 1});
        break;
    }
    }
    return points;
}

// Any order of the corners.
void Shuffle(RandomNumbers* source, Points* points) {
    for (int i = 2; i > 0; --i) {
        const int j = source->Below(i + 1);
        const Point kept = points->p[i];
        points->p[i] = points->p[j];
        points->p[j] = kept;
    }
}

float RandomZ(RandomNumbers* source, const Scene& scene) {
    if (scene.wildDepth && source->Below(2) == 0) {
        constexpr float kWild[] = {0.0F,   0.25F,       -0.5F,
                                   -3.0F,  -1000.0F,    300000000.0F,
                                   3.0e9F, 16000000.0F, -268435456.0F,
                                   -1.5F,  1.0F,        std::numeric_limits<float>::quiet_NaN()};
        return kWild[source->Below(12)];
    }
    return RandomSixteenth(source, scene.depthRange.first, scene.depthRange.last);
}

// 0 to a little less than size; 0 to less than a half where the size is 0.
float RandomTexelCoordinate(RandomNumbers* source, std::int32_t size) {
    const std::int32_t sixteenths = size > 0 ? size * 16 : 8;
    return static_cast<float>(source->Below(sixteenths)) / 16.0F;
}

// What the filler does not use holds values that would show if it did.
ScreenPolygon RandomPolygon(RandomNumbers* source, const reference::Filler& row,
                            const Scene& scene) {
    const float unused = std::numeric_limits<float>::quiet_NaN();
    ScreenPolygon polygon = {};
    polygon.state = static_cast<std::uint32_t>(source->Next() >> 32);
    polygon.flags = static_cast<std::uint32_t>(source->Next() >> 32);
    polygon.color = static_cast<std::uint32_t>(source->Next() >> 32);
    for (std::uint32_t& color : polygon.litColors) {
        color = static_cast<std::uint32_t>(source->Next() >> 32);
    }
    polygon.texture.single = UsesTexture(row) ? scene.texture : nullptr;
    Points points = RandomPoints(source, scene);
    Shuffle(source, &points);
    const bool oneTexel = source->Below(16) == 0;
    const bool oneDepth = source->Below(8) == 0;
    for (int i = 0; i < 3; ++i) {
        Vertex& vertex = polygon.vertices[i];
        vertex = {points.p[i].x, points.p[i].y, unused, unused, unused, unused,
                  unused,        unused,        unused, unused, 0,      0};
        if (UsesDepth(row)) {
            const float z = RandomZ(source, scene);
            vertex.z = oneDepth && i > 0 ? polygon.vertices[0].z : z;
        }
        if (UsesTexture(row)) {
            const float u = RandomTexelCoordinate(source, scene.texture->width);
            const float v = RandomTexelCoordinate(source, scene.texture->height);
            vertex.u = oneTexel && i > 0 ? polygon.vertices[0].u : u;
            vertex.v = oneTexel && i > 0 ? polygon.vertices[0].v : v;
        }
    }
    return polygon;
}

// --- the comparison ----------------------------------------------------------------------------

std::string Describe(const ScreenPolygon& polygon, const Scene& scene) {
    char text[256];
    std::string result;
    std::snprintf(text, sizeof text, "frame %d x %d, clip %d %d %d %d, level %u, texture %d x %d\n",
                  scene.width, scene.height, scene.clip.left, scene.clip.top, scene.clip.right,
                  scene.clip.bottom, scene.level, scene.texture->width, scene.texture->height);
    result += text;
    for (int i = 0; i < 3; ++i) {
        const Vertex& v = polygon.vertices[i];
        std::snprintf(text, sizeof text, "  x %g y %g z %g u %g v %g color %04X\n",
                      static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z),
                      static_cast<double>(v.u), static_cast<double>(v.v),
                      polygon.litColors[i] & 0xFFFFU);
        result += text;
    }
    return result;
}

// Names the first pixel and the first cell that differ.
std::string FirstDifference(const Scene& scene, const std::uint8_t* fast, const std::uint8_t* slow,
                            std::size_t size, std::int32_t unit) {
    std::size_t i = 0;
    while (i < size && fast[i] == slow[i]) {
        ++i;
    }
    if (i == size) {
        return "";
    }
    const std::int32_t pitch =
        unit == 2 ? scene.framePitch / 2 : scene.depthPitch / 4; // pixels or cells
    const auto index = static_cast<std::int32_t>(i) / unit;
    const auto start = static_cast<std::size_t>(index * unit);
    std::uint32_t a = 0;
    std::uint32_t b = 0;
    std::memcpy(&a, fast + start, static_cast<std::size_t>(unit));
    std::memcpy(&b, slow + start, static_cast<std::size_t>(unit));
    char text[160];
    std::snprintf(text, sizeof text,
                  "  first %s that differs: column %d row %d: fast %08X, reference %08X\n",
                  unit == 2 ? "pixel" : "depth", index % pitch, index / pitch, a, b);
    return text;
}

struct Buffers {
    std::uint8_t* frame;
    std::uint8_t* depth;
    std::uint8_t* frameCopy;
    std::uint8_t* depthCopy;
};

Buffers BuffersOf(RandomStage* stage, const Scene& scene) {
    const int side = scene.side;
    return {stage->frame[side].bytes + scene.frameOffset,
            stage->depth[side].bytes + scene.depthOffset,
            stage->frameCopy[side].data() + scene.frameOffset,
            stage->depthCopy[side].data() + scene.depthOffset};
}

// Draws one triangle both ways; returns what differs.
std::string CompareOne(const RandomStage& stage, const reference::Filler& row, Filler fast,
                       const Scene& scene, const Buffers& buffers, const ScreenPolygon& polygon) {
    ScreenPolygon fastPolygon = polygon;
    ScreenPolygon slowPolygon = polygon;
    const FillTarget fastTarget = {reinterpret_cast<Pixel16*>(buffers.frame),
                                   scene.framePitch,
                                   reinterpret_cast<std::uint32_t*>(buffers.depth),
                                   scene.depthPitch,
                                   scene.level,
                                   scene.clip};
    const reference::Target slowTarget = {reinterpret_cast<Pixel16*>(buffers.frameCopy),
                                          scene.framePitch,
                                          reinterpret_cast<std::uint32_t*>(buffers.depthCopy),
                                          scene.depthPitch,
                                          scene.level,
                                          scene.clip,
                                          stage.blendTables.data()};
    fast(&fastPolygon, fastTarget);
    reference::Fill(row, &slowPolygon, slowTarget);
    std::string failure;
    if (std::memcmp(buffers.frame, buffers.frameCopy, scene.frameSize) != 0) {
        failure += FirstDifference(scene, buffers.frame, buffers.frameCopy, scene.frameSize, 2);
    }
    if (std::memcmp(buffers.depth, buffers.depthCopy, scene.depthSize) != 0) {
        failure += FirstDifference(scene, buffers.depth, buffers.depthCopy, scene.depthSize, 4);
    }
    if (std::memcmp(&fastPolygon, &slowPolygon, sizeof fastPolygon) != 0) {
        failure += "  the polygon is left in different states\n";
    }
    return failure;
}

// The whole memories, what stands outside the frame included.
bool SameOutside(const RandomStage& stage, int side) {
    return std::memcmp(stage.frame[side].bytes, stage.frameCopy[side].data(),
                       stage.frame[side].size) == 0 &&
           std::memcmp(stage.depth[side].bytes, stage.depthCopy[side].data(),
                       stage.depth[side].size) == 0 &&
           GuardIntact(stage.frame[side]) && GuardIntact(stage.depth[side]);
}

std::string CompareScene(RandomStage* stage, const reference::Filler& row, Filler fast,
                         RandomNumbers* source, RandomComparison* result) {
    const Scene scene = RandomScene(stage, source);
    const Buffers buffers = BuffersOf(stage, scene);
    RandomBytes(source, buffers.frame, scene.frameSize);
    RandomDepths(source, row, scene, reinterpret_cast<std::uint32_t*>(buffers.depth));
    std::memcpy(buffers.frameCopy, buffers.frame, scene.frameSize);
    std::memcpy(buffers.depthCopy, buffers.depth, scene.depthSize);
    std::uint8_t before[kMaxFramePitch * kMaxFrameHeight];
    ScreenPolygon polygon = {};
    for (std::int32_t i = 0; i < kTrianglesPerScene; ++i) {
        // Now and then the same triangle again: its depths are equal to those in the buffer.
        if (i == 0 || source->Below(8) != 0) {
            polygon = RandomPolygon(source, row, scene);
        }
        std::memcpy(before, buffers.frame, scene.frameSize);
        const std::string failure = CompareOne(*stage, row, fast, scene, buffers, polygon);
        ++result->triangles;
        const bool drawn = std::memcmp(before, buffers.frame, scene.frameSize) != 0;
        ++(drawn ? result->visible : result->hidden);
        if (!failure.empty()) {
            return "triangle " + std::to_string(i) + ": " + Describe(polygon, scene) + failure;
        }
    }
    if (!SameOutside(*stage, scene.side)) {
        return "bytes outside the frame or the depth buffer were touched\n";
    }
    result->hash = HashBytes(result->hash, buffers.frame, scene.frameSize);
    if (UsesDepth(row)) {
        result->hash = HashBytes(result->hash, buffers.depth, scene.depthSize);
    }
    return "";
}

} // namespace

RandomComparison CompareRandomTriangles(RandomStage* stage, const reference::Filler& row,
                                        Filler fast, std::int32_t scenes) {
    RandomComparison result = {"", 0, 0, 0, 0, kHashStart};
    for (std::int32_t i = 0; i < scenes; ++i) {
        if (i == kFirstScenes) {
            result.firstScenesHash = result.hash;
        }
        const auto number = static_cast<std::uint64_t>(&row - reference::kFillers);
        RandomNumbers source(number * 1000003 + static_cast<std::uint64_t>(i));
        const std::string failure = CompareScene(stage, row, fast, &source, &result);
        if (!failure.empty()) {
            result.failure =
                std::string(row.name) + ", scene " + std::to_string(i) + ", " + failure;
            break;
        }
    }
    if (scenes == kFirstScenes) {
        result.firstScenesHash = result.hash;
    }
    return result;
}

float RandomShare() {
    const char* text = std::getenv("OMBREL_RANDOM_SHARE");
    const float share = text != nullptr ? ParseFloat(text, nullptr) : 1.0F;
    return share > 0.0F && share <= 1.0F ? share : 1.0F;
}

} // namespace ombrel
