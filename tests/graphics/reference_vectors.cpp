// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/reference.h"

#include <cmath>

namespace lxpm::test::reference {

namespace {

float sumOfProducts(int size, const float *a, const float *b) {
    float sum = a[0] * b[0] + a[1] * b[1];
    if (size > 2) {
        sum += a[2] * b[2];
    }
    if (size > 3) {
        sum += a[3] * b[3];
    }
    return sum;
}

void hermite(int size, const float *p1, const float *t1, const float *p2, const float *t2, float s, float *dst) {
    const float s2 = s * s;
    const float s3 = s * s2;
    const double wide2 = s2;
    const double wide3 = s3;
    const float hA = static_cast<float>((wide3 - 3.0 * wide2) + wide3);
    const float h2 = static_cast<float>(((static_cast<double>(s) - wide2) - wide2) + wide3);
    const float h4 = static_cast<float>(wide3 - wide2);
    for (int i = 0; i < size; ++i) {
        const float first = (p1[i] - p2[i]) * hA;
        const float inner = p1[i] + h2 * t1[i];
        dst[i] = first + (inner + h4 * t2[i]);
    }
}

} // namespace

#define DEFINE(size)                                                                                                   \
    LxpStatus lxpmAdd_v##size##_32f(const float *src1, const float *src2, float *dst) {                                \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src1[i] + src2[i];                                                                                \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmSub_v##size##_32f(const float *src1, const float *src2, float *dst) {                                \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src1[i] - src2[i];                                                                                \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmDotProduct_v##size##_32f(const float *src1, const float *src2, float *dst) {                         \
        *dst = sumOfProducts(size, src1, src2);                                                                        \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmLenSqr_v##size##_32f(const float *src, float *dst) {                                                 \
        *dst = sumOfProducts(size, src, src);                                                                          \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmLen_v##size##_32f(const float *src, float *dst) {                                                    \
        *dst = std::sqrt(sumOfProducts(size, src, src));                                                               \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmNormalize_v##size##_32f(const float *src, float *dst) {                                              \
        const float length = std::sqrt(sumOfProducts(size, src, src));                                                 \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src[i] / length;                                                                                  \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmMin_v##size##_32f(const float *src1, const float *src2, float *dst) {                                \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src1[i] < src2[i] ? src1[i] : src2[i];                                                            \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmMax_v##size##_32f(const float *src1, const float *src2, float *dst) {                                \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src1[i] > src2[i] ? src1[i] : src2[i];                                                            \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmMulC_v##size##_32f(const float *src, float val, float *dst) {                                        \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = val * src[i];                                                                                     \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmInterpolationLinear_v##size##_32f(const float *src1, const float *src2, float s, float *dst) {       \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = src1[i] + s * (src2[i] - src1[i]);                                                                \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmBaryCentric_v##size##_32f(const float *src1, const float *src2, const float *src3, float f, float g, \
                                            float *dst) {                                                              \
        for (int i = 0; i < size; ++i) {                                                                               \
            dst[i] = (src1[i] + f * (src2[i] - src1[i])) + g * (src3[i] - src1[i]);                                    \
        }                                                                                                              \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmHermite_v##size##_32f(const float *src1, const float *src2, const float *src3, const float *src4,    \
                                        float s, float *dst) {                                                         \
        hermite(size, src1, src2, src3, src4, s, dst);                                                                 \
        return lxpStatusOk;                                                                                            \
    }                                                                                                                  \
    LxpStatus lxpmInterpolationCatmullRom_v##size##_32f(const float *src1, const float *src2, const float *src3,       \
                                                        const float *src4, float s, float *dst) {                      \
        float t1[size];                                                                                                \
        float t2[size];                                                                                                \
        for (int i = 0; i < size; ++i) {                                                                               \
            t1[i] = 0.5F * (src3[i] - src1[i]);                                                                        \
            t2[i] = 0.5F * (src4[i] - src2[i]);                                                                        \
        }                                                                                                              \
        hermite(size, src2, t1, src3, t2, s, dst);                                                                     \
        return lxpStatusOk;                                                                                            \
    }

DEFINE(2)
DEFINE(3)
DEFINE(4)

LxpStatus lxpmCrossProduct_v2_32f(const float *src1, const float *src2, float *dst) {
    *dst = src1[0] * src2[1] - src1[1] * src2[0];
    return lxpStatusOk;
}

LxpStatus lxpmCrossProduct_v3_32f(const float *src1, const float *src2, float *dst) {
    dst[0] = src1[1] * src2[2] - src1[2] * src2[1];
    dst[1] = src1[2] * src2[0] - src1[0] * src2[2];
    dst[2] = src1[0] * src2[1] - src1[1] * src2[0];
    return lxpStatusOk;
}

LxpStatus lxpmCrossProduct_v4_32f(const float *src1, const float *src2, const float *src3, float *dst) {
    // Element i takes the three other columns; the second of them is subtracted.
    static constexpr int others[4][3] = {{1, 2, 3}, {0, 2, 3}, {0, 1, 3}, {0, 1, 2}};
    for (int i = 0; i < 4; ++i) {
        const int p = others[i][0];
        const int q = others[i][1];
        const int r = others[i][2];
        const float qr = src2[q] * src3[r] - src2[r] * src3[q];
        const float pr = src2[p] * src3[r] - src2[r] * src3[p];
        const float pq = src2[p] * src3[q] - src2[q] * src3[p];
        const float value = (src1[p] * qr - src1[q] * pr) + src1[r] * pq;
        dst[i] = i % 2 == 0 ? value : 0.0F - value;
    }
    return lxpStatusOk;
}

} // namespace lxpm::test::reference
