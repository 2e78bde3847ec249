// Random triangles for the comparison of two implementations of the fillers: the same ones on every
// system and in every rounding mode. A scene is a small frame with a depth buffer, a clip rectangle
// and a texture, into which 16 triangles are drawn one over the other; after each one, both
// implementations must have left the same bytes. Frame, depth and texture stand against pages that
// cannot be touched.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "guard_memory.h"
#include "random_numbers.h"
#include "raster/fillers.h"
#include "reference_fillers.h"

namespace ombrel {

// Sides of the frame in pixels, at most.
inline constexpr std::int32_t kMaxFrameWidth = 64;
inline constexpr std::int32_t kMaxFrameHeight = 48;
inline constexpr std::int32_t kTrianglesPerScene = 16;
// 45 times this makes 5.9 million triangles.
inline constexpr std::int32_t kScenesPerFiller = 8192;
// A checksum over the first scenes alone, for runs with a smaller share.
inline constexpr std::int32_t kFirstScenes = 160;

// The memory that all comparisons share; frames and depth buffers once against the page before,
// once against the page after.
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
    std::uint64_t hash;            // of frame and depth after every scene
};

// Draws scenes 0..scenes - 1 of a filler with both implementations and stops at the first
// difference. The float mode in force is used.
RandomComparison CompareRandomTriangles(RandomStage* stage, const reference::Filler& row,
                                        Filler fast, std::int32_t scenes);

// The share of the random tests to run: OMBREL_RANDOM_SHARE, above 0 and up to 1; else 1.
float RandomShare();

} // namespace ombrel
