// Definitions of the process-wide variables that belong to demo, with their initial values.
#include "demo/world.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "assets/bmp.h"
#include "assets/object_loader.h"
#include "base/memory_reserve.h"
#include "demo/font.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/soundtrack.h"
#include "demo/startup.h"

namespace ombrel {

namespace {

constexpr World InitialWorld() {
    World initial{};
    initial.objectCounter = kFirstSceneObject;
    return initial;
}
constexpr World kInitialWorld = InitialWorld();

constexpr SceneSwitches kInitialSwitches{1, 1, 1, 1, -1, -1, -1, 5, 1, 0};

constexpr float kFirstSpeeds[kGreetingColumns] = {0.0356464F, 0.0243451F, 0.0245641F,
                                                  0.0198741F, 0.0304854F, 0.0446551F};

constexpr SceneTwoState InitialSceneTwo() {
    SceneTwoState initial{};
    initial.lightPhase = 60.0F;
    initial.gridSize = 8;
    for (int k = 0; k < kGreetingColumns; ++k) {
        initial.columns[k] = {0.0F, kFirstSpeeds[k], 0, true};
    }
    return initial;
}
constexpr SceneTwoState kInitialSceneTwo = InitialSceneTwo();

} // namespace

constinit World world = kInitialWorld;
constinit FaceList sceneFaces = {};
constinit SceneSwitches switches = kInitialSwitches;
constinit StartUpState startUp = {};
constinit SoundtrackState soundtrack = {};
constinit Fonts fonts = {};
constinit BmpImage fontImage = {};
constinit SceneOneState sceneOne = {};
constinit SceneTwoState sceneTwo = kInitialSceneTwo;

namespace {

// Frees what start-up made.
void ReleaseWorld() {
    for (Mesh* const mesh : {&world.sky, &world.skyAlpha0, &world.skyAlphaS2, &world.stay,
                             &world.ground, &world.groundAlpha, &world.lightMarker}) {
        releaseObject(mesh);
    }
    for (Mesh& mesh : world.objects) {
        releaseObject(&mesh);
    }
    std::free(world.depth);
    ReleaseGlyphSet(&fonts.big);
    ReleaseGlyphSet(&fonts.small);
    releaseBmp(&fontImage);
    world = kInitialWorld;
}

} // namespace

void ResetDemo() {
    ReleaseWorld();
    ResetMemoryReserve();
    // Far too large for a copy of a start value on the stack.
    std::memset(&sceneFaces, 0, sizeof sceneFaces);
    switches = kInitialSwitches;
    startUp = StartUpState{};
    soundtrack = SoundtrackState{};
    fontImage = BmpImage{};
    std::memset(static_cast<void*>(&sceneOne), 0, sizeof sceneOne);
    sceneTwo = kInitialSceneTwo;
}

} // namespace ombrel
