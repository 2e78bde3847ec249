// Where a far seek may begin: a show that is black after `start` frames have been played has, from
// frame `settled` on, the pictures of the production, because everything of the past that blur and
// blending kept has faded or was drawn over by then. Measured on the shipped world (docs/testing.md
// says how); for another world the rows cost a far seek time, no more. Caller: unseen.cpp.
#pragma once

#include <cstdint>

namespace ombrel {

struct BlackStart {
    std::int32_t start;   // frames played
    std::int32_t settled; // frame
};
// Both rise from row to row.
inline constexpr BlackStart kBlackStarts[] = {
    {2040, 2040}, {2120, 2321}, {2280, 2372}, {2360, 2406}, {2520, 2585}, {2600, 2799},
    {2680, 2847}, {2800, 3023}, {2960, 3075}, {3120, 3182}, {3200, 3280}, {3280, 3479},
    {3640, 3779}, {3800, 3862}, {4000, 4365}, {4240, 4585}, {4400, 4920}, {4760, 5172},
    {5120, 5406}, {5200, 5434}, {5280, 5712}, {5400, 5992}, {5720, 6001}, {5880, 6010},
};

// The last start from which a frame has its picture; 0 for frames before the first row, which are
// drawn without blur.
constexpr std::int32_t BlackStartOf(std::int32_t frame) {
    std::int32_t start = 0;
    for (const BlackStart& row : kBlackStarts) {
        start = row.settled <= frame ? row.start : start;
    }
    return start;
}

} // namespace ombrel
