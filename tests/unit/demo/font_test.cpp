// Cutting a font sheet and drawing text with it.
#include "demo/font.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "base/float_mode.h"
#include "demo/reset.h"
#include "platform/offscreen/offscreen.h"
#include "support/hand_made_data.h"

namespace ombrel {
namespace {

class Font : public testing::Test {
protected:
    void SetUp() override {
        ResetWorld();
        ResetOffscreen();
        target = MakeOffscreenSurface(320, 240, SurfaceMemory::System, 0);
        const Rect whole{0, 0, 320, 240};
        SetSurfaceClipList(target, 1, &whole);
        folder.Write("2d/font.bmp", FontSheet(kBigMark));
    }
    void TearDown() override {
        ReleaseSurface(target);
        ResetWorld();
    }
    Pixel16 At(std::int32_t x, std::int32_t y) {
        FrameBuffer memory{};
        LockSurface(target, &memory);
        const Pixel16 pixel = memory.pixels[y * (memory.pitch / 2) + x];
        UnlockSurface(target);
        return pixel;
    }
    int CountDrawn() {
        FrameBuffer memory{};
        LockSurface(target, &memory);
        int count = 0;
        for (int y = 0; y < 240; ++y) {
            for (int x = 0; x < 320; ++x) {
                count += memory.pixels[y * (memory.pitch / 2) + x] != 0 ? 1 : 0;
            }
        }
        UnlockSurface(target);
        return count;
    }
    GlyphSet* Load() {
        EXPECT_EQ(LoadGlyphSet("./data/2d/font.bmp", &fonts.big, kFormat565), 1);
        return &fonts.big;
    }
    DataFolderForTest folder;
    ScopedFloatMode chop{FloatMode::Chop};
    Surface* target = nullptr;
};

TEST_F(Font, RecordAfterLoading) {
    const GlyphSet* const set = Load();
    EXPECT_EQ(set->width, 48);
    EXPECT_EQ(set->height, 42);
    EXPECT_EQ(set->glyphCount, 256);
    EXPECT_EQ(set->attributes, 17U | 0x80U);
    EXPECT_EQ(set->x, 0.0F);
    EXPECT_EQ(set->y, 0.0F);
}

TEST_F(Font, EveryFrameIsItsCell) {
    GlyphSet* const set = Load();
    for (std::int32_t code = 0; code < 256; ++code) {
        FrameBuffer memory{};
        ASSERT_EQ(LockSurface(set->glyphs[code], &memory), 1);
        for (std::int32_t y = 0; y < 42; ++y) {
            for (std::int32_t x = 0; x < 48; ++x) {
                const int expected = x == kMarkX && y == kMarkY ? kBigMark + code : 0;
                ASSERT_EQ(memory.pixels[y * (memory.pitch / 2) + x], expected) << code;
            }
        }
        UnlockSurface(set->glyphs[code]);
    }
}

TEST_F(Font, BytesAbove127AreFrames128To255) {
    GlyphSet* const set = Load();
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 50}, "\x80\xAB\xFF", target), 150);
    EXPECT_EQ(At(kMarkX, kMarkY), kBigMark + 0x80);
    EXPECT_EQ(At(50 + kMarkX, kMarkY), kBigMark + 0xAB);
    EXPECT_EQ(At(100 + kMarkX, kMarkY), kBigMark + 0xFF);
    EXPECT_EQ(CountDrawn(), 3);
}

TEST_F(Font, SmallAdvanceOverlapsAndCombines) {
    GlyphSet* const set = Load();
    EXPECT_EQ(DrawGlyphText(set, {10, 20, 12}, "abc", target), 36);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(At(10 + 12 * i + kMarkX, 20 + kMarkY), kBigMark + 'a' + i);
    }
    EXPECT_EQ(CountDrawn(), 3); // the black of a later cell leaves the earlier glyph alone
}

TEST_F(Font, EmptyTextNullTextAndNullSurfaceGive0) {
    GlyphSet* const set = Load();
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 12}, "", target), 0);
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 12}, nullptr, target), 0);
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 12}, "a", nullptr), 0);
    EXPECT_EQ(CountDrawn(), 0);
}

TEST_F(Font, PositionsAreCutTowardZero) {
    GlyphSet* const set = Load();
    DrawGlyphText(set, {10.9F, 20.9F, 12}, "a", target);
    EXPECT_EQ(At(10 + kMarkX, 20 + kMarkY), kBigMark + 'a');
    DrawGlyphText(set, {-0.9F, -0.9F, 12}, "b", target);
    EXPECT_EQ(At(kMarkX, kMarkY), kBigMark + 'b');
}

TEST_F(Font, GlyphsAreAdvanceApartAcrossColumn0) {
    GlyphSet* const set = Load();
    // Cut once, -28.9 is column -28; the fourth glyph stands at 8, not at 7.1 cut to 7.
    DrawGlyphText(set, {-28.9F, 20, 12}, "abcde", target);
    EXPECT_EQ(At(8 + kMarkX, 20 + kMarkY), kBigMark + 'd');
    EXPECT_EQ(At(20 + kMarkX, 20 + kMarkY), kBigMark + 'e');
    EXPECT_NE(At(7 + kMarkX, 20 + kMarkY), kBigMark + 'd');
}

TEST_F(Font, GlyphsAreClippedAtTheBorders) {
    GlyphSet* const set = Load();
    EXPECT_EQ(DrawGlyphText(set, {-2, -4, 12}, "a", target), 12);
    EXPECT_EQ(At(1, 1), kBigMark + 'a');
    DrawGlyphText(set, {316, 234, 12}, "b", target);
    EXPECT_EQ(At(319, 239), kBigMark + 'b');
    DrawGlyphText(set, {-100, 50, 12}, "c", target);
    DrawGlyphText(set, {3e9F, -3e9F, 12}, "d", target);
    EXPECT_EQ(CountDrawn(), 2);
}

TEST_F(Font, LockedTargetTakesNothing) {
    GlyphSet* const set = Load();
    FrameBuffer memory{};
    LockSurface(target, &memory);
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 12}, "a", target), 12);
    UnlockSurface(target);
    EXPECT_EQ(CountDrawn(), 0);
}

TEST_F(Font, InvisibleSetDrawsNothingAndReportsItsWidth) {
    GlyphSet* const set = Load();
    set->attributes &= ~GLYPHS_VISIBLE;
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 12}, "abc", target), 36);
    EXPECT_EQ(CountDrawn(), 0);
}

TEST_F(Font, MissingSheetLeavesTheSetEmpty) {
    EXPECT_EQ(LoadGlyphSet("./data/2d/none.bmp", &fonts.small, kFormat565), 0);
    EXPECT_EQ(fonts.small.attributes, 0U);
    EXPECT_EQ(DrawGlyphText(&fonts.small, {0, 0, 12}, "abc", target), 36);
    EXPECT_EQ(CountDrawn(), 0);
}

TEST_F(Font, SheetThatIsTooSmallGivesWhatItHas) {
    std::string sheet = BmpText(52, 20, 255, 255, 255);
    folder.Write("2d/tiny.bmp", sheet);
    ASSERT_EQ(LoadGlyphSet("./data/2d/tiny.bmp", &fonts.small, kFormat565), 1);
    DrawGlyphText(&fonts.small, {0, 0, 100}, std::string("\x01\x02\x40", 3).c_str(), target);
    EXPECT_EQ(At(0, 0), 0xFFFF); // second cell: columns 50 and 51 of rows 1 to 19
    EXPECT_EQ(At(1, 18), 0xFFFF);
    EXPECT_EQ(At(2, 0), 0);
    EXPECT_EQ(At(0, 19), 0);
    EXPECT_EQ(CountDrawn(), 2 * 19);
}

TEST_F(Font, SheetOf8BitsIsRefused) {
    std::string sheet = FontSheet(kBigMark);
    sheet[28] = 8;
    folder.Write("2d/eight.bmp", sheet);
    EXPECT_EQ(LoadGlyphSet("./data/2d/eight.bmp", &fonts.small, kFormat565), 0);
}

// Where whole numbers end, a width wraps and a glyph that would reach further is not drawn.
TEST_F(Font, PlacesAndAdvancesThatReachPastWholeNumbers) {
    GlyphSet* const set = Load();
    EXPECT_EQ(DrawGlyphText(set, {0, 0, 0x60000000}, "aaa", target), 0x20000000);
    EXPECT_EQ(DrawGlyphText(set, {2147483520.0F, 0, 1}, "a", target), 1);
    EXPECT_EQ(DrawGlyphText(set, {3e38F, -3e38F, 1}, "a", target), 1);
    EXPECT_EQ(DrawGlyphText(set, {__builtin_inff(), __builtin_nanf(""), -1}, "a", target), -1);
    EXPECT_EQ(CountDrawn(), 1); // the first a, at 0, 0
}

TEST_F(Font, LoadingAgainReleasesTheSurfacesBefore) {
    Load();
    for (int i = 0; i < 10; ++i) {
        Load();
    }
    EXPECT_EQ(DrawGlyphText(&fonts.big, {0, 0, 12}, "z", target), 12);
    EXPECT_EQ(At(kMarkX, kMarkY), kBigMark + 'z');
}

} // namespace
} // namespace ombrel
