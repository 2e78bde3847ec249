// The control register of the unit that computes single precision, by architecture.
// x86: MXCSR (bits 13..14 rounding, 15 flush results, 6 denormal inputs are zero).
// ARM64: FPCR (bits 22..23 rounding, 24 flush).
// WebAssembly: none; a variable in its place, which the numbers of cut_single.h read.
#include "base/float_mode.h"

namespace ombrel {

constinit bool numbersAreCut = false;

namespace {

#if defined(__x86_64__) || defined(__i386__)
constexpr std::uint64_t kModeBits = 0x6000 | 0x8000 | 0x0040;
constexpr std::uint64_t kChopBits = 0x6000 | 0x8000 | 0x0040;
constexpr std::uint64_t kRoundBits = 0x6000;
constexpr std::uint64_t kRoundChop = 0x6000;

std::uint64_t ReadControl() {
    return __builtin_ia32_stmxcsr();
}
void WriteControl(std::uint64_t value) {
    __builtin_ia32_ldmxcsr(static_cast<std::uint32_t>(value));
}
#elif defined(__aarch64__)
constexpr std::uint64_t kModeBits = (3ULL << 22) | (1ULL << 24);
constexpr std::uint64_t kChopBits = (3ULL << 22) | (1ULL << 24);
constexpr std::uint64_t kRoundBits = 3ULL << 22;
constexpr std::uint64_t kRoundChop = 3ULL << 22;

std::uint64_t ReadControl() {
    std::uint64_t value = 0;
    __asm__ volatile("mrs %0, fpcr" : "=r"(value));
    return value;
}
void WriteControl(std::uint64_t value) {
    __asm__ volatile("msr fpcr, %0" : : "r"(value));
}
#elif defined(__wasm__)
constexpr std::uint64_t kModeBits = 1;
constexpr std::uint64_t kChopBits = 1;
constexpr std::uint64_t kRoundBits = 1;
constexpr std::uint64_t kRoundChop = 1;

std::uint64_t ReadControl() {
    return numbersAreCut ? 1 : 0;
}
void WriteControl(std::uint64_t value) {
    numbersAreCut = value != 0;
}
#else
#error "Say here how this processor is put into round-toward-zero mode."
#endif

} // namespace

void SetFloatMode(FloatMode mode) {
    const std::uint64_t bits = mode == FloatMode::Chop ? kChopBits : 0;
    WriteControl((ReadControl() & ~kModeBits) | bits);
}

FloatMode CurrentFloatMode() {
    return (ReadControl() & kRoundBits) == kRoundChop ? FloatMode::Chop : FloatMode::Nearest;
}

ScopedFloatMode::ScopedFloatMode(FloatMode mode) : saved_(ReadControl()) {
    SetFloatMode(mode);
}

ScopedFloatMode::~ScopedFloatMode() {
    WriteControl(saved_);
}

} // namespace ombrel
