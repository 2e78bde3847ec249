// Everything that the next frame depends on, as one block of bytes: scenes, switches, counters,
// camera, lights, vertices that turn, random numbers, the picture. What start-up loaded and no
// frame changes is left out, so a snapshot fits only the run that took it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace ombrel {

struct Snapshot {
    std::unique_ptr<std::uint8_t[]> bytes; // null: none
    std::size_t size = 0;
};

// Between two frames, back surface unlocked, after StartUp. Empty without memory.
Snapshot TakeSnapshot();
// The state as TakeSnapshot found it. False, and nothing changed, for a snapshot of another size
// than those of this run.
bool RestoreSnapshot(const Snapshot& snapshot);
// The picture is the last so many bytes of every snapshot of this run.
std::size_t PictureBytes();

} // namespace ombrel
