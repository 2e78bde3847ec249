// Four singles that go through an operation together, such as a row of a matrix: what every
// processor here has without asking. Each lane has the bits of Single.
#pragma once

#include <cstring>

#include "base/float_mode.h"
#include "base/single.h"
#if defined(__wasm__)
#include "lanes/cut_floats_wasm.h"
#endif

namespace ombrel {
namespace {

#if defined(__wasm__)
using Row = CutFloats;
#else
using Row [[gnu::vector_size(16)]] = Single;
#endif

// Whether rows round as Single does at present: those of WebAssembly are always cut.
inline bool RowsFollowMode() {
    return !kSinglesAreSlow || numbersAreCut;
}

inline Row LoadRow(const Single* from) {
    Row row;
    std::memcpy(&row, from, sizeof row);
    return row;
}
inline void StoreRow(const Row& row, Single* to) {
    std::memcpy(static_cast<void*>(to), &row, sizeof row);
}

} // namespace
} // namespace ombrel
