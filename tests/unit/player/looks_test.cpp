// Looks: each shows something, none leaves a trace in the show.
#include "player/looks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <string>

#include "base/hash.h"
#include "base/pixel16.h"
#include "open_show.h"
#include "player/show.h"
#include "player/trace.h"

#include "support/back_surface.h"

namespace ombrel {
namespace {

std::uint64_t HashOf(const LookPicture& picture) {
    return HashPicture(picture.pixels.data(), picture.width * 2, picture.width, picture.height);
}

void ExpectLegendCounts(const LookPicture& picture) {
    for (const LegendRow& row : picture.legend) {
        EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), row.color), row.pixels)
            << row.name;
    }
}

using Looks = OpenShowTest;

TEST_F(Looks, HaveNamesThatFindThem) {
    std::set<std::string> names;
    for (int i = 0; i < kLookCount; ++i) {
        Look found = Look::None;
        ASSERT_TRUE(LookOfName(LookName(static_cast<Look>(i)), &found));
        EXPECT_EQ(static_cast<int>(found), i);
        EXPECT_STRNE(LookMeaning(found), "");
        names.insert(LookName(found));
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(kLookCount));
    Look untouched = Look::Depth;
    EXPECT_FALSE(LookOfName("no such look", &untouched));
    EXPECT_EQ(untouched, Look::Depth);
}

TEST_F(Looks, ThereIsNothingToLookAtBeforeTheFirstFrame) {
    LookPicture picture;
    for (int i = 0; i < kLookCount; ++i) {
        EXPECT_FALSE(DrawLook(static_cast<Look>(i), &picture)) << i;
    }
    FrameFigures figures;
    EXPECT_FALSE(CountFrame(&figures));
    EXPECT_EQ(FindObject(10, 10).name, "");
}

// The frame after a look, and all after it, are those of a show that nobody looked into.
TEST_F(Looks, LeaveNoTrace) {
    SeekShow(59, nullptr, nullptr);
    std::vector<std::uint64_t> played;
    for (int i = 0; i < kLookCount + 1; ++i) {
        StepShow();
        played.push_back(BackSurfaceHash());
    }
    SeekShow(59, nullptr, nullptr);
    for (int i = 0; i < kLookCount; ++i) {
        StepShow();
        ASSERT_EQ(BackSurfaceHash(), played[static_cast<std::size_t>(i)]) << "before look " << i;
        LookPicture picture;
        ASSERT_TRUE(DrawLook(static_cast<Look>(i), &picture)) << i;
        FindObject(kWidth / 2, kHeight / 2);
        EXPECT_EQ(BackSurfaceHash(), played[static_cast<std::size_t>(i)]) << "after look " << i;
    }
    StepShow();
    EXPECT_EQ(BackSurfaceHash(), played.back());
}

TEST_F(Looks, NoneIsThePictureAndTheOthersDiffer) {
    SeekShow(60, nullptr, nullptr);
    LookPicture picture;
    ASSERT_TRUE(DrawLook(Look::None, &picture));
    EXPECT_EQ(picture.width, kWidth);
    EXPECT_EQ(picture.height, kHeight);
    EXPECT_EQ(HashOf(picture), BackSurfaceHash());
    std::set<std::uint64_t> hashes = {BackSurfaceHash()};
    for (const Look look : {Look::Wires, Look::Dots, Look::LightsOff, Look::NoBlur, Look::Depth,
                            Look::Overdraw, Look::Fillers, Look::Density, Look::Objects}) {
        ASSERT_TRUE(DrawLook(look, &picture));
        EXPECT_TRUE(hashes.insert(HashOf(picture)).second) << LookName(look);
    }
}

TEST_F(Looks, TheTraceAgreesWithItself) {
    SeekShow(60, nullptr, nullptr);
    Trace trace;
    ASSERT_TRUE(TraceFrame(&trace));
    ASSERT_GT(trace.triangles.size(), 0U);
    EXPECT_LE(trace.triangles.size(), static_cast<std::size_t>(trace.faces));
    std::int64_t covered = 0, asked = 0;
    for (std::size_t i = 0; i < trace.shown.size(); ++i) {
        covered += trace.coverings[i];
        // What is shown has a depth, and covers its pixel.
        EXPECT_EQ(trace.shown[i] >= 0, trace.depth[i] != 0) << i;
        EXPECT_TRUE(trace.shown[i] < 0 || trace.coverings[i] > 0) << i;
    }
    for (const TracedTriangle& triangle : trace.triangles) {
        asked += triangle.pixels;
        EXPECT_GE(trace.owners[static_cast<std::size_t>(triangle.record)], 0);
    }
    EXPECT_EQ(covered, asked);
    FrameFigures figures;
    ASSERT_TRUE(CountFrame(&figures));
    EXPECT_EQ(figures.pixels, asked);
    EXPECT_EQ(figures.triangles, static_cast<std::int32_t>(trace.triangles.size()));
}

TEST_F(Looks, ObjectsHaveTheNamesOfTheirFiles) {
    SeekShow(10, nullptr, nullptr); // scene one, inside the box: the sky is behind everything
    const ObjectAt corner = FindObject(2, 2);
    EXPECT_EQ(corner.name, "sky-sphere-04.cob");
    EXPECT_GT(corner.faces, 0);
    EXPECT_EQ(FindObject(-1, 0).name, "");
    EXPECT_EQ(FindObject(0, kHeight).name, "");
}

TEST_F(Looks, LegendsCountTheirPixels) {
    SeekShow(60, nullptr, nullptr);
    LookPicture picture;
    ASSERT_TRUE(DrawLook(Look::Fillers, &picture));
    ASSERT_FALSE(picture.legend.empty());
    ExpectLegendCounts(picture);
    for (const LegendRow& row : picture.legend) {
        EXPECT_EQ(row.name.rfind("Fill", 0), 0U) << row.name;
    }
}

TEST_F(Looks, TheLegendOfOverdrawHasEveryPixelOnce) {
    SeekShow(60, nullptr, nullptr);
    LookPicture picture;
    ASSERT_TRUE(DrawLook(Look::Overdraw, &picture));
    ExpectLegendCounts(picture);
    std::int32_t all = 0;
    for (const LegendRow& row : picture.legend) {
        all += row.pixels;
    }
    EXPECT_EQ(all, kWidth * kHeight);
}

// Painted colours are at least as bright as any light makes them.
TEST_F(Looks, EvenLightIsTheBrightest) {
    SeekShow(60, nullptr, nullptr);
    const auto brightness = [](Look look) {
        LookPicture picture;
        EXPECT_TRUE(DrawLook(look, &picture));
        return std::accumulate(
            picture.pixels.begin(), picture.pixels.end(), std::int64_t{0},
            [](std::int64_t sum, Pixel16 pixel) { return sum + GreenOf(pixel); });
    };
    EXPECT_GT(brightness(Look::LightsOff), brightness(Look::None));
}

} // namespace
} // namespace ombrel
