// The gallery, made by the tool itself: every filler, level, light and view in one stored picture.
#include "golden_picture.h"

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace ombrel {
namespace {

const std::string kProgram = OMBREL_BINARY_DIR "/larkfen-gallery";

// Exit code of the tool; what it prints goes to a file in the build folder.
int RunGallery(const std::string& arguments) {
    const std::string printed = OMBREL_BINARY_DIR "/gallery-test.txt";
    const int status =
        std::system(("\"" + kProgram + "\" " + arguments + " > \"" + printed + "\" 2>&1").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Gallery, LooksAsItDid) {
    const std::string path = OMBREL_BINARY_DIR "/gallery-test.png";
    std::remove(path.c_str());
    ASSERT_EQ(RunGallery("\"" + path + "\""), 0);
    PngPicture picture;
    ASSERT_TRUE(ReadPng(path, &picture));
    EXPECT_TRUE(SameAsGolden("gallery", picture));
}

TEST(Gallery, TwoRunsGiveTheSamePicture) {
    const std::string a = OMBREL_BINARY_DIR "/gallery-a.png",
                      b = OMBREL_BINARY_DIR "/gallery-b.png";
    ASSERT_EQ(RunGallery("\"" + a + "\""), 0);
    ASSERT_EQ(RunGallery("\"" + b + "\""), 0);
    PngPicture first, second;
    ASSERT_TRUE(ReadPng(a, &first));
    ASSERT_TRUE(ReadPng(b, &second));
    EXPECT_EQ(first.pixels, second.pixels);
}

TEST(Gallery, ExitCodes) {
    EXPECT_EQ(RunGallery("--help"), 0);
    EXPECT_EQ(RunGallery(""), 2);
    EXPECT_EQ(RunGallery("one.png two.png"), 2);
    EXPECT_EQ(RunGallery("--unknown"), 2);
    EXPECT_EQ(RunGallery("/nowhere/at/all.png"), 1);
}

} // namespace
} // namespace ombrel
