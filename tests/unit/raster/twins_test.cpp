// The vector twins of the fillers: every filler of every path that this processor runs, and the
// source of the widest path as plain code. Random triangles against the slow reference; spans of
// every length at every alignment against the scalar family; the arithmetic that replaces tables
// and divisions, entry by entry.
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/rect.h"
#include "base/vector_path.h"
#include "raster/blend_tables.h"
#include "raster/simd/paths.h"
#include "raster/simd/reciprocal.h"
#include "support/guard_memory.h"
#include "support/random_triangles.h"
#include "support/reference_fillers.h"
#include "support/sixteen_lanes.h"

namespace ombrel {
namespace {

struct TwinTable {
    const char* name;
    const Filler* fillers; // null: not on this processor
};

TwinTable TableOf(VectorPath path) {
    return {NameOf(path), ProcessorRuns(path) ? FillersOf(path) : nullptr};
}
const TwinTable kTables[] = {
    TableOf(VectorPath::Sse),
    TableOf(VectorPath::Avx2),
    TableOf(VectorPath::Avx512),
    {"sixteen", ProcessorRuns(VectorPath::Avx2) ? kSixteenLaneFillers : nullptr}};
constexpr int kTableCount = 4;

int NumberOf(const char* name) {
    for (int i = 0; i < kFillerCount; ++i) {
        if (std::string(kFillerTable[i].name) == name) {
            return i;
        }
    }
    return -1;
}

// --- random triangles ----------------------------------------------------------------------------

class Twins : public RandomStageTest<std::tuple<int, int>> {};

// 512 scenes of 16 triangles in the production's mode, a quarter as many in the other one.
TEST_P(Twins, DrawRandomTrianglesAsTheReference) {
    const TwinTable& table = kTables[std::get<0>(GetParam())];
    const reference::Filler& row = reference::kFillers[std::get<1>(GetParam())];
    if (table.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << table.name;
    }
    const Filler twin = table.fillers[NumberOf(row.name)];
    const auto scenes = ToIntChop(512.0F * RandomShare());
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        const RandomComparison result = CompareRandomTriangles(&stage, row, twin, scenes);
        ASSERT_EQ(result.failure, "");
        EXPECT_GT(result.visible * 4, result.triangles);
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    const RandomComparison result = CompareRandomTriangles(&stage, row, twin, scenes / 4);
    EXPECT_EQ(result.failure, "");
}

std::string NameOfPair(const testing::TestParamInfo<std::tuple<int, int>>& info) {
    return std::string(kTables[std::get<0>(info.param)].name) + "_" +
           reference::kFillers[std::get<1>(info.param)].name;
}
INSTANTIATE_TEST_SUITE_P(Paths, Twins,
                         testing::Combine(testing::Range(0, kTableCount),
                                          testing::Range(0, reference::kCount)),
                         NameOfPair);

// --- spans of every length at every alignment ----------------------------------------------------

constexpr std::int32_t kSpans = 71; // lengths 0..70
constexpr std::int32_t kTexels = 128;

// A picture in memory that ends at a page on one side or the other, and a copy for the scalar
// member.
struct SpanStage {
    std::int32_t width, height;
    GuardMemory frame, depth, texels;
    std::vector<Pixel16> frameCopy;
    std::vector<std::uint32_t> depthCopy;
    Texture texture;
};

SpanStage MakeSpanStage(std::int32_t width, GuardSide side) {
    SpanStage stage = {};
    stage.width = width;
    stage.height = kSpans + 1;
    const auto count = static_cast<std::size_t>(stage.width * stage.height);
    stage.frame = MakeGuardMemory(count * 2, side);
    stage.depth = MakeGuardMemory(count * 4, side);
    stage.texels = MakeGuardMemory(kTexels * kTexels * 2, side);
    RandomSource source = MakeRandomSource(static_cast<std::uint64_t>(width));
    auto* texels = reinterpret_cast<Pixel16*>(stage.texels.bytes);
    for (int i = 0; i < kTexels * kTexels; ++i) {
        texels[i] = static_cast<Pixel16>(
            RandomBelow(&source, 4) == 0 ? 0 : RandomBelow(&source, 65536)); // some are the key
    }
    stage.texture = {1,  TEX_FILLED,        0, 0, kTexels, kTexels, kTexels * kTexels * 2,
                     16, stage.texels.bytes};
    stage.frameCopy.resize(count);
    stage.depthCopy.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        stage.frameCopy[i] = static_cast<Pixel16>(RandomBelow(&source, 65536));
    }
    return stage;
}

void FreeSpanStage(SpanStage* stage) {
    FreeGuardMemory(&stage->frame);
    FreeGuardMemory(&stage->depth);
    FreeGuardMemory(&stage->texels);
}

// Spans of 0 to 70 pixels that all begin at x (to the right), or all end there.
ScreenPolygon Wedge(const SpanStage& stage, std::int32_t x, bool toTheRight) {
    ScreenPolygon polygon = {};
    const std::int32_t tip = toTheRight ? x + kSpans : x - kSpans;
    const std::int32_t xs[3] = {x, x, tip}, ys[3] = {0, kSpans, kSpans};
    for (int i = 0; i < 3; ++i) {
        Vertex& vertex = polygon.vertices[i];
        vertex.x = static_cast<float>(xs[i]);
        vertex.y = static_cast<float>(ys[i]);
        vertex.z = static_cast<float>(500 + 40 * i);
        vertex.u = static_cast<float>(i == 2 ? kTexels - 1 : 3 * i); // up to the last texel
        vertex.v = static_cast<float>(i == 0 ? 0 : kTexels - 1);
        polygon.litColors[i] = 0xFFFFU >> (3 * i);
    }
    // Only read by textured fillers.
    polygon.texture.single = const_cast<Texture*>(&stage.texture);
    return polygon;
}

// Draws the wedge with a twin and its scalar member; true when not a byte differs.
bool SameSpans(SpanStage* stage, int number, Filler twin, ScreenPolygon polygon,
               std::uint32_t seed) {
    // Depths in front of the wedge and behind it in stretches of all lengths.
    RandomSource source = MakeRandomSource(seed);
    const bool isW = kFillerTable[number].rules.depth == DepthRule::W;
    bool near = false;
    for (std::uint32_t& cell : stage->depthCopy) {
        near = RandomBelow(&source, 6) == 0 ? !near : near;
        const std::uint32_t z = near ? 400 : 700;
        cell = isW ? 0x10000000 / z : z << 16;
    }
    const std::size_t count = stage->frameCopy.size();
    std::memcpy(stage->depth.bytes, stage->depthCopy.data(), count * 4);
    std::memcpy(stage->frame.bytes, stage->frameCopy.data(), count * 2);
    ScreenPolygon other = polygon;
    kScalarFillers[number](&other, {stage->frameCopy.data(), stage->width * 2,
                                    stage->depthCopy.data(), stage->width * 4, 3});
    twin(&polygon, {reinterpret_cast<Pixel16*>(stage->frame.bytes), stage->width * 2,
                    reinterpret_cast<std::uint32_t*>(stage->depth.bytes), stage->width * 4, 3});
    return std::memcmp(stage->frame.bytes, stage->frameCopy.data(), count * 2) == 0 &&
           std::memcmp(stage->depth.bytes, stage->depthCopy.data(), count * 4) == 0 &&
           GuardIntact(stage->frame) && GuardIntact(stage->depth) &&
           std::memcmp(&polygon, &other, sizeof polygon) == 0;
}

class TwinSpans : public testing::TestWithParam<int> {};

TEST_P(TwinSpans, OfEveryLengthAtEveryAlignmentAreTheScalarOnes) {
    const TwinTable& table = kTables[GetParam()];
    if (table.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << table.name;
    }
    const ScopedFloatMode chop(FloatMode::Chop);
    BuildBlendTables(8, BlendTables[0]);
    const Rect saved = clipRect;
    std::uint32_t seed = 1;
    for (std::int32_t x = 0; x < 17; ++x) {
        for (const GuardSide side : {GuardSide::Before, GuardSide::Behind}) {
            // The wedge touches both sides of the picture, or leaves a pixel there.
            SpanStage stage = MakeSpanStage(kSpans + x, side);
            for (int number = 0; number < kFillerCount; ++number) {
                const Filler twin = table.fillers[number];
                for (const std::int32_t cut : {0, 1, 5, 20}) {
                    clipRect = {cut, 0, stage.width - cut, stage.height};
                    EXPECT_TRUE(SameSpans(&stage, number, twin, Wedge(stage, x, true), ++seed))
                        << kFillerTable[number].name << " from " << x << ", cut " << cut;
                    EXPECT_TRUE(
                        SameSpans(&stage, number, twin, Wedge(stage, kSpans, false), ++seed))
                        << kFillerTable[number].name << " up to " << kSpans << ", cut " << cut;
                }
            }
            FreeSpanStage(&stage);
        }
    }
    clipRect = saved;
}
INSTANTIATE_TEST_SUITE_P(Paths, TwinSpans, testing::Range(0, kTableCount),
                         [](const testing::TestParamInfo<int>& info) {
                             return std::string(kTables[info.param].name);
                         });

// --- arithmetic in the place of tables and divisions ---------------------------------------------

// A square of 256 x 256 pixels as two triangles, a texel a pixel.
void FillSquare(Filler filler, Texture* texture, Pixel16* frame, std::uint32_t level) {
    for (int half = 0; half < 2; ++half) {
        ScreenPolygon polygon = {};
        const int xs[3] = {0, 256, half == 0 ? 256 : 0}, ys[3] = {0, half == 0 ? 0 : 256, 256};
        for (int i = 0; i < 3; ++i) {
            Vertex& vertex = polygon.vertices[i];
            vertex.x = static_cast<float>(xs[i]);
            vertex.y = static_cast<float>(ys[i]);
            vertex.z = 1.0F;
            vertex.u = vertex.x;
            vertex.v = vertex.y;
        }
        polygon.texture.single = texture;
        filler(&polygon, {frame, 512, nullptr, 0, level});
    }
}

class TwinArithmetic : public testing::TestWithParam<int> {};

TEST_P(TwinArithmetic, GivesAllEntriesOfAllBlendTables) {
    const TwinTable& table = kTables[GetParam()];
    if (table.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << table.name;
    }
    constexpr int count = kBlendTableSize;
    BuildBlendTables(8, BlendTables[0]);
    const Rect saved = clipRect;
    clipRect = {0, 0, 256, 256};
    // One row and column more than the square, so that its far corners lie inside.
    std::vector<Pixel16> texels(512 * 512), frame(count);
    for (std::size_t i = 0; i < count; ++i) {
        texels[(i >> 8) * 512 + (i & 255)] = static_cast<Pixel16>(i);
    }
    Texture texture = {1, TEX_FILLED, 0, 0, 512, 512, 512 * 512 * 2, 16, texels.data()};
    for (std::uint32_t level = 0; level < 8; ++level) {
        // Every source over black, black over everything that can be there.
        frame.assign(count, 0);
        FillSquare(table.fillers[static_cast<int>(FillerId::FillTexBlend)], &texture, frame.data(),
                   level);
        EXPECT_EQ(std::memcmp(frame.data(), BlendTables[level], count * 2), 0) << level;
        for (std::size_t i = 0; i < count; ++i) {
            frame[i] = static_cast<Pixel16>(i);
        }
        FillSquare(table.fillers[static_cast<int>(FillerId::FillFlatBlend)], &texture, frame.data(),
                   level);
        EXPECT_EQ(std::memcmp(frame.data(), BlendTables[7 - level], count * 2), 0) << level;
    }
    clipRect = saved;
}
INSTANTIATE_TEST_SUITE_P(Paths, TwinArithmetic, testing::Range(0, kTableCount),
                         [](const testing::TestParamInfo<int>& info) {
                             return std::string(kTables[info.param].name);
                         });

// Next to every multiple is where a reciprocal goes wrong.
bool DividesExactly(std::int32_t n, std::int32_t multiple) {
    for (std::int64_t a = std::int64_t{multiple} - 1; a <= std::int64_t{multiple} + 1; ++a) {
        for (const std::int64_t dividend : {a, -a}) {
            if (dividend < INT32_MIN || dividend > INT32_MAX) {
                continue;
            }
            const auto exact = static_cast<std::int32_t>(dividend);
            const double product = static_cast<double>(exact) * ReciprocalOf(n);
            if (static_cast<std::int32_t>(product) != exact / n) {
                return false;
            }
            if (n < kShortSpan && static_cast<std::int32_t>(static_cast<double>(exact) *
                                                            kReciprocals.of[n]) != exact / n) {
                return false;
            }
        }
    }
    return true;
}

void DivideByAllLengths() {
    RandomSource source = MakeRandomSource(1);
    for (std::int32_t n = 1; n < 32768; ++n) {
        const std::int32_t most = INT32_MAX / n;
        EXPECT_TRUE(DividesExactly(n, most * n)) << n;
        EXPECT_TRUE(DividesExactly(n, 0)) << n;
        EXPECT_TRUE(DividesExactly(n, INT32_MAX)) << n;
        for (int i = 0; i < (n <= 2048 ? 300 : 20); ++i) {
            const std::int32_t multiple = RandomBelow(&source, most) * n;
            ASSERT_TRUE(DividesExactly(n, multiple)) << multiple << " / " << n;
        }
    }
}

TEST(TwinReciprocal, DividesTowardZeroInBothRoundingModes) {
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        DivideByAllLengths();
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    DivideByAllLengths();
}

} // namespace
} // namespace ombrel
