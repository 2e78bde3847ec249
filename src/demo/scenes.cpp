// The order of a frame, the same for both scenes.
#include "demo/scenes.h"

#include "base/shell_state.h"
#include "demo/blur.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "platform/display.h"

namespace ombrel {

// clang-format off
const Scene kScenes[kSceneCount] = {
//   started            start          step          gather          view            overlay
    {&sceneOne.started, StartSceneOne, StepSceneOne, GatherSceneOne, ViewOfSceneOne, OverlaySceneOne},
    {&sceneTwo.started, StartSceneTwo, StepSceneTwo, GatherSceneTwo, ViewOfSceneTwo, OverlaySceneTwo},
};
// clang-format on

void PlayScene(const Scene& scene) {
    if (!*scene.started) {
        *scene.started = true;
        scene.start();
    }
    if (!scene.step()) {
        return;
    }

    // Bring the faces to the screen.
    FrontEnd front;
    StartFaces(&front, &sceneFaces, FaceSettingsOf(&world, switches));
    scene.gather(&front);
    FinishFaces(&front);

    // Draw them, then what stands over them.
    LockFrame();
    DrawView(&sceneFaces, &world, scene.view());
    if (switches.blur == 1) {
        BlurFrame(display.back.pixels, world.pitchPixels, shell.screenWidth, shell.screenHeight);
    }
    UnlockFrame();
    scene.overlay();
}

} // namespace ombrel
