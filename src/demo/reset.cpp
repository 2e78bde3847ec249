// Calls the reset of every folder.
#include "demo/reset.h"

#include "assets/mesh.h"
#include "assets/object_loader.h"
#include "base/float_mode.h"
#include "base/memory_reserve.h"
#include "base/pixel16.h"
#include "base/random15.h"
#include "base/rect.h"
#include "base/shell_state.h"
#include "demo/blur.h"
#include "demo/font.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/scenes.h"
#include "demo/soundtrack.h"
#include "demo/startup.h"
#include "demo/world.h"
#include "math/vec3.h"
#include "platform/display.h"
#include "platform/sound.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "scene/camera.h"
#include "scene/front_end.h"

namespace ombrel {

void ResetWorld() {
    ResetSceneWorld();
    ResetFonts();
    ResetSceneOne();
    ResetSceneTwo();
    ResetStartUp();
    ResetSoundtrack();
    ResetMemoryReserve();
    ResetTrackState();
    ResetMaterials();
    ResetObjectLoader();
    ResetBlendTables();
    ResetFillers();
    ResetFrontEnd();
    ResetBlur();
    ResetFrameProbe();
    ResetTrigTables();
    ResetDisplayState();
    ResetRandom15();
    ResetShellState();
    UseSoundCalls(nullptr);
    SetFloatMode(FloatMode::Nearest);
}

} // namespace ombrel
