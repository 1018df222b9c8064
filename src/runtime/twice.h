// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/lanes.h"
#include "runtime/numbers.h"

#include <type_traits>

namespace lxpm {

// An iteration, an elimination, and a substitution wait for roots, quotients and sums most of the time. Two that do not
// depend on one another fill the time.
template <class L>
struct Twice {
    L low;
    L high;

    static Twice splat(typename NumberOf<L>::Element value) { return {L::splat(value), L::splat(value)}; }

    friend Twice operator+(Twice a, Twice b) { return {a.low + b.low, a.high + b.high}; }
    friend Twice operator-(Twice a, Twice b) { return {a.low - b.low, a.high - b.high}; }
    friend Twice operator*(Twice a, Twice b) { return {a.low * b.low, a.high * b.high}; }
    friend Twice operator/(Twice a, Twice b) { return {a.low / b.low, a.high / b.high}; }
};

template <class M>
struct TwiceMask {
    M low;
    M high;
};

template <class L>
struct NumberOf<Twice<L>> {
    using Element = typename NumberOf<L>::Element;
    using Mask = TwiceMask<typename NumberOf<L>::Mask>;
    static constexpr int lanes = 2 * NumberOf<L>::lanes;
};

// One, two or four groups.
template <class L, int groups>
struct SideBySideOf {
    static_assert(groups % 2 == 0);
    using Number = Twice<typename SideBySideOf<L, groups / 2>::Number>;
};
template <class L>
struct SideBySideOf<L, 1> {
    using Number = L;
};
template <class L, int groups>
using SideBySide = typename SideBySideOf<L, groups>::Number;

template <class L>
inline MaskOf<Twice<L>> isLess(Twice<L> a, Twice<L> b) {
    return {isLess(a.low, b.low), isLess(a.high, b.high)};
}
template <class L>
inline MaskOf<Twice<L>> isLessEqual(Twice<L> a, Twice<L> b) {
    return {isLessEqual(a.low, b.low), isLessEqual(a.high, b.high)};
}
template <class L>
inline MaskOf<Twice<L>> isEqual(Twice<L> a, Twice<L> b) {
    return {isEqual(a.low, b.low), isEqual(a.high, b.high)};
}
template <class L>
inline Twice<L> magnitude(Twice<L> x) {
    return {magnitude(x.low), magnitude(x.high)};
}
template <class L>
inline Twice<L> negated(Twice<L> x) {
    return {negated(x.low), negated(x.high)};
}
template <class L>
inline Twice<L> root(Twice<L> x) {
    return {root(x.low), root(x.high)};
}
template <class L>
inline Twice<L> larger(Twice<L> x, Twice<L> y) {
    return {larger(x.low, y.low), larger(x.high, y.high)};
}
template <class M, class L>
inline Twice<L> choose(TwiceMask<M> mask, Twice<L> a, Twice<L> b) {
    return {choose(mask.low, a.low, b.low), choose(mask.high, a.high, b.high)};
}
template <class M, class L>
inline Twice<L> only(TwiceMask<M> mask, Twice<L> x) {
    return {only(mask.low, x.low), only(mask.high, x.high)};
}
template <class M>
inline TwiceMask<M> both(TwiceMask<M> a, TwiceMask<M> b) {
    return {both(a.low, b.low), both(a.high, b.high)};
}
template <class M>
inline TwiceMask<M> either(TwiceMask<M> a, TwiceMask<M> b) {
    return {either(a.low, b.low), either(a.high, b.high)};
}
template <class M>
inline TwiceMask<M> without(TwiceMask<M> mask, TwiceMask<M> others) {
    return {without(mask.low, others.low), without(mask.high, others.high)};
}
template <class M>
inline bool any(TwiceMask<M> mask) {
    return any(either(mask.low, mask.high));
}
template <class M>
inline bool all(TwiceMask<M> mask) {
    return all(both(mask.low, mask.high));
}

// How many groups go side by side in a V.
template <class V>
inline constexpr int groupsIn = NumberOf<V>::lanes / groupSize<ElementOf<V>>;

// One of them.
template <int group, class V>
[[gnu::always_inline]] inline auto &groupOf(V &x) {
    if constexpr (constexpr int ofHalf = groupsIn<std::remove_const_t<V>> / 2; ofHalf == 0) {
        return x;
    } else if constexpr (group < ofHalf) {
        return groupOf<group>(x.low);
    } else {
        return groupOf<group - ofHalf>(x.high);
    }
}

} // namespace lxpm
