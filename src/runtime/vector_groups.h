// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Groups of vectors, each in a lane of its own: one register for each element. Vectors of three elements that follow
// one another, of both types; and eight vectors of 2 to 4 single-precision elements that may be any number of bytes
// apart. Constants that stand beside such vectors are repeated for each of their elements.

#include "runtime/addresses.h"
#include "runtime/lanes.h"

#include <array>
#include <cstddef>

namespace lxpm {

template <int K>
using Vectors = std::array<Group<float>, K>;

// Of memory that is there or is not: between two objects no further apart there is no hole.
inline constexpr std::ptrdiff_t smallestPage = 4096;

// How vectors stand in memory, as far as it matters to the way they are read and written. A vector of three elements is
// read as four where nothing but the space between two vectors is read with it: if there is another vector close
// behind, that space is as good as the vectors themselves.
enum class Spacing { Packed, Wide, Any };

template <int K>
constexpr Spacing spacingOf(std::ptrdiff_t stride) {
    if (stride == 4 * K) {
        return Spacing::Packed;
    }
    return K == 3 && stride >= 16 && stride <= smallestPage ? Spacing::Wide : Spacing::Any;
}

namespace detail {

template <int e0, int e1, int e2, int e3>
inline Group<float> shuffled(Group<float> a, Group<float> b) {
    return {_mm256_shuffle_ps(a.vector, b.vector, _MM_SHUFFLE(e3, e2, e1, e0))};
}

// Of each half, one element of a and one of b.
template <int fromA, int fromB>
inline Group<double> shuffled(Group<double> a, Group<double> b) {
    constexpr int ofHalf = fromA | fromB << 1;
    return {_mm256_shuffle_pd(a.vector, b.vector, ofHalf | ofHalf << 2)};
}

} // namespace detail

template <class T>
using Triples = std::array<Group<T>, 3>;

// A group of vectors of three elements that follow one another fills three registers. They are loaded so that a half of
// each is what one half of the group needs, and turned in both halves alike. In comments, elements of the lower half
// are named by letter and vector.
template <class T>
[[gnu::always_inline]] inline Triples<T> loadTriples(const T *from) {
    const auto a = Group<T>::load(from);
    const auto b = Group<T>::load(from + groupSize<T>);
    const auto c = Group<T>::load(from + 2 * groupSize<T>);
    return {halves<0, 3>(a, b), halves<1, 2>(a, c), halves<0, 3>(b, c)};
}

[[gnu::always_inline]] inline Triples<float> turned(const Triples<float> &triples) {
    using detail::shuffled;
    const auto [first, second, third] = triples;                 // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
    const Group<float> xy = shuffled<2, 3, 1, 2>(second, third); // x2 y2 x3 y3
    const Group<float> yz = shuffled<1, 2, 0, 1>(first, second); // y0 z0 y1 z1
    return {shuffled<0, 3, 0, 2>(first, xy), shuffled<0, 2, 1, 3>(yz, xy), shuffled<1, 3, 0, 3>(yz, third)};
}

[[gnu::always_inline]] inline Triples<double> turned(const Triples<double> &triples) {
    using detail::shuffled;
    const auto [first, second, third] = triples; // x0 y0, z0 x1, y1 z1
    return {shuffled<0, 1>(first, second), shuffled<1, 0>(first, third), shuffled<0, 1>(second, third)};
}

[[gnu::always_inline]] inline Triples<float> turnedBack(const Triples<float> &element) {
    using detail::shuffled;
    const auto [x, y, z] = element;
    const Group<float> xy = shuffled<0, 2, 0, 2>(x, y); // x0 x2 y0 y2
    const Group<float> yz = shuffled<1, 3, 1, 3>(y, z); // y1 y3 z1 z3
    const Group<float> zx = shuffled<0, 2, 1, 3>(z, x); // z0 z2 x1 x3
    return {shuffled<0, 2, 0, 2>(xy, zx), shuffled<0, 2, 1, 3>(yz, xy), shuffled<1, 3, 1, 3>(zx, yz)};
}

[[gnu::always_inline]] inline Triples<double> turnedBack(const Triples<double> &element) {
    using detail::shuffled;
    const auto [x, y, z] = element;
    return {shuffled<0, 0>(x, y), shuffled<0, 1>(z, x), shuffled<1, 1>(y, z)};
}

template <class T>
[[gnu::always_inline]] inline void writeTriples(T *to, const Triples<T> &element) {
    const auto [first, second, third] = turnedBack(element);
    halves<0, 2>(first, second).store(to);
    halves<0, 3>(third, first).store(to + groupSize<T>);
    halves<1, 3>(second, third).store(to + 2 * groupSize<T>);
}

// Each of a group of elements as many times as there are registers.
template <int times>
[[gnu::always_inline]] inline std::array<Group<float>, times> repeated(const float *from) {
    const Group<float> low = bothHalves(from);
    const Group<float> high = bothHalves(from + 4);
    const auto chosen = [](Group<float> x, __m256i lanes) {
        return Group<float>{_mm256_permutevar_ps(x.vector, lanes)};
    };
    if constexpr (times == 3) {
        return {chosen(low, _mm256_setr_epi32(0, 0, 0, 1, 1, 1, 2, 2)),
                chosen(Group<float>::load(from), _mm256_setr_epi32(2, 3, 3, 3, 0, 0, 0, 1)),
                chosen(high, _mm256_setr_epi32(1, 1, 2, 2, 2, 3, 3, 3))};
    } else {
        static_assert(times == 4);
        const __m256i even = _mm256_setr_epi32(0, 0, 0, 0, 1, 1, 1, 1);
        const __m256i odd = _mm256_setr_epi32(2, 2, 2, 2, 3, 3, 3, 3);
        return {chosen(low, even), chosen(low, odd), chosen(high, even), chosen(high, odd)};
    }
}

template <int times>
[[gnu::always_inline]] inline std::array<Group<double>, times> repeated(const double *from) {
    if constexpr (times == 3) {
        return {Group<double>{_mm256_permute_pd(bothHalves(from).vector, 0b1000)},
                {_mm256_permute_pd(Group<double>::load(from).vector, 0b0011)},
                {_mm256_permute_pd(bothHalves(from + 2).vector, 0b1110)}};
    } else {
        static_assert(times == 4);
        return {broadcast(from), broadcast(from + 1), broadcast(from + 2), broadcast(from + 3)};
    }
}

// Eight vectors in lanes.
template <int K, Spacing spacing>
[[gnu::always_inline]] inline Vectors<K> readVectors(const float *from, std::ptrdiff_t stride) {
    if constexpr (K == 2 && spacing == Spacing::Packed) {
        using detail::shuffled;
        const Group<float> first = loadHalves(from, from + 8);       // x0 y0 x1 y1
        const Group<float> second = loadHalves(from + 4, from + 12); // x2 y2 x3 y3
        return {shuffled<0, 2, 0, 2>(first, second), shuffled<1, 3, 1, 3>(first, second)};
    } else if constexpr (K == 3 && spacing == Spacing::Packed) {
        return turned(loadTriples(from));
    } else {
        constexpr int loaded = spacing == Spacing::Wide ? 4 : K;
        const auto vector = [from, stride](int k) { return loadFirst<loaded>(shifted(from, k * stride)); };
        Vectors<4> element = {joined(vector(0), vector(4)), joined(vector(1), vector(5)), joined(vector(2), vector(6)),
                              joined(vector(3), vector(7))};
        transposeHalves(element);
        Vectors<K> result;
        for (int i = 0; i < K; ++i) {
            result[i] = element[i];
        }
        return result;
    }
}

template <int K, bool isPacked>
[[gnu::always_inline]] inline void writeVectors(float *to, std::ptrdiff_t stride, const Vectors<K> &element) {
    if constexpr (K == 2 && isPacked) {
        const auto [x, y] = element;
        storeHalves({_mm256_unpacklo_ps(x.vector, y.vector)}, to, to + 8);
        storeHalves({_mm256_unpackhi_ps(x.vector, y.vector)}, to + 4, to + 12);
    } else if constexpr (K == 3 && isPacked) {
        writeTriples(to, element);
    } else {
        Vectors<4> vector = {element[0], element[1], element[K > 2 ? 2 : 0], element[K - 1]};
        transposeHalves(vector);
        for (int k = 0; k < 4; ++k) {
            storeFirst<K>(shifted(to, k * stride), lowHalf(vector[k]));
            storeFirst<K>(shifted(to, (k + 4) * stride), highHalf(vector[k]));
        }
    }
}

} // namespace lxpm
