// Vector twins of the blur's inner loop, and the choice among them. Caller: demo/blur.cpp.
#pragma once

#include "base/pixel16.h"
#include "base/vector_path.h"

namespace ombrel {

// Replaces each of count pixels of a row with the mean of its four diagonal neighbours, 2 across,
// in the rows above and below; each 5-6-5 channel cut down. above and below point at the pixels
// beside the first one.
struct BlurRow {
    Pixel16* row;
    const Pixel16* above;
    const Pixel16* below;
    std::int32_t count;
};
using BlurRowTwin = void (*)(const BlurRow& work);

inline constexpr std::int32_t kLeastBlurTwin = 16; // pixels in a row that a twin takes

// Null where there is none: plain code.
BlurRowTwin BlurRowOf(VectorPath path);

// What blur_<instruction set>.cpp define.
void BlurRowSse41(const BlurRow& work);
void BlurRowAvx2(const BlurRow& work);

} // namespace ombrel
