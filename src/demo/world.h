// What the two scenes work on: the loaded objects, the camera, the lights, the face list, the
// depth buffer and the switches. Filled by StartUp; plain data, one of each.
#pragma once

#include <cstdint>

#include "assets/mesh.h"
#include "scene/camera.h"
#include "scene/face_list.h"
#include "scene/light.h"

namespace ombrel {

inline constexpr std::int32_t kMaxSceneObjects = 512; // entries of the scene object table
inline constexpr std::int32_t kFirstSceneObject =
    11; // the object counter's start; entry 11 is empty

struct World {
    Mesh sky, skyAlpha0, skyAlphaS2, stay, ground, groundAlpha, lightMarker;
    Mesh objects[kMaxSceneObjects]; // scene-list objects from entry 12 on
    std::int32_t objectCounter;     // index of the last scene-list object; 11 when there is none
    Camera camera;
    Light lights[kMaxLights];
    std::uint32_t* depth;     // screenWidth * screenHeight cells
    std::int32_t depthPitch;  // bytes
    std::int32_t pitchPixels; // row step of the locked frame; set by start-up and every frame
};
extern World world;
extern FaceList sceneFaces;

// Process-wide switches of both scenes. The shipped production keeps the defaults given here.
struct SceneSwitches {
    std::int32_t renderMode1;   // 1; 0: corner dots
    std::int32_t renderMode2;   // 1; 0: wireframe
    std::int32_t backFace;      // 1
    std::int32_t lighting;      // 1
    std::int32_t sort;          // -1; runs when 1
    std::int32_t cameraMode;    // -1: from angles; else look-at (only while no track runs)
    std::int32_t blur;          // -1; runs when 1
    std::int32_t lightCount;    // 5
    std::int32_t hideCursor;    // 1
    std::int32_t cameraRunning; // 0
};
extern SceneSwitches switches;

void ResetSceneWorld(); // frees objects and depth buffer; all three variables as at process start

} // namespace ombrel
