// Which code paths the processor can run: plain code, or the same code on vectors. Chosen once at
// start-up; every path gives the same bits.
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

// The requested path, or the next one below it that the processor runs. For null, an empty or an
// unknown name it is the best one up to AVX2; AVX-512 is taken only on request. understood, unless
// null, becomes whether the request was met exactly; no request always is.
VectorPath PathFor(const char* request, bool* understood);

} // namespace ombrel
