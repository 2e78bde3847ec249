// Every operation on singles over random operands, one hash a block of them: the same program for
// the processor, in its own mode, and for WebAssembly, number by number and in lanes. A line of the
// native program is `OPERATION BLOCK HASH`; operations.mjs compares.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <random>

#include "base/float_mode.h"
#include "base/hash.h"
#include "base/single.h"
#if defined(__wasm__)
#include "lanes/cut_floats_wasm.h"
#endif

namespace ombrel {
namespace {

constexpr std::int32_t kOperands = 4096; // a block; even, and whole vectors

struct Operands {
    float a[kOperands], b[kOperands];
    std::int32_t ints[kOperands];
};

// Any bits; numbers of like size; and whole and short ones, whose results are exact.
Operands OperandsOf(std::int32_t block) {
    std::mt19937 random(static_cast<std::uint32_t>(block) + 1);
    Operands operands;
    for (std::int32_t i = 0; i < kOperands; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        const auto other = static_cast<std::uint32_t>(random());
        const auto shift = static_cast<std::uint32_t>(random());
        operands.ints[i] = static_cast<std::int32_t>(random()) >> (shift & 31);
        operands.a[i] = std::bit_cast<float>(bits);
        switch (block % 4) {
        case 0:
            operands.b[i] = std::bit_cast<float>(other);
            break;
        case 1:
            operands.b[i] = std::bit_cast<float>(bits + (shift % 0x20000000U) - 0x10000000U);
            break;
        case 2: // from 2^-32 to 2^32
            operands.a[i] = std::bit_cast<float>((bits & 0x8FFFFFFFU) % 0x90000000U + 0x30000000U);
            operands.b[i] = std::bit_cast<float>((other & 0x8FFFFFFFU) % 0x90000000U + 0x30000000U);
            break;
        default:
            operands.a[i] = std::bit_cast<float>(bits & 0xFFFF0000U);
            operands.b[i] = std::bit_cast<float>(other & 0xFFF80000U);
            break;
        }
    }
    return operands;
}

std::uint64_t Add(std::uint64_t hash, float value) {
    const std::uint32_t bits =
        std::isnan(value) ? 0x7FC00000U : std::bit_cast<std::uint32_t>(value);
    return HashBytes(hash, &bits, sizeof bits);
}

// N: a number, or lanes. I: the integers that belong to it.
template <class L>
auto Result(std::int32_t operation, typename L::N a, typename L::N b, typename L::I ints) {
    switch (operation) {
    case 0:
        return a + b;
    case 1:
        return a - b;
    case 2:
        return a * b;
    case 3:
        return a / b;
    case 4:
        return L::Root(a);
    case 5:
        return L::ToFloat(ints);
    case 6:
        return L::ToFloatUnsigned(ints);
    default:
        return L::ToFloat(L::ToInt(a));
    }
}

struct Plain {
    using N = Single;
    using I = std::int32_t;
    static N Root(N a) { return SquareRoot(AbsoluteValue(a)); }
    static N ToFloat(I a) { return PlainFloats::ToFloat(a); }
    static N ToFloatUnsigned(I a) { return PlainFloats::ToFloatUnsigned(a); }
    static I ToInt(N a) { return PlainFloats::ToIntChop(a); }
};

// In the mode to cut.
[[gnu::noinline]] std::uint64_t HashOfPlain(std::int32_t operation, const Operands& operands) {
    std::uint64_t hash = kHashStart;
    for (std::int32_t i = 0; i < kOperands; ++i) {
        hash =
            Add(hash, static_cast<float>(Result<Plain>(operation, Single{operands.a[i]},
                                                       Single{operands.b[i]}, operands.ints[i])));
    }
    return hash;
}

#if defined(__wasm__)
struct Lanes {
    using N = CutFloats;
    using I = CutInts;
    static N Root(N a) { return a; } // there is none
    static N ToFloat(I a) { return FloatsOf(a); }
    static N ToFloatUnsigned(I a) { return FloatsOfUnsigned(a); }
    static I ToInt(N a) { return ChopLanes(a); }
};

CutFloats Load(const float* from) {
    const Single flushed[4] = {from[0], from[1], from[2], from[3]};
    return CutFloats::Of(wasm_v128_load(flushed));
}
std::uint64_t HashOfLanes(std::int32_t operation, const Operands& operands) {
    std::uint64_t hash = kHashStart;
    for (std::int32_t i = 0; i < kOperands; i += 4) {
        const CutFloats result =
            Result<Lanes>(operation, Load(operands.a + i), Load(operands.b + i),
                          (CutInts)wasm_v128_load(operands.ints + i));
        float lanes[4];
        wasm_v128_store(lanes, result.bits);
        for (const float lane : lanes) {
            hash = Add(hash, lane);
        }
    }
    return hash;
}
#endif

} // namespace
} // namespace ombrel

#if defined(__wasm__)
extern "C" __attribute__((export_name("hash_of"))) std::uint64_t
HashOf(std::int32_t operation, std::int32_t block, std::int32_t lanes) {
    const ombrel::ScopedFloatMode chop(ombrel::FloatMode::Chop);
    const ombrel::Operands operands = ombrel::OperandsOf(block);
    return lanes != 0 ? ombrel::HashOfLanes(operation, operands)
                      : ombrel::HashOfPlain(operation, operands);
}
#else
int main() {
    constexpr const char* kOperations[] = {"sum",  "difference", "product",  "quotient",
                                           "root", "from int",   "unsigned", "to int"};
    constexpr std::int32_t kBlocks = 256;
    const ombrel::ScopedFloatMode chop(ombrel::FloatMode::Chop);
    for (std::int32_t block = 0; block < kBlocks; ++block) {
        const ombrel::Operands operands = ombrel::OperandsOf(block);
        for (std::size_t i = 0; i < std::size(kOperations); ++i) {
            const auto operation = static_cast<std::int32_t>(i);
            std::printf("%d %d %016llx %s\n", operation, block,
                        static_cast<unsigned long long>(ombrel::HashOfPlain(operation, operands)),
                        kOperations[i]);
        }
    }
    return 0;
}
#endif
