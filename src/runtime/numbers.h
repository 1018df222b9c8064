// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// What an iteration needs beyond arithmetic, over a number: an element, or a register with one object in each lane. An
// algorithm that is written in these words takes the decisions of every lane for itself, and the arithmetic that a lane
// sees is that of the element.
//
// Of a single element all masks are plain truth values: what is guarded by none(), any() and all() is then known to the
// compiler, and nothing remains of the masks.

#include "runtime/lanes.h"

#include <cmath>
#include <cstddef>
#include <immintrin.h>
#include <type_traits>

namespace lxpm {

// --- One element ---

template <class V>
struct NumberOf {
    using Element = V;
    using Mask = bool;
    static constexpr int lanes = 1;
};

template <class V>
using ElementOf = typename NumberOf<V>::Element;
template <class V>
using MaskOf = typename NumberOf<V>::Mask;
template <class V>
inline constexpr bool isSingle = NumberOf<V>::lanes == 1;

// The same number, of which the compiler knows nothing. Clang moves signs through products and quotients, which changes
// their bits unless rounding is to the nearest, and divides before it has chosen a divisor, which raises exceptions.
template <class V>
inline V opaque(V x) {
    if constexpr (isSingle<V>) {
        asm("" : "+x"(x));
    } else {
        asm("" : "+x"(x.vector));
    }
    return x;
}

// One element of a register. Clang would compute with the whole register where one element is used, and raise
// exceptions in lanes that are not; GCC does not, and would take an opaque element out again for each use.
template <int lane, class T, int N>
[[gnu::always_inline]] inline T oneLane(Lanes<T, N> x) {
#ifdef __clang__
    return opaque(x.vector[lane]);
#else
    return x.vector[lane];
#endif
}

#define LXPM_ON_ELEMENTS(T)                                                                                            \
    inline bool isLess(T a, T b) {                                                                                     \
        return a < b;                                                                                                  \
    }                                                                                                                  \
    inline bool isLessEqual(T a, T b) {                                                                                \
        return a <= b;                                                                                                 \
    }                                                                                                                  \
    inline bool isEqual(T a, T b) {                                                                                    \
        return a == b;                                                                                                 \
    }                                                                                                                  \
    inline T magnitude(T x) {                                                                                          \
        return std::fabs(x);                                                                                           \
    }                                                                                                                  \
    inline T negated(T x) {                                                                                            \
        return opaque(-opaque(x));                                                                                     \
    }                                                                                                                  \
    inline T choose(bool mask, T a, T b) {                                                                             \
        return mask ? a : b;                                                                                           \
    }                                                                                                                  \
    inline T only(bool mask, T x) {                                                                                    \
        return mask ? x : T(0);                                                                                        \
    }
LXPM_ON_ELEMENTS(float)
LXPM_ON_ELEMENTS(double)
#undef LXPM_ON_ELEMENTS

inline bool any(bool mask) {
    return mask;
}
inline bool all(bool mask) {
    return mask;
}
inline bool both(bool a, bool b) {
    return a && b;
}
inline bool either(bool a, bool b) {
    return a || b;
}
inline bool without(bool mask, bool others) {
    return mask && !others;
}

// --- One in each lane ---

// All bits of a lane are set or none.
template <class T, int N>
struct LaneMask {
    typename Lanes<T, N>::Vector bits;
};

template <class T, int N>
struct NumberOf<Lanes<T, N>> {
    using Element = T;
    using Mask = LaneMask<T, N>;
    static constexpr int lanes = N;
};

using Lanes32 = Group<float>;
using Lanes64 = Group<double>;
using Mask32 = MaskOf<Lanes32>;
using Mask64 = MaskOf<Lanes64>;

// Comparisons are false with NaN.
#define LXPM_ON_LANES(Number, Mask, ps)                                                                                \
    inline Mask isLess(Number a, Number b) {                                                                           \
        return {_mm256_cmp_##ps(a.vector, b.vector, _CMP_LT_OQ)};                                                      \
    }                                                                                                                  \
    inline Mask isLessEqual(Number a, Number b) {                                                                      \
        return {_mm256_cmp_##ps(a.vector, b.vector, _CMP_LE_OQ)};                                                      \
    }                                                                                                                  \
    inline Mask isEqual(Number a, Number b) {                                                                          \
        return {_mm256_cmp_##ps(a.vector, b.vector, _CMP_EQ_OQ)};                                                      \
    }                                                                                                                  \
    inline Number magnitude(Number x) {                                                                                \
        return {_mm256_andnot_##ps(Number::splat(-0.0).vector, x.vector)};                                             \
    }                                                                                                                  \
    inline Number negated(Number x) {                                                                                  \
        return opaque(Number{_mm256_xor_##ps(Number::splat(-0.0).vector, opaque(x).vector)});                          \
    }                                                                                                                  \
    inline Number only(Mask mask, Number x) {                                                                          \
        return {_mm256_and_##ps(mask.bits, x.vector)};                                                                 \
    }                                                                                                                  \
    /* x where it is larger, y elsewhere: where one of them is NaN, and of zeros, too. */                              \
    inline Number larger(Number x, Number y) {                                                                         \
        return {_mm256_max_##ps(x.vector, y.vector)};                                                                  \
    }                                                                                                                  \
    inline bool any(Mask mask) {                                                                                       \
        return _mm256_movemask_##ps(mask.bits) != 0;                                                                   \
    }                                                                                                                  \
    inline bool all(Mask mask) {                                                                                       \
        return _mm256_movemask_##ps(mask.bits) == (1 << NumberOf<Number>::lanes) - 1;                                  \
    }                                                                                                                  \
    inline Mask without(Mask mask, Mask others) {                                                                      \
        return {_mm256_andnot_##ps(others.bits, mask.bits)};                                                           \
    }                                                                                                                  \
    inline Mask both(Mask a, Mask b) {                                                                                 \
        return {_mm256_and_##ps(a.bits, b.bits)};                                                                      \
    }                                                                                                                  \
    inline Mask either(Mask a, Mask b) {                                                                               \
        return {_mm256_or_##ps(a.bits, b.bits)};                                                                       \
    }
LXPM_ON_LANES(Lanes32, Mask32, ps)
LXPM_ON_LANES(Lanes64, Mask64, pd)
#undef LXPM_ON_LANES

// Not the intrinsics: GCC takes them apart into a choice by the sign of integers, for which AVX has no instruction, and
// Clang divides first and chooses between the quotients.
inline Lanes32 choose(Mask32 mask, Lanes32 a, Lanes32 b) {
    Lanes32 chosen;
    asm("vblendvps %3, %2, %1, %0" : "=x"(chosen.vector) : "x"(b.vector), "x"(a.vector), "x"(mask.bits));
    return chosen;
}
inline Lanes64 choose(Mask64 mask, Lanes64 a, Lanes64 b) {
    Lanes64 chosen;
    asm("vblendvpd %3, %2, %1, %0" : "=x"(chosen.vector) : "x"(b.vector), "x"(a.vector), "x"(mask.bits));
    return chosen;
}

// --- Of both ---

template <class V>
inline V constant(double value) {
    if constexpr (isSingle<V>) {
        return value < 0 ? opaque(static_cast<V>(value)) : static_cast<V>(value);
    } else {
        const auto element = static_cast<ElementOf<V>>(value);
        return V::splat(value < 0 ? opaque(element) : element);
    }
}

// An element that all lanes share, or a number as it is.
template <class V, class Given>
inline V number(Given given) {
    if constexpr (std::is_same_v<V, Given>) {
        return given;
    } else {
        return V::splat(given);
    }
}

// The same truth in all lanes.
template <class V>
inline MaskOf<V> everywhere(bool truth) {
    if constexpr (isSingle<V>) {
        return truth;
    } else {
        return isEqual(constant<V>(truth ? 0 : 1), constant<V>(0));
    }
}

template <class Mask>
inline bool none(Mask mask) {
    return !any(mask);
}

namespace detail {

// In lanes the choice itself is opaque.
template <class V>
inline V asDivisor(V chosen) {
    if constexpr (isSingle<V>) {
        return opaque(chosen);
    } else {
        return chosen;
    }
}

} // namespace detail

// The divisor of those whose quotient is used; the others divide by one, so that they raise no exceptions.
template <class Mask, class V>
inline V divisorWhere(Mask mask, V divisor) {
    return detail::asDivisor(choose(mask, divisor, constant<V>(1)));
}

template <class Mask, class V>
inline V divisorUnless(Mask mask, V divisor) {
    return detail::asDivisor(choose(mask, constant<V>(1), divisor));
}

// Where `mask` holds, a and b change places.
template <class Mask, class V>
inline void exchange(Mask mask, V &a, V &b) {
    const V first = a;
    a = choose(mask, b, a);
    b = choose(mask, first, b);
}

} // namespace lxpm
