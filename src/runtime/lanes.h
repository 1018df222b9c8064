// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// What a register is: N numbers side by side, with the arithmetic that each of them would see alone.
//
// What the type leaves out is part of its design, because it would not give the bits of the scalar code: no
// multiply-add under any name, no unary minus (it flips the sign of a zero where 0 - x does not), no minimum and
// maximum (their rules for NaN and zero differ from a comparison's; numbers.h has one that says them), no sum over
// lanes (it needs an order), no estimates.

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <immintrin.h>
#include <type_traits>
#include <utility>

namespace lxpm {

// The lanes of a whole 256-bit register.
template <class T>
inline constexpr int fullLanes = 32 / static_cast<int>(sizeof(T));

template <class T, int N>
struct Lanes;

// A whole register of elements; as many objects of an array, one in each lane.
template <class T>
using Group = Lanes<T, fullLanes<T>>;

template <class T>
inline constexpr int groupSize = fullLanes<T>;

// Calls f(0), f(1), ... with constants: for what a loop would make a copy of memory, or unroll too late.
template <int count, class F>
[[gnu::always_inline]] inline void forEachOf(const F &f) {
    [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
        (f(std::integral_constant<int, i>()), ...);
    }
    (std::make_integer_sequence<int, count>());
}

template <class T, int N>
struct Lanes {
    using Vector [[gnu::vector_size(N * sizeof(T))]] = T;
    struct [[gnu::packed, gnu::may_alias]] Unaligned {
        Vector vector;
    };

    Vector vector;

    static Lanes load(const T *from) { return {reinterpret_cast<const Unaligned *>(from)->vector}; }
    void store(T *to) const { reinterpret_cast<Unaligned *>(to)->vector = vector; }
    // Past the caches, at a multiple of a whole register's size.
    void stream(T *to) const requires(N == fullLanes<T>) {
        _mm256_stream_si256(reinterpret_cast<__m256i *>(to), std::bit_cast<__m256i>(vector));
    }
    // One broadcast: as a list, not as a loop, of which the compiler would make insertions where it unrolls another.
    static Lanes splat(T value) {
        return [value]<std::size_t... lane>(std::index_sequence<lane...>) __attribute__((always_inline)) {
            return Lanes{Vector{((void)lane, value)...}};
        }
        (std::make_index_sequence<N>());
    }

    // element(lane) in each lane, a constant. All at once: GCC sends a register through memory for each lane that it is
    // given later.
    template <class F>
    [[gnu::always_inline]] static Lanes of(const F &element) {
        return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
            return Lanes{Vector{element(std::integral_constant<int, lane>())...}};
        }
        (std::make_integer_sequence<int, N>());
    }

    friend Lanes operator+(Lanes a, Lanes b) { return {a.vector + b.vector}; }
    friend Lanes operator-(Lanes a, Lanes b) { return {a.vector - b.vector}; }
    friend Lanes operator*(Lanes a, Lanes b) { return {a.vector * b.vector}; }
    friend Lanes operator*(T a, Lanes b) { return splat(a) * b; }
    friend Lanes operator/(Lanes a, Lanes b) { return {a.vector / b.vector}; }
};

// The first K of four lanes of one, the others of another one.
template <int K, class T>
inline Lanes<T, 4> firstLanesOf(Lanes<T, 4> first, Lanes<T, 4> others) {
    if constexpr (K <= 0) {
        return others;
    } else if constexpr (K >= 4) {
        return first;
    } else if constexpr (sizeof(T) == sizeof(float)) {
        return {_mm_blend_ps(others.vector, first.vector, (1 << K) - 1)};
    } else {
        return {_mm256_blend_pd(others.vector, first.vector, (1 << K) - 1)};
    }
}

template <int K>
inline Lanes<float, 8> firstLanesOf(Lanes<float, 8> first, Lanes<float, 8> others) {
    return {_mm256_blend_ps(others.vector, first.vector, (1 << K) - 1)};
}

// Of four lanes the last of the first K also in those behind it.
template <int K, class T>
inline Lanes<T, 4> lastRepeated(Lanes<T, 4> x) {
    constexpr int last = K - 1;
    constexpr int second = last < 1 ? last : 1;
    constexpr int third = last < 2 ? last : 2;
    if constexpr (K == 4) {
        return x;
    } else if constexpr (sizeof(T) == sizeof(float)) {
        return {_mm_permute_ps(x.vector, _MM_SHUFFLE(last, third, second, 0))};
    } else if constexpr (K == 3) {
        return {_mm256_blend_pd(x.vector, _mm256_movedup_pd(x.vector), 0x8)};
    } else {
        const __m128d first = _mm256_castpd256_pd128(x.vector);
        const __m128d repeated = K == 2 ? _mm_unpackhi_pd(first, first) : _mm_unpacklo_pd(first, first);
        return {_mm256_set_m128d(repeated, K == 2 ? first : repeated)};
    }
}

// The first K of four lanes from memory, the others 0; and back. No other memory is touched.
template <int K>
inline Lanes<float, 4> loadFirst(const float *from) {
    if constexpr (K == 4) {
        return Lanes<float, 4>::load(from);
    } else if constexpr (K == 1) {
        return {_mm_load_ss(from)};
    } else {
        const __m128 pair = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(from)));
        return {K == 2 ? pair : _mm_movelh_ps(pair, _mm_load_ss(from + 2))};
    }
}

template <int K>
inline void storeFirst(float *to, Lanes<float, 4> lanes) {
    if constexpr (K == 4) {
        lanes.store(to);
    } else if constexpr (K == 1) {
        _mm_store_ss(to, lanes.vector);
    } else {
        _mm_storel_pi(reinterpret_cast<__m64 *>(to), lanes.vector);
        if constexpr (K == 3) {
            _mm_store_ss(to + 2, _mm_movehl_ps(lanes.vector, lanes.vector));
        }
    }
}

template <int K>
inline Lanes<double, 4> loadFirst(const double *from) {
    if constexpr (K == 4) {
        return Lanes<double, 4>::load(from);
    } else if constexpr (K == 1) {
        return {_mm256_zextpd128_pd256(_mm_load_sd(from))};
    } else {
        const __m256d pair = _mm256_zextpd128_pd256(_mm_loadu_pd(from));
        return {K == 2 ? pair : _mm256_insertf128_pd(pair, _mm_load_sd(from + 2), 1)};
    }
}

template <int K>
inline void storeFirst(double *to, Lanes<double, 4> lanes) {
    if constexpr (K == 4) {
        lanes.store(to);
    } else if constexpr (K == 1) {
        _mm_store_sd(to, _mm256_castpd256_pd128(lanes.vector));
    } else {
        _mm_storeu_pd(to, _mm256_castpd256_pd128(lanes.vector));
        if constexpr (K == 3) {
            _mm_store_sd(to + 2, _mm256_extractf128_pd(lanes.vector, 1));
        }
    }
}

// Rows become columns. The comments give what each register holds, row and column, a bar between its 128-bit halves.
inline void transpose(std::array<Lanes<float, 4>, 4> &r) {
    const __m128 low01 = _mm_unpacklo_ps(r[0].vector, r[1].vector);  // 00 10 01 11
    const __m128 low23 = _mm_unpacklo_ps(r[2].vector, r[3].vector);  // 20 30 21 31
    const __m128 high01 = _mm_unpackhi_ps(r[0].vector, r[1].vector); // 02 12 03 13
    const __m128 high23 = _mm_unpackhi_ps(r[2].vector, r[3].vector); // 22 32 23 33
    r[0].vector = _mm_movelh_ps(low01, low23);                       // 00 10 20 30
    r[1].vector = _mm_movehl_ps(low23, low01);                       // 01 11 21 31
    r[2].vector = _mm_movelh_ps(high01, high23);                     // 02 12 22 32
    r[3].vector = _mm_movehl_ps(high23, high01);                     // 03 13 23 33
}

inline void transpose(std::array<Lanes<double, 4>, 4> &r) {
    const __m256d even01 = _mm256_unpacklo_pd(r[0].vector, r[1].vector); // 00 10 | 02 12
    const __m256d odd01 = _mm256_unpackhi_pd(r[0].vector, r[1].vector);  // 01 11 | 03 13
    const __m256d even23 = _mm256_unpacklo_pd(r[2].vector, r[3].vector); // 20 30 | 22 32
    const __m256d odd23 = _mm256_unpackhi_pd(r[2].vector, r[3].vector);  // 21 31 | 23 33
    r[0].vector = _mm256_permute2f128_pd(even01, even23, 0x20);          // 00 10 | 20 30
    r[1].vector = _mm256_permute2f128_pd(odd01, odd23, 0x20);            // 01 11 | 21 31
    r[2].vector = _mm256_permute2f128_pd(even01, even23, 0x31);          // 02 12 | 22 32
    r[3].vector = _mm256_permute2f128_pd(odd01, odd23, 0x31);            // 03 13 | 23 33
}

// The first eight elements, by rows, of the transpose of a 3x3 matrix whose elements all touch; the ninth stays. The
// comments give the places of the elements in memory.
inline std::array<Lanes<float, 4>, 2> transposeDense3(const float *matrix) {
    const __m128 a = _mm_loadu_ps(matrix);                                               // 0 1 2 3
    const __m128 b = _mm_loadu_ps(matrix + 4);                                           // 4 5 6 7
    return {{{_mm_shuffle_ps(a, _mm_blend_ps(b, a, 0b0010), _MM_SHUFFLE(1, 2, 3, 0))},   // 0 3 6 1
             {_mm_shuffle_ps(b, _mm_blend_ps(a, b, 0b0010), _MM_SHUFFLE(1, 2, 3, 0))}}}; // 4 7 2 5
}

inline std::array<Lanes<double, 4>, 2> transposeDense3(const double *matrix) {
    const __m128d a = _mm_loadu_pd(matrix);                                                // 0 1
    const __m128d b = _mm_loadu_pd(matrix + 2);                                            // 2 3
    const __m128d c = _mm_loadu_pd(matrix + 4);                                            // 4 5
    const __m128d d = _mm_loadu_pd(matrix + 6);                                            // 6 7
    return {{{_mm256_set_m128d(_mm_shuffle_pd(d, a, 0b10), _mm_shuffle_pd(a, b, 0b10))},   // 0 3 | 6 1
             {_mm256_set_m128d(_mm_shuffle_pd(b, c, 0b10), _mm_shuffle_pd(c, d, 0b10))}}}; // 4 7 | 2 5
}

// The two halves of a register from memory.
inline Lanes<float, 8> loadHalves(const float *low, const float *high) {
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(low)), _mm_loadu_ps(high), 1)};
}

inline Lanes<double, 4> loadHalves(const double *low, const double *high) {
    return {_mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(low)), _mm_loadu_pd(high), 1)};
}

// And back.
inline void storeHalves(Lanes<float, 8> lanes, float *low, float *high) {
    _mm_storeu_ps(low, _mm256_castps256_ps128(lanes.vector));
    _mm_storeu_ps(high, _mm256_extractf128_ps(lanes.vector, 1));
}

inline void storeHalves(Lanes<double, 4> lanes, double *low, double *high) {
    _mm_storeu_pd(low, _mm256_castpd256_pd128(lanes.vector));
    _mm_storeu_pd(high, _mm256_extractf128_pd(lanes.vector, 1));
}

inline Lanes<float, 8> joined(Lanes<float, 4> low, Lanes<float, 4> high) {
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(low.vector), high.vector, 1)};
}

inline Lanes<float, 8> bothHalves(const float *from) {
    return {_mm256_broadcast_ps(reinterpret_cast<const __m128 *>(from))};
}

inline Lanes<double, 4> bothHalves(const double *from) {
    return {_mm256_broadcast_pd(reinterpret_cast<const __m128d *>(from))};
}

inline Lanes<float, 4> lowHalf(Lanes<float, 8> lanes) {
    return {_mm256_castps256_ps128(lanes.vector)};
}

inline Lanes<float, 4> highHalf(Lanes<float, 8> lanes) {
    return {_mm256_extractf128_ps(lanes.vector, 1)};
}

// A half of a (0, 1) or of b (2, 3), and another one. Where both stay in their places, nothing has to cross.
template <int low, int high>
inline Lanes<float, 8> halves(Lanes<float, 8> a, Lanes<float, 8> b) {
    if constexpr (low == 0 && high == 3) {
        return {_mm256_blend_ps(a.vector, b.vector, 0xf0)};
    } else {
        return {_mm256_permute2f128_ps(a.vector, b.vector, low | high << 4)};
    }
}

template <int low, int high>
inline Lanes<double, 4> halves(Lanes<double, 4> a, Lanes<double, 4> b) {
    if constexpr (low == 0 && high == 3) {
        return {_mm256_blend_pd(a.vector, b.vector, 0xc)};
    } else {
        return {_mm256_permute2f128_pd(a.vector, b.vector, low | high << 4)};
    }
}

// The first K lanes of a whole register from memory, the others 0; and back. No other memory is touched.
template <int K, class T>
inline Lanes<T, fullLanes<T>> loadFirstOf(const T *from) {
    if constexpr (K == fullLanes<T>) {
        return Lanes<T, K>::load(from);
    } else if constexpr (fullLanes<T> == 4) {
        return loadFirst<K>(from);
    } else if constexpr (K <= 4) {
        return {_mm256_zextps128_ps256(loadFirst<K>(from).vector)};
    } else {
        return joined(loadFirst<4>(from), loadFirst<K - 4>(from + 4));
    }
}

template <int K, class T>
inline void storeFirstOf(T *to, Lanes<T, fullLanes<T>> lanes) {
    if constexpr (K == fullLanes<T>) {
        lanes.store(to);
    } else if constexpr (fullLanes<T> == 4) {
        storeFirst<K>(to, lanes);
    } else if constexpr (K <= 4) {
        storeFirst<K>(to, lowHalf(lanes));
    } else {
        storeFirst<4>(to, lowHalf(lanes));
        storeFirst<K - 4>(to + 4, highHalf(lanes));
    }
}

// One element from memory in all lanes.
inline Lanes<float, 8> broadcast(const float *from) {
    return {_mm256_broadcast_ss(from)};
}

inline Lanes<double, 4> broadcast(const double *from) {
    return {_mm256_broadcast_sd(from)};
}

// The first n lanes from memory, fewer than all, the others 0. No other memory is touched.
template <class T>
inline Lanes<T, fullLanes<T>> loadSome(const T *from, std::ptrdiff_t n) {
    static constexpr std::int32_t masks[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
    const auto *mask = masks + 8 - n * (8 / fullLanes<T>);
    const __m256i lanes = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(mask));
    if constexpr (sizeof(T) == sizeof(float)) {
        return {_mm256_maskload_ps(from, lanes)};
    } else {
        return {_mm256_maskload_pd(from, lanes)};
    }
}

// Whether a bit of whole numbers, given as the bits of floats, is set: by the signs. For doubles, of the first four.
template <int bit, class T>
inline Group<T> bitInLanes(Lanes<float, 8> numbers) {
    const auto toSign = [](Lanes<float, 4> half) { return _mm_slli_epi32(_mm_castps_si128(half.vector), 31 - bit); };
    if constexpr (sizeof(T) == sizeof(float)) {
        return {_mm256_castsi256_ps(_mm256_set_m128i(toSign(highHalf(numbers)), toSign(lowHalf(numbers))))};
    } else {
        return {_mm256_cvtepi32_pd(toSign(lowHalf(numbers)))};
    }
}

// The IEEE square root.
inline float root(float x) {
    return std::sqrt(x);
}

inline double root(double x) {
    return std::sqrt(x);
}

inline Lanes<float, 8> root(Lanes<float, 8> x) {
    return {_mm256_sqrt_ps(x.vector)};
}

inline Lanes<double, 4> root(Lanes<double, 4> x) {
    return {_mm256_sqrt_pd(x.vector)};
}

// Rows become columns in each half by itself.
inline void transposeHalves(std::array<Lanes<float, 8>, 4> &r) {
    const __m256 low01 = _mm256_unpacklo_ps(r[0].vector, r[1].vector);  // 00 10 01 11
    const __m256 low23 = _mm256_unpacklo_ps(r[2].vector, r[3].vector);  // 20 30 21 31
    const __m256 high01 = _mm256_unpackhi_ps(r[0].vector, r[1].vector); // 02 12 03 13
    const __m256 high23 = _mm256_unpackhi_ps(r[2].vector, r[3].vector); // 22 32 23 33
    r[0].vector = _mm256_shuffle_ps(low01, low23, 0x44);                // 00 10 20 30
    r[1].vector = _mm256_shuffle_ps(low01, low23, 0xee);                // 01 11 21 31
    r[2].vector = _mm256_shuffle_ps(high01, high23, 0x44);              // 02 12 22 32
    r[3].vector = _mm256_shuffle_ps(high01, high23, 0xee);              // 03 13 23 33
}

inline void transposeHalves(Lanes<double, 4> &first, Lanes<double, 4> &second) {
    const __m256d low = _mm256_unpacklo_pd(first.vector, second.vector);
    second.vector = _mm256_unpackhi_pd(first.vector, second.vector);
    first.vector = low;
}

// Two elements from each of four places in memory: a register of the first ones, one of the second ones; and back.
inline std::array<Lanes<float, 4>, 2> loadPairs(const std::array<const float *, 4> &from) {
    const auto two = [](const float *first, const float *second) {
        return _mm_loadh_pi(loadFirst<2>(first).vector, reinterpret_cast<const __m64 *>(second));
    };
    const __m128 first = two(from[0], from[1]);  // 00 01 10 11
    const __m128 second = two(from[2], from[3]); // 20 21 30 31
    return {{{_mm_shuffle_ps(first, second, 0x88)}, {_mm_shuffle_ps(first, second, 0xdd)}}};
}

inline std::array<Lanes<double, 4>, 2> loadPairs(const std::array<const double *, 4> &from) {
    std::array<Lanes<double, 4>, 2> pairs = {loadHalves(from[0], from[2]), loadHalves(from[1], from[3])};
    transposeHalves(pairs[0], pairs[1]);
    return pairs;
}

inline void storePairs(const std::array<Lanes<float, 4>, 2> &elements, const std::array<float *, 4> &to) {
    const __m128 first = _mm_unpacklo_ps(elements[0].vector, elements[1].vector);  // 00 01 10 11
    const __m128 second = _mm_unpackhi_ps(elements[0].vector, elements[1].vector); // 20 21 30 31
    _mm_storel_pi(reinterpret_cast<__m64 *>(to[0]), first);
    _mm_storeh_pi(reinterpret_cast<__m64 *>(to[1]), first);
    _mm_storel_pi(reinterpret_cast<__m64 *>(to[2]), second);
    _mm_storeh_pi(reinterpret_cast<__m64 *>(to[3]), second);
}

inline void storePairs(std::array<Lanes<double, 4>, 2> elements, const std::array<double *, 4> &to) {
    transposeHalves(elements[0], elements[1]);
    storeHalves(elements[0], to[0], to[2]);
    storeHalves(elements[1], to[1], to[3]);
}

// The sum over the lanes of each of several registers, as
//
//     ((x0 + x4) + (x2 + x6)) + ((x1 + x5) + (x3 + x7))    or    (x0 + x2) + (x1 + x3)
inline Lanes<float, 8> sumsOverLanes(const std::array<Lanes<float, 8>, 8> &r) {
    const auto ofHalves = [&](int a, int b) { // those of a | those of b
        return (halves<0, 2>(r[a], r[b]) + halves<1, 3>(r[a], r[b])).vector;
    };
    const auto quarters = [&](__m256 a, __m256 b) { // in each half: two of a, two of b
        return _mm256_add_ps(_mm256_shuffle_ps(a, b, 0x44), _mm256_shuffle_ps(a, b, 0xee));
    };
    const __m256 even = quarters(ofHalves(0, 4), ofHalves(1, 5)); // 0 0 1 1 | 4 4 5 5
    const __m256 odd = quarters(ofHalves(2, 6), ofHalves(3, 7));  // 2 2 3 3 | 6 6 7 7
    return {_mm256_add_ps(_mm256_shuffle_ps(even, odd, 0x88), _mm256_shuffle_ps(even, odd, 0xdd))};
}

inline Lanes<double, 4> sumsOverLanes(const std::array<Lanes<double, 4>, 4> &r) {
    const auto ofHalves = [&](int a, int b) { return (halves<0, 2>(r[a], r[b]) + halves<1, 3>(r[a], r[b])).vector; };
    const __m256d even = ofHalves(0, 2); // 0 0 | 2 2
    const __m256d odd = ofHalves(1, 3);  // 1 1 | 3 3
    return {_mm256_add_pd(_mm256_unpacklo_pd(even, odd), _mm256_unpackhi_pd(even, odd))};
}

// The same sum of one register.
inline float sumOverLanes(Lanes<float, 8> x) {
    const __m128 halves = _mm_add_ps(_mm256_castps256_ps128(x.vector), _mm256_extractf128_ps(x.vector, 1));
    const __m128 quarters = _mm_add_ps(halves, _mm_movehl_ps(halves, halves));
    return _mm_cvtss_f32(_mm_add_ss(quarters, _mm_movehdup_ps(quarters)));
}

inline double sumOverLanes(Lanes<double, 4> x) {
    const __m128d halves = _mm_add_pd(_mm256_castpd256_pd128(x.vector), _mm256_extractf128_pd(x.vector, 1));
    return _mm_cvtsd_f64(_mm_add_sd(halves, _mm_unpackhi_pd(halves, halves)));
}

// In each half, the lanes a, b, c, d of that half.
template <int a, int b, int c, int d>
inline Lanes<float, 8> chosenInHalves(Lanes<float, 8> lanes) {
    return {_mm256_permute_ps(lanes.vector, a | b << 2 | c << 4 | d << 6)};
}

// In each half, one lane of that half.
template <int lane>
inline Lanes<float, 8> spreadInHalves(Lanes<float, 8> lanes) {
    return chosenInHalves<lane, lane, lane, lane>(lanes);
}

template <int lane>
inline Lanes<double, 4> spreadInHalves(Lanes<double, 4> lanes) {
    return {_mm256_permute_pd(lanes.vector, lane == 0 ? 0b0000 : 0b1111)};
}

} // namespace lxpm
