// Camera tracks: keys, frames, and how the camera flies.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "report.h"
#include "scene/camera.h"

namespace inspect {

// Frames until the place in a segment has grown from 0 to 1 by a key's step; kEndless at most.
inline constexpr std::int64_t kEndless = 1000000;
std::int64_t FramesOfSegment(float step);

// Frames of the first scene with these keys; 0 when it never hands over.
std::int64_t FramesOfSceneOne(const std::vector<ombrel::TrackKey>& keys);
inline constexpr std::int64_t kSceneTwoFrames = 3968; // calls of the second scene

// The keys as the production has them; empty when there are none.
std::vector<ombrel::TrackKey> KeysOf(const std::string& path);
// The camera in every frame until the track starts again, at most limit.
std::vector<ombrel::Camera> FlightOf(const std::vector<ombrel::TrackKey>& keys, std::size_t limit);

void InspectTrack(const std::string& path, Report* report);

} // namespace inspect
