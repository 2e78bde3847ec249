// The order of a frame, the same for both scenes.
#include "demo/scenes.h"

#include "base/shell_state.h"
#include "demo/blur.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "platform/display.h"

namespace ombrel {

// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init): of the states only the addresses
const Scene kScenes[kSceneCount] = {
//   started            start          step          gather          view            overlay
    {&sceneOne.started, StartSceneOne, StepSceneOne, GatherSceneOne, ViewOfSceneOne, OverlaySceneOne},
    {&sceneTwo.started, StartSceneTwo, StepSceneTwo, GatherSceneTwo, ViewOfSceneTwo, OverlaySceneTwo},
};
// clang-format on

constinit FrameProbe frameProbe = nullptr;

void ResetFrameProbe() {
    frameProbe = nullptr;
}

namespace {

void Begin(FramePart part) {
    if (frameProbe != nullptr) {
        frameProbe(part);
    }
}

} // namespace

void PlayScene(const Scene& scene) {
    Begin(FramePart::Step);
    if (!*scene.started) {
        *scene.started = true;
        scene.start();
    }
    if (!scene.step()) {
        return;
    }

    // Bring the faces to the screen.
    Begin(FramePart::FrontEnd);
    FrontEnd front;
    StartFaces(&front, &sceneFaces, FaceSettingsOf(&world, switches));
    scene.gather(&front);
    FinishFaces(&front);

    // Draw them, then what stands over them.
    Begin(FramePart::Raster);
    LockFrame();
    DrawView(&sceneFaces, &world, scene.view());
    Begin(FramePart::Blur);
    if (switches.blur == 1) {
        BlurFrame(display.back.pixels, world.pitchPixels, shell.screenWidth, shell.screenHeight);
    }
    UnlockFrame();
    Begin(FramePart::Texts);
    scene.overlay();
    Begin(FramePart::Rest);
}

} // namespace ombrel
