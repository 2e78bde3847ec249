// What all vectors of singles have in common: the operations of base/single.h that the vector
// extension of the language can say, added to those that an instruction set spells in its own way.
#pragma once

#include <cstdint>
#include <cstring>

namespace ombrel {
namespace {

template <class Set> struct VectorFloats : Set {
    using Floats = typename Set::Floats;
    using Ints = typename Set::Ints;
    using Mask = Ints; // -1 or 0 a lane

    static Floats Abs(Floats v) { return (Floats)((Ints)v & 0x7FFFFFFF); }
    // By halves, of which the upper one is exact: so it is rounded once.
    static Floats ToFloatUnsigned(Ints v) {
        return Set::ToFloat((v >> 16) & 0xFFFF) * 65536.0F + Set::ToFloat(v & 0xFFFF);
    }
    static Ints Sum(Ints a, Ints b) { return a + b; }
    static Ints Select(Mask mask, Ints a, Ints b) { return mask ? a : b; }
    static Ints Bits(Mask mask, std::uint32_t bits) {
        return mask & static_cast<std::int32_t>(bits);
    }

    // Lane i is element i.
    template <class Vector, class Element> static Vector Load(const Element* from) {
        Vector v;
        std::memcpy(&v, from, sizeof v);
        return v;
    }
    template <class Vector, class Element> static void Store(const Vector& from, Element* to) {
        std::memcpy(to, &from, sizeof from);
    }
};

} // namespace
} // namespace ombrel
