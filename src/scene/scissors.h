// The near plane and the guard band: what of a face is cut off. Shared by ClipPolygons and the
// fused front end.
#pragma once

#include "scene/camera.h"
#include "scene/face_list.h"

namespace ombrel {

// Larger coordinates are no place to be: they come from broken data, and so does NaN.
inline constexpr float kLargestCoordinate = 1.0e9F;

// Bits of a corner beyond the view volume.
inline constexpr std::uint32_t OUTSIDE_RIGHT = 1;
inline constexpr std::uint32_t OUTSIDE_LEFT = 2;
inline constexpr std::uint32_t OUTSIDE_TOP = 4;
inline constexpr std::uint32_t OUTSIDE_BOTTOM = 8;
inline constexpr std::uint32_t OUTSIDE_FAR = 16;
inline constexpr std::uint32_t OUTSIDE_NEAR = 32;

// Kept is what has x * v.x + y * v.y + z * v.z >= limit.
struct Plane {
    float x, y, z, limit;
    bool isNear; // a cut lies at z = limit exactly
};

// The band in units of depth: a corner is inside while -left * z <= x * scaleX <= right * z and
// -bottom * z <= y * scaleY <= top * z.
struct Scissors {
    float zNear;
    float scaleX, scaleY;
    float left, right, top, bottom;
    Plane planes[5]; // near first
};
Scissors MakeScissors(const Camera& camera);

// Cuts one face of the list, in camera space. What is left over of it after its first triangle goes
// to the end of the list, as long as there is room, which counts down; FACE_OUTSIDE when nothing is
// left.
void CutFace(FaceList* list, RenderFace* face, const Scissors& scissors, std::int32_t* room);

} // namespace ombrel
