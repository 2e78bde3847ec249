// One frame, from objects to pixels.
#include "demo/scene_frame.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "base/rect.h"
#include "base/shell_state.h"
#include "base/single.h"
#include "demo/face_views.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"

namespace ombrel {

namespace {

constexpr Single kSkyStep = -0.02F; // degrees a frame
constexpr Single kPartStep = 0.2F;

constexpr std::int32_t kOwnLevels = -1;
constexpr std::int32_t kLodDistance = 1000;

constexpr std::int32_t kSorted = 0; // by average depth
constexpr std::int32_t kUnsorted = -1;

void TurnInPlace(Mesh* object, Single degrees) {
    Matrix4 rotation;
    Matrix4RotationXYZ(0.0F, degrees, 0.0F, &rotation);
    MeshTransform(object, &rotation, {TransformMode::InPlace, 0, 0});
}

Single TilePlace(std::int32_t index) {
    return static_cast<Single>(index * 10000) * 0.1F + 500.0F;
}

void DrawFilled(FaceList* list, World* scene) {
    if (scene->depth == nullptr) {
        return;
    }
    const std::size_t cells =
        static_cast<std::size_t>(shell.screenWidth) * static_cast<std::size_t>(shell.screenHeight);
    std::memset(scene->depth, 0, cells * sizeof *scene->depth);
    DrawJob job{};
    job.flags = kSceneJobFlags;
    job.faces = list;
    job.frame = display.back.pixels;
    job.framePitch = display.back.pitch;
    job.depth = scene->depth;
    job.depthPitch = scene->depthPitch;
    job.level = kOwnLevels;
    job.mipDistance = 0;
    job.lodDistance = kLodDistance;
    job.clip = display.clip;
    DrawFaces(&job);
}

} // namespace

void TurnObject(Mesh* object) {
    MeshResetFrame(object);
    MeshRotate(object, 0.0F, kSkyStep, 0.0F, 0);
}

std::array<Mesh*, 6> TurningObjects(World* scene) {
    const std::int32_t turning = scene->objectCounter - 2;
    const bool any = turning >= kFirstSceneObject;
    return {&scene->sky,
            &scene->skyAlpha0,
            &scene->skyAlphaS2,
            &scene->stay,
            any ? &scene->objects[turning] : nullptr,
            any ? &scene->objects[turning - 1] : nullptr};
}

void AddObjectInSight(FrontEnd* front, Mesh* object, const Camera& camera) {
    if (ObjectCullSphere(object, &camera, kTestAllSides) == 0) {
        AddMesh(front, object);
    }
}

void AddGroundTiles(FrontEnd* front, Mesh* tile, const Camera& camera, std::int32_t gridSize) {
    const std::int32_t half = gridSize / 2;
    for (std::int32_t i = -half; i < half; ++i) {
        for (std::int32_t j = -half; j < half; ++j) {
            const bool cornerRow = i == -half || i == half - 1;
            const bool cornerColumn = j == -half || j == half - 1;
            if (cornerRow && cornerColumn) {
                continue;
            }
            tile->position.x = TilePlace(i);
            tile->position.z = TilePlace(j);
            if (ObjectCullSphere(tile, &camera, kTestAllSides) == 0) {
                ResetAndAddMesh(front, tile);
            }
        }
    }
}

void AddListObjects(FrontEnd* front, World* scene) {
    // REQUIRED R42: from the empty entry on, but without the last object.
    for (std::int32_t e = kFirstSceneObject; e < scene->objectCounter; ++e) {
        Mesh* const object = &scene->objects[e];
        if (ObjectCullSphere(object, &scene->camera, kTestAllSides) != 0) {
            continue;
        }
        if (e == scene->objectCounter - 2) {
            TurnInPlace(object, kPartStep);
            TurnInPlace(&scene->objects[e - 1], -kPartStep);
        }
        ResetAndAddMesh(front, object);
    }
}

FaceSettings FaceSettingsOf(World* scene, const SceneSwitches& set) {
    FaceSettings settings = {};
    settings.camera = &scene->camera;
    settings.lights = scene->lights;
    settings.lightCount = std::clamp(set.lightCount, 0, kMaxLights);
    settings.cullBack = set.backFace == 1;
    settings.lit = set.lighting == 1;
    settings.sortMode = set.sort == 1 ? kSorted : kUnsorted;
    settings.pack = display.format.pack;
    return settings;
}

void DrawView(FaceList* list, World* scene, View view) {
    scene->pitchPixels = display.back.pitch / 2;
    if (display.back.pixels == nullptr) {
        return;
    }
    const Canvas canvas{display.back.pixels, display.back.pitch, display.clip};
    switch (view) {
    case View::Nothing:
        break;
    case View::Dots:
        DrawFaceListDots(list, canvas);
        break;
    case View::Wire:
        DrawFaceListWire(list, canvas);
        break;
    case View::Filled:
        DrawFilled(list, scene);
        break;
    }
}

} // namespace ombrel
