// The code paths: every filler of every lane set that this processor runs, and the sixteen-lane
// source as plain code. Random triangles against the slow reference; spans of every length at every
// alignment against the plain fillers; the arithmetic that replaces tables and divisions, entry by
// entry.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/vector_path.h"
#include "lanes/reciprocal.h"
#include "raster/blend_tables.h"
#include "raster/paths.h"
#include "support/clip_rect.h"
#include "support/guard_memory.h"
#include "support/made_up_rule.h"
#include "support/random_triangles.h"
#include "support/reference_fillers.h"
#include "support/sixteen_lanes.h"

namespace ombrel {
namespace {

struct PathEntry {
    const char* name;
    const Filler* fillers; // null: not on this processor
};

PathEntry EntryOf(VectorPath path) {
    return {NameOf(path), ProcessorRuns(path) ? RasterPathOf(path).fillers : nullptr};
}
// Those of this architecture beside the plain one, and sixteen lanes of plain code.
std::vector<PathEntry> AllEntries() {
    std::vector<PathEntry> all;
    for (const VectorPath path : kPathsHere) {
        if (path != VectorPath::Scalar) {
            all.push_back(EntryOf(path));
        }
    }
    all.push_back(
        {"sixteen", ProcessorRuns(VectorPath::Avx2) ? kSixteenLanePath.fillers : nullptr});
    return all;
}
const std::vector<PathEntry> kPaths = AllEntries();
constexpr int kPathCount = std::size(kPathsHere);
const PathEntry& PathOfNumber(int number) {
    return kPaths[static_cast<std::size_t>(number)];
}

int NumberOf(const char* name) {
    for (int i = 0; i < kFillerCount; ++i) {
        if (std::string(kFillerTable[i].name) == name) {
            return i;
        }
    }
    return -1;
}

// --- random triangles ----------------------------------------------------------------------------

class Paths : public RandomStageTest<std::tuple<int, int>> {};

// 512 scenes of 16 triangles in the production's mode, a quarter as many in the other one.
TEST_P(Paths, DrawRandomTrianglesAsTheReference) {
    const PathEntry& path = PathOfNumber(std::get<0>(GetParam()));
    const reference::Filler& row = reference::kFillers[std::get<1>(GetParam())];
    if (path.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << path.name;
    }
    const Filler filler = path.fillers[NumberOf(row.name)];
    const auto scenes = ToIntChop(512.0F * RandomShare());
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        const RandomComparison result = CompareRandomTriangles(&stage, row, filler, scenes);
        ASSERT_EQ(result.failure, "");
        EXPECT_GT(result.visible * 4, result.triangles);
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    const RandomComparison result = CompareRandomTriangles(&stage, row, filler, scenes / 4);
    EXPECT_EQ(result.failure, "");
}

std::string NameOfPair(const testing::TestParamInfo<std::tuple<int, int>>& info) {
    return std::string(PathOfNumber(std::get<0>(info.param)).name) + "_" +
           reference::kFillers[std::get<1>(info.param)].name;
}
INSTANTIATE_TEST_SUITE_P(Each, Paths,
                         testing::Combine(testing::Range(0, kPathCount),
                                          testing::Range(0, reference::kCount)),
                         NameOfPair);

// --- spans of every length at every alignment ----------------------------------------------------

constexpr std::int32_t kSpans = 71; // lengths 0..70
constexpr std::int32_t kTexels = 128;

// A picture in memory that ends at a page on one side or the other, and a copy for the plain
// filler.
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

// Draws the wedge with a filler of a path and the plain one; true when not a byte differs.
bool SameSpans(SpanStage* stage, int number, Filler filler, ScreenPolygon polygon,
               std::uint32_t seed) {
    // Depths in front of the wedge and behind it in stretches of all lengths.
    RandomSource source = MakeRandomSource(seed);
    const bool isW = kFillerTable[number].depth == "W";
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
    kPlainPath.fillers[number](&other, {stage->frameCopy.data(), stage->width * 2,
                                        stage->depthCopy.data(), stage->width * 4, 3, clipRect});
    filler(&polygon,
           {reinterpret_cast<Pixel16*>(stage->frame.bytes), stage->width * 2,
            reinterpret_cast<std::uint32_t*>(stage->depth.bytes), stage->width * 4, 3, clipRect});
    return std::memcmp(stage->frame.bytes, stage->frameCopy.data(), count * 2) == 0 &&
           std::memcmp(stage->depth.bytes, stage->depthCopy.data(), count * 4) == 0 &&
           GuardIntact(stage->frame) && GuardIntact(stage->depth) &&
           std::memcmp(&polygon, &other, sizeof polygon) == 0;
}

class PathSpans : public testing::TestWithParam<int> {};

TEST_P(PathSpans, OfEveryLengthAtEveryAlignmentAreThePlainOnes) {
    const PathEntry& path = PathOfNumber(GetParam());
    if (path.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << path.name;
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
                const Filler filler = path.fillers[number];
                for (const std::int32_t cut : {0, 1, 5, 20}) {
                    clipRect = {cut, 0, stage.width - cut, stage.height};
                    EXPECT_TRUE(SameSpans(&stage, number, filler, Wedge(stage, x, true), ++seed))
                        << kFillerTable[number].name << " from " << x << ", cut " << cut;
                    EXPECT_TRUE(
                        SameSpans(&stage, number, filler, Wedge(stage, kSpans, false), ++seed))
                        << kFillerTable[number].name << " up to " << kSpans << ", cut " << cut;
                }
            }
            FreeSpanStage(&stage);
        }
    }
    clipRect = saved;
}
INSTANTIATE_TEST_SUITE_P(Paths, PathSpans, testing::Range(0, kPathCount),
                         [](const testing::TestParamInfo<int>& info) {
                             return std::string(PathOfNumber(info.param).name);
                         });

// --- a rule that the table does not have ---------------------------------------------------------

// Draws the wedge with a filler; returns the picture.
std::vector<Pixel16> PictureOf(SpanStage* stage, const ScreenPolygon& wedge, Filler filler,
                               MadeUpFiller madeUp) {
    std::vector<Pixel16> frame = stage->frameCopy;
    std::vector<std::uint32_t> depth(frame.size(), 0x10000000 / 545);
    const FillTarget target = {frame.data(),
                               stage->width * 2,
                               depth.data(),
                               stage->width * 4,
                               3,
                               {0, 0, stage->width, kSpans}};
    ScreenPolygon polygon = wedge;
    if (madeUp != nullptr) {
        EXPECT_TRUE(madeUp(&polygon, target));
    } else {
        filler(&polygon, target);
    }
    return frame;
}

TEST(MadeUpRule, DrawsOverPlainAndVectorLanes) {
    const ScopedFloatMode chop(FloatMode::Chop);
    SpanStage stage = MakeSpanStage(kSpans + 9, GuardSide::Behind);
    const ScreenPolygon wedge = Wedge(stage, 4, true);
    // What is drawn over black are the colours; over the other picture they are to be xored.
    const std::vector<Pixel16> there = stage.frameCopy;
    stage.frameCopy.assign(there.size(), 0);
    const Filler set = kPlainPath.fillers[static_cast<int>(FillerId::FillTexGouraudW)];
    std::vector<Pixel16> wanted = PictureOf(&stage, wedge, set, nullptr);
    EXPECT_GT(std::count_if(wanted.begin(), wanted.end(), [](Pixel16 p) { return p != 0; }), 500);
    stage.frameCopy = there;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        wanted[i] = static_cast<Pixel16>(wanted[i] ^ there[i]);
    }
    EXPECT_EQ(PictureOf(&stage, wedge, nullptr, kMadeUpPlain), wanted);
    if (kMadeUpVector != nullptr && ProcessorRuns(kPathsHere[1])) {
        EXPECT_EQ(PictureOf(&stage, wedge, nullptr, kMadeUpVector), wanted);
    }
    FreeSpanStage(&stage);
}

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
        filler(&polygon, {frame, 512, nullptr, 0, level, {0, 0, 256, 256}});
    }
}

class PathArithmetic : public testing::TestWithParam<int> {};

TEST_P(PathArithmetic, GivesAllEntriesOfAllBlendTables) {
    const PathEntry& path = PathOfNumber(GetParam());
    if (path.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << path.name;
    }
    constexpr int count = kBlendTableSize;
    BuildBlendTables(8, BlendTables[0]);
    // One row and column more than the square, so that its far corners lie inside.
    std::vector<Pixel16> texels(512 * 512), frame(count);
    for (std::size_t i = 0; i < count; ++i) {
        texels[(i >> 8) * 512 + (i & 255)] = static_cast<Pixel16>(i);
    }
    Texture texture = {1, TEX_FILLED, 0, 0, 512, 512, 512 * 512 * 2, 16, texels.data()};
    for (std::uint32_t level = 0; level < 8; ++level) {
        // Every source over black, black over everything that can be there.
        frame.assign(count, 0);
        FillSquare(path.fillers[static_cast<int>(FillerId::FillTexBlend)], &texture, frame.data(),
                   level);
        EXPECT_EQ(std::memcmp(frame.data(), BlendTables[level], count * 2), 0) << level;
        for (std::size_t i = 0; i < count; ++i) {
            frame[i] = static_cast<Pixel16>(i);
        }
        FillSquare(path.fillers[static_cast<int>(FillerId::FillFlatBlend)], &texture, frame.data(),
                   level);
        EXPECT_EQ(std::memcmp(frame.data(), BlendTables[7 - level], count * 2), 0) << level;
    }
}
INSTANTIATE_TEST_SUITE_P(Paths, PathArithmetic, testing::Range(0, kPathCount),
                         [](const testing::TestParamInfo<int>& info) {
                             return std::string(PathOfNumber(info.param).name);
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

TEST(Reciprocal, DividesTowardZeroInBothRoundingModes) {
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        DivideByAllLengths();
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    DivideByAllLengths();
}

} // namespace
} // namespace ombrel
