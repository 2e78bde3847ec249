// The switches: raw substring search, table order, help.
#include "app/command_line.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace ombrel {
namespace {

void ExpectSize(const char* text, std::int32_t width, std::int32_t height) {
    const CommandLine line = ParseCommandLine(text);
    EXPECT_EQ(line.width, width) << text;
    EXPECT_EQ(line.height, height) << text;
}

TEST(CommandLineTest, EmptyLineGivesTheDefaults) {
    for (const char* text : {"", "   ", static_cast<const char*>(nullptr)}) {
        const CommandLine line = ParseCommandLine(text);
        EXPECT_FALSE(line.help);
        EXPECT_FALSE(line.windowed);
        EXPECT_FALSE(line.noSound);
        EXPECT_EQ(line.width, 640);
        EXPECT_EQ(line.height, 480);
    }
}

TEST(CommandLineTest, EveryResolution) {
    ExpectSize("-resolution=320x240", 320, 240);
    ExpectSize("-resolution=400x300", 400, 300);
    ExpectSize("-resolution=512x384", 512, 384);
    ExpectSize("-resolution=640x480", 640, 480);
    ExpectSize("-resolution=800x600", 800, 600);
    ExpectSize("-resolution=1024x768", 1024, 768);
    ExpectSize("-resolution=1280x800", 1280, 800);
}

TEST(CommandLineTest, R8_LowestResolutionOfTheTableWins) {
    ExpectSize("-w -resolution=800x600 -resolution=320x240", 800, 600);
    ExpectSize("-w -resolution=320x240 -resolution=800x600", 800, 600);
    ExpectSize("-resolution=1280x800-resolution=320x240-resolution=1024x768", 1280, 800);
}

TEST(CommandLineTest, R8_SizesOutsideTheTableChangeNothing) {
    ExpectSize("-resolution=1600x1200", 640, 480);
    ExpectSize("-resolution=", 640, 480);
    ExpectSize("-resolution=800 x600", 640, 480);
    ExpectSize("-RESOLUTION=800x600", 640, 480);
    ExpectSize("resolution=800x600", 640, 480);   // the hyphen belongs to it
    ExpectSize("-resolution=800x6000", 800, 600); // more may follow
    ExpectSize("-resolution=320x240 -resolution=1600x1200", 320, 240);
}

TEST(CommandLineTest, R9_SwitchesCountInsideWords) {
    EXPECT_TRUE(ParseCommandLine("-nsX").noSound);
    EXPECT_TRUE(ParseCommandLine("what-ns").noSound);
    EXPECT_TRUE(ParseCommandLine("--wide").windowed);
    EXPECT_TRUE(ParseCommandLine("a-ware").windowed);
    ExpectSize("xxx-resolution=400x300yyy", 400, 300);
    EXPECT_TRUE(ParseCommandLine("x-?y").help);
}

TEST(CommandLineTest, LettersMustBeExact) {
    EXPECT_FALSE(ParseCommandLine("-W").windowed);
    EXPECT_FALSE(ParseCommandLine("w").windowed);
    EXPECT_FALSE(ParseCommandLine("- w").windowed);
    EXPECT_FALSE(ParseCommandLine("-NS").noSound);
    EXPECT_FALSE(ParseCommandLine("-n -s").noSound);
    EXPECT_FALSE(ParseCommandLine("/?").help);
    EXPECT_FALSE(ParseCommandLine("-resolution=800x600").windowed);
}

TEST(CommandLineTest, AnyOrder) {
    const CommandLine line = ParseCommandLine("-ns -resolution=512x384 -w");
    EXPECT_TRUE(line.noSound);
    EXPECT_TRUE(line.windowed);
    EXPECT_EQ(line.width, 512);
}

TEST(CommandLineTest, HelpLooksAtNothingElse) {
    const CommandLine line = ParseCommandLine("-w -ns -resolution=800x600 -?");
    EXPECT_TRUE(line.help);
    EXPECT_FALSE(line.windowed);
    EXPECT_FALSE(line.noSound);
    EXPECT_EQ(line.width, 640);
}

TEST(CommandLineTest, R6_HelpText) {
    EXPECT_STREQ(kHelpText,
                 "Help. You can use args:\n -w  Run in window\n -ns  No Sound\n -resolution=?x?  "
                 "Resolution (320x240, 400x300, 512x384, 640x480, 800x600, 1024x768, "
                 "1280x800)\n\nexamlpe:\tlarkfen.exe -w -resolution=800x600");
    // It may be used as its own format.
    EXPECT_EQ(std::strchr(kHelpText, '%'), nullptr);
}

TEST(CommandLineTest, LongLinesAreReadToTheirEnd) {
    const std::string line = std::string(100000, 'x') + "-ns-w-resolution=1024x768";
    const CommandLine parsed = ParseCommandLine(line.c_str());
    EXPECT_TRUE(parsed.noSound);
    EXPECT_TRUE(parsed.windowed);
    EXPECT_EQ(parsed.width, 1024);
}

} // namespace
} // namespace ombrel
