// Camera tracks: read, sampled for some hundred frames, the view built of every sample.
#include <cmath>
#include <vector>

#include "base/float_mode.h"
#include "math/vec3.h"
#include "scene/camera.h"

#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

constexpr std::int32_t kCapacity = 48;
constexpr int kFrames = 256;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    InitTrigTables();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    const MemoryFile file(data, size);
    std::vector<TrackKey> keys(kCapacity);
    ResetTrackState();
    const std::int32_t count = TrackLoad(file.Path().c_str(), keys.data(), kCapacity);
    Require(count >= 0 && count <= kCapacity);
    for (std::int32_t i = count; i < kCapacity; ++i) {
        Require(keys[static_cast<std::size_t>(i)].step == 0.0F); // not written
    }

    Camera camera{};
    CameraInit(&camera, {8, {}, {}, nullptr, 1.0F, 15000.0F, 90.0F, 640.0F, 480.0F});
    std::int32_t before = 0;
    for (int i = 0; i < kFrames; ++i) {
        const std::int32_t segment = TrackSample(&camera, keys.data(), count);
        Require(segment == before || segment == before + 1 || segment == 0);
        Require(count < 3 ? segment == 0 : segment <= count - 3);
        before = segment;
        CameraBuildView(&camera, 4);
        CameraLookAt(&camera, i & 1);
    }
    return 0;
}
