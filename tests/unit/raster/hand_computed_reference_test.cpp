// Small triangles worked out by hand, drawn by the reference and by the fast fillers: the two must
// not only agree, they must be right.
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "raster/paths.h"
#include "support/clip_rect.h"
#include "support/reference_fillers.h"

namespace ombrel {
namespace {

constexpr int kSide = 12;
constexpr Pixel16 kBackground = 0x1234;

struct Picture {
    Pixel16 frame[kSide * kSide];
    std::uint32_t depth[kSide * kSide];

    Pixel16 PixelAt(int x, int y) const { return frame[y * kSide + x]; }
    std::uint32_t DepthAt(int x, int y) const { return depth[y * kSide + x]; }
};

Picture Cleared(std::uint32_t depth) {
    Picture picture;
    for (int i = 0; i < kSide * kSide; ++i) {
        picture.frame[i] = kBackground;
        picture.depth[i] = depth;
    }
    return picture;
}

int FastNumber(const char* name) {
    int number = 0;
    while (number < kFillerCount && std::strcmp(kFillerTable[number].name, name) != 0) {
        ++number;
    }
    return number;
}

struct Drawing {
    const char* filler;
    std::uint32_t level = 0;
    Rect clip = {0, 0, kSide, kSide};
};

class HandComputed : public testing::Test {
protected:
    void SetUp() override {
        SetFloatMode(FloatMode::Nearest);
        BuildBlendTables(8, BlendTables[0]);
        SetFloatMode(FloatMode::Chop);
        tables.assign(8 * reference::kBlendTableLength, 0);
        reference::BuildTables(tables.data());
    }
    void TearDown() override {
        ResetClipRect();
        SetFloatMode(FloatMode::Nearest);
    }

    // Draws with both; they must leave the same picture and the same polygon.
    void Draw(Picture* picture, const Drawing& drawing, ScreenPolygon* polygon) {
        const int number = FastNumber(drawing.filler);
        const reference::Filler* row = reference::FindFiller(drawing.filler);
        ASSERT_LT(number, kFillerCount);
        ASSERT_NE(row, nullptr);
        Picture fast = *picture;
        ScreenPolygon fastPolygon = *polygon;
        kPlainPath.fillers[number](&fastPolygon, {fast.frame, kSide * 2, fast.depth, kSide * 4,
                                                  drawing.level, drawing.clip});
        reference::Fill(*row, polygon,
                        {picture->frame, kSide * 2, picture->depth, kSide * 4, drawing.level,
                         drawing.clip, tables.data()});
        EXPECT_EQ(std::memcmp(&fast, picture, sizeof fast), 0) << drawing.filler;
        EXPECT_EQ(std::memcmp(&fastPolygon, polygon, sizeof fastPolygon), 0) << drawing.filler;
    }

    std::vector<Pixel16> tables;
};

struct Place {
    float x, y;
};

ScreenPolygon Triangle(Place a, Place b, Place c) {
    ScreenPolygon polygon = {};
    const Place places[] = {a, b, c};
    for (int i = 0; i < 3; ++i) {
        polygon.vertices[i].x = places[i].x;
        polygon.vertices[i].y = places[i].y;
        polygon.vertices[i].z = 100.0F;
        polygon.litColors[i] = 0xFFFF;
    }
    return polygon;
}

// Drawn pixels as '#', others as '.', rows divided by blanks, to the last drawn row.
std::string Shape(const Picture& picture) {
    std::string text;
    std::size_t used = 0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const bool drawn = picture.PixelAt(x, y) != kBackground;
            text += drawn ? '#' : '.';
            used = drawn ? text.size() - static_cast<std::size_t>(x) + kSide - 1 : used;
        }
        text += ' ';
    }
    return text.substr(0, used);
}

// --- coverage ----------------------------------------------------------------------------------

TEST_F(HandComputed, FlatTop) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "####........ ###......... ##.......... #...........");
}

TEST_F(HandComputed, FlatBottom) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({0, 4}, {4, 4}, {0, 0});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "............ #........... ##.......... ###.........");
}

TEST_F(HandComputed, TheRowOfAMiddleCornerOnTheLeftEndsAtThatCorner) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({2, 0}, {0, 2}, {2, 4});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "............ .#.......... ##.......... .#..........");
}

TEST_F(HandComputed, TheRowOfAMiddleCornerOnTheRightEndsAtThatCorner) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({2, 4}, {4, 2}, {2, 0});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "............ ..#......... ..##........ ..#.........");
}

TEST_F(HandComputed, OneRowOrOneColumnDrawsNothing) {
    for (const char* name : {"FillFlat", "FillFlatZ", "FillTexWSpan"}) {
        Picture picture = Cleared(0x7FFFFFFF);
        ScreenPolygon row = Triangle({0, 3}, {5, 3.4F}, {9, 2.5F});
        Draw(&picture, {name}, &row);
        ScreenPolygon column = Triangle({3, 0}, {3.4F, 5}, {2.5F, 9});
        Draw(&picture, {name}, &column);
        EXPECT_EQ(Shape(picture), "") << name;
    }
}

TEST_F(HandComputed, ATriangleOneRowTallDrawsItsTopRow) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({0, 1}, {5, 1}, {2, 2});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "............ #####.......");
}

TEST_F(HandComputed, CornersRoundHalvesUpAndNegativeOnesTowardZero) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({0.5F, 0.49F}, {-3.0F, 7.5F}, {-0.7F, -0.5F});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(polygon.vertices[0].x, 1.0F);
    EXPECT_EQ(polygon.vertices[0].y, 0.0F);
    EXPECT_EQ(polygon.vertices[1].x, -2.0F);
    EXPECT_EQ(polygon.vertices[1].y, 8.0F);
    EXPECT_EQ(polygon.vertices[2].x, 0.0F);
    EXPECT_EQ(polygon.vertices[2].y, 0.0F);
}

TEST_F(HandComputed, RejectedTrianglesAreRoundedAllTheSame) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({20.6F, 1.2F}, {30.5F, 2}, {25, 9.9F});
    Draw(&picture, {"FillFlat"}, &polygon);
    EXPECT_EQ(Shape(picture), "");
    EXPECT_EQ(polygon.vertices[0].x, 21.0F);
    EXPECT_EQ(polygon.vertices[2].y, 10.0F);
}

TEST_F(HandComputed, FillFlatZAloneDrawsItsRightColumnAndBottomRow) {
    for (const char* name : {"FillFlatZ", "FillFlatZBlend", "FillFlatW", "FillFlat"}) {
        const bool isW = std::strcmp(name, "FillFlatW") == 0;
        Picture picture = Cleared(isW ? 0 : 0x7FFFFFFF);
        ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
        Draw(&picture, {name, 7}, &polygon);
        EXPECT_EQ(Shape(picture), std::strcmp(name, "FillFlatZ") == 0
                                      ? "#####....... ####........ ###......... "
                                        "##.......... #..........."
                                      : "####........ ###......... ##.......... "
                                        "#...........");
    }
}

TEST_F(HandComputed, FillFlatZStaysInsideTheClipRectangle) {
    Picture picture = Cleared(0x7FFFFFFF);
    ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
    Draw(&picture, {"FillFlatZ", 0, {0, 0, 4, 4}}, &polygon);
    EXPECT_EQ(Shape(picture), "####........ ####........ ###......... ##..........");
    // A span of one column on the clipped path.
    picture = Cleared(0x7FFFFFFF);
    polygon = Triangle({2, 0}, {-4, 6}, {2, 6});
    Draw(&picture, {"FillFlatZ", 0, {2, 0, 4, 4}}, &polygon);
    EXPECT_EQ(Shape(picture), "..#......... ..#......... ..#......... ..#.........");
}

TEST_F(HandComputed, ClippingAtTheTopBelowTheMiddleCornerStartsFromIt) {
    // Middle corner at row 2, top of the picture at row 3.
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({8, 0}, {0, 2}, {8, 10});
    Draw(&picture, {"FillFlat", 0, {0, 3, kSide, 6}}, &polygon);
    EXPECT_EQ(Shape(picture), "............ ............ ............ .#######.... "
                              "..######.... ...#####....");
}

// --- depth -------------------------------------------------------------------------------------

TEST_F(HandComputed, ZDepthIsWholeDepthPlusAHalf) {
    Picture picture = Cleared(0x7FFFFFFF);
    ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
    for (Vertex& vertex : polygon.vertices) {
        vertex.z = 99.5F; // becomes 100
    }
    Draw(&picture, {"FillGouraudZ"}, &polygon);
    EXPECT_EQ(picture.DepthAt(1, 1), (100U << 16) + 0x8000U);
    EXPECT_EQ(picture.DepthAt(4, 0), 0x7FFFFFFFU);
}

TEST_F(HandComputed, WDepthIsTwoToThe28ByTheDepth) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
    Draw(&picture, {"FillGouraudW"}, &polygon);
    EXPECT_EQ(picture.DepthAt(1, 1), 2684354U);
}

TEST_F(HandComputed, EqualDepthDoesNotOverwrite) {
    for (const char* name : {"FillGouraudZ", "FillFlatW"}) {
        const bool isW = std::strcmp(name, "FillFlatW") == 0;
        const std::uint32_t equal = isW ? 2684354U : (100U << 16) + 0x8000U;
        const std::uint32_t farther = isW ? equal - 1 : equal + 1;
        Picture picture = Cleared(equal);
        ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
        Draw(&picture, {name}, &polygon);
        EXPECT_EQ(Shape(picture), "") << name;
        picture = Cleared(farther);
        Draw(&picture, {name}, &polygon);
        EXPECT_EQ(picture.PixelAt(0, 0), 0xFFFF) << name;
        EXPECT_EQ(picture.DepthAt(0, 0), equal) << name;
    }
}

TEST_F(HandComputed, DepthsCompareUnsigned) {
    // Cells above 0x7FFFFFFF are far in the Z kinds and near in the W kind.
    Picture picture = Cleared(0xFFFFFFFF);
    ScreenPolygon polygon = Triangle({4, 0}, {0, 4}, {0, 0});
    Draw(&picture, {"FillFlatZBlend", 7}, &polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), 0xFFFF);
    picture = Cleared(0xFFFFFFFF);
    Draw(&picture, {"FillFlatW"}, &polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), kBackground);
}

// --- texels ------------------------------------------------------------------------------------

constexpr std::int32_t kTexelSide = 32;

// A texture whose texel number i holds i + 1, and a triangle over its first row: 8 columns wide,
// depth and u from left to right.
struct Textured {
    std::vector<Pixel16> pixels;
    Texture texture;
    ScreenPolygon polygon;
};

void MakeTextured(Textured* t, float zLeft, float zRight, float uRight) {
    t->pixels.resize(kTexelSide * kTexelSide);
    for (std::size_t i = 0; i < t->pixels.size(); ++i) {
        t->pixels[i] = static_cast<Pixel16>(i + 1);
    }
    t->texture = {1,  TEX_FILLED,      0, 0, kTexelSide, kTexelSide, kTexelSide * kTexelSide * 2,
                  16, t->pixels.data()};
    t->polygon = Triangle({0, 0}, {8, 0}, {0, 8});
    t->polygon.texture.single = &t->texture;
    t->polygon.vertices[0].z = zLeft;
    t->polygon.vertices[1].z = zRight;
    t->polygon.vertices[2].z = zLeft;
    t->polygon.vertices[1].u = uRight;
}

TEST_F(HandComputed, AffineTexelsAreEvenlySpread) {
    Textured t;
    MakeTextured(&t, 64.0F, 128.0F, 16.9F); // 16: cut, not rounded
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexWAffine"}, &t.polygon);
    for (int x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.PixelAt(x, 0), 2 * x + 1) << x;
    }
    EXPECT_EQ(picture.DepthAt(4, 0), 4194304U - 4 * 262144U);
}

TEST_F(HandComputed, PerspectiveAtTheSpanEndsIsEvenBetweenThem) {
    Textured t;
    MakeTextured(&t, 64.0F, 128.0F, 15.5F); // 16: rounded
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexWSpan"}, &t.polygon);
    for (int x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.PixelAt(x, 0), 2 * x + 1) << x;
    }
    // One row down the span is 7 wide and ends at 7/8 of both: u/z 458752, W 2359296, so
    // u = (458752 * 64) / (2359296 / 64) = 796 in 26.6, which is 12 7/16 texels.
    for (int x = 0; x < 7; ++x) {
        EXPECT_EQ(picture.PixelAt(x, 1), (796 * 65536 / 7 * x >> 22) + 1) << x;
    }
}

TEST_F(HandComputed, PerspectiveAtEveryPixelCrowdsTowardTheFarEnd) {
    Textured t;
    MakeTextured(&t, 64.0F, 128.0F, 16.0F);
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexWPerPixel"}, &t.polygon);
    // u = 64 * (65536 * x) / (4194304 - 262144 * x) = 16 x / (16 - x)
    for (int x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.PixelAt(x, 0), 16 * x / (16 - x) + 1) << x;
    }
}

TEST_F(HandComputed, RowsOfTexelsAreOneWidthApart) {
    Textured t;
    MakeTextured(&t, 64.0F, 64.0F, 0.0F);
    t.polygon.vertices[2].v = 8.0F;
    for (const char* name : {"FillTex", "FillTexWAffine", "FillTexWSpan", "FillTexWPerPixel"}) {
        Picture picture = Cleared(0);
        ScreenPolygon polygon = t.polygon;
        Draw(&picture, {name}, &polygon);
        for (int y = 0; y < 8; ++y) {
            EXPECT_EQ(picture.PixelAt(0, y), y * kTexelSide + 1) << name << " " << y;
        }
    }
}

TEST_F(HandComputed, AClippedSpanShowsTheTexelsOfTheWholeOne) {
    for (const char* name : {"FillTex", "FillTexWSpan", "FillTexWPerPixel", "FillTexZ"}) {
        Textured t;
        MakeTextured(&t, 64.0F, 128.0F, 16.0F);
        const bool isZ = std::strcmp(name, "FillTexZ") == 0;
        Picture whole = Cleared(isZ ? 0x7FFFFFFF : 0);
        Picture part = whole;
        ScreenPolygon polygon = t.polygon;
        Draw(&whole, {name}, &polygon);
        Draw(&part, {name, 0, {3, 0, 6, kSide}}, &polygon);
        for (int x = 0; x < 8; ++x) {
            const bool inside = x >= 3 && x < 6;
            EXPECT_EQ(part.PixelAt(x, 0), inside ? whole.PixelAt(x, 0) : kBackground) << name;
            EXPECT_EQ(part.DepthAt(x, 0), inside ? whole.DepthAt(x, 0) : (isZ ? 0x7FFFFFFFU : 0U))
                << name;
        }
    }
}

TEST_F(HandComputed, AKeyedTexelOfZeroLeavesPixelAndDepth) {
    for (const char* name :
         {"FillTexZKeyed", "FillTexKeyedZWrite", "FillTexFlatKeyedZWrite", "FillTexZ"}) {
        Textured t;
        MakeTextured(&t, 64.0F, 64.0F, 16.0F);
        t.pixels[4] = 0; // column 2
        Picture picture = Cleared(0x7FFFFFFF);
        Draw(&picture, {name}, &t.polygon);
        const bool drawn = std::strcmp(name, "FillTexZ") == 0;
        EXPECT_EQ(picture.PixelAt(2, 0), drawn ? 0 : kBackground) << name;
        EXPECT_EQ(picture.DepthAt(2, 0), drawn ? (64U << 16) + 0x8000U : 0x7FFFFFFFU) << name;
        EXPECT_EQ(picture.DepthAt(3, 0), (64U << 16) + 0x8000U) << name;
    }
}

TEST_F(HandComputed, KeyAndWriteMembersDrawOverNearerDepths) {
    for (const char* name : {"FillTexKeyedZWrite", "FillTexFlatKeyedZWrite"}) {
        Textured t;
        MakeTextured(&t, 64.0F, 64.0F, 16.0F);
        t.pixels[2] = 0xFFFF; // column 1
        Picture picture = Cleared(5);
        Draw(&picture, {name}, &t.polygon);
        EXPECT_NE(picture.PixelAt(1, 0), kBackground) << name;
        EXPECT_EQ(picture.DepthAt(1, 0), (64U << 16) + 0x8000U) << name;
    }
}

TEST_F(HandComputed, BilinearMixesFourTexels) {
    Textured t;
    MakeTextured(&t, 64.0F, 64.0F, 4.0F); // half a texel a column
    t.pixels[0] = 0x0000;
    t.pixels[1] = 0xFFFF;
    t.pixels[2] = 0xFFFF;
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexAlt"}, &t.polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), 0x0000);
    EXPECT_EQ(picture.PixelAt(1, 0), (15 << 11) + (31 << 5) + 15);
    EXPECT_EQ(picture.PixelAt(2, 0), 0xFFFF);
    EXPECT_EQ(picture.PixelAt(3, 0), 0xFFFF);
}

TEST_F(HandComputed, BilinearRepeatsTheLastColumnAndRow) {
    Textured t;
    MakeTextured(&t, 64.0F, 64.0F, 1.0F);
    // Two by two texels; corners of the triangle between texel (0, 0) and the last ones.
    t.texture.width = 2;
    t.texture.height = 2;
    const Pixel16 texels[] = {0x0000, 0xF800, 0x07E0, 0x001F};
    std::memcpy(t.pixels.data(), texels, sizeof texels);
    for (Vertex& vertex : t.polygon.vertices) {
        vertex.u = 1.0F;
        vertex.v = 1.0F;
    }
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexAlt"}, &t.polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), 0x001F);
    EXPECT_EQ(picture.PixelAt(3, 3), 0x001F);
}

// --- light and blending ------------------------------------------------------------------------

TEST_F(HandComputed, GouraudRunsFromCornerToCorner) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({0, 0}, {8, 0}, {0, 8});
    polygon.litColors[0] = 0xABCD0000; // only the low half counts
    polygon.litColors[1] = 0x5555FFFF;
    polygon.litColors[2] = 0;
    Draw(&picture, {"FillGouraud"}, &polygon);
    for (int x = 0; x < 8; ++x) {
        // Intensities 31 and 31.5 a column, plus a half.
        const int red = (62 * x + 1) / 2 / 8;
        const int green = (63 * x + 1) / 2 / 4;
        EXPECT_EQ(picture.PixelAt(x, 0), (red << 11) + (green << 5) + red) << x;
    }
}

TEST_F(HandComputed, LightOnWhiteTexelsLosesALittle) {
    Textured t;
    MakeTextured(&t, 64.0F, 64.0F, 0.0F);
    t.pixels[0] = 0xFFFF;
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexFlat"}, &t.polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), (30 << 11) + (62 << 5) + 30);
    Draw(&picture, {"FillTexGouraud"}, &t.polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), (30 << 11) + (62 << 5) + 30);
}

TEST_F(HandComputed, FlatLightMultipliesEveryChannelAlone) {
    Textured t;
    MakeTextured(&t, 64.0F, 64.0F, 0.0F);
    t.pixels[0] = (17 << 11) + (45 << 5) + 9;
    t.polygon.litColors[0] = 0x77770000U + (23 << 11) + (33 << 5) + 30;
    Picture picture = Cleared(0);
    Draw(&picture, {"FillTexFlatWPerPixel"}, &t.polygon);
    EXPECT_EQ(picture.PixelAt(0, 0), (17 * 23 / 32 << 11) + (45 * 33 / 64 << 5) + 9 * 30 / 32);
}

TEST_F(HandComputed, BlendLevelsSevenAndZero) {
    for (const char* name : {"FillFlatBlend", "FillFlatZBlend", "FillFlatWBlend"}) {
        const bool isZ = std::strcmp(name, "FillFlatZBlend") == 0;
        Picture picture = Cleared(isZ ? 0x7FFFFFFF : 0);
        ScreenPolygon polygon = Triangle({0, 0}, {8, 0}, {0, 8});
        polygon.litColors[0] = 0xABCD;
        Draw(&picture, {name, 0}, &polygon);
        EXPECT_EQ(picture.PixelAt(2, 2), kBackground) << name;
        picture = Cleared(isZ ? 0x7FFFFFFF : 0);
        Draw(&picture, {name, 7}, &polygon);
        EXPECT_EQ(picture.PixelAt(2, 2), 0xABCD) << name;
    }
}

TEST_F(HandComputed, BlendLevelThreeKeepsFourSevenths) {
    Picture picture = Cleared(0);
    ScreenPolygon polygon = Triangle({0, 0}, {8, 0}, {0, 8});
    polygon.litColors[0] = (31 << 11) + (10 << 5) + 3;
    Draw(&picture, {"FillFlatBlend", 3}, &polygon);
    // Background 0x1234: 2, 17, 20. 4/7 of it: 1.14, 9.71, 11.43; 3/7: 13.29, 4.29, 1.29.
    EXPECT_EQ(picture.PixelAt(2, 2), ((1 + 13) << 11) + ((10 + 4) << 5) + 11 + 1);
}

TEST_F(HandComputed, BlendedMembersWriteTheirDepth) {
    Picture picture = Cleared(0x7FFFFFFF);
    ScreenPolygon polygon = Triangle({0, 0}, {8, 0}, {0, 8});
    Draw(&picture, {"FillGouraudZBlend", 0}, &polygon);
    EXPECT_EQ(picture.PixelAt(2, 2), kBackground);
    EXPECT_EQ(picture.DepthAt(2, 2), (100U << 16) + 0x8000U);
}

} // namespace
} // namespace ombrel
