// Stepping and seeking: a frame that was sought has the bits of the same frame played.
#include "player/show.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "open_show.h"
#include "player/chapters.h"

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

TEST_F(Show, ASeekEndsWhenItIsToldTo) {
    struct Asked {
        int count;
    } asked{0};
    const auto keepOn = [](std::int32_t, void* user) {
        return ++static_cast<Asked*>(user)->count < 5;
    };
    EXPECT_EQ(SeekShow(1000, keepOn, &asked), 4);
    EXPECT_EQ(asked.count, 5);
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
