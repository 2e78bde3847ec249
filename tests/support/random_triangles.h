// Random triangles for the comparison of two implementations of the fillers: the same ones on every
// system and in every rounding mode. A scene is a small frame with a depth buffer, a clip rectangle
// and a texture, into which 16 triangles are drawn one over the other; after each one, both
// implementations must have left the same bytes. Frame, depth and texture stand against pages that
// cannot be touched.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "guard_memory.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "reference_fillers.h"

namespace ombrel {

// A small random generator of our own: 64 bits of state, never 0.
struct RandomSource {
    std::uint64_t state;
};
RandomSource MakeRandomSource(std::uint64_t seed); // any seed
std::uint64_t NextRandom(RandomSource* source);
std::int32_t RandomBelow(RandomSource* source, std::int32_t count); // 0..count - 1
std::int32_t RandomBetween(RandomSource* source, std::int32_t first, std::int32_t last);

// Sides of the frame in pixels, at most.
inline constexpr std::int32_t kMaxFrameWidth = 64;
inline constexpr std::int32_t kMaxFrameHeight = 48;
inline constexpr std::int32_t kTrianglesPerScene = 16;
// 45 times this makes 5.9 million triangles.
inline constexpr std::int32_t kScenesPerFiller = 8192;
// A checksum over the first scenes alone, for runs with a smaller share.
inline constexpr std::int32_t kFirstScenes = 160;

// The memory that all comparisons share; frames and depth buffers once against the page before,
// once against the page behind.
struct RandomStage {
    GuardMemory frame[2];
    GuardMemory depth[2];
    std::vector<std::uint8_t> frameCopy[2]; // for the second implementation
    std::vector<std::uint8_t> depthCopy[2];
    std::vector<GuardMemory> texels;
    std::vector<Texture> textures;
    std::vector<Pixel16> blendTables; // the reference's own
};
RandomStage MakeRandomStage();
void FreeRandomStage(RandomStage* stage);

struct RandomComparison {
    std::string failure; // empty: not one byte differed
    std::int64_t triangles;
    std::int64_t visible;          // triangles that changed the frame
    std::int64_t hidden;           // triangles that changed nothing
    std::uint64_t firstScenesHash; // after kFirstScenes; 0 when fewer were asked for
    std::uint64_t hash;            // of frame and depth behind every scene
};

// Draws scenes 0..scenes - 1 of a filler with both implementations and stops at the first
// difference. The float mode in force is used.
RandomComparison CompareRandomTriangles(RandomStage* stage, const reference::Filler& row,
                                        Filler fast, std::int32_t scenes);

// A parameterised test on one stage; both families have their blend tables as at start-up.
template <class Parameter> class RandomStageTest : public testing::TestWithParam<Parameter> {
protected:
    static void SetUpTestSuite() {
        const ScopedFloatMode nearest(FloatMode::Nearest);
        BuildBlendTables(8, BlendTables[0]);
        stage = MakeRandomStage();
    }
    static void TearDownTestSuite() { FreeRandomStage(&stage); }
    inline static RandomStage stage;
};

// The share of the random tests to run: OMBREL_RANDOM_SHARE, above 0 and up to 1; else 1.
float RandomShare();

} // namespace ombrel
