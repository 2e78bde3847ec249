// The instruments of the golden tests themselves.
#include "golden_picture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include <gtest/gtest.h>

namespace ombrel {
namespace {

class GoldenPictures : public testing::Test {
protected:
    void SetUp() override {
        folder = testing::TempDir() + "ombrel-golden-" + std::to_string(getpid());
        std::filesystem::create_directories(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::string folder;
};

// All 65,536 values.
PngPicture AllPixels() {
    PngPicture picture = {256, 256, {}};
    for (int i = 0; i < 65536; ++i) {
        picture.pixels.push_back(static_cast<Pixel16>(i));
    }
    return picture;
}

TEST_F(GoldenPictures, EveryPixelComesBackFromAFile) {
    const PngPicture all = AllPixels();
    ASSERT_TRUE(WritePng(folder + "/all.png", all));
    PngPicture back = {};
    ASSERT_TRUE(ReadPng(folder + "/all.png", &back));
    EXPECT_EQ(back.width, 256);
    EXPECT_EQ(back.height, 256);
    EXPECT_TRUE(back.pixels == all.pixels);
}

TEST_F(GoldenPictures, BlackAndWhiteAreWholeInEightBits) {
    EXPECT_EQ(Widen5(0), 0);
    EXPECT_EQ(Widen5(31), 255);
    EXPECT_EQ(Widen6(63), 255);
    EXPECT_EQ(Widen5(16), 132);
    EXPECT_EQ(Widen6(32), 130);
}

TEST_F(GoldenPictures, WhatIsNoPictureIsNotRead) {
    PngPicture back = {};
    EXPECT_FALSE(ReadPng(folder + "/missing.png", &back));
    std::ofstream(folder + "/text.png") << "no picture";
    EXPECT_FALSE(ReadPng(folder + "/text.png", &back));
    ASSERT_TRUE(WritePng(folder + "/cut.png", AllPixels()));
    std::filesystem::resize_file(folder + "/cut.png", 200);
    EXPECT_FALSE(ReadPng(folder + "/cut.png", &back));
    EXPECT_FALSE(WritePng(folder + "/no/such/folder.png", AllPixels()));
}

TEST_F(GoldenPictures, FramesAreCopiedByTheirPitch) {
    const Pixel16 frame[] = {1, 2, 99, 3, 4, 99};
    const PngPicture picture = PictureOf(frame, 6, 2, 2);
    EXPECT_TRUE(picture.pixels == (std::vector<Pixel16>{1, 2, 3, 4}));
}

TEST_F(GoldenPictures, OneChangedPixelIsFound) {
    const PngPicture expected = AllPixels();
    PngPicture actual = expected;
    EXPECT_EQ(DifferenceOf(actual, expected).count, 0);
    EXPECT_EQ(DifferenceOf(actual, expected).firstX, -1);
    actual.pixels[3 * 256 + 7] ^= 1;
    const PictureDifference difference = DifferenceOf(actual, expected);
    EXPECT_EQ(difference.count, 1);
    EXPECT_EQ(difference.firstX, 7);
    EXPECT_EQ(difference.firstY, 3);
    EXPECT_EQ(difference.picture.pixels[3 * 256 + 7], 0xFFFF);
    EXPECT_NE(difference.picture.pixels[3 * 256 + 8], 0xFFFF);
}

TEST_F(GoldenPictures, PicturesOfOtherSizesDiffer) {
    PngPicture smaller = AllPixels();
    smaller.height = 255;
    smaller.pixels.resize(255 * 256);
    EXPECT_EQ(DifferenceOf(smaller, AllPixels()).count, 65536);
}

TEST_F(GoldenPictures, AFailureWritesWhatWasDrawnAndWhatDiffers) {
    const GoldenPlace place = {folder + "/pictures", folder + "/failures", false};
    EXPECT_FALSE(SameAsGoldenIn(place, "one", AllPixels())) << "there is no such picture yet";
    EXPECT_TRUE(std::filesystem::exists(folder + "/failures/one.actual.png"));
    GoldenPlace updating = place;
    updating.update = true;
    EXPECT_TRUE(SameAsGoldenIn(updating, "one", AllPixels()));
    EXPECT_TRUE(SameAsGoldenIn(place, "one", AllPixels()));
    PngPicture other = AllPixels();
    other.pixels[100] = 0;
    EXPECT_FALSE(SameAsGoldenIn(place, "one", other));
    PngPicture written = {};
    ASSERT_TRUE(ReadPng(folder + "/failures/one.actual.png", &written));
    EXPECT_TRUE(written.pixels == other.pixels);
    EXPECT_TRUE(ReadPng(folder + "/failures/one.difference.png", &written));
}

} // namespace
} // namespace ombrel
