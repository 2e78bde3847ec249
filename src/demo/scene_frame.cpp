// The road of one frame, from objects to pixels.
#include "demo/scene_frame.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "base/shell_state.h"
#include "demo/face_views.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kTestAllSides = 7;
constexpr float kSkyStep = -0.02F; // degrees a frame
constexpr float kPartStep = 0.2F;

constexpr std::int32_t kOwnLevels = -1;
constexpr std::int32_t kLodDistance = 1000;

constexpr MeshTransformOptions kInPlace{0, 0, 0};
constexpr MeshTransformOptions kIntoTransformed{2, 0, 0};
constexpr std::int32_t kTranslateCopy = 2;
constexpr std::int32_t kLightsCopy = 3;
constexpr std::int32_t kFromTransformed = 0;

void TurnInPlace(Mesh* object, float degrees) {
    Matrix4 rotation;
    Matrix4RotationXYZ(0.0F, degrees, 0.0F, &rotation);
    MeshTransform(object, &rotation, kInPlace);
}

// Adds the object where it stands, its stored vertices moved by its position.
void AddAtPosition(FaceList* list, Mesh* object) {
    MeshTranslate(object, kTranslateCopy, 0);
    MeshAddFaces(list, object, kFromTransformed);
}

float TilePlace(std::int32_t index) {
    return static_cast<float>(index * 10000) * 0.1F + 500.0F;
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
    DrawFaces(&job);
}

} // namespace

void TurnObject(Mesh* object) {
    MeshResetFrame(object);
    MeshRotate(object, 0.0F, kSkyStep, 0.0F, 0);
}

void AddObject(FaceList* list, Mesh* object) {
    MeshTransform(object, &IdentityMatrix4, kIntoTransformed);
    AddAtPosition(list, object);
}

void AddObjectInSight(FaceList* list, Mesh* object, const Camera& camera) {
    if (ObjectCullSphere(object, &camera, kTestAllSides) == 0) {
        AddObject(list, object);
    }
}

void AddGroundTiles(FaceList* list, Mesh* tile, const Camera& camera, std::int32_t gridSize) {
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
                MeshResetFrame(tile);
                AddAtPosition(list, tile);
            }
        }
    }
}

void AddListObjects(FaceList* list, World* scene) {
    // REQUIRED R42: from the empty entry on, but without the last object.
    for (std::int32_t e = kFirstSceneObject; e < scene->objectCounter; ++e) {
        Mesh* const object = &scene->objects[e];
        if (ObjectCullSphere(object, &scene->camera, kTestAllSides) != 0) {
            continue;
        }
        MeshResetFrame(object);
        if (e == scene->objectCounter - 2) {
            TurnInPlace(object, kPartStep);
            TurnInPlace(&scene->objects[e - 1], -kPartStep);
        }
        AddAtPosition(list, object);
    }
}

void RunFacePipeline(FaceList* list, World* scene, const SceneSwitches& set) {
    if (set.backFace == 1) {
        CullBackFaces(list, &scene->camera);
    }
    if (set.lighting == 1) {
        const std::int32_t lights = std::clamp(set.lightCount, 0, kMaxLights);
        LightsTransform(scene->lights, lights, nullptr, kLightsCopy);
        LightFaces(list, &scene->camera, scene->lights, lights);
    }
    TransformPolygonsToCamera(list, &scene->camera);
    ClipPolygons(list, &scene->camera, kTestAllSides);
    if (set.sort == 1) {
        SortFaces(list, 0);
    }
    ProjectPolygons(list, &scene->camera);
    MapPolygonsToScreen(list, &scene->camera);
}

void DrawView(FaceList* list, World* scene, View view) {
    scene->pitchPixels = display.back.pitch / 2;
    if (display.back.pixels == nullptr) {
        return;
    }
    switch (view) {
    case View::Nothing:
        break;
    case View::Dots:
        DrawFaceListDots(list, display.back.pixels, display.back.pitch);
        break;
    case View::Wire:
        DrawFaceListWire(list, display.back.pixels, display.back.pitch);
        break;
    case View::Filled:
        DrawFilled(list, scene);
        break;
    }
}

} // namespace ombrel
