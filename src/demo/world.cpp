// Definitions of the world, its face list and its switches, with their initial values.
#include "demo/world.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "assets/object_loader.h"

namespace ombrel {

namespace {

constexpr World InitialWorld() {
    World initial{};
    initial.objectCounter = kFirstSceneObject;
    return initial;
}
constexpr World kInitialWorld = InitialWorld();

constexpr SceneSwitches kInitialSwitches{1, 1, 1, 1, -1, -1, -1, 5, 1, 0};

} // namespace

constinit World world = kInitialWorld;
constinit FaceList sceneFaces = {};
constinit SceneSwitches switches = kInitialSwitches;

void ResetSceneWorld() {
    for (Mesh* const mesh : {&world.sky, &world.skyAlpha0, &world.skyAlphaS2, &world.stay,
                             &world.ground, &world.groundAlpha, &world.lightMarker}) {
        releaseObject(mesh);
    }
    for (Mesh& mesh : world.objects) {
        releaseObject(&mesh);
    }
    std::free(world.depth);
    world = kInitialWorld;
    // Far too large for a copy of a start value on the stack.
    std::memset(&sceneFaces, 0, sizeof sceneFaces);
    switches = kInitialSwitches;
}

} // namespace ombrel
