// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Vectors of 2, 3 and 4 elements. An element is computed and stored before the next one is looked at, and its sources
// are read again: a destination may be any of the sources, or overlap one, and later elements then see what earlier
// ones left there. The compiler must not be told that destinations and sources are apart, and wider loads are out.

#include "graphics/small_vectors.h"

#include "graphics/graphics.h"

namespace lxpm {

namespace {

template <int K>
LxpStatus add(const float *src1, const float *src2, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = src1[i] + src2[i];
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus sub(const float *src1, const float *src2, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = src1[i] - src2[i];
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus dotProduct(const float *src1, const float *src2, float *dst) {
    *dst = dotOf<K>(src1, src2);
    return lxpStatusOk;
}

template <int K>
LxpStatus lenSqr(const float *src, float *dst) {
    *dst = dotOf<K>(src, src);
    return lxpStatusOk;
}

template <int K>
LxpStatus len(const float *src, float *dst) {
    *dst = lengthOf<K>(src);
    return lxpStatusOk;
}

template <int K>
LxpStatus normalize(const float *src, float *dst) {
    divideByLength<K>(src, dst);
    return lxpStatusOk;
}

// Of two equal values, and where either is NaN, the second.
template <int K>
LxpStatus min(const float *src1, const float *src2, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = src1[i] < src2[i] ? src1[i] : src2[i];
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus max(const float *src1, const float *src2, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = src1[i] > src2[i] ? src1[i] : src2[i];
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus mulC(const float *src, float val, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = val * src[i];
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus interpolationLinear(const float *src1, const float *src2, float s, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = src1[i] + s * (src2[i] - src1[i]);
    }
    return lxpStatusOk;
}

template <int K>
LxpStatus baryCentric(const float *src1, const float *src2, const float *src3, float f, float g, float *dst) {
    for (int i = 0; i < K; ++i) {
        dst[i] = (src1[i] + f * (src2[i] - src1[i])) + g * (src3[i] - src1[i]);
    }
    return lxpStatusOk;
}

// Between point 1 and point 2 (src1 and src3) with their tangents (src2 and src4). The basis is rearranged so that the
// weight of point 1, which is one more than that of the points' difference, never stands by itself. The weights nearly
// cancel, so they are formed in double precision, from powers in single precision.
template <int K>
LxpStatus hermite(const float *src1, const float *src2, const float *src3, const float *src4, float s, float *dst) {
    const float s2 = s * s;
    const float s3 = s * s2;
    const double square = s2;
    const double cube = s3;
    const auto difference = static_cast<float>((cube - 3.0 * square) + cube);
    const auto tangent1 = static_cast<float>(((s - square) - square) + cube);
    const auto tangent2 = static_cast<float>(cube - square);
    for (int i = 0; i < K; ++i) {
        dst[i] = (src1[i] - src3[i]) * difference + ((src1[i] + tangent1 * src2[i]) + tangent2 * src4[i]);
    }
    return lxpStatusOk;
}

// A Hermite curve from src2 to src3, whose tangents are half the way between the neighbours of each.
template <int K>
LxpStatus interpolationCatmullRom(const float *src1, const float *src2, const float *src3, const float *src4, float s,
                                  float *dst) {
    float tangent1[K];
    float tangent2[K];
    for (int i = 0; i < K; ++i) {
        tangent1[i] = 0.5F * (src3[i] - src1[i]);
        tangent2[i] = 0.5F * (src4[i] - src2[i]);
    }
    return hermite<K>(src2, tangent1, src3, tangent2, s, dst);
}

} // namespace

namespace implementation {

#define SMALL_VECTORS_DO(operation, function, parameters, arguments)                                                   \
    LxpStatus lxpm##operation##_v2_32f parameters {                                                                    \
        return function<2> arguments;                                                                                  \
    }                                                                                                                  \
    LxpStatus lxpm##operation##_v3_32f parameters {                                                                    \
        return function<3> arguments;                                                                                  \
    }                                                                                                                  \
    LxpStatus lxpm##operation##_v4_32f parameters {                                                                    \
        return function<4> arguments;                                                                                  \
    }

SMALL_VECTORS_DO(Add, add, (const float *src1, const float *src2, float *dst), (src1, src2, dst))
SMALL_VECTORS_DO(Sub, sub, (const float *src1, const float *src2, float *dst), (src1, src2, dst))
SMALL_VECTORS_DO(DotProduct, dotProduct, (const float *src1, const float *src2, float *dst), (src1, src2, dst))
SMALL_VECTORS_DO(LenSqr, lenSqr, (const float *src, float *dst), (src, dst))
SMALL_VECTORS_DO(Len, len, (const float *src, float *dst), (src, dst))
SMALL_VECTORS_DO(Normalize, normalize, (const float *src, float *dst), (src, dst))
SMALL_VECTORS_DO(Min, min, (const float *src1, const float *src2, float *dst), (src1, src2, dst))
SMALL_VECTORS_DO(Max, max, (const float *src1, const float *src2, float *dst), (src1, src2, dst))
SMALL_VECTORS_DO(MulC, mulC, (const float *src, float val, float *dst), (src, val, dst))
SMALL_VECTORS_DO(InterpolationLinear, interpolationLinear, (const float *src1, const float *src2, float s, float *dst),
                 (src1, src2, s, dst))
SMALL_VECTORS_DO(BaryCentric, baryCentric,
                 (const float *src1, const float *src2, const float *src3, float f, float g, float *dst),
                 (src1, src2, src3, f, g, dst))
SMALL_VECTORS_DO(Hermite, hermite,
                 (const float *src1, const float *src2, const float *src3, const float *src4, float s, float *dst),
                 (src1, src2, src3, src4, s, dst))
SMALL_VECTORS_DO(InterpolationCatmullRom, interpolationCatmullRom,
                 (const float *src1, const float *src2, const float *src3, const float *src4, float s, float *dst),
                 (src1, src2, src3, src4, s, dst))

LxpStatus lxpmCrossProduct_v2_32f(const float *src1, const float *src2, float *dst) {
    *dst = src1[0] * src2[1] - src1[1] * src2[0];
    return lxpStatusOk;
}

LxpStatus lxpmCrossProduct_v3_32f(const float *src1, const float *src2, float *dst) {
    cross(src1, src2, dst);
    return lxpStatusOk;
}

// The vector orthogonal to three others: cofactors of the row that the matrix of the three lacks.
LxpStatus lxpmCrossProduct_v4_32f(const float *src1, const float *src2, const float *src3, float *dst) {
    const float *const a = src1;
    const auto minor = [src2, src3](int i, int j) { return src2[i] * src3[j] - src2[j] * src3[i]; };
    dst[0] = (a[1] * minor(2, 3) - a[2] * minor(1, 3)) + a[3] * minor(1, 2);
    dst[1] = 0 - ((a[0] * minor(2, 3) - a[2] * minor(0, 3)) + a[3] * minor(0, 2));
    dst[2] = (a[0] * minor(1, 3) - a[1] * minor(0, 3)) + a[3] * minor(0, 1);
    dst[3] = 0 - ((a[0] * minor(1, 2) - a[1] * minor(0, 2)) + a[2] * minor(0, 1));
    return lxpStatusOk;
}

} // namespace implementation

} // namespace lxpm
