#include "golden_picture.h"

#include <cstdlib>
#include <filesystem>

namespace ombrel {

namespace {
std::string WriteFailure(const GoldenPlace& place, const std::string& name,
                         const PngPicture& picture) {
    std::error_code ignored;
    std::filesystem::create_directories(place.failures, ignored);
    std::string path = place.failures + "/" + name + ".png";
    return WritePng(path, picture) ? path : path + " (could not be written)";
}
} // namespace

testing::AssertionResult SameAsGoldenIn(const GoldenPlace& place, const std::string& name,
                                        const PngPicture& actual) {
    const std::string stored = place.pictures + "/" + name + ".png";
    if (place.update) {
        std::error_code ignored;
        std::filesystem::create_directories(place.pictures, ignored);
        return WritePng(stored, actual)
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << stored << " cannot be written";
    }
    PngPicture expected = {};
    if (!ReadPng(stored, &expected)) {
        return testing::AssertionFailure()
               << "no golden picture " << stored << "; the picture drawn is in "
               << WriteFailure(place, name + ".actual", actual);
    }
    const PictureDifference difference = DifferenceOf(actual, expected);
    if (difference.count == 0) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << difference.count << " pixels differ from " << stored << ", the first at ("
           << difference.firstX << ", " << difference.firstY
           << "): " << WriteFailure(place, name + ".actual", actual) << ", "
           << WriteFailure(place, name + ".difference", difference.picture);
}

testing::AssertionResult SameAsGolden(const std::string& name, const PngPicture& actual) {
    const char* request = std::getenv("OMBREL_UPDATE_GOLDEN");
    const GoldenPlace place = {OMBREL_SOURCE_DIR "/tests/golden/pictures",
                               OMBREL_BINARY_DIR "/golden-failures",
                               request != nullptr && std::string(request) == "1"};
    return SameAsGoldenIn(place, name, actual);
}

} // namespace ombrel
