// The font that needs no file.
#include "base/small_font.h"

#include <gtest/gtest.h>

#include <string>

#include "app/command_line.h"

namespace ombrel {
namespace {

std::int32_t PixelsOf(char letter) {
    std::int32_t count = 0;
    for (std::int32_t y = -1; y <= kSmallLetterHeight; ++y) {
        for (std::int32_t x = -1; x <= kSmallLetterWidth; ++x) {
            count += SmallLetterPixel(letter, x, y) ? 1 : 0;
        }
    }
    return count;
}

TEST(SmallFont, HasAPictureOfEveryLetterThatTheBoxesShow) {
    const std::string shown = std::string(kHelpText) + "Full screen? Yes No OK "
                                                       "Couldn't initialize sound device..."
                                                       "An incorrect version of BASS.DLL was loaded"
                                                       "Ombrel - a fast prod from Quellant";
    for (const char letter : shown) {
        const bool blank = letter == ' ' || letter == '\n' || letter == '\t';
        EXPECT_EQ(PixelsOf(letter) == 0, blank) << "letter '" << letter << "'";
    }
}

TEST(SmallFont, DrawsALetterAsItLooks) {
    EXPECT_EQ(PixelsOf('-'), 5);
    EXPECT_TRUE(SmallLetterPixel('-', 0, 3));
    EXPECT_TRUE(SmallLetterPixel('-', 4, 3));
    EXPECT_FALSE(SmallLetterPixel('-', 5, 3)); // the gap
    EXPECT_FALSE(SmallLetterPixel('-', 0, 2));
    EXPECT_EQ(PixelsOf('\x7F'), 0);
}

} // namespace
} // namespace ombrel
