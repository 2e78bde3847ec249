// The whole production over hand-made data, frame by frame: every event of both scenes falls on its
// frame. The fonts are sheets of marks, so texts are read off the presented pictures.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/float_mode.h"
#include "base/hash.h"
#include "base/random15.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/texts.h"
#include "demo/world.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

constexpr std::int64_t kF1 = 1025; // frames of scene one with steps of 1/32
constexpr float kRest = 1.8849556F;
constexpr std::uint32_t kDepthMark = 0xDEADBEEF;

// What is kept of a frame: the state after it and what its picture shows.
struct FrameLog {
    std::int32_t scene;
    std::uint32_t tick;
    std::uint32_t ambient, light;
    std::uint64_t picture;
    bool title, filled, dotMode, endFlag;
    bool block1, block3, blockLineAnywhere;
    std::int32_t brightest; // of red, green and blue in 1/31
    BlockState block;
    ScrollerState scroller;
    std::array<bool, kGreetingColumns> columnOn;
    std::array<bool, kPageLines> lineAtRest; // read off the picture, of the page being drawn
};

// The first marked pixel of a small-font row inside the border, or none.
bool AnySmallMark(const PresentedFrame& shown, std::int32_t y) {
    for (std::int32_t x = 8; x < shown.width - 8; ++x) {
        if ((PixelOf(shown, x, y) & 0xFF00) == kSmallMark) {
            return true;
        }
    }
    return false;
}

std::int32_t Brightest(const PresentedFrame& shown) {
    std::int32_t most = 0;
    for (std::int32_t y = 0; y < shown.height; y += 3) {
        for (std::int32_t x = y % 5; x < shown.width; x += 5) {
            const Pixel16 p = PixelOf(shown, x, y);
            most = std::max({most, RedOf(p), GreenOf(p) / 2, BlueOf(p)});
        }
    }
    return most;
}

class Timeline : public testing::Test {
protected:
    // One run for all tests of this file.
    static void SetUpTestSuite() {
        const DataFolderForTest folder;
        WriteWholeFolder(folder, "0.03125");
        log = new std::vector<FrameLog>;
        log->reserve(8192);
        std::int32_t page = 0; // of the scroller, as the frame at hand draws it
        result = RunProductionForTest("-w", [&page](const RunFrame& f) {
            log->push_back(Look(f, page));
            page = sceneTwo.scroller.page;
            world.depth[0] = kDepthMark;
        });
        soundPlaying = offscreen.soundPlaying;
        screenSaver = offscreen.screenSaver;
    }
    static void TearDownTestSuite() {
        delete log;
        log = nullptr;
        ResetWorld();
        ResetOffscreen();
    }
    static FrameLog Look(const RunFrame& f, std::int32_t page) {
        FrameLog l{};
        const PresentedFrame& shown = f.shown;
        l.scene = driver.sceneIndex;
        l.tick = offscreen.tick;
        l.ambient = world.lights[0].ambientColor;
        l.light = world.lights[1].lightColor;
        l.picture = HashPicture(shown.pixels, shown.pitch, shown.width, shown.height);
        l.title = TextStandsAt(shown, {210, 200, 20, kBigMark, false}, kTitleText) &&
                  TextStandsAt(shown, {100, 240, 12, kSmallMark, false}, kSubtitleText);
        l.filled = world.depth[0] != kDepthMark;
        l.dotMode = switches.renderMode1 == 0;
        l.endFlag = sceneTwo.endFlag;
        l.block1 = TextStandsAt(shown, {38, 24, 12, kSmallMark, true}, kBlockTexts[1]);
        l.block3 = TextStandsAt(shown, {38, 72, 12, kSmallMark, true}, kBlockTexts[3]);
        l.blockLineAnywhere = AnySmallMark(shown, 24 + kMarkY) || AnySmallMark(shown, 72 + kMarkY);
        l.brightest = Brightest(shown);
        l.block = sceneTwo.block;
        l.scroller = sceneTwo.scroller;
        for (std::size_t k = 0; k < l.columnOn.size(); ++k) {
            l.columnOn[k] = sceneTwo.columns[k].on;
        }
        for (std::int32_t j = 0; j < kPageLines; ++j) {
            const auto y = static_cast<std::int32_t>(static_cast<float>(j) * 21.6F);
            l.lineAtRest[static_cast<std::size_t>(j)] =
                TextStandsAt(shown, {7, y, 12, kSmallMark, true}, kScrollerTexts[page + j]);
        }
        return l;
    }
    // Frame number of scene two.
    static const FrameLog& Two(std::int64_t f) { return (*log)[static_cast<std::size_t>(kF1 + f)]; }
    // The first frame of scene two, from a frame on, that has something.
    template <typename Has> static std::int64_t First(std::int64_t from, Has has) {
        for (std::int64_t f = from; kF1 + f < static_cast<std::int64_t>(log->size()); ++f) {
            if (has(Two(f))) {
                return f;
            }
        }
        return -1;
    }
    static std::vector<FrameLog>* log;
    static int result, soundPlaying, screenSaver;
};
std::vector<FrameLog>* Timeline::log = nullptr;
int Timeline::result = -1;
int Timeline::soundPlaying = -1;
int Timeline::screenSaver = -1;

TEST_F(Timeline, WholeProductionHasItsLengthAndEndsWell) {
    EXPECT_EQ(log->size(), static_cast<std::size_t>(kF1 + 3968));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(soundPlaying, 0);
    EXPECT_EQ(screenSaver, 1);
    // 25 ms a frame.
    EXPECT_EQ(log->back().tick - log->front().tick, (kF1 + 3967) * 25);
}

TEST_F(Timeline, FadeAndTitleOfSceneOne) {
    struct Row {
        std::size_t frame;
        std::uint32_t ambient, light;
    };
    const auto c = PackLightColor;
    const Row rows[] = {
        {0, 0, 0},
        {1, 0, 0},
        {3, 0, c(1, 1, 0)},
        {5, c(1, 0, 1), c(1, 1, 1)},
        {20, c(4, 3, 4), c(7, 6, 5)},
        {40, c(8, 7, 8), c(14, 13, 10)},
        {80, c(17, 15, 17), c(28, 27, 21)},
        {120, c(26, 23, 26), c(43, 41, 32)},
        {160, c(35, 31, 35), c(57, 54, 43)},
        {240, c(53, 47, 53), c(86, 82, 64)},
        {320, c(71, 63, 71), c(115, 109, 86)},
        {400, c(89, 79, 89), c(144, 136, 108)},
        {480, c(107, 95, 107), c(173, 164, 129)},
        {560, c(125, 111, 125), c(202, 191, 151)},
        {600, c(134, 119, 134), c(216, 205, 162)},
        {640, c(143, 127, 143), c(230, 218, 172)},
        {642, c(144, 128, 144), c(231, 219, 173)},
        {643, c(144, 128, 144), c(231, 219, 173)},
        {1024, c(144, 128, 144), c(231, 219, 173)},
    };
    for (const Row& row : rows) {
        EXPECT_EQ((*log)[row.frame].ambient, row.ambient) << row.frame;
        EXPECT_EQ((*log)[row.frame].light, row.light) << row.frame;
    }
    for (std::size_t f = 0; f < kF1; ++f) {
        ASSERT_EQ((*log)[f].title, f <= 642) << f;
    }
}

TEST_F(Timeline, SceneOneHandsOverAtF1) {
    for (std::size_t f = 0; f < log->size(); ++f) {
        // After frame F1 - 1 the index is raised already.
        ASSERT_EQ((*log)[f].scene, f < kF1 - 1 ? 0 : 1) << f;
    }
    EXPECT_EQ(Two(0).ambient, PackLightColor(54, 38, 54));
    EXPECT_EQ(Two(1800).light, PackLightColor(78, 67, 58));
    EXPECT_EQ(Two(1801).ambient, PackLightColor(162, 114, 162));
    EXPECT_EQ(Two(1801).light, PackLightColor(234, 201, 174));
}

TEST_F(Timeline, MasterTableOfSceneTwo) {
    const auto pageGone = [](std::int32_t page) {
        return First(0, [page](const FrameLog& l) {
            return l.scroller.page > page || (page == 36 && l.endFlag);
        });
    };
    const auto slidesFrom = [](std::int64_t from) {
        for (std::int64_t f = from; f < 3967; ++f) {
            if (Two(f).scroller.angles[0] < Two(f - 1).scroller.angles[0]) {
                return f;
            }
        }
        return std::int64_t{-1};
    };
    const auto lineReached = [](std::int64_t from, std::int32_t line) {
        return 1 + First(from, [line](const FrameLog& l) { return l.scroller.line == line; });
    };
    const auto off = [](std::size_t k) {
        return First(0, [k](const FrameLog& l) { return !l.columnOn[k]; });
    };
    struct Event {
        const char* name;
        std::int64_t expected, measured;
    };
    const Event events[] = {
        {"block line 1 starts", 54, 1 + First(0, [](auto& l) { return l.block.stage == 1; })},
        {"block line 1 rests at x 38", 102, First(90, [](const FrameLog& l) { return l.block1; })},
        {"block line 3 starts", 162, 1 + First(0, [](auto& l) { return l.block.stage == 3; })},
        {"block line 3 rests at x 38", 210, First(200, [](const FrameLog& l) { return l.block3; })},
        {"block last drawn", 269, First(0, [](auto& l) { return l.block.stage == 5; })},
        {"first picture without the block", 270,
         First(103, [](const FrameLog& l) { return !l.blockLineAnywhere; })},
        {"greeting column 0 off", 558, off(0)},
        {"greeting column 1 off", 565, off(1)},
        {"greeting column 2 off", 604, off(2)},
        {"greeting column 4 off", 644, off(4)},
        {"greeting column 3 off", 742, off(3)},
        {"greeting column 5 off", 869, off(5)},
        {"scroller starts", 1000,
         First(0, [](const FrameLog& l) { return l.scroller.angles[0] > 0.0F; })},
        {"page 1: line 13 starts", 1672, lineReached(1000, 12)},
        {"page 1: last frame at rest", 1727, slidesFrom(1001)},
        {"page 1 last drawn", 1767, pageGone(0)},
        {"page 2 starts", 1768,
         First(1767, [](const FrameLog& l) { return l.scroller.angles[0] > 0.0F; })},
        {"first frame without the filled view", 1801,
         First(0, [](const FrameLog& l) { return !l.filled; })},
        {"dot view starts", 1801, First(0, [](const FrameLog& l) { return l.dotMode; })},
        {"page 2: line 13 shown at once", 2440, lineReached(1768, 12)},
        {"page 2: last frame at rest", 2440, slidesFrom(1769)},
        {"page 2 last drawn", 2480, pageGone(12)},
        {"page 3 starts", 2481,
         First(2480, [](const FrameLog& l) { return l.scroller.angles[0] > 0.0F; })},
        {"page 3: line 13 shown at once", 3153, lineReached(2481, 12)},
        {"page 3: last frame at rest", 3153, slidesFrom(2482)},
        {"page 3 last drawn", 3193, pageGone(24)},
        {"page 4 starts", 3194,
         First(3193, [](const FrameLog& l) { return l.scroller.angles[0] > 0.0F; })},
        {"page 4: line 13 shown at once", 3866, lineReached(3194, 12)},
        {"page 4: last frame at rest", 3866, slidesFrom(3195)},
        {"page 4 last drawn", 3906, pageGone(36)},
        {"end flag set", 3906, First(0, [](const FrameLog& l) { return l.endFlag; })},
        {"\"see ya!\" first seen", 3866,
         First(0, [](const FrameLog& l) { return l.lineAtRest[12] && l.scroller.page == 36; })},
        {"first picture without \"see ya!\"", 3907,
         First(3867, [](const FrameLog& l) { return !l.lineAtRest[12]; })},
        {"last picture", 3966, static_cast<std::int64_t>(log->size()) - kF1 - 2},
    };
    std::printf("%-40s %9s %9s\n", "event (frames of scene two)", "expected", "measured");
    for (const Event& e : events) {
        std::printf("%-40s %9lld %9lld\n", e.name, static_cast<long long>(e.expected),
                    static_cast<long long>(e.measured));
        EXPECT_EQ(e.measured, e.expected) << e.name;
    }
}

TEST_F(Timeline, BlockLinesRestUntilTheBlockIsOver) {
    for (std::int64_t f = 0; f <= 300; ++f) {
        ASSERT_EQ(Two(f).block1, f >= 102 && f <= 269) << f;
        ASSERT_EQ(Two(f).block3, f >= 210 && f <= 269) << f;
    }
}

TEST_F(Timeline, FilledViewDotsAndDarkness) {
    for (std::int64_t f = 0; f <= 3967; ++f) {
        ASSERT_EQ(Two(f).filled, f <= 1800) << f;
    }
    EXPECT_EQ(Two(1801).tick - Two(0).tick, 45025U);
    EXPECT_GT(Two(3906).brightest, 8); // dots and text
    EXPECT_LE(Two(3966).brightest, 2); // the blur has swallowed everything
    // The frame that quits presents the old picture again.
    EXPECT_EQ(Two(3967).picture, Two(3966).picture);
    EXPECT_NE(Two(3907).picture, Two(3906).picture);
}

// Page, line, first slot of the page, frame in which the line starts, frame in which it rests.
struct ScrollerRow {
    std::int32_t page, line;
    std::int64_t starts, rests;
};
std::vector<ScrollerRow> ScrollerRows() {
    const std::int64_t pageStarts[] = {1000, 1768, 2481, 3194};
    std::vector<ScrollerRow> rows;
    for (std::int32_t p = 0; p < 4; ++p) {
        for (std::int32_t j = 0; j < 12; ++j) {
            const std::int64_t starts = pageStarts[p] + 56 * j;
            rows.push_back({p, j, starts, starts + 55});
        }
    }
    rows.push_back({0, 12, 1672, 1727});
    rows.push_back({1, 12, 2440, 2440});
    rows.push_back({2, 12, 3153, 3153});
    rows.push_back({3, 12, 3866, 3866});
    return rows;
}

TEST_F(Timeline, EveryLineOfTheScroller) {
    const std::int64_t lastAtRest[] = {1727, 2440, 3153, 3866};
    const std::int64_t lastDrawn[] = {1767, 2480, 3193, 3906};
    for (const ScrollerRow& row : ScrollerRows()) {
        const auto j = static_cast<std::size_t>(row.line);
        const FrameLog& before = Two(row.starts - 1);
        EXPECT_EQ(before.scroller.page % 48, 12 * row.page);
        EXPECT_EQ(before.scroller.line, row.line) << row.page << " " << row.line;
        // The angle of a frame is the one the frame before it left behind.
        if (row.rests > row.starts) {
            EXPECT_EQ(before.scroller.angles[j], 0.0F);
            EXPECT_LT(Two(row.rests - 2).scroller.angles[j], kRest);
        }
        EXPECT_GE(Two(row.rests - 1).scroller.angles[j], kRest) << row.page << " " << row.line;
        if (kScrollerTexts[12 * row.page + row.line][0] == '\0' || row.line == 0) {
            continue;
        }
        // The picture: at rest from that frame on, the thirteenth line until the page has gone.
        const std::int64_t until = row.line == 12 ? lastDrawn[row.page] : lastAtRest[row.page];
        for (std::int64_t f = row.starts; f <= until + 1; ++f) {
            if (f < row.rests - 12 || f >= row.rests) {
                ASSERT_EQ(Two(f).lineAtRest[j], f >= row.rests && f <= until)
                    << "page " << row.page << " line " << row.line << " frame " << f;
            }
        }
    }
}

// The columns once more, by hand: phases and random numbers as they must be. The float mode is that
// of the production.
TEST_F(Timeline, R44_GreetingsFollowTheRandomSequence) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const float firstSpeeds[] = {0.0356464F, 0.0243451F, 0.0245641F,
                                 0.0198741F, 0.0304854F, 0.0446551F};
    const std::int32_t slots[] = {5, 5, 5, 6, 6, 8};
    const std::int64_t expectedOff[] = {558, 565, 604, 742, 644, 869};
    float phase[6] = {};
    float speed[6];
    std::int32_t index[6] = {};
    std::int64_t offAt[6] = {-1, -1, -1, -1, -1, -1};
    std::copy(std::begin(firstSpeeds), std::end(firstSpeeds), speed);
    std::uint32_t state = 564546;
    for (std::int64_t f = 270; f <= 3966; ++f) {
        for (std::size_t k = 0; k < 6; ++k) {
            phase[k] += speed[k];
            if (phase[k] >= 1.5707964F) {
                phase[k] = 0;
                do {
                    state = state * 214013U + 2531011U;
                    speed[k] = static_cast<float>(state >> 16 & 0x7FFF) * 3.051851e-5F * 0.04F;
                } while (speed[k] < 0.01F);
                if (++index[k] > slots[k] - 1) {
                    index[k] = 0;
                    offAt[k] = offAt[k] < 0 ? f : offAt[k];
                }
            }
            ASSERT_EQ(Two(f).columnOn[k], offAt[k] < 0) << "column " << k << " frame " << f;
        }
    }
    for (std::size_t k = 0; k < 6; ++k) {
        EXPECT_EQ(offAt[k], expectedOff[k]) << k;
    }
}

} // namespace
} // namespace ombrel
