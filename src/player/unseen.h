// The way to a far frame without drawing all before it. The state that is no picture is wound
// without a back surface, where the production draws nothing; then two shows are drawn side by
// side, from a black picture and from a white one. Once their pictures are the same, what was
// before no longer matters: neither blending nor blur ever makes a channel darker where what is
// below is brighter, so the true picture lies between the two. Caller: show.cpp.
#pragma once

#include <cstdint>

#include "player/snapshot.h"

namespace ombrel {

// How many frames before the wanted one the two shows begin; the next is tried when one fails. A
// frame without blur hides all before it: behind the last of those nothing earlier is needed.
inline constexpr std::int32_t kReaches[] = {3, 192, 704, 1600};
inline constexpr std::int32_t kReachCount = sizeof kReaches / sizeof kReaches[0];
inline constexpr std::int32_t kSharpEvery = 16; // frames from one start without blur to the next

struct UnseenStart {
    std::int32_t played; // frames
    Snapshot snapshot;   // empty: there is none
};
struct UnseenSeek {
    std::int32_t wanted;                 // frames played when it ends; 0: none
    UnseenStart starts[kReachCount + 1]; // nearest first, once all are passed
    std::int32_t tried;                  // the start that is; -1: none yet
    Snapshot dark, bright;               // the two shows; empty: not begun
    bool settled;                        // they have met: what is left is played on
};

// Keeps the state after so many frames, when the two shows may start there.
void KeepStart(UnseenSeek* seek, std::int32_t played);
void SortStarts(UnseenSeek* seek); // once all are passed; the nearest is tried first

// One frame of the production that draws nothing: all state moves on but for the picture.
void PlayUnseen(int (*renderFrame)());

// Draws both shows on by so many frames. True when their pictures are the same then: it is the
// state of the process. Without memory there is no answer but false, and *failed is set.
struct BothShows {
    UnseenSeek* seek;
    int (*renderFrame)();
};
bool PlayBoth(const BothShows& both, std::int32_t frames, bool* failed);

} // namespace ombrel
