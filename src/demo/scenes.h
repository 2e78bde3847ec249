// The two scenes as a table, and the one function that plays them.
#pragma once

#include <cstdint>

#include "demo/scene_frame.h"

namespace ombrel {

struct Scene {
    bool* started;                   // false until its first frame
    void (*start)();                 // set-up, in its first frame
    bool (*step)();                  // time, camera, lights; false: nothing is drawn in this frame
    void (*gather)(FrontEnd* front); // adds the faces of its objects, in their order
    View (*view)();                  // how the faces are drawn
    void (*overlay)();               // on the unlocked back surface
};

inline constexpr std::int32_t kSceneCount = 2;
extern const Scene kScenes[kSceneCount]; // by scene index

// One frame of a scene into the back surface.
void PlayScene(const Scene& scene);

// What a frame is made of, in its order; Rest is what the frame driver does before and after.
enum class FramePart : std::uint8_t { Step, FrontEnd, Raster, Blur, Texts, Rest };
inline constexpr std::int32_t kFramePartCount = 6;

// Told when a part of a frame begins; null, the initial value: nobody asks. Written by whoever
// measures, read by PlayScene.
using FrameProbe = void (*)(FramePart begins);
extern FrameProbe frameProbe;
void ResetFrameProbe();

} // namespace ombrel
