// The formulas of vectors of three, once: of numbers, or of lanes of numbers (V.x, V.y, V.z are
// then vectors of the processor). Every sum and product is rounded in the order written here.
#pragma once

#include <type_traits>

namespace ombrel {

template <class N> struct Xyz { N x, y, z; };

// Static, because code for a newer processor makes its own of them: the linker must not choose.

template <class A, class B> static auto Difference(const A& from, const B& to) {
    using N = std::remove_cvref_t<decltype(to.x - from.x)>;
    return Xyz<N>{to.x - from.x, to.y - from.y, to.z - from.z};
}

template <class A, class B> static auto Sum(const A& a, const B& b) {
    using N = std::remove_cvref_t<decltype(a.x + b.x)>;
    return Xyz<N>{a.x + b.x, a.y + b.y, a.z + b.z};
}

template <class A, class B> static auto Dot(const A& a, const B& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

template <class A, class B> static auto Cross(const A& a, const B& b) {
    using N = std::remove_cvref_t<decltype(a.x * b.x)>;
    return Xyz<N>{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// A point of four components times a matrix. m: its four rows, or the four numbers of a column.
template <class V, class M> static auto TimesRows(const V& v, const M& m) {
    return v.x * m[0] + v.y * m[1] + v.z * m[2] + v.w * m[3];
}

// max + 11/32 mid + 1/4 min of the sizes, in 1/1024, cut to a whole number. The sum must stay below
// 2,097,152; beyond, it wraps in 32 bits. L says what the lanes are (base/single.h).
template <class L, class V> static auto FastLength(const V& v) {
    const auto a = L::ToIntChop(L::Abs(v.x) * 1024.0F);
    const auto b = L::ToIntChop(L::Abs(v.y) * 1024.0F);
    const auto c = L::ToIntChop(L::Abs(v.z) * 1024.0F);
    // Sort the three sizes, without a branch.
    const auto large = L::Max(L::Max(a, b), c);
    const auto middle = L::Max(L::Min(a, b), L::Min(L::Max(a, b), c));
    const auto small = L::Min(L::Min(a, b), c);
    // Weigh them.
    return L::ToFloat(L::Sum(L::Sum(large, (middle >> 5) * 11), small >> 2) >> 10);
}

} // namespace ombrel
