// The way to a far frame without drawing all before it. The state that is no picture is wound
// without a back surface, where the production draws nothing; then two shows are drawn side by
// side, from a black picture and from a white one. Once their pictures are the same, what was
// before no longer matters: neither blending nor blur ever makes a channel darker where what is
// below is brighter, so the true picture lies between the two. Where the hashes of the pictures are
// known one show is enough: it is there once its picture has the hash. Caller: show.cpp.
#pragma once

#include <cstdint>

#include "player/snapshot.h"

namespace ombrel {

// How many frames before the wanted one the shows begin, rising; the next is tried when one fails,
// 0 is none. A frame without blur hides all before it: after the last of those nothing earlier is
// needed.
inline constexpr std::int32_t kReachCount = 4;
inline constexpr std::int32_t kReachesOfTwo[kReachCount] = {3, 192, 704, 1600};
inline constexpr std::int32_t kNearestReach = 3;
inline constexpr std::int32_t kSharpEvery = 16; // frames from one start without blur to the next

struct UnseenStart {
    std::int32_t played; // frames
    Snapshot snapshot;   // empty: there is none
};
struct UnseenSeek {
    std::int32_t wanted; // frames played when it ends; 0: none
    bool oneShow;        // the hash of each picture is known
    std::int32_t reaches[kReachCount];
    std::int32_t dense; // frames played until which the one show is drawn now and then only
    UnseenStart starts[kReachCount + 1]; // nearest first, once all are passed
    std::int32_t tried;                  // the start that is; -1: none yet
    Snapshot dark, bright;               // the shows; empty: not begun
    bool settled;                        // it is the true picture: what is left is played on
};

// A search for the frame after which so many are played.
UnseenSeek StartOfSeek(std::int32_t wanted, bool oneShow);
std::int32_t FirstStart(const UnseenSeek& seek); // after how many frames; not below 0

// Keeps the state after so many frames, when the shows may start there.
void KeepStart(UnseenSeek* seek, std::int32_t played);
void SortStarts(UnseenSeek* seek); // once all are passed; the nearest is tried first

// One frame of the production that draws nothing: all state moves on but for the picture.
void PlayUnseen(int (*renderFrame)());

// Draws the shows on by so many frames, at most kHiddenAtOnce, from `played` on; the state of the
// process is the one that began black then. True when there are two and their pictures are the
// same. Without memory there is no answer but false, and *failed is set.
struct HiddenShows {
    UnseenSeek* seek;
    int (*renderFrame)();
    std::int32_t played;
};
inline constexpr std::int32_t kHiddenAtOnce = 8;
bool PlayHidden(const HiddenShows& shows, std::int32_t frames, bool* failed);

} // namespace ombrel
