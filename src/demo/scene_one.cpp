// Scene one, step by step.
#include "demo/scene_one.h"

#include <cstring>

#include "base/convert.h"
#include "base/shell_state.h"
#include "demo/font.h"
#include "demo/texts.h"
#include "platform/display.h"

namespace ombrel {

namespace {

constexpr Single kStartFov = 146.5F;
constexpr std::int32_t kLights = 2;
constexpr std::int32_t kLastSegment = 31; // the next one belongs to scene two
constexpr std::int32_t kBuildOrder = 4;

constexpr Single kFadeEnd = 128.4F; // for the green of light 0
constexpr Single kAmbientStep[3] = {0.225F, 0.2F, 0.225F};
constexpr Single kLightStep[3] = {0.3609375F, 0.3421875F, 0.2703125F};

constexpr Single kBoxSide = 3500.0F; // |x|, |z| and y stay below it
constexpr Single kBoxFloor = -100.0F;
constexpr std::int32_t kGridInside = 8;
constexpr std::int32_t kGridOutside = 6;
constexpr std::uint32_t kWhite = 0xFFFF;

constexpr TextPlace kTitlePlace{210.0F, 200.0F, 20};
constexpr TextPlace kSubtitlePlace{100.0F, 240.0F, 12};

std::uint32_t PackFade(const Single fade[3]) {
    return PackLightColor(static_cast<std::uint32_t>(ToIntChop(fade[0])),
                          static_cast<std::uint32_t>(ToIntChop(fade[1])),
                          static_cast<std::uint32_t>(ToIntChop(fade[2])));
}

void FadeLights() {
    if (sceneOne.ambientFade[1] > kFadeEnd) {
        sceneOne.titleDone = true;
        return;
    }
    world.lights[0].ambientColor = PackFade(sceneOne.ambientFade);
    world.lights[1].lightColor = PackFade(sceneOne.lightFade);
    for (int i = 0; i < 3; ++i) {
        sceneOne.ambientFade[i] += kAmbientStep[i];
        sceneOne.lightFade[i] += kLightStep[i];
    }
}

// REQUIRED R43: the eye is that of the frame before; the camera moves later in the frame.
void TestBox() {
    const Vec3& eye = world.camera.position;
    sceneOne.insideBox = eye.x > -kBoxSide && eye.x < kBoxSide && eye.y > kBoxFloor &&
                         eye.y < kBoxSide && eye.z > -kBoxSide && eye.z < kBoxSide;
    sceneOne.gridSize = sceneOne.insideBox ? kGridInside : kGridOutside;
    if (!sceneOne.insideBox) {
        FillSurface(display.backSurface, kWhite, nullptr);
    }
}

void MoveCamera() {
    if (switches.cameraRunning != 0) {
        const std::int32_t segment = TrackSample(&world.camera, sceneOne.keys, sceneOne.keyCount);
        if (segment > kLastSegment) {
            ++driver.sceneIndex;
        }
    }
    CameraBuildView(&world.camera, kBuildOrder);
}

} // namespace

constinit SceneOneState sceneOne = {};

void ResetSceneOne() {
    // Too large for a copy of a start value on the stack.
    std::memset(static_cast<void*>(&sceneOne), 0, sizeof sceneOne);
}

void StartSceneOne() {
    switches.blur = -1;
    sceneOne.keyCount = TrackLoad("./data/cam/scene1.trk", sceneOne.keys, kMaxTrackKeys);
    switches.cameraRunning = 1;
    sceneOne.titleDone = false;
    CameraSetFov(&world.camera, kStartFov);
    switches.lightCount = kLights;
}

bool StepSceneOne() {
    FadeLights();
    TestBox();
    MoveCamera();
    return true;
}

void GatherSceneOne(FrontEnd* front) {
    if (sceneOne.insideBox) {
        TurnObject(&world.sky);
        AddObjectInSight(front, &world.sky, world.camera);
    }
    AddGroundTiles(front, &world.ground, world.camera, sceneOne.gridSize);
    AddListObjects(front, &world);
    if (!sceneOne.insideBox) {
        TurnObject(&world.stay);
        AddMesh(front, &world.stay);
        TurnObject(&world.skyAlpha0);
        AddMesh(front, &world.skyAlpha0);
    }
}

View ViewOfSceneOne() {
    if (switches.renderMode1 == 0) {
        return View::Dots;
    }
    if (switches.renderMode1 == 1 && switches.renderMode2 == 0) {
        return View::Wire;
    }
    return switches.renderMode1 == 1 && switches.renderMode2 == 1 ? View::Filled : View::Nothing;
}

void OverlaySceneOne() {
    if (sceneOne.titleDone) {
        return;
    }
    // Places are fixed pixels, whatever the resolution.
    DrawGlyphText(&fonts.big, kTitlePlace, kTitleText, display.backSurface);
    DrawGlyphText(&fonts.small, kSubtitlePlace, kSubtitleText, display.backSurface);
}

} // namespace ombrel
