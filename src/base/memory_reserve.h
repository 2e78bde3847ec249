// Memory kept back for the short texts of file names and clip lists, whose allocations cannot
// report a failure. When one finds no memory it is handed a piece of the reserve; when that is used
// up the program says so and dies of SIGABRT, so that the back end can put the desktop back. Large
// memory is not served from here: who asks for it looks at the answer. Callers: start-up, the
// opening of data files.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ombrel {

inline constexpr std::int32_t kReservePieces = 256;
inline constexpr std::size_t kReservePieceSize = 4096; // bytes

// Fills the reserve up as far as there is memory, and lets operator new draw on it.
void KeepMemoryReserve();
void ResetMemoryReserve(); // gives it back; operator new fails as it would without it
std::int32_t ReservePieces();

} // namespace ombrel
