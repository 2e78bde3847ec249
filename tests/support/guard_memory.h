// Memory with an unreadable, unwritable page right before and right after it, so that a drawing
// function that touches one byte too many stops the test at once. Used by the comparisons of the
// fillers and of anything else that draws into plain memory.
//
// The room between the memory and the far page is filled with a mark; GuardIntact says whether it
// still is.
#pragma once

#include <cstddef>

namespace ombrel {

// Which end of the memory touches its page exactly. The other end has up to one page of marks.
enum class GuardSide { Before, After };

struct GuardMemory {
    unsigned char* bytes; // the memory to use; null when nothing is held
    std::size_t size;
    unsigned char* map; // the whole mapping, both pages included
    std::size_t mapSize;
};

// size bytes, zeroed, for size > 0. Ends the program with a message when the system has none.
// After: the memory is aligned as size is (a multiple of 4 gives room for 32-bit cells).
GuardMemory MakeGuardMemory(std::size_t size, GuardSide side);

// Whether every byte between the memory and the pages still carries the mark.
bool GuardIntact(const GuardMemory& memory);

// Gives the memory back; harmless on one that holds nothing.
void FreeGuardMemory(GuardMemory* memory);

} // namespace ombrel
