// The guard pages do guard.
#include <csignal>

#include <gtest/gtest.h>

#include "support/guard_memory.h"

namespace ombrel {
namespace {

// Death tests run in a child of their own.
TEST(GuardMemoryDeathTest, TheByteBehindAndTheByteBeforeCannotBeTouched) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    GuardMemory behind = MakeGuardMemory(100, GuardSide::Behind);
    GuardMemory before = MakeGuardMemory(100, GuardSide::Before);
    volatile unsigned char* last = behind.bytes;
    volatile unsigned char* first = before.bytes;
    last[99] = 1;
    first[0] = 1;
    EXPECT_DEATH(last[100] = 1, "");
    EXPECT_DEATH(first[-1] = 1, "");
    EXPECT_DEATH((void)last[100], "");
    FreeGuardMemory(&behind);
    FreeGuardMemory(&before);
}

TEST(GuardMemory, MarksShowWhatWasTouchedOnTheOtherSide) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::Behind}) {
        GuardMemory memory = MakeGuardMemory(5000, side);
        EXPECT_TRUE(GuardIntact(memory));
        memory.bytes[0] = 1;
        memory.bytes[4999] = 1;
        EXPECT_TRUE(GuardIntact(memory));
        memory.bytes[side == GuardSide::Before ? 5000 : -1] = 0;
        EXPECT_FALSE(GuardIntact(memory));
        FreeGuardMemory(&memory);
        EXPECT_EQ(memory.bytes, nullptr);
    }
}

TEST(GuardMemory, WholePagesHaveNoRoomForMarks) {
    GuardMemory memory = MakeGuardMemory(8192, GuardSide::Behind);
    for (std::size_t i = 0; i < memory.size; ++i) {
        ASSERT_EQ(memory.bytes[i], 0);
    }
    EXPECT_TRUE(GuardIntact(memory));
    FreeGuardMemory(&memory);
    FreeGuardMemory(&memory); // harmless
}

} // namespace
} // namespace ombrel
