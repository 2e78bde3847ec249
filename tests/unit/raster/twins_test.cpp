// The vector twins of the fillers against the slow reference: every filler of every path that this
// processor runs. Spans of every length at every alignment, and the random triangles.
#include <string>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/vector_path.h"
#include "raster/blend_tables.h"
#include "raster/simd/paths.h"
#include "support/random_triangles.h"
#include "support/reference_fillers.h"

namespace ombrel {
namespace {

struct TwinTable {
    const char* name;
    const Filler* fillers; // null: not on this processor
};

TwinTable TableOf(VectorPath path) {
    return {NameOf(path), ProcessorRuns(path) ? FillersOf(path) : nullptr};
}
const TwinTable kTables[] = {TableOf(VectorPath::Sse), TableOf(VectorPath::Avx2),
                             TableOf(VectorPath::Avx512)};
constexpr int kTableCount = 3;

int NumberOf(const char* name) {
    for (int i = 0; i < kFillerCount; ++i) {
        if (std::string(kFillerTable[i].name) == name) {
            return i;
        }
    }
    return -1;
}

class Twins : public testing::TestWithParam<std::tuple<int, int>> {
protected:
    static void SetUpTestSuite() {
        const ScopedFloatMode nearest(FloatMode::Nearest);
        BuildBlendTables(8, BlendTables[0]);
        stage = MakeRandomStage();
    }
    static void TearDownTestSuite() { FreeRandomStage(&stage); }
    static RandomStage stage;
};
RandomStage Twins::stage;

// 1024 scenes of 16 triangles in the production's mode, a quarter as many in the other one.
TEST_P(Twins, DrawRandomTrianglesAsTheReference) {
    const TwinTable& table = kTables[std::get<0>(GetParam())];
    const reference::Filler& row = reference::kFillers[std::get<1>(GetParam())];
    if (table.fillers == nullptr) {
        GTEST_SKIP() << "this processor has no " << table.name;
    }
    const Filler twin = table.fillers[NumberOf(row.name)];
    const auto scenes = ToIntChop(1024.0F * RandomShare());
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        const RandomComparison result = CompareRandomTriangles(&stage, row, twin, scenes);
        ASSERT_EQ(result.failure, "");
        EXPECT_GT(result.visible * 4, result.triangles);
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    const RandomComparison result = CompareRandomTriangles(&stage, row, twin, scenes / 4);
    EXPECT_EQ(result.failure, "");
}

std::string NameOfPair(const testing::TestParamInfo<std::tuple<int, int>>& info) {
    return std::string(kTables[std::get<0>(info.param)].name) + "_" +
           reference::kFillers[std::get<1>(info.param)].name;
}
INSTANTIATE_TEST_SUITE_P(Paths, Twins,
                         testing::Combine(testing::Range(0, kTableCount),
                                          testing::Range(0, reference::kCount)),
                         NameOfPair);

} // namespace
} // namespace ombrel
