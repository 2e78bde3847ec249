// Whole-number scaling, centred, with bars.
#include <gtest/gtest.h>

#include "platform/soft/fit_picture.h"

namespace ombrel {
namespace {

struct FitCase {
    std::int32_t outputWidth, outputHeight, width, height;
    Rect expected;
};

// clang-format off
constexpr FitCase kCases[] = {
    // output      picture     shown
    { 640,  480,  640, 480,  {   0,   0,  640,  480}},
    {1280,  960,  640, 480,  {   0,   0, 1280,  960}}, // twice the density
    {1920, 1080,  640, 480,  { 320,  60, 1600, 1020}}, // 2 times, bars all around
    {3840, 2160,  640, 480,  { 640, 120, 3200, 2040}}, // 4 times
    {1920, 1080, 1280, 800,  { 320, 140, 1600,  940}}, // 1 time
    {1920, 1080,  320, 240,  { 320,  60, 1600, 1020}}, // 4 times
    { 641,  481,  640, 480,  {   0,   0,  640,  480}},
    {1024,  600, 1280, 800,  {  32,   0,  992,  600}}, // shrunk to the height
    { 640,  480, 1280, 800,  {   0,  40,  640,  440}}, // shrunk to the width
    {   1,    1,  640, 480,  {   0,   0,    1,    1}},
};
// clang-format on

TEST(FitPictureTest, Table) {
    for (const FitCase& c : kCases) {
        const Rect fit = FitPicture(c.outputWidth, c.outputHeight, c.width, c.height);
        EXPECT_EQ(fit.left, c.expected.left) << c.outputWidth << 'x' << c.outputHeight;
        EXPECT_EQ(fit.top, c.expected.top) << c.outputWidth << 'x' << c.outputHeight;
        EXPECT_EQ(fit.right, c.expected.right) << c.outputWidth << 'x' << c.outputHeight;
        EXPECT_EQ(fit.bottom, c.expected.bottom) << c.outputWidth << 'x' << c.outputHeight;
    }
}

} // namespace
} // namespace ombrel
