// The choice of code paths at start-up, by the environment.
#include <cstdlib>

#include <gtest/gtest.h>

#include "app/vector_choice.h"
#include "demo/blur.h"
#include "demo/reset.h"
#include "raster/paths.h"
#include "scene/front_end.h"

namespace ombrel {
namespace {

class VectorChoice : public testing::Test {
protected:
    void SetUp() override { ResetWorld(); }
    void TearDown() override {
        unsetenv(kPathVariable);
        ResetWorld();
    }
};

TEST_F(VectorChoice, PutsTheNamedPathInPlaceEverywhere) {
    for (const VectorPath path : kPathsHere) {
        if (!ProcessorRuns(path)) {
            continue;
        }
        setenv(kPathVariable, NameOf(path), 1);
        bool understood = false;
        EXPECT_EQ(ChooseVectorPath(&understood), path);
        EXPECT_TRUE(understood);
        for (int i = 0; i < kFillerCount; ++i) {
            EXPECT_EQ(activeFillers[i], RasterPathOf(path).fillers[i]) << NameOf(path) << " " << i;
        }
        EXPECT_EQ(activeFrontEnd, FrontEndOf(path)) << NameOf(path);
        EXPECT_EQ(activeBlur, RasterPathOf(path).blurRow) << NameOf(path);
    }
}

TEST_F(VectorChoice, IsSilentAboutAWordItDoesNotKnow) {
    setenv(kPathVariable, "quick", 1);
    bool understood = true;
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    const VectorPath path = ChooseVectorPath(&understood);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_FALSE(understood);
    EXPECT_EQ(path, PathFor(nullptr, nullptr));
}

TEST_F(VectorChoice, IsTakenBackByTheReset) {
    ChooseVectorPath(nullptr);
    ResetWorld();
    for (int i = 0; i < kFillerCount; ++i) {
        EXPECT_EQ(activeFillers[i], kPlainPath.fillers[i]) << i;
    }
    EXPECT_EQ(activeFrontEnd, nullptr);
    EXPECT_EQ(activeBlur, nullptr);
}

} // namespace
} // namespace ombrel
