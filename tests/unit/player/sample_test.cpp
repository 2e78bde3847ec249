// The still life of a filler: every one draws it, each number changes it, the show stays as it is.
#include "player/sample.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "base/hash.h"
#include "open_show.h"
#include "player/show.h"

#include "support/back_surface.h"

namespace ombrel {
namespace {

using Samples = OpenShowTest;

std::uint64_t SampleHash(FillerId filler, std::uint32_t level, std::int32_t mip) {
    LookPicture picture;
    EXPECT_TRUE(DrawSample(filler, level, mip, &picture));
    EXPECT_EQ(picture.width, kSampleWidth);
    EXPECT_EQ(picture.height, kSampleHeight);
    return HashPicture(picture.pixels.data(), picture.width * 2, picture.width, picture.height);
}

FillerId IdOf(std::int32_t number) {
    return static_cast<FillerId>(number);
}

// The backdrop alone would be one picture for all.
TEST_F(Samples, OfEveryFillerShowSomething) {
    LookPicture picture;
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        ASSERT_TRUE(DrawSample(IdOf(id), 3, 0, &picture)) << kFillerTable[id].name;
        std::map<Pixel16, int> colors;
        for (const Pixel16 pixel : picture.pixels) {
            ++colors[pixel];
        }
        EXPECT_GT(colors.size(), 4U) << kFillerTable[id].name;
    }
}

TEST_F(Samples, LevelsChangeWhatBlendsAndNothingElse) {
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const bool blends = kFillerTable[id].write == "Blend";
        EXPECT_EQ(SampleHash(IdOf(id), 1, 0) != SampleHash(IdOf(id), 6, 0), blends)
            << kFillerTable[id].name;
    }
}

TEST_F(Samples, MipLevelsChangeWhatHasTexelsAndNothingElse) {
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const bool textured = kFillerTable[id].texel != "NoTexel";
        EXPECT_EQ(SampleHash(IdOf(id), 3, 0) != SampleHash(IdOf(id), 3, 3), textured)
            << kFillerTable[id].name;
    }
}

TEST_F(Samples, RefuseNumbersOutOfRange) {
    LookPicture picture;
    EXPECT_FALSE(DrawSample(IdOf(kFillerCount), 0, 0, &picture));
    EXPECT_FALSE(DrawSample(FillerId::FillFlat, kSampleLevels, 0, &picture));
    EXPECT_FALSE(DrawSample(FillerId::FillFlat, 0, -1, &picture));
    EXPECT_FALSE(DrawSample(FillerId::FillFlat, 0, kSampleMips, &picture));
    EXPECT_TRUE(DrawSample(FillerId::FillTexWAffine, kSampleLevels - 1, kSampleMips - 1, &picture));
}

TEST_F(Samples, LeaveTheShowAsItIs) {
    SeekShow(10, nullptr, nullptr);
    StepShow();
    const std::uint64_t shown = BackSurfaceHash();
    StepShow();
    const std::uint64_t next = BackSurfaceHash();
    SeekShow(11, nullptr, nullptr);
    EXPECT_EQ(BackSurfaceHash(), shown);
    SampleHash(FillerId::FillTexGouraudWBlend, 4, 2);
    EXPECT_EQ(BackSurfaceHash(), shown);
    StepShow();
    EXPECT_EQ(BackSurfaceHash(), next);
}

} // namespace
} // namespace ombrel
