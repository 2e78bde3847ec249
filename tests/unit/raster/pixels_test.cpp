// Which pixels a triangle covers and what is written there: shapes and rules worked out by hand,
// each test named after what it shows. The bench draws with the reference and with every path.
#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

#include "lanes/reciprocal.h"
#include "support/random_numbers.h"
#include "support/raster_bench.h"

namespace ombrel::test {
namespace {

using enum FillerId;

using Pixels = RasterBench;

// The 12 by 12 picture of the shapes.
std::string ShapeOf(FillerId filler, const std::array<Corner, 3>& corners, const Rect& clip,
                    ScreenPolygon (*draw)(Picture*, FillerId, const ScreenPolygon&,
                                          const Brushwork&)) {
    Picture picture(12, 12, filler);
    draw(&picture, filler, MakePolygon(corners), {7, clip});
    return picture.Shape();
}

class Shapes : public RasterBench {
protected:
    static std::string Of(FillerId filler, const std::array<Corner, 3>& corners,
                          const Rect& clip = {0, 0, 12, 12}) {
        return ShapeOf(filler, corners, clip, Draw);
    }
};

// --- coverage ------------------------------------------------------------------------------------

TEST_F(Shapes, LeftColumnAndTopRowBelongToATriangle) {
    EXPECT_EQ(Of(FillFlat, {{{4, 0}, {0, 4}, {0, 0}}}),
              "####........ ###......... ##.......... #...........");
    EXPECT_EQ(Of(FillFlat, {{{0, 4}, {4, 4}, {0, 0}}}),
              "............ #........... ##.......... ###.........");
}

TEST_F(Shapes, RowOfTheMiddleCornerEndsAtThatCorner) {
    EXPECT_EQ(Of(FillFlat, {{{2, 0}, {0, 2}, {2, 4}}}),
              "............ .#.......... ##.......... .#..........");
    EXPECT_EQ(Of(FillFlat, {{{2, 4}, {4, 2}, {2, 0}}}),
              "............ ..#......... ..##........ ..#.........");
}

TEST_F(Shapes, RowOfTheMiddleCornerIsDrawnWithTheUpperEdge) {
    // The upper edge moves 10/3 a row, the lower one -10/4; ends round halves up.
    EXPECT_EQ(Of(FillFlat, {{{0, 0}, {10, 3}, {0, 7}}}),
              "............ ###......... #######..... ##########.. "
              "########.... #####....... ###.........");
}

TEST_F(Shapes, OneRowTallDrawsItsTopRow) {
    EXPECT_EQ(Of(FillFlat, {{{0, 1}, {5, 1}, {2, 2}}}), "............ #####.......");
    EXPECT_EQ(Of(FillFlatZ, {{{0, 1}, {5, 1}, {2, 2}}}), "............ ######...... ..#.........");
}

TEST_F(Shapes, ClippingBelowTheMiddleCornerStartsFromIt) {
    EXPECT_EQ(Of(FillFlat, {{{8, 0}, {0, 2}, {8, 10}}}, {0, 3, 12, 6}),
              "............ ............ ............ .#######.... ..######.... ...#####....");
}

TEST_F(Shapes, R2_FillFlatZAloneDrawsItsRightColumnAndBottomRow) {
    for (const FillerId id : {FillFlatZ, FillFlatZBlend, FillFlatW, FillFlat}) {
        EXPECT_EQ(Of(id, {{{4, 0}, {0, 4}, {0, 0}}}),
                  id == FillFlatZ
                      ? "#####....... ####........ ###......... ##.......... #..........."
                      : "####........ ###......... ##.......... #...........");
    }
    EXPECT_EQ(FillersWith([](const FillerRow& row) { return row.edges == "Closed"; }),
              std::vector{FillFlatZ});
}

TEST_F(Shapes, R2_ClosedEdgesEndAtTheClipRectangle) {
    EXPECT_EQ(Of(FillFlatZ, {{{4, 0}, {0, 4}, {0, 0}}}, {0, 0, 4, 4}),
              "####........ ####........ ###......... ##..........");
    // All corners within the limits, right and bottom edge exactly on them.
    EXPECT_EQ(Of(FillFlatZ, {{{5, 0}, {5, 3}, {2, 3}}}, {2, 0, 5, 3}),
              "............ ....#....... ...##.......");
    // Spans of one column, with columns cut and without.
    EXPECT_EQ(Of(FillFlatZ, {{{2, 0}, {-4, 6}, {2, 6}}}, {2, 0, 4, 4}),
              "..#......... ..#......... ..#......... ..#.........");
    EXPECT_EQ(Of(FillFlatZ, {{{-4, 0}, {6, 0}, {3, 3}}}),
              "#######..... ######...... .####....... ...#........");
}

TEST_F(Pixels, OneRowOrOneColumnOfCornersDrawsNothing) {
    TestTexture texture(8, 8, CountedTexels(64));
    for (const FillerId id : AllFillers()) {
        const Picture empty(64, 48, id);
        EXPECT_EQ(Drawn(id, MakePolygon({{{2, 10.1F}, {40, 9.6F}, {20, 10.4F}}}, &texture.record)),
                  empty)
            << RowOf(id).name;
        EXPECT_EQ(Drawn(id, MakePolygon({{{20.4F, 2}, {19.6F, 40}, {20, 20}}}, &texture.record)),
                  empty)
            << RowOf(id).name;
    }
}

TEST_F(Pixels, SpanWithEqualRoundedEndsIsEmpty) {
    // The right edge is at 11 - n/20; it rounds (halves up) to 11 down to n = 10, then to 10.
    TestTexture texture(8, 8, CountedTexels(64));
    for (const FillerId id :
         FillersWith([](const FillerRow& row) { return row.edges != "Closed"; })) {
        const Picture picture = Drawn(
            id, MakePolygon({{{10, 10, 5}, {11, 10, 5, 7}, {10, 30, 5, 7, 7}}}, &texture.record));
        EXPECT_EQ(picture.CountDrawn(), 11) << RowOf(id).name;
        EXPECT_TRUE(picture.DrawnAt(10, 20)) << RowOf(id).name;
    }
}

TEST_F(Pixels, CornersAreRoundedInTheRecordHalvesUpNegativeOnesTowardZero) {
    Picture picture(64, 48, FillFlat);
    const ScreenPolygon left =
        Draw(&picture, FillFlat, MakePolygon({{{0.5F, 0.49F}, {-3.0F, 7.5F}, {-0.7F, -0.5F}}}));
    EXPECT_EQ(left.vertices[0].x, 1.0F);
    EXPECT_EQ(left.vertices[0].y, 0.0F);
    EXPECT_EQ(left.vertices[1].x, -2.0F);
    EXPECT_EQ(left.vertices[1].y, 8.0F);
    EXPECT_EQ(left.vertices[2].x, 0.0F);
    EXPECT_EQ(left.vertices[2].y, 0.0F);
    EXPECT_EQ(left.vertices[0].z, 100.0F);
}

TEST_F(Pixels, TriangleOutsideIsRoundedAndNothingElseIsLookedAt) {
    // Neither texture nor frame nor depth is there to be read. (Rounding moves -1 to 0, which is
    // not outside.)
    const std::array<std::array<Corner, 3>, 4> outside = {{
        {{{5, -2}, {30, -9}, {60, -3}}},
        {{{5, 49}, {30, 60}, {60, 55}}},
        {{{-2, 5}, {-30, 20}, {-3, 40}}},
        {{{65.6F, 5}, {90, 20}, {70, 40}}},
    }};
    for (const PathEntry& path : AllPaths()) {
        for (int id = 0; path.fillers != nullptr && id < kFillerCount; ++id) {
            for (const auto& corners : outside) {
                ScreenPolygon polygon = MakePolygon(corners);
                path.fillers[id](&polygon, {nullptr, 0, nullptr, 0, 7, {0, 0, 64, 48}});
                const float x = corners[0].x < 0 ? -1.0F : std::floor(corners[0].x + 0.5F);
                EXPECT_EQ(polygon.vertices[0].x, x) << path.name << " " << kFillerTable[id].name;
            }
        }
    }
}

TEST_F(Pixels, OrderOfTheCornersDoesNotMatter) {
    TestTexture texture(8, 8, CountedTexels(64));
    RandomNumbers random(11);
    for (int round = 0; round < 200; ++round) {
        std::array<Corner, 3> corners;
        for (std::size_t i = 0; i < 3; ++i) {
            // Different rows, so that there is only one order from top to bottom.
            corners[i] = {random.WholeBetween(-10, 70),
                          random.WholeBetween(0, 15) + static_cast<float>(16 * i),
                          random.WholeBetween(1, 500), random.WholeBetween(0, 7),
                          random.WholeBetween(0, 7)};
        }
        const auto id = static_cast<FillerId>(random.Below(kFillerCount));
        const Picture first =
            Drawn(id, MakePolygon(corners, &texture.record, {0xF800, 0xF800, 0xF800}), {5});
        std::array<std::size_t, 3> order = {0, 1, 2};
        while (std::next_permutation(order.begin(), order.end())) {
            const std::array<Corner, 3> other = {corners[order[0]], corners[order[1]],
                                                 corners[order[2]]};
            ASSERT_EQ(Drawn(id, MakePolygon(other, &texture.record, {0xF800, 0xF800, 0xF800}), {5}),
                      first)
                << RowOf(id).name;
        }
    }
}

// A smaller clip rectangle shows exactly that part of the whole picture, depth included.
TEST_F(Pixels, ClipRectangleCutsAndChangesNothing) {
    TestTexture texture(16, 16, CountedTexels(256));
    RandomNumbers random(12);
    for (const FillerId id : AllFillers()) {
        for (int round = 0; round < 60; ++round) {
            std::array<Corner, 3> corners;
            for (Corner& corner : corners) {
                corner = {random.WholeBetween(-40, 100), random.WholeBetween(-40, 90),
                          random.WholeBetween(1, 900), random.WholeBetween(0, 15),
                          random.WholeBetween(0, 15)};
            }
            corners[1].y = random.Below(4) == 0 ? corners[0].y : corners[1].y;
            const ScreenPolygon polygon = MakePolygon(
                corners, &texture.record, {random.Word(), random.Word(), random.Word()});
            const auto level = static_cast<std::uint32_t>(random.Below(8));
            const std::int32_t left = random.Between(0, 40);
            const std::int32_t top = random.Between(0, 30);
            const Rect clip = {left, top, random.Between(left + 1, 64),
                               random.Between(top + 1, 48)};
            const Picture whole = Drawn(id, polygon, {level});
            const Picture part = Drawn(id, polygon, {level, clip});
            const Picture empty(64, 48, id);
            for (std::int32_t y = 0; y < 48; ++y) {
                for (std::int32_t x = 0; x < 64; ++x) {
                    const bool inside =
                        x >= clip.left && x < clip.right && y >= clip.top && y < clip.bottom;
                    const Picture& wanted = inside ? whole : empty;
                    ASSERT_EQ(part.At(x, y), wanted.At(x, y)) << RowOf(id).name;
                    ASSERT_EQ(part.DepthAt(x, y), wanted.DepthAt(x, y)) << RowOf(id).name;
                }
            }
        }
    }
}

// --- seams ---------------------------------------------------------------------------------------

class Seams : public RasterBench {
protected:
    // How often each pixel is covered by triangles that are drawn each on a picture of its own.
    static std::vector<int> Cover(FillerId id, const std::vector<std::array<Corner, 3>>& mesh) {
        TestTexture texture(8, 8, EqualTexels(64, 0xFFFF));
        std::vector<int> cover(64 * 48, 0);
        for (const auto& corners : mesh) {
            const Picture picture = Drawn(id, MakePolygon(corners, &texture.record));
            for (std::int32_t i = 0; i < 64 * 48; ++i) {
                cover[static_cast<std::size_t>(i)] += picture.DrawnAt(i % 64, i / 64) ? 1 : 0;
            }
        }
        return cover;
    }
    inline static const std::vector<FillerId> kOpen =
        FillersWith([](const FillerRow& row) { return row.edges != "Closed"; });
};

TEST_F(Seams, RectangleSplitAtAnyInnerPointHasNeitherGapNorOverlap) {
    std::size_t turn = 0;
    for (float py = 6; py < 40; py += 3) {
        for (float px = 6; px < 57; px += 2) {
            const Corner a = {5, 5, 20, 0, 0}, b = {58, 5, 90, 7, 0}, c = {58, 41, 40, 7, 7},
                         d = {5, 41, 300, 0, 7}, p = {px, py, 60, 3, 3};
            const FillerId id = kOpen[++turn % kOpen.size()];
            const std::vector<int> cover = Cover(id, {{a, b, p}, {p, b, c}, {c, d, p}, {d, p, a}});
            for (int i = 0; i < 64 * 48; ++i) {
                const int x = i % 64, y = i / 64;
                ASSERT_EQ(cover[static_cast<std::size_t>(i)],
                          x >= 5 && x < 58 && y >= 5 && y < 41 ? 1 : 0)
                    << RowOf(id).name << ", split at " << px << ", " << py << ": " << x << ", "
                    << y;
            }
        }
    }
}

TEST_F(Seams, ShakenGridHasNeitherGapNorOverlap) {
    RandomNumbers random(13);
    for (const FillerId id : kOpen) {
        for (int round = 0; round < 3; ++round) {
            Corner grid[5][5];
            for (int j = 0; j < 5; ++j) {
                for (int i = 0; i < 5; ++i) {
                    // The outer ring leaves the picture, so that clipping takes part.
                    const bool rim = i == 0 || j == 0 || i == 4 || j == 4;
                    grid[j][i] = {
                        static_cast<float>(i * 18 - 4 + (rim ? 0 : random.Between(-4, 4))),
                        static_cast<float>(j * 14 - 4 + (rim ? 0 : random.Between(-3, 3))),
                        random.WholeBetween(10, 500), random.WholeBetween(0, 7),
                        random.WholeBetween(0, 7)};
                }
            }
            std::vector<std::array<Corner, 3>> mesh;
            for (int j = 0; j < 4; ++j) {
                for (int i = 0; i < 4; ++i) {
                    mesh.push_back({grid[j][i], grid[j][i + 1], grid[j + 1][i]});
                    mesh.push_back({grid[j + 1][i], grid[j + 1][i + 1], grid[j][i + 1]});
                }
            }
            EXPECT_EQ(Cover(id, mesh), std::vector<int>(64 * 48, 1)) << RowOf(id).name;
        }
    }
}

// --- edges at the end of the numbers -------------------------------------------------------------

TEST_F(Pixels, DivisionIsTowardZeroAndNeverTraps) {
    EXPECT_EQ(DivChop(7, 2), 3);
    EXPECT_EQ(DivChop(-7, 2), -3);
    EXPECT_EQ(DivChop(7, -2), -3);
    EXPECT_EQ(DivChop(5, 0), 0);
    EXPECT_EQ(DivChop(0, 0), 0);
    EXPECT_EQ(DivChop(INT32_MIN, -1), INT32_MIN);
    EXPECT_EQ(DivChop(INT32_MIN, 1), INT32_MIN);
    EXPECT_EQ(DivChop(9, -1), -9);
}

// A line: both edges have the same slope, so the short one stays on the left and gives the depth.
TEST_F(Pixels, EqualSlopesAreNotSwapped) {
    const Picture picture =
        Drawn(FillFlatZ, MakePolygon({{{5, 5, 10}, {15, 15, 110}, {35, 35, 30}}}));
    for (std::int32_t row = 5; row <= 35; ++row) {
        const std::int32_t z = row <= 15 ? 10 + 10 * (row - 5) : 110 - 4 * (row - 15);
        EXPECT_EQ(picture.DepthAt(row, row), (static_cast<std::uint32_t>(z) << 16) + 0x8000) << row;
    }
    EXPECT_EQ(picture.CountDrawn(), 31);
}

// --- depth ---------------------------------------------------------------------------------------

TEST_F(Pixels, DepthIsWholePlusAHalfOrTwoToThe28ByTheDepth) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    for (const FillerId id : AllFillers()) {
        const std::string_view rule = RowOf(id).depth;
        const std::uint32_t wanted = rule == "NoDepth" ? 0xFFFFFFFFU
                                     : rule == "W"     ? 2684354U
                                                       : (100U << 16) + 0x8000U;
        // 99.5 becomes 100.
        EXPECT_EQ(Drawn(id, Everywhere(&texture.record, 0xFFFF, 99.5F)).DepthAt(9, 9), wanted)
            << RowOf(id).name;
    }
}

TEST_F(Pixels, EqualDepthDoesNotOverwrite) {
    TestTexture texture(8, 8, EqualTexels(64, 0x001F));
    TestTexture other(8, 8, EqualTexels(64, 0xF800));
    const std::array<Corner, 3> corners = {{{5, 5, 30}, {50, 9, 80, 7}, {20, 40, 200, 0, 7}}};
    for (const FillerId id :
         FillersWith([](const FillerRow& row) { return row.depth == "Z" || row.depth == "W"; })) {
        const Picture once = Drawn(id, MakePolygon(corners, &texture.record));
        ASSERT_GT(once.CountDrawn(), 500) << RowOf(id).name;
        Picture twice = once;
        Draw(&twice, id, MakePolygon(corners, &other.record, {0x7800, 0x7800, 0x7800}));
        EXPECT_EQ(twice, once) << RowOf(id).name;
    }
    // One step after it is overwritten.
    for (const FillerId id : {FillGouraudZ, FillFlatW}) {
        const std::uint32_t equal = id == FillFlatW ? 2684354U : (100U << 16) + 0x8000U;
        Picture picture(64, 48, id == FillFlatW ? equal - 1 : equal + 1);
        Draw(&picture, id, Everywhere(nullptr, 0xFFFF));
        EXPECT_EQ(picture.At(3, 3), 0xFFFF);
        EXPECT_EQ(picture.DepthAt(3, 3), equal);
    }
}

TEST_F(Pixels, DepthsCompareUnsigned) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    // 40,000 in 16.16 has the top bit set: still farther than 10, nearer than the cleared cell.
    for (const FillerId id : {FillFlatZ, FillTexZ, FillGouraudZ, FillFlatZBlend}) {
        Picture picture(64, 48, id);
        Draw(&picture, id, Everywhere(&texture.record, 0xFFFF, 40000));
        EXPECT_EQ(picture.DepthAt(9, 9), (40000U << 16) + 0x8000U);
        Draw(&picture, id, Everywhere(&texture.record, 0x001F, 10));
        EXPECT_EQ(picture.DepthAt(9, 9), (10U << 16) + 0x8000U);
        Draw(&picture, id, Everywhere(&texture.record, 0x07E0, 40000));
        EXPECT_EQ(picture.DepthAt(9, 9), (10U << 16) + 0x8000U);
    }
    // A cell with the top bit set is larger than any W.
    Picture picture(64, 48, 0x80000000U);
    Draw(&picture, FillFlatW, Everywhere(nullptr, 0xFFFF, 1));
    EXPECT_EQ(picture.CountDrawn(), 0);
}

TEST_F(Pixels, KeyAndWriteDrawsOverNearerDepthsAndLeavesItsOwn) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    for (const FillerId id : {FillTexKeyedZWrite, FillTexFlatKeyedZWrite}) {
        Picture picture(64, 48, 5U);
        Draw(&picture, id, Everywhere(&texture.record, 0xFFFF, 700));
        EXPECT_TRUE(picture.DrawnAt(9, 9)) << RowOf(id).name;
        EXPECT_EQ(picture.DepthAt(9, 9), (700U << 16) + 0x8000U) << RowOf(id).name;
    }
}

TEST_F(Pixels, DepthZeroDrawsNothingAndDoesNotTrap) {
    TestTexture texture(8, 8, CountedTexels(64));
    for (const FillerId id : AllFillers()) {
        for (const float z : {0.0F, -0.5F, -1.0F, -1.5F, 1.0e9F}) {
            Drawn(id,
                  MakePolygon({{{1, 1, z}, {50, 3, 4, 7}, {9, 40, -z, 0, 7}}}, &texture.record));
            Drawn(id, MakePolygon({{{1, 1, z, 3, 3}, {50, 3, z, 3, 3}, {9, 40, z, 3, 3}}},
                                  &texture.record));
        }
    }
    // W of a depth of 0 is 0, which no cell lets through.
    EXPECT_EQ(Drawn(FillFlatW, Everywhere(nullptr, 0xFFFF, 0.0F)).CountDrawn(), 0);
}

// Opaque, depth-tested faces: whatever the order, each pixel shows the nearest of the faces there,
// of those at one depth the first.
TEST_F(Pixels, DepthTestedFacesMayComeInAnyOrder) {
    RandomNumbers random(14);
    for (const FillerId id : FillersWith([](const FillerRow& row) {
             return (row.depth == "Z" || row.depth == "W") && row.write != "Blend";
         })) {
        std::vector<Pixel16> texels(256);
        for (Pixel16& texel : texels) {
            texel = static_cast<Pixel16>(random.Below(5) == 0 ? 0 : random.Between(1, 0xFFFF));
        }
        TestTexture texture(16, 16, texels);
        constexpr std::size_t kFaces = 10;
        std::vector<ScreenPolygon> faces;
        std::vector<Picture> alone;
        for (std::size_t i = 0; i < kFaces; ++i) {
            std::array<Corner, 3> corners;
            for (Corner& corner : corners) {
                corner = {random.WholeBetween(-20, 80), random.WholeBetween(-20, 60),
                          random.WholeBetween(20, 2000), random.WholeBetween(0, 15),
                          random.WholeBetween(0, 15)};
            }
            const std::uint32_t color = random.Word();
            faces.push_back(MakePolygon(corners, &texture.record, {color, color, color}));
            alone.push_back(Drawn(id, faces.back()));
        }
        const bool larger = RowOf(id).depth == "W";
        std::array<std::size_t, kFaces> order;
        std::iota(order.begin(), order.end(), 0);
        for (int round = 0; round < 3; ++round) {
            for (std::size_t i = kFaces - 1; i > 0; --i) {
                std::swap(order[i],
                          order[static_cast<std::size_t>(random.Below(static_cast<int>(i) + 1))]);
            }
            Picture picture(64, 48, id);
            Picture wanted = picture;
            for (const std::size_t i : order) {
                Draw(&picture, id, faces[i]);
                for (std::size_t p = 0; p < wanted.frame.size(); ++p) {
                    const std::uint32_t depth = alone[i].depth[p];
                    if (larger ? depth > wanted.depth[p] : depth < wanted.depth[p]) {
                        wanted.depth[p] = depth;
                        wanted.frame[p] = alone[i].frame[p];
                    }
                }
            }
            EXPECT_EQ(picture, wanted) << RowOf(id).name;
        }
    }
}

// --- texels --------------------------------------------------------------------------------------

constexpr std::int32_t kTexelSide = 32;

// A triangle over the first row of a counted texture: 8 columns wide, depth and u from left to
// right.
struct EightColumns {
    TestTexture texture{kTexelSide, kTexelSide, CountedTexels(kTexelSide* kTexelSide)};
    ScreenPolygon polygon;

    EightColumns(float zLeft, float zRight, float uRight)
        : polygon(MakePolygon({{{0, 0, zLeft}, {8, 0, zRight, uRight}, {0, 8, zLeft}}},
                              &texture.record)) {}
};

TEST_F(Pixels, AffineTexelsAreEvenlySpread) {
    EightColumns t(64, 128, 16.9F); // 16: cut, not rounded
    const Picture picture = Drawn(FillTexWAffine, t.polygon);
    for (std::int32_t x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.At(x, 0), 2 * x + 1) << x;
    }
    EXPECT_EQ(picture.DepthAt(4, 0), 4194304U - 4 * 262144U);
}

TEST_F(Pixels, R5_AffineTexelsAreCutPerspectiveOnesRounded) {
    TestTexture texture(8, 2, CountedTexels(16)); // the bilinear filter looks one row down
    const ScreenPolygon polygon =
        MakePolygon({{{0, 0, 1, 2.75F}, {60, 0, 1, 2.75F}, {0, 40, 1, 2.75F}}}, &texture.record);
    for (const FillerId id : FillersWith(
             [](const FillerRow& row) { return IsTextured(row) && row.light == "Unlit"; })) {
        EXPECT_EQ(Drawn(id, polygon).At(2, 2), IsPerspective(RowOf(id)) ? 4 : 3) << RowOf(id).name;
    }
}

TEST_F(Pixels, PerspectiveAtTheSpanEndsIsEvenBetweenThem) {
    EightColumns t(64, 128, 15.5F); // 16: rounded
    const Picture picture = Drawn(FillTexWSpan, t.polygon);
    for (std::int32_t x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.At(x, 0), 2 * x + 1) << x;
    }
    // One row down the span is 7 wide and ends at 7/8 of both: u/z 458752, W 2359296, so
    // u = (458752 * 64) / (2359296 / 64) = 796 in 26.6, which is 12 7/16 texels.
    for (std::int32_t x = 0; x < 7; ++x) {
        EXPECT_EQ(picture.At(x, 1), (796 * 65536 / 7 * x >> 22) + 1) << x;
    }
}

TEST_F(Pixels, PerspectiveAtEveryPixelCrowdsTowardTheFarEnd) {
    EightColumns t(64, 128, 16);
    const Picture picture = Drawn(FillTexWPerPixel, t.polygon);
    // u = 64 * (65536 * x) / (4194304 - 262144 * x) = 16 x / (16 - x)
    for (std::int32_t x = 0; x < 8; ++x) {
        EXPECT_EQ(picture.At(x, 0), 16 * x / (16 - x) + 1) << x;
    }
}

TEST_F(Pixels, PerspectiveIndexIsBoundToTheTexture) {
    // A far face: 2^28 / z has few digits left, so u comes out past the last column of the last
    // row.
    TestTexture texture(64, 64, CountedTexels(4096));
    for (const FillerId id : FillersWith(
             [](const FillerRow& row) { return IsPerspective(row) && row.light == "Unlit"; })) {
        EXPECT_EQ(
            Drawn(id, MakePolygon(
                          {{{0, 0, 60000, 63, 63}, {60, 0, 60000, 63, 63}, {0, 40, 60000, 63, 63}}},
                          &texture.record))
                .At(3, 3),
            4096)
            << RowOf(id).name;
    }
}

TEST_F(Pixels, RowsOfTexelsAreOneWidthApart) {
    EightColumns t(64, 64, 0);
    t.polygon.vertices[2].v = 8.0F;
    for (const FillerId id : {FillTex, FillTexWAffine, FillTexWSpan, FillTexWPerPixel}) {
        const Picture picture = Drawn(id, t.polygon);
        for (std::int32_t y = 0; y < 8; ++y) {
            EXPECT_EQ(picture.At(0, y), y * kTexelSide + 1) << RowOf(id).name << " " << y;
        }
    }
}

TEST_F(Pixels, SpanThatCrossesTheLeftEdgeShowsTheTexelsOfTheWholeOne) {
    TestTexture texture(64, 1, CountedTexels(64));
    const Picture picture = Drawn(
        FillTexWAffine, MakePolygon({{{-20, 5, 1}, {44, 5, 1, 63}, {-20, 6, 1}}}, &texture.record));
    const std::int32_t step = (63 << 16) / 64;
    for (std::int32_t x = 0; x < 44; ++x) {
        EXPECT_EQ(picture.At(x, 5), ((x + 20) * step >> 16) + 1);
    }
    EXPECT_FALSE(picture.DrawnAt(44, 5));
}

TEST_F(Pixels, KeyedTexelOfZeroLeavesPixelAndDepth) {
    for (const FillerId id :
         {FillTexZKeyed, FillTexKeyedZWrite, FillTexFlatKeyedZWrite, FillTexZ}) {
        EightColumns t(64, 64, 16);
        t.texture.texels[4] = 0; // column 2
        const Picture picture = Drawn(id, t.polygon);
        EXPECT_EQ(picture.At(2, 0), id == FillTexZ ? 0 : kBackground) << RowOf(id).name;
        EXPECT_EQ(picture.DepthAt(2, 0), id == FillTexZ ? (64U << 16) + 0x8000U : 0xFFFFFFFFU)
            << RowOf(id).name;
        EXPECT_EQ(picture.DepthAt(3, 0), (64U << 16) + 0x8000U) << RowOf(id).name;
    }
}

TEST_F(Pixels, OtherFillersDrawTexelZero) {
    TestTexture texture(1, 1, EqualTexels(1, 0));
    for (const FillerId id : FillersWith(
             [](const FillerRow& row) { return IsTextured(row) && row.texel != "Keyed"; })) {
        EXPECT_EQ(Drawn(id, Everywhere(&texture.record, 0xFFFF)).At(9, 9), 0) << RowOf(id).name;
    }
}

TEST_F(Pixels, KeyIsTakenFromTheTexelNotFromTheLitColour) {
    TestTexture texture(1, 1, EqualTexels(1, 1)); // times black gives 0, but is no key
    const Picture picture = Drawn(FillTexFlatKeyedZWrite, Everywhere(&texture.record, 0));
    EXPECT_EQ(picture.At(9, 9), 0);
    EXPECT_NE(picture.DepthAt(9, 9), 0xFFFFFFFFU);
}

TEST_F(Pixels, BilinearMixesFourTexels) {
    // u runs from 0 to 2 in 64 columns, v stays: column 16 is u = 0.5, exactly half of two texels.
    std::vector<Pixel16> texels;
    for (int row = 0; row < 4; ++row) {
        texels.insert(texels.end(), {0x0000, 0xF800, 0x07E0, 0x001F});
    }
    TestTexture texture(4, 4, texels);
    const Picture picture =
        Drawn(FillTexAlt,
              MakePolygon({{{0, 3, 9, 0, 1}, {64, 3, 9, 2, 1}, {0, 4, 9, 0, 1}}}, &texture.record));
    EXPECT_EQ(picture.At(0, 3), 0x0000);
    EXPECT_EQ(picture.At(16, 3), 15 << 11);
    EXPECT_EQ(picture.At(32, 3), 0xF800);
    EXPECT_EQ(picture.At(40, 3), (31 * 3 / 4 << 11) + (63 / 4 << 5));
    EXPECT_EQ(picture.At(48, 3), (15 << 11) + (31 << 5));
}

TEST_F(Pixels, BilinearRepeatsTheLastColumnAndRow) {
    // All texels but the last column and row are white; sampling there must show them alone.
    std::vector<Pixel16> texels(16, 0xFFFF);
    for (std::size_t i = 0; i < 4; ++i) {
        texels[i * 4 + 3] = texels[12 + i] = 0x0841;
    }
    TestTexture texture(4, 4, texels);
    for (const FillerId id : {FillTexAlt, FillTexZAlt, FillTexWAlt}) {
        for (const auto& [u, v] :
             {std::pair{3.0F, 0.0F}, {3.0F, 2.0F}, {0.0F, 3.0F}, {3.0F, 3.0F}}) {
            EXPECT_EQ(Drawn(id, MakePolygon({{{0, 0, 9, u, v}, {60, 0, 9, u, v}, {0, 40, 9, u, v}}},
                                            &texture.record))
                          .At(2, 2),
                      0x0841)
                << u << ", " << v;
        }
    }
}

TEST_F(Pixels, R4_BilinearRowsAreBoundedByTheWidth) {
    // Two columns, four rows: below row 2 comes row 1, the bound of the columns.
    TestTexture texture(2, 4, {1, 1, 31, 31, 3, 3, 4, 4});
    const auto drawn = [&](float lastV) {
        return Drawn(FillTexAlt,
                     MakePolygon({{{0, 0, 9, 0, 2}, {64, 0, 9, 0, lastV}, {0, 1, 9, 0, 2}}},
                                 &texture.record));
    };
    EXPECT_EQ(drawn(2).At(0, 0), 3);             // weight of the lower row is 0
    EXPECT_EQ(drawn(3).At(32, 0), (3 + 31) / 2); // rows 2 and 1, not 2 and 3
}

TEST_F(Pixels, TextureWithoutRowsIsBlack) {
    Texture texture{1, TEX_FILLED, 0, 0, 1, 0, 0, 16, nullptr};
    for (const PathEntry& path : AllPaths()) {
        for (const FillerId id : FillersWith(
                 [](const FillerRow& row) { return IsTextured(row) && row.texel != "Keyed"; })) {
            if (path.fillers == nullptr) {
                continue;
            }
            Picture picture(64, 48, id);
            ScreenPolygon polygon = Everywhere(&texture, 0xFFFF);
            const std::int32_t row = 64 + Picture::kPadding;
            path.fillers[static_cast<int>(id)](
                &polygon,
                {picture.frame.data(), row * 2, picture.depth.data(), row * 4, 7, {0, 0, 64, 48}});
            EXPECT_EQ(picture.At(3, 3), 0) << path.name << " " << RowOf(id).name;
        }
    }
}

// --- light ---------------------------------------------------------------------------------------

TEST_F(Pixels, GouraudRunsFromCornerToCorner) {
    // Only the low half of a colour word counts.
    const Picture picture = Drawn(
        FillGouraud, MakePolygon({{{0, 0}, {8, 0}, {0, 8}}}, nullptr, {0xABCD0000, 0x5555FFFF, 0}));
    for (std::int32_t x = 0; x < 8; ++x) {
        // Intensities 31 and 31.5 a column, plus a half.
        const int red = (62 * x + 1) / 2 / 8;
        const int green = (63 * x + 1) / 2 / 4;
        EXPECT_EQ(picture.At(x, 0), (red << 11) + (green << 5) + red) << x;
    }
    // From red 0 to red 248 in 62 columns: a step of exactly 4.
    const Picture even = Drawn(
        FillGouraud, MakePolygon({{{0, 3}, {62, 3}, {0, 4}}}, nullptr, {0x0000, 0xF800, 0x0000}));
    for (std::int32_t x = 0; x < 62; ++x) {
        EXPECT_EQ(RedOf(even.At(x, 3)), x * 4 / 8) << x;
    }
}

TEST_F(Pixels, HighBitsOfColourWordsAreNotRead) {
    EXPECT_EQ(Drawn(FillFlatW, Everywhere(nullptr, 0xABCD4321)).At(5, 5), 0x4321);
    EXPECT_EQ(Drawn(FillGouraudW, Everywhere(nullptr, 0xABCD4321)),
              Drawn(FillGouraudW, Everywhere(nullptr, 0x00004321)));
}

class Light : public RasterBench {
protected:
    // What a filler makes of one texel and one colour.
    static Pixel16 Lit(FillerId id, Texture* texture, std::uint32_t color) {
        Picture picture(8, 2, id);
        Draw(&picture, id, Everywhere(texture, color));
        return picture.At(3, 1);
    }
    static Pixel16 Any(RandomNumbers* random) { return static_cast<Pixel16>(random->Word()); }
};

TEST_F(Light, GouraudOfOneColourKeepsTheColour) {
    RandomNumbers random(24);
    for (int round = 0; round < 400; ++round) {
        const Pixel16 color = Any(&random);
        for (const FillerId id : {FillGouraud, FillGouraudZ, FillGouraudZKeyedKind, FillGouraudW}) {
            ASSERT_EQ(Lit(id, nullptr, color), color) << RowOf(id).name;
        }
    }
}

TEST_F(Light, FlatLightIsTexelTimesColourByChannel) {
    RandomNumbers random(23);
    const std::vector<FillerId> fillers = FillersWith([](const FillerRow& row) {
        return IsTextured(row) && row.light == "Flat" && row.write != "Blend";
    });
    for (int round = 0; round < 200; ++round) {
        const Pixel16 texel = round == 0 ? Pixel16{0xFFFF} : static_cast<Pixel16>(Any(&random) | 1);
        const Pixel16 color = round == 0 ? Pixel16{0xFFFF} : Any(&random);
        TestTexture texture(1, 1, EqualTexels(1, texel));
        const int wanted = (RedOf(texel) * RedOf(color) / 32 << 11) +
                           (GreenOf(texel) * GreenOf(color) / 64 << 5) +
                           BlueOf(texel) * BlueOf(color) / 32; // white loses a little by it
        for (const FillerId id : fillers) {
            ASSERT_EQ(Lit(id, &texture.record, color), wanted) << RowOf(id).name;
        }
    }
}

TEST_F(Light, GouraudLightIsTexelTimesIntensity) {
    RandomNumbers random(25);
    for (int round = 0; round < 400; ++round) {
        const Pixel16 texel = Any(&random), color = Any(&random);
        TestTexture texture(1, 1, EqualTexels(1, texel));
        // Intensities are 8.16 with half a unit: (8 * red, 4 * green, 8 * blue) * 65536 + 0x8000.
        const auto times = [](int t, int intensity) {
            return static_cast<int>(std::int64_t{t} * (intensity * 65536 + 0x8000) >> 24);
        };
        const int wanted = (times(RedOf(texel), RedOf(color) * 8) << 11) +
                           (times(GreenOf(texel), GreenOf(color) * 4) << 5) +
                           times(BlueOf(texel), BlueOf(color) * 8);
        for (const FillerId id : {FillTexGouraud, FillTexGouraudZ, FillTexGouraudW}) {
            ASSERT_EQ(Lit(id, &texture.record, color), wanted) << texel << " x " << color;
        }
    }
}

TEST_F(Light, GouraudZAndItsKeyedKindAreAlike) {
    RandomNumbers random(26);
    for (int round = 0; round < 200; ++round) {
        std::array<Corner, 3> corners;
        for (Corner& corner : corners) {
            corner = {random.WholeBetween(-20, 80), random.WholeBetween(-20, 60),
                      random.WholeBetween(1, 99)};
        }
        const ScreenPolygon polygon =
            MakePolygon(corners, nullptr, {random.Word(), random.Word(), random.Word()});
        ASSERT_EQ(Drawn(FillGouraudZ, polygon), Drawn(FillGouraudZKeyedKind, polygon));
    }
}

// --- blending ------------------------------------------------------------------------------------

class Blending : public RasterBench {
protected:
    // A picture of random pixels.
    static Picture Noise(FillerId id, std::uint64_t seed) {
        Picture picture(64, 48, id);
        RandomNumbers random(seed);
        for (Pixel16& pixel : picture.frame) {
            pixel = static_cast<Pixel16>(random.Word());
        }
        return picture;
    }
    inline static const std::vector<FillerId> kBlending =
        FillersWith([](const FillerRow& row) { return row.write == "Blend"; });
};

TEST_F(Blending, LevelSevenWritesTheSource) {
    TestTexture texture(16, 16, CountedTexels(256));
    // Each blending filler is held to one that sets, of the same depth, texel and light rule. The
    // closed edges of the flat Z filler stay outside the clip rectangle.
    const ScreenPolygon polygon =
        MakePolygon({{{-30, -20, 40}, {150, -20, 90, 15, 2}, {-30, 140, 300, 3, 15}}},
                    &texture.record, {0xF81F, 0x07E0, 0x1234});
    for (const FillerId id : kBlending) {
        const FillerRow& blend = RowOf(id);
        const std::vector<FillerId> twins = FillersWith([&](const FillerRow& row) {
            return row.write == "Set" && row.depth == blend.depth && row.texel == blend.texel &&
                   row.light == blend.light;
        });
        ASSERT_FALSE(twins.empty()) << blend.name;
        Picture blended = Noise(id, 21);
        Draw(&blended, id, polygon, {7});
        const Picture set = Drawn(twins[0], polygon);
        for (std::int32_t y = 0; y < 48; ++y) {
            for (std::int32_t x = 0; x < 64; ++x) {
                ASSERT_EQ(blended.At(x, y), set.At(x, y)) << blend.name;
                ASSERT_EQ(blended.DepthAt(x, y), set.DepthAt(x, y)) << blend.name;
            }
        }
    }
}

TEST_F(Blending, LevelZeroLeavesThePixelAndStillWritesDepth) {
    TestTexture texture(16, 16, CountedTexels(256));
    for (const FillerId id : kBlending) {
        Picture picture = Noise(id, 22);
        const Picture before = picture;
        Draw(&picture, id, Everywhere(&texture.record, 0xFFFF), {0});
        EXPECT_EQ(picture.frame, before.frame) << RowOf(id).name;
        EXPECT_EQ(picture.depth != before.depth, RowOf(id).depth != "NoDepth") << RowOf(id).name;
    }
}

TEST_F(Blending, LevelsBetweenAddTwoTables) {
    TestTexture texture(1, 1, EqualTexels(1, 0xA53C));
    for (std::uint32_t level = 0; level < 8; ++level) {
        for (const FillerId id : kBlending) {
            if (RowOf(id).light == "Unlit") {
                Picture picture(64, 48, id, 0x6B9D);
                Draw(&picture, id, Everywhere(&texture.record, 0), {level});
                ASSERT_EQ(picture.At(20, 20), static_cast<Pixel16>(BlendTables[7 - level][0x6B9D] +
                                                                   BlendTables[level][0xA53C]))
                    << RowOf(id).name;
            }
        }
    }
}

TEST_F(Blending, LevelThreeKeepsFourSevenths) {
    const Picture picture =
        Drawn(FillFlatBlend, Everywhere(nullptr, (31 << 11) + (10 << 5) + 3), {3});
    // Background 0x1234: 2, 17, 20. 4/7 of it: 1.14, 9.71, 11.43; 3/7: 13.29, 4.29, 1.29.
    EXPECT_EQ(picture.At(2, 2), ((1 + 13) << 11) + ((10 + 4) << 5) + 11 + 1);
}

// --- the blend tables ----------------------------------------------------------------------------

TEST_F(Blending, TablesScaleEachChannelToNearest) {
    for (int k = 0; k < 8; ++k) {
        // No product comes within 1/14 of a half, so the trace above k/7 never shows.
        const auto scaled = [k](int channel) { return (2 * channel * k + 7) / 14; };
        for (int p = 0; p < kBlendTableSize; ++p) {
            const auto color = static_cast<Pixel16>(p);
            ASSERT_EQ(BlendTables[k][p], scaled(RedOf(color)) * 2048 + scaled(GreenOf(color)) * 32 +
                                             scaled(BlueOf(color)))
                << "table " << k << ", colour " << p;
        }
    }
}

TEST_F(Blending, TablesAreTheSameInEveryRoundingModeAndInTheReference) {
    std::vector<Pixel16> chop(8 * kBlendTableSize + 1, 0xBEEF), nearest(chop), slow(chop);
    EXPECT_EQ(BuildBlendTables(8, chop.data()), 1);
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
    reference::BuildTables(slow.data());
    const ScopedFloatMode mode(FloatMode::Nearest);
    EXPECT_EQ(BuildBlendTables(8, nearest.data()), 1);
    EXPECT_EQ(chop, nearest);
    EXPECT_EQ(chop, slow);
    EXPECT_EQ(chop.back(), 0xBEEF) << "written after the last table";
    EXPECT_EQ(BuildBlendTables(8, nullptr), -1);
}

TEST_F(Blending, R3_FactorsStandATraceAboveTheirFraction) {
    // With three tables the middle factor is a trace above one half: halves go up, not to even.
    std::vector<Pixel16> tables(3 * kBlendTableSize);
    BuildBlendTables(3, tables.data());
    const Pixel16* middle = &tables[kBlendTableSize];
    EXPECT_EQ(middle[1], 1);             // blue 1 * 0.500001
    EXPECT_EQ(middle[5], 3);             // 2.500005
    EXPECT_EQ(middle[5 << 11], 3 << 11); // red alike
    EXPECT_EQ(middle[61 << 5], 31 << 5); // green 30.500061
    EXPECT_EQ(middle[6], 3);
}

} // namespace
} // namespace ombrel::test
