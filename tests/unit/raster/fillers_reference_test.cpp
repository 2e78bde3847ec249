// The fast fillers against the slow ones: 5.9 million random triangles, and a checksum a
// filler that says whether the pictures are still those of the day they were accepted.
//
// OMBREL_RANDOM_SHARE=0.1 runs a tenth. OMBREL_UPDATE_CHECKSUMS=1 writes filler_checksums.txt anew:
// only when a picture is meant to change.
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "raster/fillers.h"
#include "raster/paths.h"
#include "support/filler_recorder.h"
#include "support/random_triangles.h"
#include "support/reference_fillers.h"

namespace ombrel {
namespace {

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

// The number of a filler in the fast family's table; -1 when it has none of that name.
int FastNumber(const char* name) {
    for (int i = 0; i < kFillerCount; ++i) {
        if (std::string(kFillerTable[i].name) == name) {
            return i;
        }
    }
    return -1;
}

class RandomTriangles : public RandomStageTest<int> {};

TEST_P(RandomTriangles, AreDrawnAsByTheReference) {
    const reference::Filler& row = reference::kFillers[GetParam()];
    const int number = FastNumber(row.name);
    ASSERT_GE(number, 0) << "the family has no " << row.name;
    const float share = Updating() ? 1.0F : RandomShare();
    auto scenes = ToIntChop(static_cast<float>(kScenesPerFiller) * share);
    scenes = scenes < kFirstScenes ? kFirstScenes : scenes;

    ScopedFloatMode chop(FloatMode::Chop);
    const RandomComparison result =
        CompareRandomTriangles(&stage, row, kPlainPath.fillers[number], scenes);
    ASSERT_EQ(result.failure, "");
    EXPECT_EQ(result.triangles, std::int64_t{scenes} * kTrianglesPerScene);
    // Triangles that draw nothing prove little: most of them must be seen.
    EXPECT_GT(result.visible * 4, result.triangles) << "too few triangles were visible";
    EXPECT_GT(result.hidden * 50, result.triangles) << "too few triangles were not";

    std::map<std::string, Checksums> stored = ReadChecksums();
    if (Updating()) {
        stored[row.name] = {Hex(result.firstScenesHash), Hex(result.hash)};
        WriteChecksums(stored);
        return;
    }
    EXPECT_EQ(Hex(result.firstScenesHash), stored[row.name].firstScenes);
    if (scenes == kScenesPerFiller) {
        EXPECT_EQ(Hex(result.hash), stored[row.name].all);
    }
}

std::string NameOfRow(const testing::TestParamInfo<int>& info) {
    return reference::kFillers[info.param].name;
}
INSTANTIATE_TEST_SUITE_P(Fillers, RandomTriangles, testing::Range(0, reference::kCount), NameOfRow);

TEST(FillerFamily, HasTheSame45NamesInBothTables) {
    for (const reference::Filler& row : reference::kFillers) {
        EXPECT_GE(FastNumber(row.name), 0) << row.name;
    }
    for (const FillerRow& row : kFillerTable) {
        EXPECT_NE(reference::FindFiller(row.name), nullptr) << row.name;
    }
}

} // namespace
} // namespace ombrel
