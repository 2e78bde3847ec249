// Facing away, decided in doubles where they are sure of it: for platforms where doubles cost less
// than singles (kSinglesAreSlow of base/single.h). Caller: fused.cpp.
#pragma once

#include "scene/geometry.h"

namespace ombrel {

template <class P> static Xyz<double> InDoubles(const P& p) {
    return {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)};
}

inline double SumOfSizes(const Xyz<double>& v) {
    return __builtin_fabs(v.x) + __builtin_fabs(v.y) + __builtin_fabs(v.z);
}

enum class Side { Front, Back, Unsure };

// The side of a face that is seen, by the same formula in doubles. Not Unsure only where Facing in
// singles has the same sign as in doubles, in either rounding mode.
//
// Facing is a sum of six products, each of a component of both edges and one of the way to the eye.
// The sizes of all six together are at most S = |edge1| |edge2| |way|, where |v| is the sum of the
// sizes of v's components. An operation on singles is off by 2^-23 of its result at most, and what
// becomes of a product goes through eight of them: three differences, two products and three sums.
// Together they are off by less than 9 * 2^-23 S. Besides, results below 2^-126 may become 0; with
// sizes below 2^30 these losses add up to less than 2^-61. The doubles are off by less than
// 2^-48 S. So 16 * 2^-23 S and 2^-60 are more than all of it.
template <class P, class E>
static Side SideSeen(const P& p0, const P& p1, const P& p2, const E& eye) {
    const auto a = InDoubles(p0), b = InDoubles(p1), c = InDoubles(p2), from = InDoubles(eye);
    const double edge1 = SumOfSizes(Difference(a, b)), edge2 = SumOfSizes(Difference(a, c));
    const double way = SumOfSizes(Difference(a, from));
    const double facing = Facing(a, b, c, from);
    const double doubt = edge1 * edge2 * way * 0x1p-19 + 0x1p-60;
    const bool usual = edge1 + edge2 + way < 0x1p30; // not so for NaN
    if (usual && facing > doubt) {
        return Side::Front;
    }
    return usual && facing < -doubt ? Side::Back : Side::Unsure;
}

} // namespace ombrel
