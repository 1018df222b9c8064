// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// What a register is: N numbers side by side, with the arithmetic that each of them would see alone.
//
// What the type leaves out is part of its design, because it would not give the bits of the scalar code: no
// multiply-add under any name, no unary minus (it flips the sign of a zero where 0 - x does not), no minimum and
// maximum (their rules for NaN and zero differ from a comparison's), no sum over lanes (it needs an order), no
// estimates.

#include <array>
#include <cstddef>
#include <immintrin.h>

namespace lxpm {

// The lanes of a whole 256-bit register.
template <class T>
inline constexpr int fullLanes = 32 / static_cast<int>(sizeof(T));

template <class T, int N>
struct Lanes {
    using Vector [[gnu::vector_size(N * sizeof(T))]] = T;
    struct [[gnu::packed, gnu::may_alias]] Unaligned {
        Vector vector;
    };

    Vector vector;

    static Lanes load(const T *from) { return {reinterpret_cast<const Unaligned *>(from)->vector}; }
    void store(T *to) const { reinterpret_cast<Unaligned *>(to)->vector = vector; }
    static Lanes splat(T value) {
        Lanes lanes;
        for (int i = 0; i < N; ++i) { // one broadcast instruction
            lanes.vector[i] = value;
        }
        return lanes;
    }

    friend Lanes operator+(Lanes a, Lanes b) { return {a.vector + b.vector}; }
    friend Lanes operator-(Lanes a, Lanes b) { return {a.vector - b.vector}; }
    friend Lanes operator*(Lanes a, Lanes b) { return {a.vector * b.vector}; }
    friend Lanes operator*(T a, Lanes b) { return splat(a) * b; }
    friend Lanes operator/(Lanes a, Lanes b) { return {a.vector / b.vector}; }
};

// The first K of four lanes from memory, the others 0; and back. No other memory is touched.
template <int K>
inline Lanes<float, 4> loadFirst(const float *from) {
    if constexpr (K == 4) {
        return Lanes<float, 4>::load(from);
    } else if constexpr (K == 1) {
        return {_mm_load_ss(from)};
    } else {
        const __m128 pair = _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double *>(from)));
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

} // namespace lxpm
