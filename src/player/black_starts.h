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
    {3000, 3000, 3113}, {3080, 3080, 3139}, {3160, 3160, 3259}, {3240, 3240, 3377},
    {3280, 3280, 3412}, {3320, 3320, 3664}, {3600, 3600, 3723}, {3640, 3640, 3742},
    {3720, 3720, 3778}, {3760, 3760, 3803}, {3800, 3800, 3869}, {3840, 3840, 3913},
    {4080, 4080, 4378}, {4240, 4240, 4574}, {4400, 4400, 4675}, {4440, 4440, 4789},
    {4520, 4520, 4928}, {4680, 4680, 5097}, {4760, 4760, 5203}, {4800, 4800, 5318},
    {5120, 5120, 5396}, {5200, 5200, 5435}, {5240, 5240, 5465}, {5320, 5320, 5549},
    {5640, 5640, 6000}, {5840, 5840, 6004},
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
