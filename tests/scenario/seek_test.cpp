// The shipped production wound to and fro: every frame that is sought has its stored picture.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "app/frame_driver.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "demo/reset.h"
#include "platform/offscreen/offscreen.h"
#include "player/show.h"
#include "scenario/frame_record.h"
#include "support/back_surface.h"

namespace ombrel {
namespace {

constexpr std::size_t kMemory = std::size_t{300} << 20;
constexpr int kSeeks = 300;

// Seconds of a seek; the picture is held to the stored one.
double SeekAndCompare(std::int32_t frame, const std::vector<FrameLine>& stored) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(SeekShow(frame, nullptr, nullptr), frame);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(BackSurfaceHash(), stored[static_cast<std::size_t>(frame)].picture)
        << "frame " << frame;
    return taken.count();
}

// Times are printed, never judged.
void PrintTimes(const char* what, std::vector<double> seconds) {
    std::sort(seconds.begin(), seconds.end());
    std::printf("%s: median %.3f s, worst %.3f s\n", what, seconds[seconds.size() / 2],
                seconds.back());
}

TEST(Seeks, ThreeHundredOverTheShippedProductionHaveTheirStoredPictures) {
    const std::string dataBefore = DataFolder();
    ResetWorld();
    ResetOffscreen();
    SetDataFolder(OMBREL_SOURCE_DIR "/data");
    ChooseVectorPath(nullptr);
    std::vector<FrameLine> stored;
    ASSERT_TRUE(ReadFrameRecord(OMBREL_SOURCE_DIR "/tests/scenario/frames.txt.gz", &stored));
    const auto last = static_cast<std::int32_t>(stored.size()) - 1;
    ASSERT_TRUE(OpenShow({RenderFrame, 640, 480, 0, kMemory}));

    // A snapshot for every so many frames, the last ones too.
    EXPECT_EQ(SeekShow(0, nullptr, nullptr), 0);
    const std::size_t all = SnapshotBytes() * ((stored.size() - 1) / kSnapshotDistance + 1);

    // The end first: everything before it is played once, unseen.
    std::printf("from the start to frame %d: %.2f s\n", last, SeekAndCompare(last, stored));
    std::mt19937 random(16);
    std::vector<double> seconds;
    for (int i = 0; i < kSeeks; ++i) {
        const std::size_t frame = random() % stored.size();
        seconds.push_back(SeekAndCompare(static_cast<std::int32_t>(frame), stored));
        if (testing::Test::HasFailure()) {
            break;
        }
    }
    PrintTimes("300 seeks", seconds);
    std::printf("snapshots: %.1f MiB\n", static_cast<double>(SnapshotBytes()) / (1 << 20));
    EXPECT_EQ(SnapshotBytes(), all);
    EXPECT_LE(SnapshotBytes(), kMemory);
    CloseShow();
    ResetWorld();
    ResetOffscreen();
    SetDataFolder(dataBefore);
}

} // namespace
} // namespace ombrel
