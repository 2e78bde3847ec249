// The floating-point mode of the processor: which way single-precision results are rounded.
// Start-up switches from nearest to truncation before anything is loaded; whatever must not depend
// on it, tools and tests switch with ScopedFloatMode. Covers SSE (MXCSR) and ARM64 (FPCR),
// whichever the build uses for floats.
#pragma once

#include <cstdint>

namespace ombrel {

enum class FloatMode {
    Nearest, // to nearest, ties to even; denormals kept (the mode a process starts in)
    Chop,    // toward zero for every operation; denormals flushed to zero, in and out
};

void SetFloatMode(FloatMode mode);
FloatMode CurrentFloatMode();

// WebAssembly has one mode, to nearest. There the numbers of cut_single.h keep to what this says.
// Written by SetFloatMode and ScopedFloatMode; of no meaning elsewhere.
extern bool numbersAreCut;

// Sets a mode for a block and puts the old one back.
class ScopedFloatMode {
public:
    explicit ScopedFloatMode(FloatMode mode);
    ~ScopedFloatMode();
    ScopedFloatMode(const ScopedFloatMode&) = delete;
    ScopedFloatMode& operator=(const ScopedFloatMode&) = delete;

private:
    std::uint64_t saved_;
};

} // namespace ombrel
