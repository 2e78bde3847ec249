// The data folder, the length and the path of code.
#include "production.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "demo/scene_one.h"
#include "platform/system.h"
#include "scene/camera.h"

namespace capture {

namespace {

constexpr std::int64_t kSceneTwoFrames = 3968; // calls of scene two, the last one included

// Frames until t has grown from 0 to 1 by the step of a track key.
std::int64_t FramesOfSegment(float step) {
    const float add = step <= 0.0F ? 0.02F : step;
    std::int64_t frames = 0;
    for (float t = 0.0F; t < 1.0F && frames < 1000000; t += add) {
        ++frames;
    }
    return frames;
}

} // namespace

std::string ChooseDataFolder(const std::string& told) {
    const std::string folder = !told.empty() ? told : ombrel::DataFolderOf(ombrel::ProgramFolder());
    const std::string name = (!told.empty() ? "--data: " : "") + folder;
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) {
        return name + " is no folder" + (!told.empty() ? "" : "; --data names the one to play");
    }
    ombrel::SetDataFolder(folder);
    return "";
}

bool HasProduction() {
    constexpr const char* kSome[] = {"./data/scene1.po", "./data/cam/scene1.trk",
                                     "./data/2d/font-48.bmp"};
    return std::any_of(std::begin(kSome), std::end(kSome),
                       [](const char* file) { return !ombrel::FindDataFile(file).empty(); });
}

std::int64_t FramesOfProduction() {
    constexpr std::int32_t kNeededKeys = 35;
    const std::int32_t count =
        ombrel::TrackLoad("./data/cam/scene1.trk", ombrel::sceneOne.keys, ombrel::kMaxTrackKeys);
    std::int64_t frames = 1;
    if (count >= kNeededKeys) {
        const ombrel::ScopedFloatMode asPlayed(ombrel::FloatMode::Chop);
        for (std::int32_t i = 1; i <= 32; ++i) {
            frames += FramesOfSegment(ombrel::sceneOne.keys[i].step);
        }
        frames += kSceneTwoFrames;
    }
    std::memset(static_cast<void*>(ombrel::sceneOne.keys), 0, sizeof ombrel::sceneOne.keys);
    return count >= kNeededKeys ? frames : 0;
}

ombrel::VectorPath ChoosePath(const char* program) {
    bool understood = true;
    const ombrel::VectorPath path = ombrel::ChooseVectorPath(&understood);
    if (!understood) {
        std::fprintf(stderr, "%s: %s=%s cannot be had here; taking %s\n", program,
                     ombrel::kPathVariable, std::getenv(ombrel::kPathVariable),
                     ombrel::NameOf(path));
    }
    return path;
}

} // namespace capture
