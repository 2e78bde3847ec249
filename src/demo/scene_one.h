// Scene one: the flight along the first track, while the light rises from black and the title
// stands over it. Played by PlayScene in every frame with scene index 0.
#pragma once

#include <cstdint>

#include "base/single.h"
#include "demo/scene_frame.h"

namespace ombrel {

inline constexpr std::int32_t kMaxTrackKeys = 1024; // of each track; later keys are not read

// Written and read by SceneOne alone.
struct SceneOneState {
    bool started;
    bool insideBox;
    bool titleDone;
    std::int32_t gridSize; // of the field of ground tiles: 8 inside the box, 6 outside
    Single ambientFade[3]; // red, green, blue of light 0, from 0
    Single lightFade[3];   // of light 1
    TrackKey keys[kMaxTrackKeys];
    std::int32_t keyCount;
};
extern SceneOneState sceneOne;

void ResetSceneOne();

// Its row of the scene table. The step raises driver.sceneIndex when the track passes key 31.
void StartSceneOne();
bool StepSceneOne();
void GatherSceneOne(FrontEnd* front);
View ViewOfSceneOne();
void OverlaySceneOne();

} // namespace ombrel
