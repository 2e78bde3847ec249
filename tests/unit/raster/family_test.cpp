// The fillers of every path against the slow reference, on random triangles and on spans of every
// length at every alignment; a checksum a filler that says whether the pictures are still those of
// the day they were accepted; the table of the fillers; the arithmetic that replaces tables and
// divisions.
//
// OMBREL_RANDOM_SHARE=0.1 runs a tenth. OMBREL_UPDATE_CHECKSUMS=1 writes filler_checksums.txt anew:
// only when a picture is meant to change.
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>

#include "base/convert.h"
#include "base/vector_path.h"
#include "lanes/reciprocal.h"
#include "raster/paths.h"
#include "support/made_up_rule.h"
#include "support/random_triangles.h"
#include "support/raster_bench.h"

namespace ombrel::test {
namespace {

// --- the table -----------------------------------------------------------------------------------

TEST(FillerTable, IsTheDocumentedOne) {
    std::ifstream file(OMBREL_SOURCE_DIR "/docs/rasterizer.md");
    std::string line;
    int id = 0;
    while (std::getline(file, line)) {
        if (line.rfind("| `Fill", 0) != 0) {
            continue;
        }
        ASSERT_LT(id, kFillerCount);
        const FillerRow& row = kFillerTable[id++];
        std::string wanted = std::string("| `") + row.name + "` |";
        for (const std::string_view cell :
             {row.depth, row.texel, row.light, row.write, row.edges}) {
            wanted += " " + std::string(cell) + " |";
        }
        EXPECT_EQ(line, wanted);
    }
    EXPECT_EQ(id, kFillerCount);
}

TEST(FillerTable, HasTheNamesOfTheReference) {
    static_assert(reference::kCount == kFillerCount);
    for (const FillerRow& row : kFillerTable) {
        EXPECT_NE(reference::FindFiller(row.name), nullptr) << row.name;
    }
}

TEST(FillerTable, PlainFillersAreInUseUntilAPathIsChosen) {
    std::fill_n(activeFillers, kFillerCount, [](ScreenPolygon*, const FillTarget&) {});
    ResetFillers();
    EXPECT_TRUE(std::equal(activeFillers, activeFillers + kFillerCount, kPlainPath.fillers));
}

// --- random triangles ----------------------------------------------------------------------------

constexpr char kChecksumFile[] = OMBREL_SOURCE_DIR "/tests/unit/raster/filler_checksums.txt";

struct Checksums {
    std::string firstScenes;
    std::string all;
};

std::map<std::string, Checksums> ReadChecksums() {
    std::map<std::string, Checksums> rows;
    std::ifstream file(kChecksumFile);
    std::string line;
    while (std::getline(file, line)) {
        std::istringstream words(line);
        std::string name;
        Checksums sums;
        if (line.rfind("#", 0) != 0 && words >> name >> sums.firstScenes >> sums.all) {
            rows[name] = sums;
        }
    }
    return rows;
}

void WriteChecksums(const std::map<std::string, Checksums>& rows) {
    std::ofstream file(kChecksumFile);
    file << "# filler, checksum of its first " << kFirstScenes * kTrianglesPerScene
         << " random triangles, of all " << kScenesPerFiller * kTrianglesPerScene << "\n";
    for (const reference::Filler& row : reference::kFillers) {
        const auto found = rows.find(row.name);
        if (found != rows.end()) {
            file << row.name << " " << found->second.firstScenes << " " << found->second.all
                 << "\n";
        }
    }
}

std::string Hex(std::uint64_t value) {
    char text[32];
    std::snprintf(text, sizeof text, "%016" PRIx64, value);
    return text;
}

bool Updating() {
    const char* wish = std::getenv("OMBREL_UPDATE_CHECKSUMS");
    return wish != nullptr && std::string(wish) == "1";
}

// Holds the pictures of the plain path to the stored checksums, or stores them.
void CheckSums(const char* name, const RandomComparison& result, std::int32_t scenes) {
    std::map<std::string, Checksums> stored = ReadChecksums();
    if (Updating()) {
        stored[name] = {Hex(result.firstScenesHash), Hex(result.hash)};
        WriteChecksums(stored);
        return;
    }
    EXPECT_EQ(Hex(result.firstScenesHash), stored[name].firstScenes);
    if (scenes == kScenesPerFiller) {
        EXPECT_EQ(Hex(result.hash), stored[name].all);
    }
}

using Pair = std::tuple<int, int>; // path, filler
class Family : public testing::TestWithParam<Pair> {
protected:
    static void SetUpTestSuite() {
        BuildBlendTables(8, BlendTables[0]);
        stage = MakeRandomStage();
    }
    static void TearDownTestSuite() { FreeRandomStage(&stage); }
    inline static RandomStage stage;
};

// The plain path gets most of them; the others are the same sources over other lanes.
TEST_P(Family, DrawsRandomTrianglesAsTheReference) {
    const auto& [pathNumber, number] = GetParam();
    const PathEntry& path = AllPaths()[static_cast<std::size_t>(pathNumber)];
    if (path.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << path.name;
    }
    const bool plain = pathNumber == 0;
    const float share = plain && Updating() ? 1.0F : RandomShare();
    const std::int32_t scenes =
        std::max(ToIntChop(static_cast<float>(plain ? kScenesPerFiller : 512) * share),
                 plain ? kFirstScenes : 16);
    const reference::Filler& row = ReferenceOf(static_cast<FillerId>(number));
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        const RandomComparison result =
            CompareRandomTriangles(&stage, row, path.fillers[number], scenes);
        ASSERT_EQ(result.failure, "");
        EXPECT_EQ(result.triangles, std::int64_t{scenes} * kTrianglesPerScene);
        // Triangles that draw nothing prove little: most of them must be seen.
        EXPECT_GT(result.visible * 4, result.triangles) << "too few triangles were visible";
        EXPECT_GT(result.hidden * 50, result.triangles) << "too few triangles were not";
        if (plain) {
            CheckSums(row.name, result, scenes);
        }
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    EXPECT_EQ(CompareRandomTriangles(&stage, row, path.fillers[number], scenes / (plain ? 64 : 4))
                  .failure,
              "");
}

INSTANTIATE_TEST_SUITE_P(Each, Family,
                         testing::Combine(testing::Range(0, kPathCount),
                                          testing::Range(0, kFillerCount)),
                         [](const testing::TestParamInfo<Pair>& info) {
                             const auto path = static_cast<std::size_t>(std::get<0>(info.param));
                             return std::string(AllPaths()[path].name) + "_" +
                                    kFillerTable[std::get<1>(info.param)].name;
                         });

// --- spans of every length at every alignment ----------------------------------------------------

class Spans : public RasterBench {
protected:
    static constexpr std::int32_t kSpans = 71; // lengths 0..70
    static constexpr std::int32_t kTexels = 128;

    Spans() : texture_(kTexels, kTexels, RandomTexels()) {}

    // Spans of 0 to 70 pixels that all begin at x (to the right), or all end there.
    ScreenPolygon Wedge(std::int32_t x, bool toTheRight) {
        const auto start = static_cast<float>(x);
        const float tip = start + (toTheRight ? 1.0F : -1.0F) * static_cast<float>(kSpans);
        constexpr auto kLow = static_cast<float>(kSpans);
        constexpr auto kLast = static_cast<float>(kTexels - 1); // up to the last texel
        return MakePolygon(
            {{{start, 0, 500, 0, 0}, {start, kLow, 540, 3, kLast}, {tip, kLow, 580, kLast, kLast}}},
            &texture_.record, {0xFFFF, 0x1FFF, 0x3FF});
    }

    // Depths in front of the wedge and after it in stretches of all lengths, under random pixels.
    static Picture Stretches(std::int32_t width, FillerId id, RandomNumbers* random) {
        Picture picture(width, kSpans + 1, id);
        const bool isW = RowOf(id).depth == "W";
        bool near = false;
        for (std::size_t i = 0; i < picture.frame.size(); ++i) {
            near = random->Below(6) == 0 ? !near : near;
            const std::uint32_t z = near ? 400 : 700;
            picture.depth[i] = isW ? 0x10000000 / z : z << 16;
            picture.frame[i] = static_cast<Pixel16>(random->Word());
        }
        return picture;
    }

    static std::vector<Pixel16> RandomTexels() {
        RandomNumbers random(kTexels);
        std::vector<Pixel16> texels(std::size_t{kTexels} * kTexels);
        for (Pixel16& texel : texels) { // some are the key
            texel = random.Below(4) == 0 ? Pixel16{0} : static_cast<Pixel16>(random.Word());
        }
        return texels;
    }

    TestTexture texture_;
};

TEST_F(Spans, OfEveryLengthAtEveryAlignmentAreThoseOfTheReference) {
    RandomNumbers random(1);
    for (std::int32_t x = 0; x < 17; ++x) {
        // The wedge touches both sides of the picture, or leaves a pixel there.
        const std::int32_t width = kSpans + x;
        for (const FillerId id : AllFillers()) {
            for (const std::int32_t cut : {0, 1, 5, 20}) {
                for (const bool toTheRight : {true, false}) {
                    Picture picture = Stretches(width, id, &random);
                    Draw(&picture, id, Wedge(toTheRight ? x : kSpans, toTheRight),
                         {3, {cut, 0, width - cut, kSpans + 1}});
                    ASSERT_FALSE(HasFailure()) << "from " << x << ", cut " << cut;
                }
            }
        }
    }
}

// --- a rule that the table does not have ---------------------------------------------------------

TEST_F(Spans, RuleThatTheTableLacksDrawsOverPlainAndVectorLanes) {
    const ScreenPolygon wedge = Wedge(4, true);
    RandomNumbers random(2);
    Picture there(kSpans + 9, kSpans + 1, 0x10000000U / 545);
    // What is drawn over black are the colours; over the other picture they are to be xored.
    Picture wanted = there;
    std::fill(wanted.frame.begin(), wanted.frame.end(), Pixel16{0});
    Draw(&wanted, FillerId::FillTexGouraudW, wedge);
    EXPECT_GT(
        std::count_if(wanted.frame.begin(), wanted.frame.end(), [](Pixel16 p) { return p != 0; }),
        500);
    for (std::size_t i = 0; i < there.frame.size(); ++i) {
        there.frame[i] = static_cast<Pixel16>(random.Word());
        wanted.frame[i] = static_cast<Pixel16>(wanted.frame[i] ^ there.frame[i]);
    }
    for (const MadeUpFiller filler :
         {kMadeUpPlain, ProcessorRuns(VectorPath::Sse) ? kMadeUpVector : nullptr}) {
        if (filler != nullptr) {
            Picture picture = there;
            ScreenPolygon polygon = wedge;
            const std::int32_t row = picture.width + Picture::kPadding;
            EXPECT_TRUE(filler(&polygon, {picture.frame.data(),
                                          row * 2,
                                          picture.depth.data(),
                                          row * 4,
                                          3,
                                          {0, 0, picture.width, picture.height}}));
            EXPECT_EQ(picture, wanted);
        }
    }
}

// --- arithmetic in the place of tables and divisions ---------------------------------------------

// A square of 256 x 256 pixels as two triangles, a texel a pixel.
void FillSquare(Filler filler, Texture* texture, Pixel16* frame, std::uint32_t level) {
    for (const Corner third : {Corner{256, 256, 1, 256, 256}, Corner{0, 256, 1, 0, 256}}) {
        const Corner second =
            third.x > 0 ? Corner{256, 0, 1, 256, 0} : Corner{256, 256, 1, 256, 256};
        ScreenPolygon polygon = MakePolygon({{{0, 0, 1}, second, third}}, texture, {0, 0, 0});
        filler(&polygon, {frame, 512, nullptr, 0, level, {0, 0, 256, 256}});
    }
}

TEST(Arithmetic, GivesAllEntriesOfAllBlendTablesOnEveryPath) {
    BuildBlendTables(8, BlendTables[0]);
    constexpr std::size_t kCount = kBlendTableSize;
    // One row and column more than the square, so that its far corners lie inside.
    std::vector<Pixel16> texels(512 * 512);
    for (std::size_t i = 0; i < kCount; ++i) {
        texels[(i >> 8) * 512 + (i & 255)] = static_cast<Pixel16>(i);
    }
    TestTexture texture(512, 512, texels);
    for (const PathEntry& path : AllPaths()) {
        for (std::uint32_t level = 0; path.fillers != nullptr && level < 8; ++level) {
            // Every source over black, black over everything that can be there.
            std::vector<Pixel16> frame(kCount, 0);
            FillSquare(path.fillers[static_cast<int>(FillerId::FillTexBlend)], &texture.record,
                       frame.data(), level);
            EXPECT_EQ(std::memcmp(frame.data(), BlendTables[level], kCount * 2), 0) << path.name;
            for (std::size_t i = 0; i < kCount; ++i) {
                frame[i] = static_cast<Pixel16>(i);
            }
            FillSquare(path.fillers[static_cast<int>(FillerId::FillFlatBlend)], &texture.record,
                       frame.data(), level);
            EXPECT_EQ(std::memcmp(frame.data(), BlendTables[7 - level], kCount * 2), 0)
                << path.name;
        }
    }
}

// Next to every multiple is where a reciprocal goes wrong.
bool DividesExactly(std::int32_t n, std::int32_t multiple) {
    for (std::int64_t a = std::int64_t{multiple} - 1; a <= std::int64_t{multiple} + 1; ++a) {
        for (const std::int64_t dividend : {a, -a}) {
            if (dividend < INT32_MIN || dividend > INT32_MAX) {
                continue;
            }
            const auto exact = static_cast<std::int32_t>(dividend);
            const auto quotient = [exact](double reciprocal) {
                return static_cast<std::int32_t>(static_cast<double>(exact) * reciprocal);
            };
            if (quotient(ReciprocalOf(n)) != exact / n ||
                (n < kShortSpan && quotient(kReciprocals.of[n]) != exact / n)) {
                return false;
            }
        }
    }
    return true;
}

TEST(Arithmetic, ReciprocalsDivideTowardZeroInBothRoundingModes) {
    for (const FloatMode mode : {FloatMode::Chop, FloatMode::Nearest}) {
        const ScopedFloatMode set(mode);
        RandomNumbers random(1);
        for (std::int32_t n = 1; n < 32768; ++n) {
            const std::int32_t most = INT32_MAX / n;
            ASSERT_TRUE(DividesExactly(n, most * n)) << n;
            ASSERT_TRUE(DividesExactly(n, 0)) << n;
            ASSERT_TRUE(DividesExactly(n, INT32_MAX)) << n;
            for (int i = 0; i < (n <= 2048 ? 300 : 20); ++i) {
                const std::int32_t multiple = random.Below(most) * n;
                ASSERT_TRUE(DividesExactly(n, multiple)) << multiple << " / " << n;
            }
        }
    }
}

} // namespace
} // namespace ombrel::test
