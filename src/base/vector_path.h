// Which code paths the processor can run: plain code, or the same code on vectors. Chosen once at
// start-up; every path gives the same bits.
#pragma once

#include <cstdint>

namespace ombrel {

enum class VectorPath : std::uint8_t { Scalar, Sse, Avx2, Avx512, Neon, Wasm };
inline constexpr std::int32_t kVectorPathCount = 6;

// The paths of the architecture that this is built for, in the order of what they ask of the
// processor: one that runs a path runs those before it.
#if defined(__x86_64__) || defined(__i386__)
inline constexpr VectorPath kPathsHere[] = {VectorPath::Scalar, VectorPath::Sse, VectorPath::Avx2,
                                            VectorPath::Avx512};
#elif defined(__aarch64__)
inline constexpr VectorPath kPathsHere[] = {VectorPath::Scalar, VectorPath::Neon};
#elif defined(__wasm__)
inline constexpr VectorPath kPathsHere[] = {VectorPath::Scalar, VectorPath::Wasm};
#else
inline constexpr VectorPath kPathsHere[] = {VectorPath::Scalar};
#endif

// "scalar", "sse", "avx2", "avx512", "neon", "wasm": what RASTER_USE names them.
const char* NameOf(VectorPath path);

// Whether the processor has the instructions (SSE4.1; AVX2; AVX-512 F, BW, DQ and VL; every 64-bit
// ARM has NEON; a browser that loads the module has its vectors) and the operating system saves the
// registers that they need.
bool ProcessorRuns(VectorPath path);

// The requested path, or the next one below it that the processor runs. For null, an empty or an
// unknown name, that of another architecture's path among them, it is the best one that is taken by
// default: AVX-512 is taken only on request. understood, unless null, becomes whether the request
// was met exactly; no request always is.
VectorPath PathFor(const char* request, bool* understood);

} // namespace ombrel
