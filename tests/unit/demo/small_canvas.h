// A picture of 40 by 30 pixels, rows wider than that, and the set of pixels that were drawn.
#pragma once

#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "base/pixel16.h"
#include "demo/primitives.h"

namespace ombrel::test {

using Points = std::set<std::pair<int, int>>;

struct SmallCanvas {
    static constexpr std::int32_t kWidth = 40;
    static constexpr std::int32_t kHeight = 30;
    static constexpr std::int32_t kRow = kWidth + 5; // pixels from row to row
    static constexpr std::int32_t kPitch = kRow * 2; // bytes

    // Every pixel that is not 0, the padding of the rows included.
    Points Drawn() const {
        Points points;
        for (int i = 0; i < kRow * kHeight; ++i) {
            if (pixels[static_cast<std::size_t>(i)] != 0) {
                points.insert({i % kRow, i / kRow});
            }
        }
        return points;
    }

    std::vector<Pixel16> pixels = std::vector<Pixel16>(kRow * kHeight, 0);
    Canvas canvas{pixels.data(), kPitch, {0, 0, kWidth, kHeight}};
};

} // namespace ombrel::test
