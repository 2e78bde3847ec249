// What both scenes do in a frame: gather the faces of their objects, and draw them. Each scene
// calls the gathering functions in its own order, PlayScene the others.
#pragma once

#include <array>
#include <cstdint>

#include "demo/world.h"
#include "platform/display.h"
#include "raster/draw_job.h"
#include "scene/front_end.h"

namespace ombrel {

// One step of a big slow object (the skies, the stand): reset, then -0.02 degrees about Y, which
// adds up from frame to frame.
void TurnObject(Mesh* object);
// The objects whose stored vertices change from frame to frame: those that TurnObject turns, and
// the two of the scene list. Null where the list has none.
std::array<Mesh*, 6> TurningObjects(World* scene);
// Adds the faces of an object, if its bounding sphere is in sight.
void AddObjectInSight(FrontEnd* front, Mesh* object, const Camera& camera);
// The field: gridSize x gridSize places 1000 apart around the origin, without the four corners, the
// same object at each that is in sight. An odd size counts as the even one below it.
void AddGroundTiles(FrontEnd* front, Mesh* tile, const Camera& camera, std::int32_t gridSize);
// The scene-list objects in sight but the last; the third and second before the end turn.
void AddListObjects(FrontEnd* front, World* scene);

// Whether faces are culled, lit and sorted, and by how many lights, as the switches have it. Camera
// and lights must have their places of the frame before StartFaces.
FaceSettings FaceSettingsOf(World* scene, const SceneSwitches& set);

// What both scenes ask of the dispatcher: inverse depth, affine texels, blending, and mip levels of
// faces that have them.
inline constexpr std::uint32_t kSceneJobFlags =
    DRAW_INV_DEPTH | DRAW_MIPMAP | DRAW_BLEND | DRAW_PATH_1;
static_assert(kSceneJobFlags == 0x134);

enum class View { Nothing, Dots, Wire, Filled };
// Draws the mapped list into the locked back surface; does nothing when it is not locked.
void DrawView(FaceList* list, World* scene, View view);

} // namespace ombrel
