// The limits of what the camera sees, in camera space.
#pragma once

#include "scene/camera.h"

namespace ombrel {

// Bits of the test masks.
inline constexpr std::uint32_t TEST_SIDES = 1;
inline constexpr std::uint32_t TEST_TOP_BOTTOM = 2;
inline constexpr std::uint32_t TEST_DEPTH = 4;

// How far to the side is still seen at depth z; scale is projScale across, projScaleY up and down.
// A larger tangent narrows the view. Negative behind the eye.
inline float SideLimit(float scale, float z, const Camera& camera) {
    return scale * z * 0.5F / camera.tanHalfFov;
}

} // namespace ombrel
