// Stepping and seeking: a frame that was sought has the bits of the same frame played.
#include "player/show.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <vector>

#include "demo/blur.h"
#include "open_show.h"
#include "player/black_starts.h"
#include "player/chapters.h"
#include "player/looks.h"
#include "player/snapshot.h"
#include "player/unseen.h"
#include "raster/blend_tables.h"

#include "support/back_surface.h"

namespace ombrel {
namespace {

using Show = OpenShowTest;

TEST(Chapters, AreInOrderAndEveryFrameHasOne) {
    for (std::int32_t i = 1; i < kChapterCount; ++i) {
        EXPECT_LT(kChapters[i - 1].frame, kChapters[i].frame);
    }
    EXPECT_EQ(ChapterOf(-1), 0);
    EXPECT_EQ(ChapterOf(0), 0);
    EXPECT_EQ(ChapterOf(191), 0);
    EXPECT_EQ(ChapterOf(192), 1);
    EXPECT_EQ(ChapterOf(100000), kChapterCount - 1);
}

TEST(BlackStarts, RiseAndTheLastFittingOneIsTaken) {
    for (std::size_t i = 1; i < std::size(kBlackStarts); ++i) {
        const BlackStart& row = kBlackStarts[i];
        EXPECT_LE(row.start, row.dense);
        EXPECT_LE(row.dense, row.settled);
        EXPECT_EQ((row.dense - row.start) % kHiddenAtOnce, 0);
        EXPECT_LT(kBlackStarts[i - 1].settled, row.settled);
        EXPECT_EQ(&BlackStartOf(row.settled - 1), &kBlackStarts[i - 1]);
        EXPECT_EQ(&BlackStartOf(row.settled), &row);
    }
    EXPECT_EQ(BlackStartOf(0).start, 0);
    EXPECT_EQ(BlackStartOf(kBlackStarts[0].settled - 1).start, 0);
}

TEST_F(Show, NothingIsShownBeforeTheFirstStep) {
    EXPECT_EQ(ShownFrame(), -1);
    EXPECT_FALSE(ShowEnded());
    EXPECT_TRUE(StepShow());
    EXPECT_EQ(ShownFrame(), 0);
}

TEST_F(Show, SoughtFramesHaveTheirBits) {
    std::vector<std::uint64_t> played;
    for (int i = 0; i < 400; ++i) {
        ASSERT_TRUE(StepShow());
        played.push_back(BackSurfaceHash());
    }
    std::mt19937 random(7);
    for (int i = 0; i < 60; ++i) {
        const auto frame = static_cast<std::int32_t>(random() % played.size());
        ASSERT_EQ(SeekShow(frame, nullptr, nullptr), frame);
        ASSERT_EQ(BackSurfaceHash(), played[static_cast<std::size_t>(frame)]) << frame;
    }
}

TEST_F(Show, SnapshotsStayWithinTheirMemory) {
    ASSERT_TRUE(OpenShow({RenderFrame, 320, 240, 10, 1 << 20}));
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(StepShow());
    }
    EXPECT_GT(SnapshotBytes(), 0U);
    EXPECT_LE(SnapshotBytes(), std::size_t{1} << 20);
    EXPECT_EQ(SeekShow(95, nullptr, nullptr), 95);
}

TEST_F(Show, ASnapshotOfAnotherSizeIsRefusedAndNothingChanges) {
    ASSERT_TRUE(StepShow());
    const std::uint64_t early = BackSurfaceHash();
    Snapshot snapshot = TakeSnapshot();
    ASSERT_NE(snapshot.bytes, nullptr);
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(StepShow());
    }
    const std::uint64_t late = BackSurfaceHash();
    ASSERT_NE(late, early);
    const std::size_t size = snapshot.size;
    for (const std::size_t other : {size - 1, size + 1}) {
        snapshot.size = other;
        EXPECT_FALSE(RestoreSnapshot(snapshot));
        EXPECT_EQ(BackSurfaceHash(), late);
    }
    snapshot.size = size;
    EXPECT_TRUE(RestoreSnapshot(snapshot));
    EXPECT_EQ(BackSurfaceHash(), early);
    EXPECT_FALSE(RestoreSnapshot({}));
}

TEST_F(Show, AfterItsEndItGoesBackAndNoFurther) {
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(StepShow());
    }
    PostQuit(0);
    EXPECT_TRUE(StepShow());
    EXPECT_TRUE(ShowEnded());
    EXPECT_FALSE(StepShow());
    EXPECT_EQ(SeekShow(100, nullptr, nullptr), 20);
    EXPECT_EQ(SeekShow(5, nullptr, nullptr), 5);
    EXPECT_FALSE(ShowEnded());
    EXPECT_TRUE(StepShow());
    EXPECT_EQ(ShownFrame(), 6);
}

TEST_F(Show, ASeekEndsWhenItIsToldTo) {
    struct Asked {
        int count;
    } asked{0};
    const auto keepOn = [](std::int32_t, void* user) {
        return ++static_cast<Asked*>(user)->count < 5;
    };
    const std::int32_t at = SeekShow(1000, keepOn, &asked);
    EXPECT_LE(at, 5);
    EXPECT_EQ(asked.count, 5);
    EXPECT_FALSE(ShowIsSeen());
    LookPicture picture;
    EXPECT_FALSE(DrawLook(Look::None, &picture));
    // Stepping on draws again, and goes on from where the seek was.
    EXPECT_TRUE(StepShow());
    EXPECT_EQ(ShownFrame(), at + 1);
    EXPECT_TRUE(ShowIsSeen());
    const std::uint64_t next = BackSurfaceHash();
    ASSERT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0}));
    for (int i = 0; i <= at + 1; ++i) {
        StepShow();
    }
    EXPECT_EQ(BackSurfaceHash(), next);
}

// A frame that nothing near was played of is found without drawing all before it.
TEST_F(Show, FarFramesHaveTheirBits) {
    std::vector<std::uint64_t> played;
    while (StepShow()) {
        played.push_back(BackSurfaceHash());
    }
    std::mt19937 random(8);
    for (int i = 0; i < 6; ++i) {
        const auto frame = static_cast<std::int32_t>(random() % played.size());
        ASSERT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0}));
        ASSERT_EQ(SeekShow(frame, nullptr, nullptr), frame);
        ASSERT_EQ(BackSurfaceHash(), played[static_cast<std::size_t>(frame)]) << frame;
    }
    // Behind the end there is nothing.
    const auto last = static_cast<std::int32_t>(played.size()) - 1;
    ASSERT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0}));
    EXPECT_EQ(SeekShow(last + 2, nullptr, nullptr), last);
    EXPECT_TRUE(ShowEnded());
}

// The hashes make it shorter; wrong ones do no harm, whether the first is wrong or only a later
// one.
TEST_F(Show, FarFramesHaveTheirBitsWithHashesRightAndWrong) {
    std::vector<std::uint64_t> played;
    while (StepShow()) {
        played.push_back(BackSurfaceHash());
        ASSERT_EQ(ShownHash(), played.back());
    }
    const auto count = static_cast<std::int32_t>(played.size());
    std::vector<std::uint64_t> onlyTheFirst(played.size(), 1);
    onlyTheFirst[0] = played[0];
    const std::vector<std::uint64_t> none(played.size(), 1);
    const std::vector<std::uint64_t>* const lists[] = {&played, &onlyTheFirst, &none};
    for (const auto* const hashes : lists) {
        for (const std::int32_t frame : {0, count / 2, count - 2, count - 1}) {
            ASSERT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0, {hashes->data(), count}}));
            ASSERT_EQ(SeekShow(frame, nullptr, nullptr), frame);
            ASSERT_EQ(ShownHash(), played[static_cast<std::size_t>(frame)]) << frame;
        }
    }
    // A list that ends before the frame is no help, and no harm.
    ASSERT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0, {played.data(), 1}}));
    ASSERT_EQ(SeekShow(count - 2, nullptr, nullptr), count - 2);
    EXPECT_EQ(ShownHash(), played[played.size() - 2]);
}

// What far seeks rest on: brighter below is never darker above.
TEST_F(Show, BlendingAndBlurKeepTheOrderOfPictures) {
    for (std::int32_t level = 0; level < kBlendTableCount; ++level) {
        const Pixel16* const under = BlendTables[kBlendTableCount - 1 - level];
        const Pixel16* const over = BlendTables[level];
        for (std::int32_t source = 0; source < 64; ++source) {
            const auto grey = static_cast<Pixel16>(source >> 1 << 11 | source << 5 | source >> 1);
            std::int32_t before[3] = {-1, -1, -1};
            for (std::int32_t there = 0; there < 64; ++there) {
                const auto below = static_cast<Pixel16>(there >> 1 << 11 | there << 5 | there >> 1);
                const std::int32_t sum = under[below] + over[grey];
                const std::int32_t now[3] = {sum >> 11, sum >> 5 & 63, sum & 31};
                // No channel runs over into the next one.
                EXPECT_EQ(now[0], (under[below] >> 11) + (over[grey] >> 11));
                EXPECT_EQ(now[1], (under[below] >> 5 & 63) + (over[grey] >> 5 & 63));
                EXPECT_LE(now[0], 31);
                for (int i = 0; i < 3; ++i) {
                    EXPECT_GE(now[i], before[i]);
                    before[i] = now[i];
                }
            }
        }
    }
    std::mt19937 random(9);
    std::vector<Pixel16> dark(64 * 32), bright(64 * 32);
    for (std::size_t i = 0; i < dark.size(); ++i) {
        dark[i] = static_cast<Pixel16>(random());
        bright[i] = static_cast<Pixel16>(dark[i] | random()); // no bit less
    }
    BlurFrame(dark.data(), 64, 64, 32);
    BlurFrame(bright.data(), 64, 64, 32);
    for (std::size_t i = 0; i < dark.size(); ++i) {
        EXPECT_LE(RedOf(dark[i]), RedOf(bright[i]));
        EXPECT_LE(GreenOf(dark[i]), GreenOf(bright[i]));
        EXPECT_LE(BlueOf(dark[i]), BlueOf(bright[i]));
    }
}

TEST_F(Show, ARedrawLeavesNoTrace) {
    SeekShow(30, nullptr, nullptr);
    const std::uint64_t picture = BackSurfaceHash();
    std::uint64_t again[2] = {0, 0};
    const Redraw redraw = {
        [](void*) {}, [](void* user) { *static_cast<std::uint64_t*>(user) = BackSurfaceHash(); },
        again};
    EXPECT_TRUE(RedrawShown(redraw));
    EXPECT_EQ(again[0], picture);
    EXPECT_EQ(BackSurfaceHash(), picture);
    EXPECT_EQ(ShownFrame(), 30);
    StepShow();
    const std::uint64_t next = BackSurfaceHash();
    SeekShow(0, nullptr, nullptr);
    SeekShow(31, nullptr, nullptr);
    EXPECT_EQ(BackSurfaceHash(), next);
}

} // namespace
} // namespace ombrel
