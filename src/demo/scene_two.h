// Scene two: a second flight under moving lights, three layers of text, then the end. It times
// itself by frames. Played by PlayScene in every frame with scene index 1.
#pragma once

#include <cstdint>

#include "base/single.h"
#include "demo/scene_one.h"
#include "demo/texts.h"

namespace ombrel {

inline constexpr std::int32_t kGreetingColumns = 6;
inline constexpr std::int32_t kPageLines = 13; // of the scroller: 12 and the first of the next page

// A line slides in along a sine: its angle (radians) grows to 108 degrees, where it rests.
struct BlockState {
    std::int32_t stage; // the line now sliding in; kBlockSlots: the block is over
    std::int32_t delay; // frames waited since it arrived
    Single angles[kBlockSlots];
};

// A handle falls along a sine: its phase (radians) grows to 90 degrees, then the next one starts.
struct GreetingColumn {
    Single phase;
    Single speed; // a frame
    std::int32_t index;
    bool on;
};

struct ScrollerState {
    std::int32_t frameCount; // frames with the end flag clear
    std::int32_t line;       // 0..12: the line of the page now sliding in
    std::int32_t page;       // first slot of the page: 0, 12, 24 or 36
    std::int32_t delay;
    Single angles[kPageLines];
};

// Written and read by SceneTwo alone.
struct SceneTwoState {
    bool started;
    std::uint32_t startFrame; // frame counter at the first call
    bool endFlag;             // the last page has gone
    std::int32_t closingCount;
    Single lightPhase; // grows by 0.01 a frame
    std::int32_t gridSize;
    BlockState block;
    GreetingColumn columns[kGreetingColumns];
    ScrollerState scroller;
    TrackKey keys[kMaxTrackKeys];
    std::int32_t keyCount;
};
extern SceneTwoState sceneTwo;

void ResetSceneTwo();

// Its row of the scene table. The step is false in the frame that posts the quit message; the
// overlay leaves the back surface locked.
void StartSceneTwo();
bool StepSceneTwo();
void GatherSceneTwo(FrontEnd* front);
View ViewOfSceneTwo();
void OverlaySceneTwo();

} // namespace ombrel
