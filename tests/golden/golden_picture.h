// Pictures that somebody has looked at and found right. A test draws one and asks whether it still
// is the same, pixel for pixel.
//
// They stand in tests/golden/pictures/NAME.png. Where one differs, NAME.actual.png and
// NAME.difference.png are written to golden-failures/ in the build folder. OMBREL_UPDATE_GOLDEN=1
// replaces the stored pictures: look at every one before you commit it.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "support/png_file.h"

namespace ombrel {

// EXPECT_TRUE(SameAsGolden("name", picture)).
testing::AssertionResult SameAsGolden(const std::string& name, const PngPicture& actual);

// The same with the folders and the request to update given; SameAsGolden takes them from the build
// and the environment.
struct GoldenPlace {
    std::string pictures;
    std::string failures;
    bool update;
};
testing::AssertionResult SameAsGoldenIn(const GoldenPlace& place, const std::string& name,
                                        const PngPicture& actual);

} // namespace ombrel
