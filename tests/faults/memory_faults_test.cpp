// Memory that cannot be had, everywhere in start-up and a few frames: the production goes on with
// what it has, gives everything back, and ends as always.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "app/shell.h"
#include "base/memory_reserve.h"
#include "demo/reset.h"
#include "failing_calls.h"
#include "platform/system.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"
#include "support/random_triangles.h"

namespace ombrel {
namespace {

constexpr std::int64_t kPlayedFrames = 36; // into scene two, which loads its track

void EndAfterFrames(std::int64_t turn, void*) {
    if (turn == kPlayedFrames) {
        PostQuit(0);
    }
}

// Plays with the rules as they are set; true when it came to its end as it must.
bool Plays() {
    ResetForRun();
    script.onTurn = EndAfterFrames;
    StartFailing();
    const int result = RunProduction("-w -resolution=320x240");
    StopFailing();
    const bool ended = result == 0 && offscreen.presents + offscreen.turns >= kPlayedFrames &&
                       offscreen.screenSaver == 1 && offscreen.screenOpen == 0 &&
                       offscreen.desktopBits == 32;
    ResetWorld();
    ResetOffscreen();
    return ended;
}

class MemoryFaults : public testing::Test {
protected:
    MemoryFaults() {
        WriteWholeFolder(folder_, "1");
        failing = FailingCalls{};
        EXPECT_TRUE(Plays());
        blocks_ = failing.blockCalls;
        small_ = failing.smallCalls;
        std::printf("%lld blocks, %lld small allocations in a run\n",
                    static_cast<long long>(blocks_), static_cast<long long>(small_));
    }
    ~MemoryFaults() override { failing = FailingCalls{}; }

    // Sets a rule, plays, and says which one it was when something was wrong.
    static void PlayWith(const char* what, const FailureRule& blocks, const FailureRule& small) {
        failing = FailingCalls{};
        failing.blocks = blocks;
        failing.small = small;
        EXPECT_TRUE(Plays()) << what << " from " << std::min(blocks.first, small.first);
        EXPECT_GT(failing.failed, 0) << what;
    }
    // About as many steps over a count as the machine is given time for.
    static std::int64_t Stride(std::int64_t count, int steps) {
        const auto wanted = static_cast<std::int64_t>(static_cast<float>(steps) * RandomShare());
        return std::max<std::int64_t>(1, count / std::max<std::int64_t>(wanted, 4));
    }

    DataFolderForTest folder_;
    std::int64_t blocks_, small_;
};

constexpr FailureRule kNone{};

TEST_F(MemoryFaults, OneBlockIsMissing) {
    ASSERT_GT(blocks_, 500); // surfaces, meshes, textures, depth, reserve
    for (std::int64_t k = 0; k < blocks_; k += Stride(blocks_, 30)) {
        PlayWith("block", {k, k, 1}, kNone);
    }
}

TEST_F(MemoryFaults, AllBlocksAreMissingFromOneOn) {
    for (std::int64_t k = 0; k < blocks_; k += Stride(blocks_, 20)) {
        PlayWith("blocks", {k, kNever, 1}, kNone);
    }
}

TEST_F(MemoryFaults, EveryNthBlockIsMissing) {
    for (const std::int64_t n : {2, 3, 5, 7, 11, 13, 17, 31, 64, 127, 255, 300}) {
        PlayWith("every nth block", {n - 1, kNever, n}, kNone);
    }
}

TEST_F(MemoryFaults, OneSmallAllocationIsMissing) {
    ASSERT_GT(small_, 50); // names of files, texts of tracks and lists
    for (std::int64_t k = 0; k < small_; k += Stride(small_, 30)) {
        PlayWith("small", kNone, {k, k, 1});
    }
}

TEST_F(MemoryFaults, EveryNthOfAnyKindIsMissing) {
    for (const std::int64_t n : {2, 3, 5, 7, 11, 13, 31, 127}) {
        PlayWith("every nth", {n - 1, kNever, n}, {n - 1, kNever, n});
    }
}

// Without any memory at all not even a file can be named: it says so and dies of SIGABRT, where the
// back end puts the desktop back.
void PlayWithoutMemory() {
    failing = FailingCalls{};
    failing.blocks = failing.small = {0, kNever, 1};
    (void)Plays();
}

TEST_F(MemoryFaults, WithoutAnyMemoryItSaysSo) {
    EXPECT_DEATH(PlayWithoutMemory(), "out of memory");
}

TEST(MemoryReserve, IsFilledUsedUpAndGivenBack) {
    ResetMemoryReserve();
    EXPECT_EQ(ReservePieces(), 0);
    KeepMemoryReserve();
    EXPECT_EQ(ReservePieces(), kReservePieces);
    // A failed attempt costs one piece, and the next attempt succeeds.
    failing = FailingCalls{};
    failing.small = {0, 0, 1};
    StartFailing();
    void* const memory = ::operator new(100);
    StopFailing();
    EXPECT_EQ(ReservePieces(), kReservePieces - 1);
    ::operator delete(memory);
    KeepMemoryReserve();
    EXPECT_EQ(ReservePieces(), kReservePieces);
    // What cannot be filled stays empty.
    ResetMemoryReserve();
    failing.blocks = {0, kNever, 2};
    StartFailing();
    KeepMemoryReserve();
    StopFailing();
    EXPECT_EQ(ReservePieces(), kReservePieces / 2);
    ResetMemoryReserve();
    EXPECT_EQ(ReservePieces(), 0);
    failing = FailingCalls{};
}

} // namespace
} // namespace ombrel
