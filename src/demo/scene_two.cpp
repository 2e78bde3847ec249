// Scene two, step by step.
#include "demo/scene_two.h"

#include "base/convert.h"
#include "base/random15.h"
#include "base/shell_state.h"
#include "demo/font.h"
#include "demo/primitives.h"
#include "platform/display.h"
#include "platform/system.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kFilledFrames = 1800;
constexpr std::int32_t kClosingFrames = 60;
constexpr std::int32_t kLights = 7;
constexpr std::int32_t kBuildOrder = 4;

constexpr std::uint32_t kFirstAmbient = PackLightColor(54, 38, 54);
constexpr std::uint32_t kFirstColors[] = {
    PackLightColor(78, 67, 58), // of lights 1 to 5
    PackLightColor(200, 45, 192), PackLightColor(184, 0, 15),
    PackLightColor(245, 94, 12),  PackLightColor(45, 10, 248),
};
constexpr std::uint32_t kDotAmbient = PackLightColor(162, 114, 162);
constexpr std::uint32_t kDotLight = PackLightColor(234, 201, 174);

constexpr Single kLightHeight = 500.0F;
constexpr Single kLightStep = 0.01F;

constexpr std::int32_t kSmallAdvance = 12;
constexpr std::int32_t kBigAdvance = 20;
constexpr Single kRestAngle = 1.8849556F; // 108 degrees: a sliding line that reaches it has arrived

constexpr Single kBlockStep = 0.03965464F;
constexpr std::int32_t kBlockDelay = 5;

constexpr Single kFallEnd = 1.5707964F;
constexpr Single kSpeedScale = 3.051851e-5F; // 1 / 32767
constexpr Single kTopSpeed = 0.04F;
constexpr Single kLeastSpeed = 0.01F;

struct ColumnPlace {
    Single x;
    std::int32_t firstSlot;
    std::int32_t slots;
};
constexpr ColumnPlace kColumns[kGreetingColumns] = {
    {10.0F, 0, 5},   {90.0F, 6, 5},   {180.0F, 12, 5},
    {270.0F, 18, 6}, {360.0F, 24, 6}, {405.0F, 31, 8},
};

constexpr std::int32_t kScrollerStart = 1000; // frames
constexpr Single kScrollerStep = 0.03446879F;
constexpr Single kScrollerOutStep = 0.04684217F;
constexpr std::int32_t kLastLine = kPageLines - 1;
constexpr std::int32_t kPagesEnd = 48; // first slot after the last page

constexpr std::int32_t kBorder = 8; // pixels

// Radians to a single; the functions work in double precision, the rest does not.
Single Sine(Single radians) {
    return static_cast<Single>(SinRad(static_cast<Double>(radians)));
}
Single Cosine(Single radians) {
    return static_cast<Single>(CosRad(static_cast<Double>(radians)));
}

// The dots replace the filled view. False when the production is over.
bool KeepTime() {
    if (driver.frameCounter > sceneTwo.startFrame + kFilledFrames) {
        switches.renderMode1 = 0;
        switches.backFace = 1;
        world.lights[0].ambientColor = kDotAmbient;
        world.lights[1].lightColor = kDotLight;
    }
    if (sceneTwo.endFlag) {
        ++sceneTwo.closingCount;
    }
    if (sceneTwo.closingCount > kClosingFrames) {
        PostQuit(0);
        return false;
    }
    return true;
}

void MoveCamera() {
    if (switches.cameraRunning != 0) {
        TrackSample(&world.camera, sceneTwo.keys, sceneTwo.keyCount);
        CameraBuildView(&world.camera, kBuildOrder);
    } else if (switches.cameraMode == -1) {
        CameraBuildView(&world.camera, kBuildOrder);
    } else {
        CameraLookAt(&world.camera, 0);
    }
}

void PlaceLight(std::int32_t number, Single x, Single z) {
    Vec3& place = world.lights[number].sourcePosition;
    place.x = x;
    place.y = kLightHeight;
    place.z = z;
}

void MoveLights() {
    const Single p = sceneTwo.lightPhase;
    PlaceLight(2, Cosine(0.84F * p) * Cosine(3.0F * p) * 4000.0F,
               Cosine(3.9354F * p) * Sine(p) * 3000.0F);
    PlaceLight(3, Cosine(5.546F * p) * Sine(3.0F * p) * 2000.0F,
               Sine(2.4554F * p) * Cosine(2.6184F * p) * 3000.0F);
    PlaceLight(4, Sine(1.0546F * p) * 3500.0F, Sine(1.1203F * p) * 2000.0F);
    PlaceLight(5, Sine(1.48456F * p) * 3345.0F, Cosine(1.1203F * p) * 2845.0F);
    sceneTwo.lightPhase = p + kLightStep;
}

void DrawSmall(Single x, Single y, const char* text) {
    DrawGlyphText(&fonts.small, {x, y, kSmallAdvance}, text, display.backSurface);
}

void DrawBlock(BlockState* block) {
    for (std::int32_t i = 0; i <= block->stage; ++i) {
        DrawSmall(680.0F - Sine(block->angles[i]) * 679.0F, static_cast<Single>(24 * i),
                  kBlockTexts[i]);
    }
    Single* const angle = &block->angles[block->stage];
    if (*angle < kRestAngle) {
        *angle += kBlockStep;
    } else if (++block->delay > kBlockDelay) {
        ++block->stage;
        block->delay = 0;
    }
}

Single DrawSpeed() {
    for (;;) {
        const Single speed = static_cast<Single>(Random15()) * kSpeedScale * kTopSpeed;
        if (!(speed < kLeastSpeed)) {
            return speed;
        }
    }
}

void DrawColumn(GreetingColumn* column, const ColumnPlace& place) {
    column->phase += column->speed;
    const Single y = Sine(column->phase) * static_cast<Single>(shell.screenHeight + 1);
    if (column->phase >= kFallEnd) {
        column->phase = 0.0F;
        // REQUIRED R44: a column that is off goes on falling, unseen, and takes its share of the
        // random numbers.
        column->speed = DrawSpeed();
        ++column->index;
        if (column->index > place.slots - 1) {
            column->index = 0;
            column->on = false;
        }
    }
    if (column->on) {
        DrawGlyphText(&fonts.big, {place.x, y, kBigAdvance},
                      kGreetingTexts[place.firstSlot + column->index], display.backSurface);
    }
}

// The first 12 lines of the page slide back out; then the next page begins.
void SlideOut(ScrollerState* scroller) {
    // REQUIRED R41: the thirteenth line neither slides out nor starts anew.
    for (std::int32_t j = 0; j < kLastLine; ++j) {
        scroller->angles[j] -= kScrollerOutStep;
    }
    if (scroller->angles[0] < 0.0F) {
        scroller->page += kLastLine;
        scroller->line = 0;
        for (std::int32_t j = 0; j < kLastLine; ++j) {
            scroller->angles[j] = 0.0F;
        }
        if (scroller->page >= kPagesEnd) {
            sceneTwo.endFlag = true;
            scroller->page = 0;
        }
    }
}

void DrawScroller(ScrollerState* scroller) {
    ++scroller->frameCount;
    if (scroller->frameCount <= kScrollerStart) {
        return;
    }
    for (std::int32_t j = 0; j <= scroller->line; ++j) {
        DrawSmall(660.0F - Sine(scroller->angles[j]) * 689.0F, static_cast<Single>(j) * 21.6F,
                  kScrollerTexts[scroller->page + j]);
    }
    Single* const angle = &scroller->angles[scroller->line];
    if (*angle < kRestAngle) {
        *angle += kScrollerStep;
    } else if (scroller->line < kLastLine) {
        if (++scroller->delay > 0) {
            ++scroller->line;
            scroller->delay = 0;
        }
    } else if (scroller->page < kPagesEnd) {
        SlideOut(scroller);
    } else {
        scroller->line = 0;
        scroller->page = 0;
    }
}

void DrawTexts() {
    if (sceneTwo.block.stage < kBlockSlots) {
        DrawBlock(&sceneTwo.block);
    } else {
        for (std::int32_t k = 0; k < kGreetingColumns; ++k) {
            DrawColumn(&sceneTwo.columns[k], kColumns[k]);
        }
    }
    if (!sceneTwo.endFlag) {
        DrawScroller(&sceneTwo.scroller);
    }
}

void DrawBorder() {
    const Pixel16 black = static_cast<Pixel16>(display.format.pack(0, 0, 0));
    const std::int32_t w = shell.screenWidth;
    const std::int32_t h = shell.screenHeight;
    FillSurfaceRect({0, 0, kBorder, h}, black, display.backSurface);
    FillSurfaceRect({0, 0, w, kBorder}, black, display.backSurface);
    FillSurfaceRect({w - kBorder, 0, w, h}, black, display.backSurface);
    FillSurfaceRect({0, h - kBorder, w, h}, black, display.backSurface);
}

constexpr Single kFirstSpeeds[kGreetingColumns] = {0.0356464F, 0.0243451F, 0.0245641F,
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

constinit SceneTwoState sceneTwo = kInitialSceneTwo;

void ResetSceneTwo() {
    sceneTwo = kInitialSceneTwo;
}

void StartSceneTwo() {
    sceneTwo.endFlag = false;
    switches.blur = 1;
    switches.cameraRunning = 0;
    sceneTwo.keyCount = TrackLoad("./data/cam/scene2.trk", sceneTwo.keys, kMaxTrackKeys);
    switches.cameraRunning = 1;
    world.lights[0].ambientColor = kFirstAmbient;
    for (int i = 0; i < 5; ++i) {
        world.lights[1 + i].lightColor = kFirstColors[i];
    }
    sceneTwo.startFrame = driver.frameCounter;
    switches.lightCount = kLights;
}

bool StepSceneTwo() {
    if (!KeepTime()) {
        return false;
    }
    MoveCamera();
    MoveLights();
    return true;
}

void GatherSceneTwo(FrontEnd* front) {
    AddGroundTiles(front, &world.groundAlpha, world.camera, sceneTwo.gridSize);
    // The last entry is never drawn, and the empty first one is tested and adds nothing.
    AddListObjects(front, &world);
    for (Mesh* const object : {&world.stay, &world.skyAlphaS2}) {
        TurnObject(object);
        AddMesh(front, object);
    }
}

View ViewOfSceneTwo() {
    if (switches.renderMode1 == 0) {
        return sceneTwo.endFlag ? View::Nothing : View::Dots;
    }
    if (switches.renderMode2 == 0) {
        return View::Wire;
    }
    return switches.renderMode2 == 1 ? View::Filled : View::Nothing;
}

void OverlaySceneTwo() {
    DrawTexts();
    DrawBorder();
    LockFrame();
}

} // namespace ombrel
