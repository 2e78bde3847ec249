// Start-up and shut-down, step by step.
#include "demo/startup.h"

#include <cstddef>
#include <cstdlib>

#include "assets/object_loader.h"
#include "base/memory_reserve.h"
#include "base/random15.h"
#include "base/shell_state.h"
#include "base/single.h"
#include "demo/fixed_objects.h"
#include "demo/font.h"
#include "demo/scene_list.h"
#include "demo/soundtrack.h"
#include "demo/world.h"
#include "platform/display.h"
#include "platform/system.h"
#include "raster/blend_tables.h"
#include "scene/mesh_transform.h"

namespace ombrel {

namespace {

constexpr std::int32_t kBitsPerPixel = 16;
constexpr std::uint32_t kRandomSeed = 564546;
constexpr std::uint32_t kDepthFormat = 32;

constexpr Vec3 kOrigin{0.0F, 0.0F, 0.0F, 1.0F};
constexpr std::int32_t kCameraMode = 8;
constexpr Single kNear = 1.0F;
constexpr Single kFar = 15000.0F;
constexpr Single kFov = 90.0F;

constexpr Single kGroundShift = 50.0F;

// clang-format off
struct LightRow {
    std::uint32_t kind;
    std::uint32_t ambientColor, lightColor;
    Vec3 position, direction;
    Single c1, exponent;
};
constexpr Vec3 kNone{0.0F, 0.0F, 0.0F, 0.0F};
constexpr Vec3 kSun{1.0F, 0.8F, 1.0F, 1.0F};
constexpr Vec3 kAbove{0.0F, 1000.0F, 0.0F, 1.0F};
constexpr LightRow kLights[] = {
    // kind             ambient                       light                         position direction c1      exponent
    {LIGHT_AMBIENT,     PackLightColor(140, 134, 107), 0,                            kNone,   kNone,   0.0F,   0.0F},
    {LIGHT_DIRECTIONAL, 0,                            PackLightColor(231, 219, 173), kNone,   kSun,    0.0F,   0.0F},
    {LIGHT_POINT,       0,                            PackLightColor(255, 128, 0),   kAbove,  kNone,   0.001F, 1.0F},
    {LIGHT_POINT,       0,                            PackLightColor(0, 0, 255),     kAbove,  kNone,   0.001F, 1.0F},
    {LIGHT_POINT,       0,                            PackLightColor(255, 0, 0),     kAbove,  kNone,   0.001F, 1.0F},
    {LIGHT_POINT,       0,                            PackLightColor(255, 0, 0),     kAbove,  kNone,   0.001F, 1.0F},
};
// clang-format on

void SetUpCamera() {
    CameraSetup setup{};
    setup.mode = kCameraMode;
    setup.position = kOrigin;
    setup.angles = kOrigin;
    setup.target = &kOrigin;
    setup.zNear = kNear;
    setup.zFar = kFar;
    setup.fov = kFov;
    setup.screenWidth = static_cast<Single>(shell.screenWidth);
    setup.screenHeight = static_cast<Single>(shell.screenHeight);
    CameraInit(&world.camera, setup);
    startUp.marker = {20.0F, 20.0F, 20.0F, 1.0F};
}

void SetUpLights() {
    ClearLights(world.lights, kMaxLights);
    std::int32_t number = 0;
    for (const LightRow& row : kLights) {
        Light values{};
        values.enabled = 1;
        values.kind = row.kind;
        values.ambientColor = row.ambientColor;
        values.lightColor = row.lightColor;
        values.sourcePosition = row.position;
        values.sourceDirection = row.direction;
        values.c1 = row.c1;
        values.exponent = row.exponent;
        SetLight(&world.lights[number++], values);
    }
}

void LoadFixedObject(const FixedObject& object) {
    Mesh* const mesh = &(world.*object.mesh);
    loadObject(mesh, object.path,
               LoadRequest{object.scale, &object.position, kFixedOptions, 0, display.format});
    MeshRotate(mesh, 0.0F, 0.0F, 90.0F, 0);
    // REQUIRED R40: vertex 0 of the ground objects stands 50 to the side of where its file has it.
    if (object.shifted && mesh->slotCount > 0 && mesh->curVertices != nullptr &&
        mesh->curTransformed != nullptr) {
        mesh->curVertices[0].x += kGroundShift;
        mesh->curTransformed[0].x += kGroundShift;
    }
}

void LoadLightMarker() {
    Mesh* const mesh = &world.lightMarker;
    loadObject(mesh, kLightMarkerPath,
               LoadRequest{kLightMarkerScale, &kOrigin, kFixedOptions, 0, display.format});
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        if (IsDrawable(mesh->faces[i].active)) {
            mesh->faces[i].color = display.format.pack(0, 0, 0);
        }
    }
}

void ParkCursor() {
    MoveMouseCursor(shell.screenCenterX, shell.screenCenterY);
    driver.sceneIndex = 0;
    world.pitchPixels = display.back.pitch / 2;
    ReadMouseCursor(&startUp.cursorX, &startUp.cursorY);
    if (switches.hideCursor == 1) {
        ShowMouseCursor(false);
    }
}

} // namespace

constinit StartUpState startUp = {};

void ResetStartUp() {
    startUp = {};
}

void* AllocateDepthBuffer(std::int32_t width, std::int32_t height, std::uint32_t formatBit) {
    if ((formatBit != 16 && formatBit != 32) || width < 1 || height < 1) {
        return nullptr;
    }
    return std::calloc(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                       formatBit / 8);
}

int StartUp() {
    KeepMemoryReserve();

    // Take the screen. What cannot be had is done without.
    EnableScreenSaver(false);
    OpenDisplay(shell.screenWidth, shell.screenHeight, kBitsPerPixel, shell.windowed, 0);
    if (shell.windowed == 0) {
        ShowMouseCursor(false);
    }

    // Make the numbers and tables; these round to nearest.
    SeedRandom15(kRandomSeed);
    InitTrigTables();
    SetUpCamera();
    SetUpLights();
    world.depth = static_cast<std::uint32_t*>(
        AllocateDepthBuffer(shell.screenWidth, shell.screenHeight, kDepthFormat));
    world.depthPitch = shell.screenWidth * 4;
    BuildBlendTables(kBlendTableCount, BlendTables[0]);

    // From here on everything is cut toward zero.
    SetRenderFloatMode();

    // Load.
    for (const FixedObject& object : kFixedObjects) {
        LoadFixedObject(object);
    }
    LoadSceneList(&world, "./data/scene1.po", display.format);
    LoadLightMarker();
    LoadGlyphSet("./data/2d/font-48.bmp", &fonts.big, display.format);
    LoadGlyphSet("./data/2d/font-48-16px.bmp", &fonts.small, display.format);

    ParkCursor();
    startUp.cameraStart = (180.0F - world.camera.fov) * 0.3F * (Single{1.0F} / 90.0F);
    switches.cameraRunning = 0;

    if (!shell.noSound) {
        StartSoundtrack();
    }
    driver.demoStartTick = TickCount();
    return 1;
}

void ShutDown() {
    CloseDisplay();
    EnableScreenSaver(true);
    if (shell.windowed != 0) {
        RestoreDesktopDepth();
    }
    if (!shell.noSound) {
        StopSoundtrack();
    }
}

} // namespace ombrel
