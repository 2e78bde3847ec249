// The faces of the shipped world, along both flights, by every vector path against the plain code:
// each drawn face in its order and with the same bits, and the same picture.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/world.h"
#include "raster/paths.h"
#include "scene/camera.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

constexpr std::int64_t kFramesOfAScene = 32;

struct DrawnFrame {
    std::int32_t faces;
    std::uint64_t list, picture;
};

template <class T> std::uint64_t Add(std::uint64_t hash, const T& value) {
    return HashBytes(hash, &value, sizeof value);
}

// Whatever of a face is drawn from.
std::uint64_t AddFace(std::uint64_t hash, const RenderFace& face) {
    hash = Add(hash, face.state);
    hash = Add(hash, face.flags);
    hash = Add(hash, face.color);
    hash = Add(hash, face.litColors);
    hash = Add(hash, face.size);
    for (const FaceCorner& v : face.work) {
        hash = Add(hash, v.x);
        hash = Add(hash, v.y);
        hash = Add(hash, v.z);
        if ((face.flags & FACE_TEXTURED) != 0) {
            hash = Add(hash, v.u);
            hash = Add(hash, v.v);
        }
    }
    return hash;
}

DrawnFrame LookAtFaces(const PresentedFrame& shown) {
    DrawnFrame drawn = {0, kHashStart,
                        HashPicture(shown.pixels, shown.pitch, shown.width, shown.height)};
    for (std::int32_t i = 0; i < sceneFaces.count; ++i) {
        const RenderFace& face = *sceneFaces.pointers[i];
        if (IsDrawable(face.state)) {
            ++drawn.faces;
            drawn.list = AddFace(drawn.list, face);
        }
    }
    return drawn;
}

// Scene one in full light, then scene two, each at places spread over its whole track.
std::vector<DrawnFrame> FlyThrough(VectorPath path) {
    setenv(kPathVariable, NameOf(path), 1);
    std::vector<DrawnFrame> frames;
    RunProductionForTest("-w -ns", [&frames](const RunFrame& f) {
        frames.push_back(LookAtFaces(f.shown));
        const std::int64_t next = f.number + 1;
        const bool first = next < kFramesOfAScene;
        if (f.number == 0) {
            std::fill_n(sceneOne.ambientFade, 3, 128.0F);
            std::fill_n(sceneOne.lightFade, 3, 220.0F);
        }
        driver.sceneIndex = first ? 0 : 1;
        const std::int32_t keys = first ? 31 : std::max(sceneTwo.keyCount - 3, 1);
        trackSegment = static_cast<std::int32_t>(next % kFramesOfAScene * keys / kFramesOfAScene);
        trackT = 0.3F;
        if (next == 2 * kFramesOfAScene) {
            EndRunAfterThisFrame();
        }
    });
    ResetWorld();
    ResetOffscreen();
    return frames;
}

TEST(FrontEndFrames, ShippedWorldHasTheBitsOfThePlainCodeOnEveryPath) {
    const std::string dataBefore = DataFolder();
    const char* const request = std::getenv(kPathVariable);
    const std::string requestBefore = request != nullptr ? request : "";
    SetDataFolder(OMBREL_SOURCE_DIR "/data");

    const std::vector<DrawnFrame> plain = FlyThrough(VectorPath::Scalar);
    std::int64_t faces = 0;
    for (const DrawnFrame& drawn : plain) {
        faces += drawn.faces;
    }
    EXPECT_EQ(plain.size(), 2U * kFramesOfAScene);
    EXPECT_GT(faces, 200000);
    for (const VectorPath path : kPathsHere) {
        if (path == VectorPath::Scalar || !ProcessorRuns(path)) {
            continue;
        }
        const std::vector<DrawnFrame> fast = FlyThrough(path);
        ASSERT_EQ(fast.size(), plain.size());
        for (std::size_t i = 0; i < plain.size(); ++i) {
            ASSERT_EQ(fast[i].faces, plain[i].faces) << NameOf(path) << ", frame " << i;
            ASSERT_EQ(fast[i].list, plain[i].list) << NameOf(path) << ", frame " << i;
            ASSERT_EQ(fast[i].picture, plain[i].picture) << NameOf(path) << ", frame " << i;
        }
    }

    setenv(kPathVariable, requestBefore.c_str(), 1);
    SetDataFolder(dataBefore);
}

} // namespace
} // namespace ombrel
