// Where a far seek may begin: a show that is black after `start` frames have been played has, from
// frame `settled` on, the pictures of the production, because everything of the past that blur and
// blending kept has faded or was drawn over by then. Until `dense` frames are played it is enough
// to draw every kSparse-th. Measured on the shipped world (docs/testing.md says how); for another
// world the rows cost a far seek time, no more. Caller: unseen.cpp.
#pragma once

#include <cstdint>

namespace ombrel {

inline constexpr std::int32_t kSparse = 4;
struct BlackStart {
    std::int32_t start, dense; // frames played, a multiple of kHiddenAtOnce apart
    std::int32_t settled;      // frame
};
// Frames settle later from row to row.
inline constexpr BlackStart kBlackStarts[] = {
    {2040, 2040, 2040}, {2120, 2120, 2321}, {2280, 2280, 2372}, {2360, 2360, 2406},
    {2520, 2520, 2585}, {2600, 2600, 2799}, {2680, 2680, 2847}, {2800, 2800, 3023},
    {2960, 2960, 3075}, {3120, 3120, 3182}, {3200, 3200, 3280}, {3280, 3280, 3479},
    {3200, 3360, 3619}, {3280, 3520, 3671}, {3640, 3640, 3779}, {3800, 3800, 3862},
    {4000, 4000, 4365}, {4240, 4240, 4585}, {4400, 4400, 4920}, {4760, 4760, 5172},
    {5120, 5120, 5406}, {5200, 5200, 5434}, {5280, 5280, 5712}, {5400, 5400, 5992},
    {5720, 5720, 6001}, {5880, 5880, 6010},
};
inline constexpr BlackStart kFromTheFirst = {0, 0, 0};

// The last row from which a frame has its picture; kFromTheFirst for frames before those of the
// table, which are drawn without blur.
constexpr const BlackStart& BlackStartOf(std::int32_t frame) {
    const BlackStart* last = &kFromTheFirst;
    for (const BlackStart& row : kBlackStarts) {
        last = row.settled <= frame ? &row : last;
    }
    return *last;
}

} // namespace ombrel
