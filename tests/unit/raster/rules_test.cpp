// What a pixel is made of: texels, light, blending, depth, against values worked out by hand or by
// a second, plainer formula; the blend tables; and that no filler leaves the memory it was given.
#include "canvas.h"

#include <fstream>
#include <limits>
#include <string>

#include "support/guard_memory.h"

namespace ombrel {
namespace {

using RulesTest = RasterTest;

// A triangle that covers the whole 64 x 48 picture with one texel, depth and colour.
ScreenPolygon Everywhere(Texture* texture, std::uint32_t color, float z = 100.0F) {
    return MakePolygon({{{-10, -10, z, 0, 0}, {200, -10, z, 0, 0}, {-10, 200, z, 0, 0}}}, texture,
                       {color, color, color});
}

// --- blend tables
// ---------------------------------------------------------------------------------

TEST_F(RulesTest, BlendTablesScaleEachChannelToNearest) {
    for (std::int32_t k = 0; k < 8; ++k) {
        for (std::int32_t p = 0; p < kBlendTableSize; ++p) {
            const auto color = static_cast<Pixel16>(p);
            // No product comes within 1/14 of a half, so the trace above k/7 never shows.
            const auto scaled = [k](std::int32_t channel) { return (2 * channel * k + 7) / 14; };
            const std::int32_t wanted =
                scaled(RedOf(color)) * 2048 + scaled(GreenOf(color)) * 32 + scaled(BlueOf(color));
            ASSERT_EQ(BlendTables[k][p], wanted) << "table " << k << ", colour " << p;
        }
    }
}

TEST_F(RulesTest, BlendTablesAreTheSameInEveryRoundingMode) {
    std::vector<Pixel16> chop(3 * kBlendTableSize), nearest(3 * kBlendTableSize);
    {
        const ScopedFloatMode mode(FloatMode::Chop);
        EXPECT_EQ(BuildBlendTables(3, chop.data()), 1);
        EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
    }
    const ScopedFloatMode mode(FloatMode::Nearest);
    EXPECT_EQ(BuildBlendTables(3, nearest.data()), 1);
    EXPECT_EQ(chop, nearest);
}

TEST_F(RulesTest, BuildBlendTablesRefusesNull) {
    EXPECT_EQ(BuildBlendTables(8, nullptr), -1);
}

TEST_F(RulesTest, R3_FactorsStandATraceAboveTheirFraction) {
    // With three tables the middle factor is a trace above one half: halves go up, not to even.
    std::vector<Pixel16> tables(3 * kBlendTableSize);
    BuildBlendTables(3, tables.data());
    const Pixel16* middle = &tables[kBlendTableSize];
    EXPECT_EQ(middle[1], 1);             // blue 1 * 0.500001
    EXPECT_EQ(middle[5], 3);             // 2.500005
    EXPECT_EQ(middle[5 << 11], 3 << 11); // red alike
    EXPECT_EQ(middle[61 << 5], 31 << 5); // green 30.500061
    EXPECT_EQ(middle[6], 3);
    // The full table still leaves every colour as it is.
    for (std::int32_t p = 0; p < kBlendTableSize; ++p) {
        ASSERT_EQ(BlendTables[7][p], p);
    }
}

TEST_F(RulesTest, LevelSevenWritesTheSource) {
    TestTexture texture(16, 16, CountedTexels(256));
    Dice dice{std::mt19937(21)};
    // Each blending filler is held to one that sets, of the same depth, texel and light rule.
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow plain = RulesOf(id);
        if (plain.write != "Blend") {
            continue;
        }
        std::int32_t twin = -1;
        for (std::int32_t other = 0; other < kFillerCount; ++other) {
            const FillerRow& rules = RulesOf(other);
            if (rules.write == "Set" && rules.depth == plain.depth && rules.texel == plain.texel &&
                rules.light == plain.light) {
                twin = other;
            }
        }
        ASSERT_GE(twin, 0) << kFillerTable[id].name;
        // The closed edges of the plain flat Z filler stay outside the clip rectangle.
        const ScreenPolygon polygon =
            MakePolygon({{{-30, -20, 40, 0, 0}, {150, -20, 90, 15, 2}, {-30, 140, 300, 3, 15}}},
                        &texture.record, {0xF81F, 0x07E0, 0x1234});
        Canvas blended(64, 48, plain.depth), set(64, 48, plain.depth);
        for (Pixel16& pixel : blended.frame) {
            pixel = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        }
        DrawWith(id, polygon, blended.Target(7));
        DrawWith(twin, polygon, set.Target());
        for (std::int32_t y = 0; y < 48; ++y) {
            for (std::int32_t x = 0; x < 64; ++x) {
                ASSERT_EQ(blended.At(x, y), set.At(x, y)) << kFillerTable[id].name;
                ASSERT_EQ(blended.DepthAt(x, y), set.DepthAt(x, y)) << kFillerTable[id].name;
            }
        }
    }
}

TEST_F(RulesTest, LevelZeroLeavesThePixelAndStillWritesDepth) {
    TestTexture texture(16, 16, CountedTexels(256));
    Dice dice{std::mt19937(22)};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        if (RulesOf(id).write != "Blend") {
            continue;
        }
        Canvas canvas(64, 48, RulesOf(id).depth);
        for (Pixel16& pixel : canvas.frame) {
            pixel = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        }
        const Canvas before = canvas;
        DrawWith(id, Everywhere(&texture.record, 0xFFFF), canvas.Target(0));
        EXPECT_EQ(canvas.frame, before.frame) << kFillerTable[id].name;
        if (RulesOf(id).depth != "NoDepth") {
            EXPECT_NE(canvas.DepthAt(30, 30), before.DepthAt(30, 30)) << kFillerTable[id].name;
        }
    }
}

TEST_F(RulesTest, LevelsBetweenAddTwoTables) {
    TestTexture texture(1, 1, EqualTexels(1, 0xA53C));
    for (std::uint32_t level = 0; level < 8; ++level) {
        for (std::int32_t id = 0; id < kFillerCount; ++id) {
            if (RulesOf(id).write != "Blend" || RulesOf(id).light != "Unlit") {
                continue;
            }
            Canvas canvas(64, 48, RulesOf(id).depth, 0x6B9D);
            DrawWith(id, Everywhere(&texture.record, 0), canvas.Target(level));
            ASSERT_EQ(canvas.At(20, 20), static_cast<Pixel16>(BlendTables[7 - level][0x6B9D] +
                                                              BlendTables[level][0xA53C]))
                << kFillerTable[id].name;
        }
    }
}

// --- colour key and depth writing
// -----------------------------------------------------------------

TEST_F(RulesTest, KeyedTexelLeavesPixelAndDepth) {
    TestTexture texture(1, 1, EqualTexels(1, 0));
    for (const FillerId id : {FillerId::FillTexZKeyed, FillerId::FillTexKeyedZWrite,
                              FillerId::FillTexFlatKeyedZWrite}) {
        Canvas canvas(64, 48, "Z");
        const Canvas before = canvas;
        DrawWith(id, Everywhere(&texture.record, 0xFFFF), canvas.Target());
        EXPECT_EQ(canvas, before);
    }
}

TEST_F(RulesTest, OtherFillersDrawTexelZero) {
    TestTexture texture(1, 1, EqualTexels(1, 0));
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow& rules = RulesOf(id);
        if (rules.texel == "NoTexel" || rules.texel == "Keyed") {
            continue;
        }
        Canvas canvas(64, 48, rules.depth);
        DrawWith(id, Everywhere(&texture.record, 0xFFFF), canvas.Target());
        EXPECT_EQ(canvas.At(9, 9), 0) << kFillerTable[id].name;
    }
}

TEST_F(RulesTest, KeyIsTakenFromTheTexelNotFromTheLitColour) {
    TestTexture texture(1, 1, EqualTexels(1, 1)); // times black gives 0, but is no key
    Canvas canvas(64, 48, "Z");
    DrawWith(FillerId::FillTexFlatKeyedZWrite, Everywhere(&texture.record, 0), canvas.Target());
    EXPECT_EQ(canvas.At(9, 9), 0);
    EXPECT_NE(canvas.DepthAt(9, 9), 0xFFFFFFFFU);
}

TEST_F(RulesTest, KeyAndWriteDrawsOverNearerGeometryAndLeavesItsOwnDepth) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    for (const FillerId id : {FillerId::FillTexKeyedZWrite, FillerId::FillTexFlatKeyedZWrite}) {
        Canvas canvas(64, 48, "Z");
        DrawWith(FillerId::FillFlatZ, Everywhere(nullptr, 0x001F, 10), canvas.Target());
        ASSERT_EQ(canvas.DepthAt(9, 9), 10U * 65536U + 0x8000U);
        DrawWith(id, Everywhere(&texture.record, 0xFFFF, 700), canvas.Target());
        EXPECT_NE(canvas.At(9, 9), 0x001F);
        EXPECT_EQ(canvas.DepthAt(9, 9), 700U * 65536U + 0x8000U);
    }
}

TEST_F(RulesTest, DepthForms) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const std::string_view rule = RulesOf(id).depth;
        Canvas canvas(64, 48, rule);
        DrawWith(id, Everywhere(&texture.record, 0xFFFF, 99.5F), canvas.Target());
        const std::uint32_t wanted = rule == "NoDepth" ? 0xFFFFFFFFU
                                     : rule == "W"     ? 0x10000000U / 100U
                                                       : (100U << 16) + 0x8000U;
        EXPECT_EQ(canvas.DepthAt(9, 9), wanted) << kFillerTable[id].name;
    }
}

TEST_F(RulesTest, DepthComparesUnsigned) {
    TestTexture texture(1, 1, EqualTexels(1, 0xFFFF));
    // 40,000 in 16.16 has the top bit set: still farther than 10, nearer than the cleared cell.
    for (const FillerId id : {FillerId::FillFlatZ, FillerId::FillTexZ, FillerId::FillGouraudZ}) {
        Canvas canvas(64, 48, "Z");
        DrawWith(id, Everywhere(&texture.record, 0xFFFF, 40000), canvas.Target());
        ASSERT_EQ(canvas.DepthAt(9, 9), (40000U << 16) + 0x8000U);
        DrawWith(id, Everywhere(&texture.record, 0x001F, 10), canvas.Target());
        ASSERT_EQ(canvas.DepthAt(9, 9), (10U << 16) + 0x8000U);
        DrawWith(id, Everywhere(&texture.record, 0x07E0, 40000), canvas.Target());
        ASSERT_EQ(canvas.DepthAt(9, 9), (10U << 16) + 0x8000U);
    }
    // A cell with the top bit set is larger than any W.
    Canvas canvas(64, 48, "W");
    std::fill(canvas.depth.begin(), canvas.depth.end(), 0x80000000U);
    const Canvas before = canvas;
    DrawWith(FillerId::FillFlatW, Everywhere(nullptr, 0xFFFF, 1), canvas.Target());
    EXPECT_EQ(canvas, before);
}

// --- light
// ----------------------------------------------------------------------------------------

TEST_F(RulesTest, FlatLightIsTexelTimesColourByChannel) {
    Dice dice{std::mt19937(23)};
    for (std::int32_t round = 0; round < 400; ++round) {
        const auto texel = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        const auto color = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        TestTexture texture(1, 1, EqualTexels(1, texel));
        const std::int32_t wanted = (RedOf(texel) * RedOf(color) / 32 << 11) +
                                    (GreenOf(texel) * GreenOf(color) / 64 << 5) +
                                    BlueOf(texel) * BlueOf(color) / 32;
        for (std::int32_t id = 0; id < kFillerCount; ++id) {
            const FillerRow& rules = RulesOf(id);
            if (rules.texel == "NoTexel" || rules.light != "Flat" || rules.write == "Blend" ||
                (rules.texel == "Keyed" && texel == 0)) {
                continue;
            }
            clipRect = {0, 0, 8, 2};
            Canvas canvas(8, 2, rules.depth);
            DrawWith(id, Everywhere(&texture.record, color), canvas.Target());
            ASSERT_EQ(canvas.At(3, 1), wanted)
                << kFillerTable[id].name << " " << texel << " " << color;
        }
    }
}

TEST_F(RulesTest, HighBitsOfColourWordsAreNotRead) {
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillFlatW, Everywhere(nullptr, 0xABCD4321), canvas.Target());
    EXPECT_EQ(canvas.At(5, 5), 0x4321);
    Canvas low(64, 48), high(64, 48);
    DrawWith(FillerId::FillGouraudW, Everywhere(nullptr, 0x00004321), low.Target());
    DrawWith(FillerId::FillGouraudW, Everywhere(nullptr, 0xABCD4321), high.Target());
    EXPECT_EQ(low, high);
}

TEST_F(RulesTest, GouraudOfOneColourKeepsTheColour) {
    Dice dice{std::mt19937(24)};
    for (std::int32_t round = 0; round < 400; ++round) {
        const auto color = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        for (const FillerId id : {FillerId::FillGouraud, FillerId::FillGouraudZ,
                                  FillerId::FillGouraudZKeyedKind, FillerId::FillGouraudW}) {
            clipRect = {0, 0, 8, 2};
            Canvas canvas(8, 2, RulesOf(static_cast<std::int32_t>(id)).depth);
            DrawWith(id, Everywhere(nullptr, color), canvas.Target());
            ASSERT_EQ(canvas.At(3, 1), color);
        }
    }
}

TEST_F(RulesTest, GouraudRunsEvenlyAlongASpan) {
    // From red 0 to red 248 in 62 columns of the one row: a step of exactly 4.
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillGouraud,
             MakePolygon({{{0, 3, 9, 0, 0}, {62, 3, 9, 0, 0}, {0, 4, 9, 0, 0}}}, nullptr,
                         {0x0000, 0xF800, 0x0000}),
             canvas.Target());
    for (std::int32_t x = 0; x < 62; ++x) {
        EXPECT_EQ(RedOf(canvas.At(x, 3)), x * 4 / 8) << x;
    }
}

TEST_F(RulesTest, GouraudLightIsTexelTimesIntensity) {
    Dice dice{std::mt19937(25)};
    for (std::int32_t round = 0; round < 400; ++round) {
        const auto texel = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        const auto color = static_cast<Pixel16>(dice.Roll(0, 0xFFFF));
        TestTexture texture(1, 1, EqualTexels(1, texel));
        // Intensities are 8.16 with half a unit: (8 * red, 4 * green, 8 * blue) * 65536 + 0x8000.
        const auto times = [](std::int32_t t, std::int32_t intensity) {
            return static_cast<std::int32_t>(std::int64_t{t} * (intensity * 65536 + 0x8000) >> 24);
        };
        const std::int32_t wanted = (times(RedOf(texel), RedOf(color) * 8) << 11) +
                                    (times(GreenOf(texel), GreenOf(color) * 4) << 5) +
                                    times(BlueOf(texel), BlueOf(color) * 8);
        for (const FillerId id :
             {FillerId::FillTexGouraud, FillerId::FillTexGouraudZ, FillerId::FillTexGouraudW}) {
            clipRect = {0, 0, 8, 2};
            Canvas canvas(8, 2, RulesOf(static_cast<std::int32_t>(id)).depth);
            DrawWith(id, Everywhere(&texture.record, color), canvas.Target());
            ASSERT_EQ(canvas.At(3, 1), wanted) << texel << " x " << color;
        }
    }
}

TEST_F(RulesTest, GouraudZAndItsKeyedKindAreAlike) {
    Dice dice{std::mt19937(26)};
    for (std::int32_t round = 0; round < 200; ++round) {
        std::array<Point, 3> points;
        std::array<std::uint32_t, 3> colors;
        for (std::size_t i = 0; i < 3; ++i) {
            points[i] = {dice.RollFloat(-20, 80), dice.RollFloat(-20, 60), dice.RollFloat(1, 99), 0,
                         0};
            colors[i] = static_cast<std::uint32_t>(dice.Roll(0, 0xFFFF));
        }
        Canvas a(64, 48, "Z"), b(64, 48, "Z");
        DrawWith(FillerId::FillGouraudZ, MakePolygon(points, nullptr, colors), a.Target());
        DrawWith(FillerId::FillGouraudZKeyedKind, MakePolygon(points, nullptr, colors), b.Target());
        ASSERT_EQ(a, b);
    }
}

// --- texels
// ---------------------------------------------------------------------------------------

TEST_F(RulesTest, BilinearAtTheLastColumnAndRowRepeatsTheEdgeTexel) {
    // All texels but the last column and row are white; sampling there must show them alone.
    std::vector<Pixel16> texels(16, 0xFFFF);
    for (std::size_t i = 0; i < 4; ++i) {
        texels[i * 4 + 3] = 0x0841;
        texels[12 + i] = 0x0841;
    }
    TestTexture texture(4, 4, texels);
    for (const FillerId id : {FillerId::FillTexAlt, FillerId::FillTexZAlt, FillerId::FillTexWAlt}) {
        for (const auto& [u, v] :
             {std::pair{3.0F, 0.0F}, {3.0F, 2.0F}, {0.0F, 3.0F}, {3.0F, 3.0F}}) {
            Canvas canvas(64, 48, RulesOf(static_cast<std::int32_t>(id)).depth);
            DrawWith(id,
                     MakePolygon({{{0, 0, 9, u, v}, {60, 0, 9, u, v}, {0, 40, 9, u, v}}},
                                 &texture.record),
                     canvas.Target());
            EXPECT_EQ(canvas.At(2, 2), 0x0841) << u << ", " << v;
        }
    }
}

TEST_F(RulesTest, BilinearMixesFourTexels) {
    // u runs from 0 to 2 in 64 columns, v stays: column 16 is u = 0.5, exactly half of two texels.
    TestTexture texture(4, 4,
                        {0x0000, 0xF800, 0x07E0, 0x001F, 0x0000, 0xF800, 0x07E0, 0x001F, 0x0000,
                         0xF800, 0x07E0, 0x001F, 0x0000, 0xF800, 0x07E0, 0x001F});
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillTexAlt,
             MakePolygon({{{0, 3, 9, 0, 1}, {64, 3, 9, 2, 1}, {0, 4, 9, 0, 1}}}, &texture.record),
             canvas.Target());
    EXPECT_EQ(canvas.At(0, 3), 0x0000);
    EXPECT_EQ(canvas.At(16, 3), 15 << 11);
    EXPECT_EQ(canvas.At(32, 3), 0xF800);
    EXPECT_EQ(canvas.At(48, 3), (15 << 11) + (31 << 5));
    EXPECT_EQ(canvas.At(40, 3), (31 * 3 / 4 << 11) + (63 / 4 << 5));
}

TEST_F(RulesTest, R4_BilinearRowsAreBoundedByTheWidth) {
    // Two columns, four rows: below row 2 comes row 1, the bound of the columns.
    TestTexture texture(2, 4, {1, 1, 31, 31, 3, 3, 4, 4});
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillTexAlt,
             MakePolygon({{{0, 0, 9, 0, 2}, {64, 0, 9, 0, 2}, {0, 1, 9, 0, 2}}}, &texture.record),
             canvas.Target());
    EXPECT_EQ(canvas.At(0, 0), 3); // weight of the lower row is 0
    Canvas between(64, 48);
    DrawWith(FillerId::FillTexAlt,
             MakePolygon({{{0, 0, 9, 0, 2}, {64, 0, 9, 0, 3}, {0, 1, 9, 0, 2}}}, &texture.record),
             between.Target());
    EXPECT_EQ(between.At(32, 0), (3 + 31) / 2); // rows 2 and 1, not 2 and 3
}

TEST_F(RulesTest, R5_AffineTexelsAreCutPerspectiveOnesRounded) {
    TestTexture texture(8, 1, CountedTexels(8));
    const ScreenPolygon polygon = MakePolygon(
        {{{0, 0, 1, 2.75F, 0}, {60, 0, 1, 2.75F, 0}, {0, 40, 1, 2.75F, 0}}}, &texture.record);
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow& rules = RulesOf(id);
        if (rules.texel == "NoTexel" || rules.light != "Unlit") {
            continue;
        }
        const bool perspective = rules.texel == "Span" || rules.texel == "PerPixel";
        Canvas canvas(64, 48, rules.depth);
        DrawWith(id, polygon, canvas.Target());
        EXPECT_EQ(canvas.At(2, 2), perspective ? 4 : 3) << kFillerTable[id].name;
    }
}

// One span in perspective, computed again by plain formula.
TEST_F(RulesTest, SpanMembersDivideAtTheSpanEnds) {
    TestTexture texture(64, 2, CountedTexels(128));
    Canvas canvas(64, 48);
    // One row: left end z = 10, u = 0; right end z = 100, u = 63.
    DrawWith(
        FillerId::FillTexWSpan,
        MakePolygon({{{0, 0, 10, 0, 1}, {60, 0, 100, 63, 1}, {0, 1, 10, 0, 1}}}, &texture.record),
        canvas.Target());
    const std::int32_t w0 = 0x10000000 / 10, w1 = 0x10000000 / 100;
    const std::int32_t end = ((((63 << 22) / 100) << 6) / (w1 >> 6)) << 16;
    const std::int32_t v0 = ((((1 << 22) / 10) << 6) / (w0 >> 6)) << 16;
    const std::int32_t v1 = ((((1 << 22) / 100) << 6) / (w1 >> 6)) << 16;
    for (std::int32_t x = 0; x < 60; ++x) {
        const std::int32_t u = end / 60 * x, v = v0 + (v1 - v0) / 60 * x;
        ASSERT_EQ(canvas.At(x, 0), ((v >> 22) << 6) + (u >> 22) + 1) << x;
        ASSERT_EQ(canvas.DepthAt(x, 0), static_cast<std::uint32_t>(w0 + (w1 - w0) / 60 * x)) << x;
    }
}

TEST_F(RulesTest, PerPixelMembersDivideAtEveryPixel) {
    TestTexture texture(64, 2, CountedTexels(128));
    Canvas canvas(64, 48);
    DrawWith(
        FillerId::FillTexWPerPixel,
        MakePolygon({{{0, 0, 10, 0, 0}, {60, 0, 100, 63, 0}, {0, 1, 10, 0, 0}}}, &texture.record),
        canvas.Target());
    const std::int32_t w0 = 0x10000000 / 10, w1 = 0x10000000 / 100;
    const std::int32_t end = (63 << 22) / 100;
    for (std::int32_t x = 0; x < 60; ++x) {
        const std::int32_t w = w0 + (w1 - w0) / 60 * x;
        ASSERT_EQ(canvas.At(x, 0), ((end / 60 * x) << 6) / w + 1) << x;
    }
}

TEST_F(RulesTest, PerspectiveIndexIsBoundToTheTexture) {
    // A far face: 2^28 / z has few digits left, so u comes out past the last column of the last
    // row.
    TestTexture texture(64, 64, CountedTexels(4096));
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow& rules = RulesOf(id);
        if (rules.texel != "Span" && rules.texel != "PerPixel") {
            continue;
        }
        Canvas canvas(64, 48);
        DrawWith(
            id,
            MakePolygon({{{0, 0, 60000, 63, 63}, {60, 0, 60000, 63, 63}, {0, 40, 60000, 63, 63}}},
                        &texture.record),
            canvas.Target());
        if (rules.light == "Unlit") {
            EXPECT_EQ(canvas.At(3, 3), 4096) << kFillerTable[id].name;
        }
    }
}

// --- memory
// ---------------------------------------------------------------------------------------

struct Guarded {
    GuardMemory frame, depth, texels;
};

// Wild and tame coordinates of every kind.
float RollWild(Dice* dice, std::int32_t low, std::int32_t high) {
    switch (dice->Roll(0, 24)) {
    case 0:
        return dice->RollFloat(-5000, 5000);
    case 1:
        return dice->RollFloat(-2000000000, 2000000000);
    case 2:
        return std::numeric_limits<float>::infinity();
    case 3:
        return std::numeric_limits<float>::quiet_NaN();
    case 4:
        return -3.0e38F;
    case 5:
        return dice->RollFloat(-40000, 40000);
    default:
        return dice->RollFloat(low, high);
    }
}

// Unreadable pages before or behind frame, depth buffer and texture.
void DrawGuarded(GuardSide side, std::int32_t bitsPerPixel, std::int32_t texWidth,
                 std::int32_t texHeight, bool wild) {
    constexpr std::int32_t kWidth = 64, kHeight = 48;
    const auto texelBytes =
        static_cast<std::size_t>(std::max(2, texWidth * texHeight * (bitsPerPixel / 8)));
    GuardMemory frame = MakeGuardMemory(kWidth * kHeight * 2, side);
    GuardMemory depth = MakeGuardMemory(kWidth * kHeight * 4, side);
    GuardMemory texels = MakeGuardMemory(texelBytes, side);
    Dice dice{std::mt19937(static_cast<std::uint32_t>(texWidth * 31 + texHeight))};
    for (std::size_t i = 0; i < texelBytes; ++i) {
        texels.bytes[i] = static_cast<unsigned char>(dice.Roll(0, 255));
    }
    Texture texture{1,
                    TEX_FILLED,
                    0,
                    0,
                    texWidth,
                    texHeight,
                    static_cast<int>(texelBytes),
                    bitsPerPixel,
                    texels.bytes};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        for (std::int32_t round = 0; round < 400; ++round) {
            std::array<Point, 3> points;
            std::array<std::uint32_t, 3> colors;
            for (std::size_t i = 0; i < 3; ++i) {
                // Tame ones keep what the pipeline promises: u and v in the image, z in front.
                points[i] = wild ? Point{RollWild(&dice, -10, 74), RollWild(&dice, -10, 58),
                                         RollWild(&dice, -3, 300), RollWild(&dice, -2, texWidth),
                                         RollWild(&dice, -2, texHeight)}
                                 : Point{dice.RollFloat(-90, 150), dice.RollFloat(-90, 140),
                                         dice.RollFloat(1, 60000), dice.RollFloat(0, texWidth - 1),
                                         dice.RollFloat(0, std::max(texHeight - 1, 0))};
                colors[i] = static_cast<std::uint32_t>(dice.generator());
            }
            if (dice.Roll(0, 5) == 0) {
                points[2].y = points[static_cast<std::size_t>(dice.Roll(0, 1))].y;
            }
            if (round % 50 == 0) {
                const std::uint32_t clear = ClearDepth(RulesOf(id).depth);
                std::fill_n(reinterpret_cast<std::uint32_t*>(depth.bytes), kWidth * kHeight, clear);
            }
            clipRect = {0, 0, kWidth, kHeight};
            DrawWith(id, MakePolygon(points, &texture, colors),
                     {reinterpret_cast<Pixel16*>(frame.bytes), kWidth * 2,
                      reinterpret_cast<std::uint32_t*>(depth.bytes), kWidth * 4,
                      static_cast<std::uint32_t>(dice.Roll(0, 7)), clipRect});
        }
        ASSERT_TRUE(GuardIntact(frame)) << kFillerTable[id].name;
        ASSERT_TRUE(GuardIntact(depth)) << kFillerTable[id].name;
        ASSERT_TRUE(GuardIntact(texels)) << kFillerTable[id].name;
    }
    FreeGuardMemory(&frame);
    FreeGuardMemory(&depth);
    FreeGuardMemory(&texels);
}

TEST_F(RulesTest, NothingOutsideIsTouched) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::Behind}) {
        for (const bool wild : {false, true}) {
            DrawGuarded(side, 16, 64, 64, wild);
        }
    }
}

TEST_F(RulesTest, NothingOutsideIsTouchedWithOddTextures) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::Behind}) {
        for (const bool wild : {false, true}) {
            DrawGuarded(side, 16, 64, 16, wild);
            DrawGuarded(side, 16, 16, 64, wild);
            DrawGuarded(side, 8, 32, 32, wild);
            DrawGuarded(side, 8, 64, 8, wild);
            DrawGuarded(side, 16, 1, 1, wild);
            DrawGuarded(side, 8, 1, 1, wild);
            DrawGuarded(side, 16, 24, 20, wild);
        }
    }
}

TEST_F(RulesTest, TextureWithoutRowsIsBlack) {
    Texture texture{1, TEX_FILLED, 0, 0, 1, 0, 0, 16, nullptr};
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const FillerRow& rules = RulesOf(id);
        if (rules.texel == "NoTexel" || rules.texel == "Keyed") {
            continue;
        }
        Canvas canvas(64, 48, rules.depth);
        DrawWith(id, Everywhere(&texture, 0xFFFF), canvas.Target());
        EXPECT_EQ(canvas.At(3, 3), 0) << kFillerTable[id].name;
    }
}

TEST_F(RulesTest, DepthZeroDoesNotTrap) {
    TestTexture texture(8, 8, CountedTexels(64));
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        for (const float z : {0.0F, -0.5F, -1.0F, -1.5F, 1.0e9F}) {
            Canvas canvas(64, 48, RulesOf(id).depth);
            ScreenPolygon polygon = MakePolygon(
                {{{1, 1, z, 0, 0}, {50, 3, 4, 7, 0}, {9, 40, -z, 0, 7}}}, &texture.record);
            DrawWith(id, polygon, canvas.Target());
            polygon = MakePolygon({{{1, 1, z, 3, 3}, {50, 3, z, 3, 3}, {9, 40, z, 3, 3}}},
                                  &texture.record);
            DrawWith(id, polygon, canvas.Target());
        }
    }
    // W of a depth of 0 is 0, which no cell lets through.
    Canvas canvas(64, 48);
    DrawWith(FillerId::FillFlatW, Everywhere(nullptr, 0xFFFF, 0.0F), canvas.Target());
    EXPECT_EQ(canvas.CountChanged(), 0);
}

// --- the table
// ------------------------------------------------------------------------------------

TEST_F(RulesTest, DocumentedTableIsTheTable) {
    std::ifstream file(OMBREL_SOURCE_DIR "/docs/rasterizer.md");
    std::string line;
    std::int32_t id = 0;
    while (std::getline(file, line)) {
        if (line.rfind("| `Fill", 0) != 0) {
            continue;
        }
        ASSERT_LT(id, kFillerCount);
        const FillerRow& rules = RulesOf(id);
        std::string wanted = std::string("| `") + rules.name + "` |";
        for (const std::string_view cell :
             {rules.depth, rules.texel, rules.light, rules.write, rules.edges}) {
            wanted += " " + std::string(cell) + " |";
        }
        EXPECT_EQ(line, wanted);
        ++id;
    }
    EXPECT_EQ(id, kFillerCount);
}

TEST_F(RulesTest, ResetPutsThePlainFillersBack) {
    for (Filler& filler : activeFillers) {
        filler = [](ScreenPolygon*, const FillTarget&) {};
    }
    ResetFillers();
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        EXPECT_EQ(activeFillers[id], kPlainPath.fillers[id]);
    }
}

} // namespace
} // namespace ombrel
