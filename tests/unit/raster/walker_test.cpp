// Which pixels a triangle covers and what its attributes are there, for every filler of the table:
// rounding, degenerate triangles, clipping, seams between neighbours, depth order.
#include "canvas.h"

#include "lanes/reciprocal.h"
#include "raster/paths.h"

namespace ombrel {
namespace {

using WalkerTest = RasterTest;

TEST_F(WalkerTest, DivisionIsTowardZeroAndNeverTraps) {
    EXPECT_EQ(DivChop(7, 2), 3);
    EXPECT_EQ(DivChop(-7, 2), -3);
    EXPECT_EQ(DivChop(7, -2), -3);
    EXPECT_EQ(DivChop(5, 0), 0);
    EXPECT_EQ(DivChop(0, 0), 0);
    EXPECT_EQ(DivChop(INT32_MIN, -1), INT32_MIN);
    EXPECT_EQ(DivChop(INT32_MIN, 1), INT32_MIN);
    EXPECT_EQ(DivChop(9, -1), -9);
}

TEST_F(WalkerTest, ThreeVerticesInOneRowDrawNothing) {
    TestTexture texture(8, 8, CountedTexels(64));
    const ScreenPolygon polygon =
        MakePolygon({{{2.0F, 10.1F, 5, 0, 0}, {40.0F, 9.6F, 5, 7, 0}, {20.0F, 10.4F, 5, 0, 7}}},
                    &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        Canvas canvas(64, 48, RulesOf(id).depth);
        const Canvas before = canvas;
        DrawWith(id, polygon, canvas.Target());
        EXPECT_EQ(canvas, before) << kFillerTable[id].name;
    }
}

TEST_F(WalkerTest, ThreeVerticesInOneColumnDrawNothing) {
    TestTexture texture(8, 8, CountedTexels(64));
    const ScreenPolygon polygon = MakePolygon(
        {{{20.4F, 2, 5, 0, 0}, {19.6F, 40, 5, 7, 0}, {20.0F, 20, 5, 0, 7}}}, &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        Canvas canvas(64, 48, RulesOf(id).depth);
        const Canvas before = canvas;
        DrawWith(id, polygon, canvas.Target());
        EXPECT_EQ(canvas, before) << kFillerTable[id].name;
    }
}

TEST_F(WalkerTest, TriangleOneRowTallDrawsItsTopRowOnly) {
    TestTexture texture(8, 8, CountedTexels(64));
    const ScreenPolygon polygon =
        MakePolygon({{{10, 20, 5, 0, 0}, {30, 20, 5, 7, 0}, {20, 21, 5, 7, 7}}}, &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        Canvas canvas(64, 48, RulesOf(id).depth);
        DrawWith(id, polygon, canvas.Target());
        const bool closed = RulesOf(id).edges == "Closed";
        for (std::int32_t y = 0; y < 48; ++y) {
            for (std::int32_t x = 0; x < 64; ++x) {
                const bool top = y == 20 && x >= 10 && (x < 30 || (closed && x == 30));
                const bool tip = closed && y == 21 && x == 20;
                ASSERT_EQ(canvas.At(x, y) != kBackground, top || tip)
                    << kFillerTable[id].name << " at " << x << ", " << y;
            }
        }
    }
}

TEST_F(WalkerTest, SpanWithEqualRoundedEndsDrawsNothing) {
    // One column wide at the top, none 20 rows below: column 10 rounds to 10 on both sides but for
    // the first rows.
    TestTexture texture(8, 8, CountedTexels(64));
    const ScreenPolygon polygon =
        MakePolygon({{{10, 10, 5, 0, 0}, {11, 10, 5, 7, 0}, {10, 30, 5, 7, 7}}}, &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        if (RulesOf(id).edges == "Closed") {
            continue;
        }
        Canvas canvas(64, 48, RulesOf(id).depth);
        DrawWith(id, polygon, canvas.Target());
        // The right edge is at 11 - n/20; it rounds (halves up) to 11 down to n = 10, then to 10.
        EXPECT_EQ(canvas.CountChanged(), 11) << kFillerTable[id].name;
        EXPECT_NE(canvas.At(10, 20), kBackground) << kFillerTable[id].name;
        EXPECT_EQ(canvas.At(10, 21), kBackground) << kFillerTable[id].name;
    }
}

TEST_F(WalkerTest, TriangleOutsideReturnsBeforeItIsLookedAt) {
    // Neither texture nor depth is there to be read: only an early return survives. (Rounding moves
    // -1 to 0, which is not outside.)
    const std::array<std::array<Point, 3>, 4> outside = {{
        {{{5, -2, 0, 0, 0}, {30, -9, 0, 0, 0}, {60, -3, 0, 0, 0}}},
        {{{5, 49, 0, 0, 0}, {30, 60, 0, 0, 0}, {60, 55, 0, 0, 0}}},
        {{{-2, 5, 0, 0, 0}, {-30, 20, 0, 0, 0}, {-3, 40, 0, 0, 0}}},
        {{{65, 5, 0, 0, 0}, {90, 20, 0, 0, 0}, {70, 40, 0, 0, 0}}},
    }};
    for (const auto& points : outside) {
        for (std::int32_t id = 0; id < kFillerCount; ++id) {
            ScreenPolygon polygon = MakePolygon(points);
            kPlainPath.fillers[id](&polygon, {nullptr, 0, nullptr, 0, 7, clipRect});
            // Rounding is one half up, then cut toward zero.
            const float x = points[0].x < 0 ? points[0].x + 1.0F : points[0].x;
            EXPECT_EQ(polygon.vertices[0].x, x) << kFillerTable[id].name;
            Canvas canvas(64, 48, RulesOf(id).depth);
            DrawWith(id, MakePolygon(points), canvas.Target());
            EXPECT_EQ(canvas.CountChanged(), 0) << kFillerTable[id].name;
        }
    }
}

TEST_F(WalkerTest, VerticesAreRoundedInTheRecord) {
    ScreenPolygon polygon =
        MakePolygon({{{10.5F, 20.49F, 5, 0, 0}, {30.0F, 2.5F, 5, 0, 0}, {-3.0F, -0.75F, 5, 0, 0}}});
    Canvas canvas(64, 48);
    PlainFiller(FillerId::FillFlatW)(&polygon, canvas.Target());
    EXPECT_EQ(polygon.vertices[0].x, 11.0F);
    EXPECT_EQ(polygon.vertices[0].y, 20.0F);
    EXPECT_EQ(polygon.vertices[1].x, 30.0F);
    EXPECT_EQ(polygon.vertices[1].y, 3.0F);
    EXPECT_EQ(polygon.vertices[2].x, -2.0F); // cut toward zero after the half was added
    EXPECT_EQ(polygon.vertices[2].y, 0.0F);
    EXPECT_EQ(polygon.vertices[0].z, 5.0F);
}

TEST_F(WalkerTest, VerticesAreRoundedWhenNothingIsDrawnToo) {
    ScreenPolygon polygon =
        MakePolygon({{{100.7F, 1, 5, 0, 0}, {101, 1.6F, 5, 0, 0}, {102, 9, 5, 0, 0}}});
    PlainFiller(FillerId::FillFlat)(&polygon, {nullptr, 0, nullptr, 0, 7, clipRect});
    EXPECT_EQ(polygon.vertices[0].x, 101.0F);
    EXPECT_EQ(polygon.vertices[1].y, 2.0F);
}

TEST_F(WalkerTest, LeftColumnAndTopRowBelongToTheTriangle) {
    const ScreenPolygon polygon =
        MakePolygon({{{4, 4, 1, 0, 0}, {12, 4, 1, 0, 0}, {4, 12, 1, 0, 0}}});
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillFlat, polygon, canvas.Target());
    // Row 4 + n reaches from column 4 up to 12 - n, excluded.
    for (std::int32_t n = 0; n < 9; ++n) {
        for (std::int32_t x = 0; x < 16; ++x) {
            EXPECT_EQ(canvas.At(x, 4 + n) != kBackground, n < 8 && x >= 4 && x < 12 - n);
        }
    }
}

TEST_F(WalkerTest, MiddleRowIsDrawnWithTheUpperEdge) {
    // Middle at the right, upper edge ten columns in three rows.
    const ScreenPolygon polygon =
        MakePolygon({{{10, 10, 1, 0, 0}, {20, 13, 1, 0, 0}, {10, 17, 1, 0, 0}}});
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillFlat, polygon, canvas.Target());
    const std::int32_t upper = (10 << 16) / 3; // a row
    const std::int32_t lower = (-10 << 16) / 4;
    for (std::int32_t y = 10; y < 17; ++y) {
        const std::int32_t edge =
            y <= 13 ? (10 << 16) + upper * (y - 10) : (20 << 16) + lower * (y - 13);
        const std::int32_t end = (edge + 0x8000) >> 16;
        for (std::int32_t x = 0; x < 64; ++x) {
            ASSERT_EQ(canvas.At(x, y) != kBackground, x >= 10 && x < end) << x << ", " << y;
        }
    }
}

TEST_F(WalkerTest, OrderOfTheVerticesDoesNotMatter) {
    TestTexture texture(8, 8, CountedTexels(64));
    Dice dice{std::mt19937(11)};
    for (std::int32_t round = 0; round < 200; ++round) {
        std::array<Point, 3> points;
        for (std::size_t i = 0; i < 3; ++i) {
            // Different rows, so that there is only one order from top to bottom.
            points[i] = {dice.RollFloat(-10, 70),
                         dice.RollFloat(0, 15) + static_cast<float>(16 * i), dice.RollFloat(1, 500),
                         dice.RollFloat(0, 7), dice.RollFloat(0, 7)};
        }
        std::array<std::uint32_t, 3> colors = {0xF800, 0xF800, 0xF800};
        const std::int32_t id = dice.Roll(0, kFillerCount - 1);
        Canvas first(64, 48, RulesOf(id).depth);
        DrawWith(id, MakePolygon(points, &texture.record, colors), first.Target(5));
        std::array<std::size_t, 3> order = {0, 1, 2};
        while (std::next_permutation(order.begin(), order.end())) {
            Canvas other(64, 48, RulesOf(id).depth);
            DrawWith(id,
                     MakePolygon({points[order[0]], points[order[1]], points[order[2]]},
                                 &texture.record, colors),
                     other.Target(5));
            ASSERT_EQ(first, other) << kFillerTable[id].name;
        }
    }
}

TEST_F(WalkerTest, EqualDepthDoesNotOverwrite) {
    TestTexture texture(8, 8, EqualTexels(64, 0x001F));
    TestTexture other(8, 8, EqualTexels(64, 0xF800));
    const std::array<Point, 3> points = {
        {{5, 5, 30, 0, 0}, {50, 9, 80, 7, 0}, {20, 40, 200, 0, 7}}};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const std::string_view rule = RulesOf(id).depth;
        if (rule != "Z" && rule != "W") {
            continue;
        }
        Canvas canvas(64, 48, rule);
        DrawWith(id, MakePolygon(points, &texture.record), canvas.Target());
        ASSERT_GT(canvas.CountChanged(), 500) << kFillerTable[id].name;
        const Canvas once = canvas;
        DrawWith(id, MakePolygon(points, &other.record, {0x7800, 0x7800, 0x7800}), canvas.Target());
        EXPECT_EQ(canvas, once) << kFillerTable[id].name;
    }
}

TEST_F(WalkerTest, CrossingLeftStartsWithTheTexelOfTheUnclippedSpan) {
    TestTexture texture(64, 1, CountedTexels(64));
    ScreenPolygon polygon =
        MakePolygon({{{-20, 5, 1, 0, 0}, {44, 5, 1, 63, 0}, {-20, 6, 1, 0, 0}}}, &texture.record);
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillTexWAffine, polygon, canvas.Target());
    const std::int32_t step = (63 << 16) / 64;
    for (std::int32_t x = 0; x < 44; ++x) {
        EXPECT_EQ(canvas.At(x, 5), ((x + 20) * step >> 16) + 1);
    }
    EXPECT_EQ(canvas.At(44, 5), kBackground);
}

// A smaller clip rectangle shows exactly that part of the full picture, depth included.
TEST_F(WalkerTest, ClipRectangleCutsAndChangesNothing) {
    TestTexture texture(16, 16, CountedTexels(256));
    Dice dice{std::mt19937(12)};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        for (std::int32_t round = 0; round < 300; ++round) {
            std::array<Point, 3> points;
            for (Point& point : points) {
                point = {dice.RollFloat(-40, 100), dice.RollFloat(-40, 90), dice.RollFloat(1, 900),
                         dice.RollFloat(0, 15), dice.RollFloat(0, 15)};
            }
            if (dice.Roll(0, 3) == 0) {
                points[1].y = points[0].y;
            }
            std::array<std::uint32_t, 3> colors;
            for (std::uint32_t& color : colors) {
                color = static_cast<std::uint32_t>(dice.Roll(0, 0xFFFF));
            }
            const ScreenPolygon polygon = MakePolygon(points, &texture.record, colors);
            const auto level = static_cast<std::uint32_t>(dice.Roll(0, 7));
            Canvas whole(64, 48, RulesOf(id).depth), part(64, 48, RulesOf(id).depth);
            const Canvas before = whole;
            ClipTo(64, 48);
            DrawWith(id, polygon, whole.Target(level));
            const std::int32_t left = dice.Roll(0, 40), top = dice.Roll(0, 30);
            clipRect = {left, top, dice.Roll(left + 1, 64), dice.Roll(top + 1, 48)};
            DrawWith(id, polygon, part.Target(level));
            for (std::int32_t y = 0; y < 48; ++y) {
                for (std::int32_t x = 0; x < 64; ++x) {
                    const bool inside = x >= clipRect.left && x < clipRect.right &&
                                        y >= clipRect.top && y < clipRect.bottom;
                    const Canvas& wanted = inside ? whole : before;
                    ASSERT_EQ(part.At(x, y), wanted.At(x, y))
                        << kFillerTable[id].name << " at " << x << ", " << y;
                    ASSERT_EQ(part.DepthAt(x, y), wanted.DepthAt(x, y))
                        << kFillerTable[id].name << " at " << x << ", " << y;
                }
            }
        }
    }
}

// How often each pixel is covered by a list of triangles, each drawn on a picture of its own.
std::vector<std::int32_t> CoverOf(std::int32_t id, const std::vector<std::array<Point, 3>>& mesh,
                                  Texture* texture) {
    Canvas reference(64, 48);
    std::vector<std::int32_t> cover(reference.frame.size(), 0);
    for (const auto& points : mesh) {
        Canvas canvas(64, 48, RulesOf(id).depth);
        DrawWith(id, MakePolygon(points, texture), canvas.Target());
        for (std::size_t i = 0; i < cover.size(); ++i) {
            cover[i] += canvas.frame[i] != kBackground ? 1 : 0;
        }
    }
    return cover;
}

// A rectangle split at any inner point: no gap and no overlap.
TEST_F(WalkerTest, RectangleSplitAtAnyInnerPointIsWatertight) {
    TestTexture texture(8, 8, EqualTexels(64, 0xFFFF));
    const Canvas canvas(64, 48);
    for (std::int32_t py = 6; py < 40; py += 3) {
        for (std::int32_t px = 6; px < 57; px += 2) {
            const Point a = {5, 5, 20, 0, 0}, b = {58, 5, 90, 7, 0}, c = {58, 41, 40, 7, 7},
                        d = {5, 41, 300, 0, 7};
            const Point p = {static_cast<float>(px), static_cast<float>(py), 60, 3, 3};
            const std::vector<std::array<Point, 3>> mesh = {
                {a, b, p}, {p, b, c}, {c, d, p}, {d, p, a}};
            const std::int32_t id = (px + py * 7) % kFillerCount;
            if (RulesOf(id).edges == "Closed") {
                continue;
            }
            const std::vector<std::int32_t> cover = CoverOf(id, mesh, &texture.record);
            for (std::int32_t y = 0; y < 48; ++y) {
                for (std::int32_t x = 0; x < 64; ++x) {
                    const bool inside = x >= 5 && x < 58 && y >= 5 && y < 41;
                    ASSERT_EQ(cover[canvas.IndexOf(x, y)], inside ? 1 : 0)
                        << kFillerTable[id].name << ", split at " << px << ", " << py << ": pixel "
                        << x << ", " << y;
                }
            }
        }
    }
}

// A grid whose inner vertices are shaken: no gap and no overlap, for every filler.
TEST_F(WalkerTest, ShakenGridIsWatertight) {
    TestTexture texture(8, 8, EqualTexels(64, 0xFFFF));
    Dice dice{std::mt19937(13)};
    const Canvas canvas(64, 48);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        if (RulesOf(id).edges == "Closed") {
            continue;
        }
        for (std::int32_t round = 0; round < 6; ++round) {
            Point grid[5][5];
            for (std::int32_t j = 0; j < 5; ++j) {
                for (std::int32_t i = 0; i < 5; ++i) {
                    // The outer ring leaves the picture, so that clipping takes part.
                    const bool rim = i == 0 || j == 0 || i == 4 || j == 4;
                    grid[j][i] = {static_cast<float>(i * 18 - 4 + (rim ? 0 : dice.Roll(-4, 4))),
                                  static_cast<float>(j * 14 - 4 + (rim ? 0 : dice.Roll(-3, 3))),
                                  dice.RollFloat(10, 500), dice.RollFloat(0, 7),
                                  dice.RollFloat(0, 7)};
                }
            }
            std::vector<std::array<Point, 3>> mesh;
            for (std::int32_t j = 0; j < 4; ++j) {
                for (std::int32_t i = 0; i < 4; ++i) {
                    mesh.push_back({grid[j][i], grid[j][i + 1], grid[j + 1][i]});
                    mesh.push_back({grid[j + 1][i], grid[j + 1][i + 1], grid[j][i + 1]});
                }
            }
            const std::vector<std::int32_t> cover = CoverOf(id, mesh, &texture.record);
            for (std::int32_t y = 0; y < 48; ++y) {
                for (std::int32_t x = 0; x < 64; ++x) {
                    ASSERT_EQ(cover[canvas.IndexOf(x, y)], 1)
                        << kFillerTable[id].name << " at " << x << ", " << y;
                }
            }
        }
    }
}

// Opaque, depth-tested faces: whatever the order, each pixel shows the nearest of the faces there.
TEST_F(WalkerTest, DepthTestedFacesMayComeInAnyOrder) {
    Dice dice{std::mt19937(14)};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow& rules = RulesOf(id);
        if ((rules.depth != "Z" && rules.depth != "W") || rules.write == "Blend") {
            continue;
        }
        std::vector<Pixel16> texels(256);
        for (Pixel16& texel : texels) {
            texel = static_cast<Pixel16>(dice.Roll(0, 4) == 0 ? 0 : dice.Roll(1, 0xFFFF));
        }
        TestTexture texture(16, 16, texels);
        // Draw every face alone.
        constexpr std::size_t kFaces = 10;
        std::vector<ScreenPolygon> faces;
        std::vector<Canvas> alone;
        for (std::size_t i = 0; i < kFaces; ++i) {
            std::array<Point, 3> points;
            for (Point& point : points) {
                point = {dice.RollFloat(-20, 80), dice.RollFloat(-20, 60), dice.RollFloat(20, 2000),
                         dice.RollFloat(0, 15), dice.RollFloat(0, 15)};
            }
            const auto color = static_cast<std::uint32_t>(dice.Roll(0, 0xFFFF));
            faces.push_back(MakePolygon(points, &texture.record, {color, color, color}));
            alone.emplace_back(64, 48, rules.depth);
            DrawWith(id, faces.back(), alone.back().Target());
        }
        std::array<std::size_t, kFaces> order;
        for (std::size_t i = 0; i < kFaces; ++i) {
            order[i] = i;
        }
        for (std::int32_t round = 0; round < 5; ++round) {
            std::shuffle(order.begin(), order.end(), dice.generator);
            Canvas canvas(64, 48, rules.depth);
            for (const std::size_t i : order) {
                DrawWith(id, faces[i], canvas.Target());
            }
            const bool larger = rules.depth == "W";
            for (std::size_t p = 0; p < canvas.frame.size(); ++p) {
                std::uint32_t nearest = ClearDepth(rules.depth);
                for (const Canvas& face : alone) {
                    nearest = larger ? std::max(nearest, face.depth[p])
                                     : std::min(nearest, face.depth[p]);
                }
                ASSERT_EQ(canvas.depth[p], nearest) << kFillerTable[id].name;
                // Of faces at one depth the first in order is seen.
                Pixel16 wanted = kBackground;
                for (const std::size_t i : order) {
                    if (nearest != ClearDepth(rules.depth) && alone[i].depth[p] == nearest) {
                        wanted = alone[i].frame[p];
                        break;
                    }
                }
                ASSERT_EQ(canvas.frame[p], wanted) << kFillerTable[id].name;
            }
        }
    }
}

// A line: both edges have the same slope, so the short one stays on the left and gives the depth.
TEST_F(WalkerTest, EqualSlopesAreNotSwapped) {
    Canvas canvas(64, 48, "Z");
    DrawWith(FillerId::FillFlatZ,
             MakePolygon({{{5, 5, 10, 0, 0}, {15, 15, 110, 0, 0}, {35, 35, 30, 0, 0}}}),
             canvas.Target());
    for (std::uint32_t row = 5; row <= 35; ++row) {
        const std::uint32_t z = row <= 15 ? 10 + 10 * (row - 5) : 110 - 4 * (row - 15);
        const auto place = static_cast<std::int32_t>(row);
        EXPECT_EQ(canvas.DepthAt(place, place), (z << 16) + 0x8000) << row;
    }
    EXPECT_EQ(canvas.CountChanged(), 31);
}

// Rows so far apart that their difference wraps: the long edge leaves the triangle to the left,
// where only the column clipping holds it.
TEST_F(WalkerTest, EdgesThatWrapStayWithinTheClipRectangle) {
    TestTexture texture(8, 8, CountedTexels(64));
    const ScreenPolygon polygon = MakePolygon(
        {{{0, -2147483904.0F, 9, 0, 0}, {30, 20, 9, 7, 0}, {60, 2147483520.0F, 9, 7, 7}}},
        &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        Canvas canvas(64, 48, RulesOf(id).depth);
        DrawWith(id, polygon, canvas.Target());
        EXPECT_NE(canvas.At(20, 40), kBackground) << kFillerTable[id].name;
        for (std::int32_t y = 0; y < 48; ++y) {
            for (std::int32_t x = 64; x < 64 + kPadding; ++x) {
                ASSERT_EQ(canvas.At(x, y), kBackground) << kFillerTable[id].name;
            }
        }
    }
}

TEST_F(WalkerTest, R2_FillFlatZHasClosedEdges) {
    const ScreenPolygon polygon =
        MakePolygon({{{4, 4, 1, 0, 0}, {12, 4, 1, 0, 0}, {4, 12, 1, 0, 0}}});
    Canvas canvas(64, 48, "Z");
    DrawWith(FillerId::FillFlatZ, polygon, canvas.Target());
    for (std::int32_t y = 0; y < 48; ++y) {
        for (std::int32_t x = 0; x < 64; ++x) {
            EXPECT_EQ(canvas.At(x, y) != kBackground, x >= 4 && y >= 4 && x + y <= 16);
        }
    }
}

TEST_F(WalkerTest, R2_ClosedEdgesEndAtTheClipRectangle) {
    clipRect = {2, 3, 30, 20};
    Canvas canvas(64, 48, "Z");
    // All vertices within the limits, right and bottom edge exactly on them.
    DrawWith(FillerId::FillFlatZ,
             MakePolygon({{{30, 3, 1, 0, 0}, {30, 20, 1, 0, 0}, {2, 20, 1, 0, 0}}}),
             canvas.Target());
    EXPECT_NE(canvas.At(29, 19), kBackground);
    for (std::int32_t y = 0; y < 48; ++y) {
        for (std::int32_t x = 0; x < 64; ++x) {
            if (x >= 30 || y >= 20) {
                ASSERT_EQ(canvas.At(x, y), kBackground) << x << ", " << y;
                ASSERT_EQ(canvas.DepthAt(x, y), 0xFFFFFFFFU);
            }
        }
    }
}

TEST_F(WalkerTest, R2_OneColumnSpansAreDrawnWhenClippedToo) {
    // The tip at (20, 30) is a span from 20 to 20; another vertex lies outside, so columns are cut.
    Canvas canvas(64, 48, "Z");
    DrawWith(FillerId::FillFlatZ,
             MakePolygon({{{-10, 10, 1, 0, 0}, {40, 10, 1, 0, 0}, {20, 30, 1, 0, 0}}}),
             canvas.Target());
    EXPECT_NE(canvas.At(20, 30), kBackground);
    EXPECT_EQ(canvas.At(19, 30), kBackground);
    EXPECT_EQ(canvas.At(21, 30), kBackground);
}

} // namespace
} // namespace ombrel
