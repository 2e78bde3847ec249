// Which of the family of code paths the processor can run: plain code, or twins of it in vector
// instructions. Chosen once at start-up; every path gives the same bits.
#pragma once

#include <cstdint>

namespace ombrel {

// In the order of what they ask for; each processor that runs one runs those before it.
enum class VectorPath : std::uint8_t { Scalar, Sse, Avx2, Avx512 };
inline constexpr std::int32_t kVectorPathCount = 4;

// "scalar", "sse", "avx2", "avx512": what RASTER_USE names them.
const char* NameOf(VectorPath path);

// Whether the processor has the instructions (SSE4.1; AVX2; AVX-512 F, BW, DQ and VL) and the
// operating system saves the registers that they need.
bool ProcessorRuns(VectorPath path);

// The path for a wish: the named one, or the nearest one below it that the processor runs. Null, an
// empty or an unknown word wish for nothing: then the best one up to AVX2, since AVX-512 is taken
// only when asked for. understood, unless null: whether the wish could be met as it stands.
VectorPath PathFor(const char* wish, bool* understood);

} // namespace ombrel
