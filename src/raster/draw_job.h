// The request to the rasterizer: one list of projected faces, a frame, a depth buffer and the
// switches that choose one of the 45 fillers for each face.
#pragma once

#include <cstdint>

#include "assets/texture.h"
#include "base/pixel16.h"
#include "base/rect.h"
#include "scene/face_list.h"

namespace ombrel {

// DrawJob::flags. Of the first four the first set one, in this order, is the list kind.
inline constexpr std::uint32_t DRAW_NO_DEPTH = 0x1;
inline constexpr std::uint32_t DRAW_DEPTH_KEYED = 0x2;
inline constexpr std::uint32_t DRAW_INV_DEPTH = 0x4;
inline constexpr std::uint32_t DRAW_DEPTH = 0x8;
inline constexpr std::uint32_t DRAW_MIPMAP = 0x10;
inline constexpr std::uint32_t DRAW_BLEND = 0x20;
inline constexpr std::uint32_t DRAW_PATH_1_ALT = 0x40;
inline constexpr std::uint32_t DRAW_PATH_1 = 0x100;
inline constexpr std::uint32_t DRAW_PATH_2 = 0x200;
inline constexpr std::uint32_t DRAW_PATH_3 = 0x400;
inline constexpr std::uint32_t DRAW_PATH_BY_DISTANCE = 0x800;

// RenderFace::flags as the dispatcher reads them.
inline constexpr std::uint32_t MAT_TRANSLUCENT = 0x2;
inline constexpr std::uint32_t MAT_UNLIT = 0x20;
inline constexpr std::uint32_t MAT_FLAT = 0x40;
inline constexpr std::uint32_t MAT_GOURAUD = 0x80;
inline constexpr std::uint32_t MAT_TEXTURED = 0x200;
inline constexpr std::uint32_t MAT_MIPMAPPED = 0x400;

struct DrawJob {
    std::uint32_t flags;
    FaceList* faces;
    Pixel16* frame;
    std::int32_t framePitch; // bytes
    std::uint32_t* depth;
    std::int32_t depthPitch; // bytes
    std::int32_t level;      // blend level 0..7 for all faces; negative: each face's own
    std::int32_t mipDistance;
    std::int32_t lodDistance;
    Rect clip;
};

// What a filler reads of a face, in the same order as the face has it; one triangle.
// x, y in pixels, z depth, u and v in texels of the texture given here. A filler changes it.
struct ScreenPolygon {
    std::uint32_t state;
    std::uint32_t flags;
    std::uint32_t color;
    std::uint32_t litColors[3];
    TextureSlot texture; // always .single
    Vertex vertices[3];
};

// Draws every drawable face of the list, in list order. Draws nothing without a list kind.
void DrawFaces(const DrawJob* job);

} // namespace ombrel
