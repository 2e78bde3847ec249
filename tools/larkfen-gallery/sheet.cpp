// Draws the gallery with the program's own fillers, dispatcher and pipeline.
#include "sheet.h"

#include <memory>
#include <string>
#include <utility>

#include "assets/bmp.h"
#include "base/float_mode.h"
#include "base/rect.h"
#include "demo/face_views.h"
#include "math/vec3.h"
#include "platform/display.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "scene/light.h"
#include "scene/pipeline.h"
#include "tiny_font.h"

namespace gallery {

using namespace ombrel;

namespace {

constexpr std::int32_t kGap = 6, kLabel = 14, kHeading = 20, kTextureWidth = 64, kMipWidth = 128;
constexpr std::int32_t kLargestLevel = 7;

constexpr Pixel16 Rgb(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return static_cast<Pixel16>(PackRgb565(r, g, b));
}
constexpr Pixel16 kPaper = Rgb(16, 18, 28), kInk = Rgb(208, 212, 224), kTitle = Rgb(255, 200, 96);

// What the cells share, and where the next one goes.
struct Gallery {
    Sheet sheet;
    std::int32_t x, y;
    std::vector<std::uint32_t> depth;
    Texture texture, mipTexture;
    Texture** mipChain;
    std::unique_ptr<FaceList> list;
};

// --- cells
// ----------------------------------------------------------------------------------------

void BeginSection(Gallery* g, const char* title) {
    if (g->x != kGap) {
        g->x = kGap;
        g->y += kCellHeight + kLabel;
    }
    DrawText(&g->sheet, kGap, g->y + 8, title, kTitle);
    g->y += kHeading;
}

// Draws backdrop and label of the next cell, clears the depth buffer; returns the cell's frame.
Pixel16* BeginCell(Gallery* g, const std::string& label, std::string_view rule) {
    if (g->x + kCellWidth > g->sheet.width) {
        g->x = kGap;
        g->y += kCellHeight + kLabel;
    }
    for (std::int32_t y = 0; y < kCellHeight; ++y) {
        for (std::int32_t x = 0; x < kCellWidth; ++x) {
            const bool band = ((x + y) >> 3 & 1) != 0;
            *g->sheet.At(g->x + x, g->y + y) = band ? Rgb(40, 52, 84) : Rgb(28, 36, 60);
        }
    }
    DrawText(&g->sheet, g->x, g->y + kCellHeight + 3, label, kInk);
    const std::uint32_t clear = rule == "W" ? 0U : 0xFFFFFFFFU;
    g->depth.assign(std::size_t{kCellWidth} * kCellHeight, clear);
    Pixel16* frame = g->sheet.At(g->x, g->y);
    g->x += kCellWidth + kGap;
    return frame;
}

constexpr Rect kCell{0, 0, kCellWidth, kCellHeight};

FillTarget TargetOf(Gallery* g, Pixel16* frame, std::uint32_t level) {
    return {frame, g->sheet.Pitch(), g->depth.data(), kCellWidth * 4, level, kCell};
}

// --- textures
// -------------------------------------------------------------------------------------

// Coloured checks with a bright rim; a ring of the colour key (texel 0) in the middle.
Pixel16 TexelOf(std::int32_t x, std::int32_t y, std::int32_t width) {
    const std::int32_t cx = 2 * x + 1 - width, cy = 2 * y + 1 - width;
    const std::int32_t far = (cx * cx + cy * cy) * 64 / (width * width); // 0 at the centre
    if (far >= 12 && far < 22) {
        return 0;
    }
    const std::int32_t rim = width / 16;
    if (x < rim || y < rim || x >= width - rim || y >= width - rim) {
        return Rgb(255, 248, 216);
    }
    const bool check = ((x * 8 / width) + (y * 8 / width)) % 2 != 0;
    const auto along = static_cast<std::uint32_t>(x * 255 / width);
    const auto down = static_cast<std::uint32_t>(y * 255 / width);
    return check ? Rgb(255 - along / 2, 120 + down / 2, 64)
                 : Rgb(48 + along / 3, 96, 255 - down / 2);
}

bool MakeTexture(Texture* texture, std::int32_t width) {
    if (createTexture(texture, {0, 0, width, width, 16}) == 0) {
        return false;
    }
    auto* texels = static_cast<Pixel16*>(texture->pixels);
    for (std::int32_t y = 0; y < width; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            *texels++ = TexelOf(x, y, width);
        }
    }
    texture->texFlags |= TEX_FILLED;
    return true;
}

// --- the 45 fillers
// -------------------------------------------------------------------------------

struct Spot {
    float x, y, z, u, v;
    std::uint32_t color;
};
using Triangle = Spot[3];

// A floor that runs into the distance, and two blades that cut through each other above it.
constexpr Triangle kFloor[2] = {
    {{4, 92, 40, 0, 63, 0xFFFF}, {58, 40, 160, 0, 0, 0x7BEF}, {148, 92, 40, 63, 63, 0xFFFF}},
    {{148, 92, 40, 63, 63, 0xFFFF}, {58, 40, 160, 0, 0, 0x7BEF}, {94, 40, 160, 63, 0, 0x7BEF}},
};
constexpr Triangle kBlades[2] = {
    {{14, 76, 46, 0, 63, 0xFD20}, {70, 5, 56, 32, 0, 0xFFE0}, {126, 70, 110, 63, 63, 0xF81F}},
    {{138, 60, 48, 63, 32, 0x07FF}, {34, 10, 90, 0, 0, 0x07E0}, {48, 86, 70, 0, 63, 0x52BF}},
};

void DrawTriangle(Gallery* g, FillerId id, const Triangle& triangle, const FillTarget& target) {
    ScreenPolygon polygon{};
    polygon.texture.single = &g->texture;
    for (int i = 0; i < 3; ++i) {
        const Spot& spot = triangle[i];
        Vertex& vertex = polygon.vertices[i];
        vertex.x = spot.x;
        vertex.y = spot.y;
        vertex.z = spot.z;
        vertex.u = spot.u;
        vertex.v = spot.v;
        polygon.litColors[i] = spot.color;
    }
    activeFillers[static_cast<int>(id)](&polygon, target);
}

void DrawFillers(Gallery* g) {
    BeginSection(g, "The 45 fillers on the same four triangles, blended ones at level 4 of 7");
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        Pixel16* frame = BeginCell(g, kFillerTable[id].name, kFillerTable[id].depth);
        const FillTarget target = TargetOf(g, frame, 4);
        for (const Triangle& triangle : kFloor) {
            DrawTriangle(g, static_cast<FillerId>(id), triangle, target);
        }
        for (const Triangle& triangle : kBlades) {
            DrawTriangle(g, static_cast<FillerId>(id), triangle, target);
        }
    }
}

void DrawBlendLevels(Gallery* g) {
    BeginSection(g, "Blend levels 0 to 7, FillTexGouraudWBlend over FillTexWSpan");
    for (std::uint32_t level = 0; level <= kLargestLevel; ++level) {
        Pixel16* frame = BeginCell(g, "level " + std::to_string(level), "W");
        for (const Triangle& triangle : kFloor) {
            DrawTriangle(g, FillerId::FillTexWSpan, triangle, TargetOf(g, frame, level));
        }
        for (const Triangle& triangle : kBlades) {
            DrawTriangle(g, FillerId::FillTexGouraudWBlend, triangle, TargetOf(g, frame, level));
        }
    }
}

// --- what comes through the dispatcher
// ------------------------------------------------------------

void DrawList(Gallery* g, Pixel16* frame, std::uint32_t flags) {
    DrawJob job{};
    job.flags = flags;
    job.faces = g->list.get();
    job.frame = frame;
    job.framePitch = g->sheet.Pitch();
    job.depth = g->depth.data();
    job.depthPitch = kCellWidth * 4;
    job.level = -1;
    job.clip = kCell;
    job.mipDistance = 700; // 100 a level of the mip chain
    DrawFaces(&job);
}

// A square over the whole cell; the dispatcher takes the level from its depth.
void DrawMipLevels(Gallery* g) {
    BeginSection(g, "Mip levels, chosen by depth");
    constexpr float kSquare[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    for (std::int32_t level = 0; level <= kLargestLevel; ++level) {
        const std::string size = std::to_string(kMipWidth >> level);
        std::string label = "level " + std::to_string(level);
        label.append(", ").append(size).append(" x ").append(size);
        Pixel16* frame = BeginCell(g, label, "W");
        FaceListClear(g->list.get());
        for (int half = 0; half < 2; ++half) {
            RenderFace& face = g->list->records[half];
            face = {};
            face.state = FACE_LIVE;
            face.flags = FACE_TEXTURED | FACE_MIPMAPPED | FACE_CONSTANT;
            face.texture.chain = g->mipChain;
            for (int i = 0; i < 3; ++i) {
                const float* corner = kSquare[half == 0 ? i : (i + 2) % 4];
                FaceCorner& vertex = face.work[i];
                vertex.x = 28.0F + corner[0] * 96.0F;
                vertex.y = corner[1] * 96.0F;
                vertex.z = static_cast<float>(level) * 100.0F + 50.0F;
                vertex.u = corner[0] * (kMipWidth - 1);
                vertex.v = corner[1] * (kMipWidth - 1);
            }
            g->list->count = half + 1;
        }
        DrawList(g, frame, DRAW_INV_DEPTH | DRAW_MIPMAP | DRAW_PATH_1);
    }
}

// --- lights, dots and wires
// -----------------------------------------------------------------------

constexpr float kBallRadius = 62.0F, kBallY = 4.0F, kBallZ = 170.0F, kGroundY = -64.0F;
constexpr std::int32_t kRings = 12, kSegments = 20, kTiles = 8;

void AddFace(FaceList* list, std::uint32_t flags, const Vertex corners[3], Pixel16 color) {
    Vertex vertices[3] = {corners[0], corners[1], corners[2]};
    Face face{};
    face.active = FACE_LIVE;
    face.flags = flags;
    face.color = color;
    face.vertexArray = vertices;
    face.v1 = 1;
    face.v2 = 2;
    // Twice the area: the length of the cross product of two sides.
    const Vec3 a = {vertices[0].x, vertices[0].y, vertices[0].z, 1};
    const Vec3 b = {vertices[1].x, vertices[1].y, vertices[1].z, 1};
    const Vec3 c = {vertices[2].x, vertices[2].y, vertices[2].z, 1};
    Vec3 ab, ac, cross;
    Vec3Sub(&a, &b, &ab);
    Vec3Sub(&a, &c, &ac);
    Vec3Cross(&ab, &ac, &cross);
    face.size = Vec3Length(&cross);
    FaceListAdd(list, &face);
}

Vertex BallVertex(std::int32_t ring, std::int32_t segment) {
    const float tilt = 180.0F * static_cast<float>(ring) / kRings;
    const float turn = 360.0F * static_cast<float>(segment) / kSegments;
    Vertex vertex{};
    vertex.nx = SinDeg(tilt) * CosDeg(turn);
    vertex.ny = CosDeg(tilt);
    vertex.nz = SinDeg(tilt) * SinDeg(turn);
    vertex.x = vertex.nx * kBallRadius;
    vertex.y = vertex.ny * kBallRadius + kBallY;
    vertex.z = vertex.nz * kBallRadius + kBallZ;
    vertex.w = 1.0F;
    return vertex;
}

Vertex GroundVertex(std::int32_t i, std::int32_t j) {
    Vertex vertex{};
    vertex.x = (static_cast<float>(i) - kTiles / 2.0F) * 60.0F;
    vertex.y = kGroundY;
    vertex.z = 80.0F + static_cast<float>(j) * 40.0F;
    vertex.w = 1.0F;
    return vertex;
}

// A gouraud-lit ball over flat-lit ground, in world space.
void GatherBall(FaceList* list) {
    FaceListClear(list);
    for (std::int32_t ring = 0; ring < kRings; ++ring) {
        for (std::int32_t segment = 0; segment < kSegments; ++segment) {
            const Vertex a = BallVertex(ring, segment), b = BallVertex(ring, segment + 1);
            const Vertex c = BallVertex(ring + 1, segment), d = BallVertex(ring + 1, segment + 1);
            const Vertex upper[3] = {a, b, d}, lower[3] = {a, d, c};
            AddFace(list, FACE_PLASTIC, upper, 0xFFFF);
            AddFace(list, FACE_PLASTIC, lower, 0xFFFF);
        }
    }
    for (std::int32_t j = 0; j < kTiles; ++j) {
        for (std::int32_t i = 0; i < kTiles; ++i) {
            const Vertex a = GroundVertex(i, j), b = GroundVertex(i + 1, j);
            const Vertex c = GroundVertex(i, j + 1), d = GroundVertex(i + 1, j + 1);
            const Vertex near[3] = {a, c, b}, far[3] = {b, c, d};
            const Pixel16 color = (i + j) % 2 != 0 ? Rgb(248, 240, 220) : Rgb(150, 160, 190);
            AddFace(list, FACE_MATTE, near, color);
            AddFace(list, FACE_MATTE, far, color);
        }
    }
}

// Lights, culls and projects the list as the production does.
void RunPipeline(FaceList* list, const Light* lights, std::int32_t count) {
    CameraSetup setup{};
    setup.mode = 8;
    setup.zNear = 10.0F;
    setup.zFar = 2000.0F;
    setup.fov = 90.0F;
    setup.screenWidth = static_cast<float>(kCellWidth);
    setup.screenHeight = static_cast<float>(kCellHeight);
    Camera camera{};
    CameraInit(&camera, setup);
    CameraBuildView(&camera, 4);
    CullBackFaces(list, &camera);
    LightFaces(list, &camera, {lights, count}, PackRgb565);
    TransformPolygonsToCamera(list, &camera);
    ClipPolygons(list, &camera, 7);
    ProjectPolygons(list, &camera);
    MapPolygonsToScreen(list, &camera);
}

// clang-format off
struct LightCell {
    const char* label;
    std::uint32_t kind, ambientColor, lightColor;
    Vec3 position, direction;
    float c0, c1, exponent;
};
constexpr LightCell kLights[] = {
//   label         kind               ambient                       light                         position             direction         c0    c1      exponent
    {"ambient",    LIGHT_AMBIENT,     PackLightColor(84, 80, 68), 0,                            {0, 0, 0, 1},        {0, 0, 0, 1},     0.0F, 0.0F,   0},
    {"directional",LIGHT_DIRECTIONAL, 0,                            PackLightColor(150, 142, 112),{0, 0, 0, 1},        {-2, 3, -2, 1},   0.0F, 0.0F,   0},
    {"point",      LIGHT_POINT,       0,                            PackLightColor(255, 128, 32), {90, 60, 80, 1},     {0, 0, 0, 1},     1.0F, 0.006F, 0},
    {"attenuated", LIGHT_ATTENUATED,  0,                            PackLightColor(64, 160, 255), {-120, 40, 90, 1},   {-1, 2, -1, 1},   0.6F, 0.01F,  0},
    {"spot",       LIGHT_SPOT,        0,                            PackLightColor(255, 64, 200), {40, -220, 420, 1},  {0, 0.6F, -0.8F, 1}, 0.8F, 0.001F, 12},
};
// clang-format on
constexpr std::int32_t kLightCount = 5;

void DrawLights(Gallery* g) {
    BeginSection(g, "The five lights, alone and together, corner dots and wires");
    Light lights[kLightCount] = {};
    for (std::int32_t i = 0; i < kLightCount; ++i) {
        const LightCell& cell = kLights[i];
        Light values{};
        values.enabled = 1;
        values.kind = cell.kind;
        values.ambientColor = cell.ambientColor;
        values.lightColor = cell.lightColor;
        values.sourcePosition = cell.position;
        values.sourceDirection = cell.direction;
        values.c0 = cell.c0;
        values.c1 = cell.c1;
        values.exponent = cell.exponent;
        SetLight(&lights[i], values);
    }
    FaceList* list = g->list.get();
    for (std::int32_t i = 0; i <= kLightCount; ++i) {
        const bool all = i == kLightCount;
        Pixel16* frame = BeginCell(g, all ? "all five" : kLights[i].label, "W");
        GatherBall(list);
        RunPipeline(list, all ? lights : &lights[i], all ? kLightCount : 1);
        DrawList(g, frame, DRAW_INV_DEPTH | DRAW_PATH_1);
    }
    DrawFaceListDots(list, {BeginCell(g, "dots", "W"), g->sheet.Pitch(), kCell});
    DrawFaceListWire(list, {BeginCell(g, "wires", "W"), g->sheet.Pitch(), kCell});
}

} // namespace

Sheet DrawGallery() {
    // The blend tables and the table of angles are made before truncation is set.
    BuildBlendTables(kBlendTableCount, &BlendTables[0][0]);
    InitTrigTables();
    const ScopedFloatMode mode(FloatMode::Chop);
    constexpr std::int32_t kRows = (kFillerCount + kColumns - 1) / kColumns + 3;
    Gallery g{};
    g.sheet.width = kColumns * (kCellWidth + kGap) + kGap;
    g.sheet.height = kRows * (kCellHeight + kLabel) + 4 * kHeading + kGap;
    g.sheet.pixels.assign(
        static_cast<std::size_t>(g.sheet.width) * static_cast<std::size_t>(g.sheet.height), kPaper);
    g.x = kGap;
    g.list = std::make_unique<FaceList>();
    if (!MakeTexture(&g.texture, kTextureWidth) || !MakeTexture(&g.mipTexture, kMipWidth) ||
        buildMipChain(&g.mipTexture, &g.mipChain, 1.01F) == 0) {
        return {};
    }
    DrawFillers(&g);
    DrawBlendLevels(&g);
    DrawMipLevels(&g);
    DrawLights(&g);
    releaseMipChain(g.mipChain);
    releaseTexture(&g.mipTexture);
    releaseTexture(&g.texture);
    return std::move(g.sheet);
}

} // namespace gallery
