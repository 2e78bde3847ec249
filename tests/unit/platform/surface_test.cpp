// Surfaces in memory: pitch, colour key, clip lists, fills, locks, and handles that are gone.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/offscreen/offscreen.h"
#include "platform/soft/soft.h"

namespace ombrel {
namespace {

class SurfaceTest : public testing::Test {
protected:
    void SetUp() override { ResetOffscreen(); }
    void TearDown() override { ResetOffscreen(); }
};

Pixel16* RowOf(const FrameBuffer& memory, std::int32_t y) {
    return reinterpret_cast<Pixel16*>(reinterpret_cast<char*>(memory.pixels) +
                                      static_cast<std::ptrdiff_t>(y) * memory.pitch);
}

Pixel16 PixelAt(Surface* surface, std::int32_t x, std::int32_t y) {
    FrameBuffer memory{};
    EXPECT_EQ(LockSurface(surface, &memory), 1);
    const Pixel16 value = RowOf(memory, y)[x];
    EXPECT_EQ(UnlockSurface(surface), 1);
    return value;
}

void SetPixel(Surface* surface, std::int32_t x, std::int32_t y, Pixel16 value) {
    FrameBuffer memory{};
    ASSERT_EQ(LockSurface(surface, &memory), 1);
    RowOf(memory, y)[x] = value;
    ASSERT_EQ(UnlockSurface(surface), 1);
}

// How many pixels have a value other than `value`.
int CountOther(Surface* surface, Pixel16 value) {
    int count = 0;
    for (std::int32_t y = 0; y < surface->height; ++y) {
        for (std::int32_t x = 0; x < surface->width; ++x) {
            count += PixelAt(surface, x, y) != value ? 1 : 0;
        }
    }
    return count;
}

TEST_F(SurfaceTest, NewSurfacesAreBlackAndHaveTheirKey) {
    Surface* surface = MakeOffscreenSurface(7, 5, SurfaceMemory::System, 0xABCD1234);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->width, 7);
    EXPECT_EQ(surface->height, 5);
    EXPECT_EQ(surface->colorKey, 0x1234); // the low 16 bits
    EXPECT_EQ(CountOther(surface, 0), 0);
}

TEST_F(SurfaceTest, SizesThatCannotBeFail) {
    EXPECT_EQ(MakeOffscreenSurface(0, 5, SurfaceMemory::System, 0), nullptr);
    EXPECT_EQ(MakeOffscreenSurface(5, 0, SurfaceMemory::System, 0), nullptr);
    EXPECT_EQ(MakeOffscreenSurface(-3, 5, SurfaceMemory::Any, 0), nullptr);
    EXPECT_EQ(MakeOffscreenSurface(1 << 30, 1 << 30, SurfaceMemory::Any, 0), nullptr);
}

TEST_F(SurfaceTest, PoolThatIsUsedUpFails) {
    std::vector<Surface*> all;
    for (std::int32_t i = 0; i < kMaxSurfaces; ++i) {
        all.push_back(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0));
        ASSERT_NE(all.back(), nullptr) << i;
    }
    EXPECT_EQ(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), nullptr);
    ReleaseSurface(all[17]);
    EXPECT_EQ(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), all[17]);
}

TEST_F(SurfaceTest, PitchExceedsTheWidthOnRequest) {
    softOptions.pitchPadding = 11; // made even
    Surface* surface = MakeOffscreenSurface(8, 4, SurfaceMemory::System, 0);
    FrameBuffer memory{};
    ASSERT_EQ(LockSurface(surface, &memory), 1);
    EXPECT_EQ(memory.pitch, 26);
    UnlockSurface(surface);
}

TEST_F(SurfaceTest, FillLeavesThePaddingAlone) {
    softOptions.pitchPadding = 6;
    Surface* surface = MakeOffscreenSurface(8, 4, SurfaceMemory::System, 0);
    EXPECT_EQ(FillSurface(surface, 0x7FFF1234, nullptr), 1);
    EXPECT_EQ(CountOther(surface, 0x1234), 0);
    FrameBuffer memory{};
    ASSERT_EQ(LockSurface(surface, &memory), 1);
    for (std::int32_t y = 0; y < 4; ++y) {
        for (std::int32_t x = 8; x < 11; ++x) {
            EXPECT_EQ(RowOf(memory, y)[x], 0) << x << ' ' << y;
        }
    }
    UnlockSurface(surface);
}

TEST_F(SurfaceTest, FillOfARectangleHasOpenRightAndBottom) {
    Surface* surface = MakeOffscreenSurface(8, 6, SurfaceMemory::System, 0);
    const Rect r{2, 1, 5, 3};
    FillSurface(surface, 0xFFFF, &r);
    for (std::int32_t y = 0; y < 6; ++y) {
        for (std::int32_t x = 0; x < 8; ++x) {
            const bool inside = x >= 2 && x < 5 && y >= 1 && y < 3;
            EXPECT_EQ(PixelAt(surface, x, y), inside ? 0xFFFF : 0) << x << ' ' << y;
        }
    }
}

TEST_F(SurfaceTest, FillBeyondASurfaceWithoutClipListDrawsNothing) {
    Surface* surface = MakeOffscreenSurface(8, 6, SurfaceMemory::System, 0);
    const Rect over{-1, 0, 4, 4};
    const Rect empty{4, 4, 4, 5};
    EXPECT_EQ(FillSurface(surface, 1, &over), 1);
    EXPECT_EQ(FillSurface(surface, 1, &empty), 1);
    EXPECT_EQ(CountOther(surface, 0), 0);
}

TEST_F(SurfaceTest, FillIsCutToTheClipList) {
    Surface* surface = MakeOffscreenSurface(8, 6, SurfaceMemory::System, 0);
    const Rect allowed[] = {{1, 1, 3, 3}, {5, 4, 100, 100}};
    Clipper* clipper = SetSurfaceClipList(surface, 2, allowed);
    ASSERT_NE(clipper, nullptr);
    EXPECT_EQ(clipper->bounds.left, 1);
    EXPECT_EQ(clipper->bounds.top, 1);
    EXPECT_EQ(clipper->bounds.right, 100);
    EXPECT_EQ(clipper->bounds.bottom, 100);
    const Rect huge{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
    FillSurface(surface, 9, &huge);
    EXPECT_EQ(CountOther(surface, 0), 2 * 2 + 3 * 2);
    EXPECT_EQ(PixelAt(surface, 7, 5), 9);
    EXPECT_EQ(PixelAt(surface, 4, 5), 0);
}

TEST_F(SurfaceTest, EmptyClipListAllowsNothing) {
    Surface* surface = MakeOffscreenSurface(4, 4, SurfaceMemory::System, 0);
    Clipper* clipper = SetSurfaceClipList(surface, 0, nullptr);
    ASSERT_NE(clipper, nullptr);
    EXPECT_EQ(clipper->bounds.left, 64000);
    EXPECT_EQ(clipper->bounds.right, -64000);
    FillSurface(surface, 9, nullptr);
    EXPECT_EQ(CountOther(surface, 0), 0);
}

TEST_F(SurfaceTest, ClipListOfNothingFails) {
    EXPECT_EQ(SetSurfaceClipList(nullptr, 0, nullptr), nullptr);
    Surface* surface = MakeOffscreenSurface(4, 4, SurfaceMemory::System, 0);
    EXPECT_EQ(SetSurfaceClipList(surface, -1, nullptr), nullptr);
    EXPECT_EQ(SetSurfaceClipList(surface, 1, nullptr), nullptr);
}

TEST_F(SurfaceTest, BlitKeepsWhatIsUnderTheKey) {
    Surface* from = MakeOffscreenSurface(3, 2, SurfaceMemory::System, 0);
    Surface* to = MakeOffscreenSurface(8, 6, SurfaceMemory::System, 0);
    FillSurface(to, 0x5555, nullptr);
    SetPixel(from, 1, 0, 0xF800);
    SetPixel(from, 2, 1, 0x07E0);
    const Rect target{4, 3, 7, 5};
    EXPECT_EQ(BlitKeyed(to, &target, from), 1);
    EXPECT_EQ(CountOther(to, 0x5555), 2);
    EXPECT_EQ(PixelAt(to, 5, 3), 0xF800);
    EXPECT_EQ(PixelAt(to, 6, 4), 0x07E0);
}

TEST_F(SurfaceTest, BlitKeyOtherThanZeroCopiesZero) {
    Surface* from = MakeOffscreenSurface(2, 1, SurfaceMemory::System, 0x1111);
    Surface* to = MakeOffscreenSurface(2, 1, SurfaceMemory::System, 0);
    FillSurface(to, 0x5555, nullptr);
    SetPixel(from, 0, 0, 0x1111);
    const Rect target{0, 0, 2, 1};
    EXPECT_EQ(BlitKeyed(to, &target, from), 1);
    EXPECT_EQ(PixelAt(to, 0, 0), 0x5555);
    EXPECT_EQ(PixelAt(to, 1, 0), 0);
}

TEST_F(SurfaceTest, BlitIsCutAtEveryBorderAndKeepsItsPlace) {
    softOptions.pitchPadding = 4;
    Surface* from = MakeOffscreenSurface(4, 4, SurfaceMemory::System, 0);
    for (std::int32_t y = 0; y < 4; ++y) {
        for (std::int32_t x = 0; x < 4; ++x) {
            SetPixel(from, x, y, static_cast<Pixel16>(1 + y * 4 + x));
        }
    }
    const Rect whole{0, 0, 6, 6};
    for (std::int32_t top = -5; top <= 7; ++top) {
        for (std::int32_t left = -5; left <= 7; ++left) {
            Surface* to = MakeOffscreenSurface(6, 6, SurfaceMemory::System, 0);
            ASSERT_NE(SetSurfaceClipList(to, 1, &whole), nullptr);
            const Rect target{left, top, left + 4, top + 4};
            EXPECT_EQ(BlitKeyed(to, &target, from), 1);
            for (std::int32_t y = 0; y < 6; ++y) {
                for (std::int32_t x = 0; x < 6; ++x) {
                    const bool hit = x >= left && x < left + 4 && y >= top && y < top + 4;
                    const int expected = hit ? 1 + (y - top) * 4 + (x - left) : 0;
                    ASSERT_EQ(PixelAt(to, x, y), expected)
                        << left << ',' << top << " at " << x << ',' << y;
                }
            }
            ReleaseSurface(to);
        }
    }
}

TEST_F(SurfaceTest, BlitBeyondASurfaceWithoutClipListFails) {
    Surface* from = MakeOffscreenSurface(4, 4, SurfaceMemory::System, 0);
    Surface* to = MakeOffscreenSurface(6, 6, SurfaceMemory::System, 0);
    FillSurface(from, 1, nullptr);
    const Rect target{3, 0, 7, 4};
    EXPECT_EQ(BlitKeyed(to, &target, from), 0);
    EXPECT_EQ(CountOther(to, 0), 0);
}

TEST_F(SurfaceTest, BlitOfNothingFails) {
    Surface* some = MakeOffscreenSurface(4, 4, SurfaceMemory::System, 0);
    const Rect target{0, 0, 4, 4};
    const Rect other{0, 0, 4, 3};
    const Rect farAway{INT32_MAX - 2, 0, INT32_MIN + 1, 4};
    EXPECT_EQ(BlitKeyed(nullptr, &target, some), 0);
    EXPECT_EQ(BlitKeyed(some, &target, nullptr), 0);
    EXPECT_EQ(BlitKeyed(some, nullptr, some), 0);
    EXPECT_EQ(BlitKeyed(some, &other, some), 0) << "another size";
    EXPECT_EQ(BlitKeyed(some, &farAway, some), 0);
}

TEST_F(SurfaceTest, LockedSurfacesRefuseBlitsFillsAndSecondLocks) {
    Surface* from = MakeOffscreenSurface(2, 2, SurfaceMemory::System, 0);
    Surface* to = MakeOffscreenSurface(2, 2, SurfaceMemory::System, 0);
    FillSurface(from, 7, nullptr);
    const Rect target{0, 0, 2, 2};
    FrameBuffer memory{};
    ASSERT_EQ(LockSurface(to, &memory), 1);
    EXPECT_EQ(BlitKeyed(to, &target, from), 0);
    EXPECT_EQ(FillSurface(to, 7, nullptr), 1); // its result says nothing
    FrameBuffer second{memory};
    EXPECT_EQ(LockSurface(to, &second), 0);
    EXPECT_EQ(second.pixels, nullptr);
    EXPECT_EQ(second.pitch, 0);
    EXPECT_EQ(UnlockSurface(to), 1);
    EXPECT_EQ(UnlockSurface(to), 0);
    EXPECT_EQ(CountOther(to, 0), 0);
    ASSERT_EQ(LockSurface(from, &memory), 1);
    EXPECT_EQ(BlitKeyed(to, &target, from), 0);
    UnlockSurface(from);
    EXPECT_EQ(BlitKeyed(to, &target, from), 1);
    EXPECT_EQ(CountOther(to, 7), 0);
}

// A handle that is gone stays so while anything else can be handed out.
TEST_F(SurfaceTest, ARecordIsUsedAgainAsLateAsPossible) {
    Surface* const gone = MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0);
    ReleaseSurface(gone);
    for (std::int32_t i = 1; i < kMaxSurfaces; ++i) {
        EXPECT_NE(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), gone) << i;
    }
    EXPECT_EQ(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), gone);
}

TEST_F(SurfaceTest, ReleasedHandlesAreRefused) {
    Surface* gone = MakeOffscreenSurface(2, 2, SurfaceMemory::System, 0);
    Surface* other = MakeOffscreenSurface(2, 2, SurfaceMemory::System, 0);
    const Rect target{0, 0, 2, 2};
    ReleaseSurface(gone);
    ReleaseSurface(gone);
    ReleaseSurface(nullptr);
    FrameBuffer memory{};
    EXPECT_EQ(LockSurface(gone, &memory), 0);
    EXPECT_EQ(UnlockSurface(gone), 0);
    EXPECT_EQ(FillSurface(gone, 1, nullptr), 1);
    EXPECT_EQ(FillSurface(nullptr, 1, nullptr), 1);
    EXPECT_EQ(BlitKeyed(other, &target, gone), 0);
    EXPECT_EQ(BlitKeyed(gone, &target, other), 0);
    EXPECT_EQ(LockSurface(nullptr, &memory), 0);
    EXPECT_EQ(memory.pixels, nullptr);
}

} // namespace
} // namespace ombrel
