// What the fused front end does to many corners at a time: placing and lighting. One table an
// instruction set. Caller: fused.cpp.
#pragma once

#include "scene/geometry.h"

namespace ombrel {

// Bit of PlacedVertex::outside beside the OUTSIDE_ ones of geometry.h: a face with such a corner is
// cut.
inline constexpr std::uint32_t OUTSIDE_BAND = 64;

// A corner of a mesh at its place in the world and on the screen.
struct PlacedVertex {
    Single x, y, z; // world
    std::uint32_t outside;
    Single screenX, screenY; // pixels; of no meaning where OUTSIDE_BAND is set
    Single depth;            // z in camera space
    std::int32_t point;      // -1; the caller's
};
static_assert(sizeof(PlacedVertex) == 32); // written in two halves of four words

// Points to be lit, an array a word.
inline constexpr std::int32_t kMaxLitPoints = 3 * kMaxMeshFaces + 16;
struct LitPoints {
    Single x[kMaxLitPoints], y[kMaxLitPoints], z[kMaxLitPoints];
    Single nx[kMaxLitPoints], ny[kMaxLitPoints], nz[kMaxLitPoints];
    Single size[kMaxLitPoints];        // as in LitPoint
    std::uint32_t base[kMaxLitPoints]; // 5-6-5
    std::uint32_t lit[kMaxLitPoints];  // the result, a packed pixel
};

struct FrontEndKernels {
    // Stored vertices, shifted: to the world, to pixels, and tested against the view volume and the
    // guard band. to has room for count + 7.
    void (*placeVertices)(const Vertex* from, std::int32_t count, const Vec3& shift,
                          const CameraView& view, PlacedVertex* to);
    // Lights the first count points; up to 7 more may be computed. fiveBitGreen: packs 5-5-5
    // instead of 5-6-5.
    void (*lightPoints)(LitPoints* points, std::int32_t count, const LightTable& lights,
                        bool fiveBitGreen);
};

// Sees nothing: meshes are not even gone through, and the list stays empty.
inline constexpr FrontEndKernels kBlindFrontEnd = {nullptr, nullptr};

extern const FrontEndKernels kSse41Kernels;
extern const FrontEndKernels kAvx2Kernels;
extern const FrontEndKernels kNeonKernels;
extern const FrontEndKernels kWasmKernels;

} // namespace ombrel
