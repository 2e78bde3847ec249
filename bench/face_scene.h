// What the measurements of the steps before the fillers share: numbers, camera and lights.
#pragma once

#include <cstdint>

#include "scene/camera.h"
#include "scene/light.h"

namespace ombrel {

// The same numbers in every run.
struct Numbers {
    std::uint64_t state;
    // -1 to below 1.
    float Signed() {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<float>(state >> 39) * 0x1p-24F - 1.0F;
    }
};

// At the origin, looking along z, 90 degrees, 640 x 480; fills the tables of angles too.
void MakeFaceCamera(Camera* camera);

// An ambient light, a sun and three lamps in the first five of kMaxLights lights; the others are
// off.
constexpr std::int32_t kFaceLights = 5;
void MakeFaceLights(Light* lights);

} // namespace ombrel
