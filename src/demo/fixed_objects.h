// The objects that every start-up loads, and how. Rows in the order of loading; positions in world
// units. Start-up walks the table; tools that explain an object look it up.
#pragma once

#include <cstdint>

#include "assets/object_loader.h"
#include "base/single.h"
#include "demo/world.h"

namespace ombrel {

inline constexpr std::uint32_t kFixedOptions = LOAD_SWAP_XZ | LOAD_OBJECT_FRAME | LOAD_TRANSFORM;
static_assert(kFixedOptions == 0x610);

struct FixedObject {
    Mesh World::*mesh;
    const char* path;
    Single scale[3];
    Vec3 position;
    bool shifted; // the x of its vertex 0 grows by kGroundShift
};
// clang-format off
inline constexpr FixedObject kFixedObjects[] = {
    {&World::sky,         "./data/3d/sky-sphere-04.cob",          {1000.0F, 1000.0F, 1000.0F}, {0.0F, 2000.0F, 0.0F, 1.0F}, false},
    {&World::skyAlpha0,   "./data/3d/sky-sphere-04-alpha0.cob",   {1000.0F, 1000.0F, 1000.0F}, {0.0F, 2000.0F, 0.0F, 1.0F}, false},
    {&World::skyAlphaS2,  "./data/3d/sky-sphere-04-alpha-s2.cob", {1000.0F, 1000.0F, 1000.0F}, {0.0F, 2000.0F, 0.0F, 1.0F}, false},
    {&World::stay,        "./data/3d/stay-01.cob",                {1100.0F, 1100.0F, 1100.0F}, {0.0F, -560.0F, 0.0F, 1.0F}, false},
    {&World::ground,      "./data/3d/ground-lowpoly-03.cob",      {  80.0F,  125.0F,  125.0F}, {0.0F,    0.0F, 0.0F, 1.0F}, true},
    {&World::groundAlpha, "./data/3d/ground-lowpoly-03-alpha.cob",{  80.0F,  125.0F,  125.0F}, {0.0F,    0.0F, 0.0F, 1.0F}, true},
};
// clang-format on

// Loaded last, after the scene list, with the same options; stands at the origin.
inline constexpr char kLightMarkerPath[] = "./data/3d/light_debug.cob";
inline constexpr Single kLightMarkerScale[3] = {100.0F, 100.0F, 100.0F};

} // namespace ombrel
