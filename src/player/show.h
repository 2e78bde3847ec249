// The production as a thing to hold: one frame at a time, any frame at will. It plays the very
// production, through the frame driver that it is given; a frame that was sought has the picture of
// the same frame played. One show at a time. Callers: the player window, the page, the tests.
#pragma once

#include <cstddef>
#include <cstdint>

#include "player/snapshot.h"

namespace ombrel {

// HashPicture of every frame of the production as it was published, in order. They make far seeks
// shorter; where they are not those of the loaded data, far seeks do without.
struct PublishedPictures {
    const std::uint64_t* hashes; // as long as the show is open
    std::int32_t count;
};
struct ShowSetup {
    int (*renderFrame)(); // the frame driver
    std::int32_t width, height;
    std::int32_t distance; // frames from one snapshot to the next; 0: kSnapshotDistance
    std::size_t memory;    // bytes of all snapshots at most; 0: kSnapshotMemory
    PublishedPictures published = {};
};
inline constexpr std::int32_t kSnapshotDistance = 36; // the shipped show fits the memory
inline constexpr std::size_t kSnapshotMemory = std::size_t{300} << 20;

// Starts the production in memory, silent and without its frame cap, before its first frame. The
// code paths are chosen before, the data folder too. False when the display could not be opened.
bool OpenShow(const ShowSetup& setup);
void CloseShow(); // frees what was loaded; allowed when none is open

// Draws the next frame. False at the end of the production: then nothing was drawn.
bool StepShow();
std::int32_t ShownFrame(); // the last one drawn; -1 before the first
bool ShowEnded();
std::uint64_t ShownHash(); // HashPicture of what is on the back surface; 0 where there is none

// Goes to a frame, backwards or forwards, and returns the number of the one that is shown then: the
// frame itself, or the last of the production. Negative numbers count as 0. Frames between are
// played unseen, and where nothing near was played before, not even drawn. keepOn, unless null, is
// asked between them and ends the search early: the next seek for the same frame goes on from
// there. Until it has come to its end the show may have no picture (ShowIsSeen).
using KeepOn = bool (*)(std::int32_t frame, void* user);
std::int32_t SeekShow(std::int32_t frame, KeepOn keepOn, void* user);
bool ShowIsSeen(); // false after a seek that ended early, where nothing is drawn

// Bytes of the snapshots held.
std::size_t SnapshotBytes();

// Draws the shown frame once more from the state before it: for looks that need other pixels.
// before is called in that state, after with the picture drawn and unlocked; then everything is as
// it was, the shown picture too. False before the first frame, and without memory.
struct Redraw {
    void (*before)(void* user);
    void (*after)(void* user);
    void* user;
};
bool RedrawShown(const Redraw& redraw);

} // namespace ombrel
