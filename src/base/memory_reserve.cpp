// The pieces of the reserve.
#include "base/memory_reserve.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace ombrel {

namespace {

constinit void* pieces[kReservePieces]{};

// Called by operator new, which then tries again.
void GiveOnePiece() {
    for (void*& piece : pieces) {
        if (piece != nullptr) {
            std::free(piece);
            piece = nullptr;
            return;
        }
    }
    std::fputs("out of memory\n", stderr);
    std::abort();
}

} // namespace

void KeepMemoryReserve() {
    for (void*& piece : pieces) {
        if (piece == nullptr) {
            piece = std::malloc(kReservePieceSize);
        }
    }
    std::set_new_handler(GiveOnePiece);
}

void ResetMemoryReserve() {
    std::set_new_handler(nullptr);
    for (void*& piece : pieces) {
        std::free(piece);
        piece = nullptr;
    }
}

std::int32_t ReservePieces() {
    std::int32_t count = 0;
    for (const void* const piece : pieces) {
        count += piece != nullptr ? 1 : 0;
    }
    return count;
}

} // namespace ombrel
