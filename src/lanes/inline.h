// Small functions that must become part of their caller (a vector wider than the base processor's
// never crosses a call, and a rule costs nothing), and loops that must be unrolled.
#pragma once

#include <utility>

#define OMBREL_INLINE [[gnu::always_inline]] inline

namespace ombrel {
namespace {

template <int k> struct Constant {
    constexpr operator int() const { return k; }
};

// Calls action(k) for k = 0..count - 1; k is a constant.
template <int count, class Action> OMBREL_INLINE void Unroll(Action action) {
    [&]<int... k>(std::integer_sequence<int, k...>) {
        (action(Constant<k>{}), ...);
    }
    (std::make_integer_sequence<int, count>{});
}

} // namespace
} // namespace ombrel
