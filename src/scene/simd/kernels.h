// What the fused front end does to many corners at a time: placing and lighting. One table an
// instruction set; each gives the bits of the plain functions that it stands for. Caller:
// front_end.cpp.
#pragma once

#include <cstdint>

#include "scene/face_list.h"
#include "scene/light.h"

namespace ombrel {

// Bit of PlacedVertex::outside beside the OUTSIDE_ ones of scissors.h: a face with such a corner
// goes through the scissors.
inline constexpr std::uint32_t OUTSIDE_BAND = 64;

// A corner of a mesh at its place in the world and on the screen.
struct PlacedVertex {
    float x, y, z; // world
    std::uint32_t outside;
    float screenX, screenY; // pixels; of no meaning where OUTSIDE_BAND is set
    float depth;            // z in camera space
    std::int32_t point;     // -1; the caller's
};
static_assert(sizeof(PlacedVertex) == 32);

// What of camera and mesh goes into placing.
struct Placement {
    Vec3 shift;   // of the mesh
    Matrix4 view; // world to camera
    float projScale, projScaleY, tanHalfFov;
    float zNear, zFar;
    float scaleX, scaleY, left, right, top, bottom; // the guard band, as in Scissors
    float aspectTan;                                // aspect * tanHalfFov
    float centerX, centerY;                         // half of the last column and row
};

// Points to be lit, an array a word. size divides the factors: that of the face where the normal is
// its cross product, 1 where it is a corner's.
inline constexpr std::int32_t kMaxLitPoints = 3 * kMaxMeshFaces + 16;
struct LitPoints {
    float x[kMaxLitPoints], y[kMaxLitPoints], z[kMaxLitPoints];
    float nx[kMaxLitPoints], ny[kMaxLitPoints], nz[kMaxLitPoints];
    float size[kMaxLitPoints];
    std::uint32_t base[kMaxLitPoints]; // 5-6-5
    std::uint32_t lit[kMaxLitPoints];  // the result, a packed pixel
};

struct LitFrame {
    const Light* lights;
    std::int32_t count;
    bool fiveBitGreen; // pack 5-5-5 instead of 5-6-5
};

struct FrontEndKernels {
    // What MeshTranslate, TransformPolygonsToCamera, the tests of ClipPolygons, ProjectPolygons and
    // MapPolygonsToScreen make of a corner. to has room for count + 7.
    void (*placeVertices)(const Vertex* from, std::int32_t count, const Placement& placement,
                          PlacedVertex* to);
    // Lights the first count points as LightFaces does; up to 7 more may be computed.
    void (*lightPoints)(LitPoints* points, std::int32_t count, const LitFrame& frame);
};

extern const FrontEndKernels kSse41Kernels;
extern const FrontEndKernels kAvx2Kernels;

} // namespace ombrel
