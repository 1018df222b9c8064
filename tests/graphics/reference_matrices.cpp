// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/reference.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <math.h> // sincosf
#include <xmmintrin.h>

namespace lxpm::test::reference {

namespace {

/// A builder starts from zeros and assigns what its formulas mention.
struct Builder {
    float element[16] = {};

    float &operator()(int row, int column) { return element[4 * row + column]; }
    LxpStatus store(float *dst) const {
        std::memcpy(dst, element, sizeof element);
        return lxpStatusOk;
    }
};

LxpStatus rotation(int axis, float angle, float *dst) {
    float s;
    float c;
    sincosf(angle, &s, &c);
    const int next = (axis + 1) % 3;
    const int last = (axis + 2) % 3;
    Builder m;
    m(axis, axis) = 1;
    m(next, next) = c;
    m(next, last) = s;
    m(last, next) = 0.0F - s;
    m(last, last) = c;
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lookAt(const float *eye, const float *from, const float *to, const float *up, float *dst) {
    float direction[3];
    float axis[3][3];
    float product[3];
    lxpmSub_v3_32f(to, from, direction);
    lxpmNormalize_v3_32f(direction, axis[2]);
    lxpmCrossProduct_v3_32f(up, axis[2], product);
    lxpmNormalize_v3_32f(product, axis[0]);
    lxpmCrossProduct_v3_32f(axis[2], axis[0], axis[1]);
    Builder m;
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            m(i, j) = axis[j][i];
        }
        float dot;
        lxpmDotProduct_v3_32f(axis[j], eye, &dot);
        m(3, j) = 0.0F - dot;
    }
    m(3, 3) = 1;
    return m.store(dst);
}

template <int K>
struct Vector {
    float element[K];

    explicit Vector(const float *from) { std::memcpy(element, from, sizeof element); }
    float operator[](int i) const { return element[i]; }
};

template <int K, class Function>
LxpStatus storeEach(float *dst, Function function) {
    float result[K];
    for (int i = 0; i < K; ++i) {
        result[i] = function(i);
    }
    std::memcpy(dst, result, sizeof result);
    return lxpStatusOk;
}

/// Calls one(src, dst) for each vector.
template <class Function>
LxpStatus forEach(const float *srcVecs, int srcObjStride, float *dst, int dstObjStride, int count, Function one) {
    LxpStatus status = lxpStatusOk;
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        const auto *src = reinterpret_cast<const float *>(reinterpret_cast<const char *>(srcVecs) + k * srcObjStride);
        status = one(src, reinterpret_cast<float *>(reinterpret_cast<char *>(dst) + k * dstObjStride));
    }
    return status;
}

float determinantOf(const float *m) {
    const auto minor = [m](int i, int j) { return m[8 + i] * m[12 + j] - m[8 + j] * m[12 + i]; };
    const float *const r0 = m;
    const float *const r1 = m + 4;
    const float c0 = ((r1[1] * minor(2, 3) - r1[2] * minor(1, 3)) + r1[3] * minor(1, 2)) * r0[0];
    const float c1 = ((r1[0] * minor(2, 3) - r1[2] * minor(0, 3)) + r1[3] * minor(0, 2)) * r0[1];
    const float c2 = ((r1[0] * minor(1, 3) - r1[1] * minor(0, 3)) + r1[3] * minor(0, 1)) * r0[2];
    const float c3 = ((r1[0] * minor(1, 2) - r1[1] * minor(0, 2)) + r1[2] * minor(0, 1)) * r0[3];
    return (c0 - c1) + (c2 - c3);
}

/// The minor without a row and a column. Its row beside the pair of rows 0 and 1, or 2 and 3, is expanded along.
float minorOf(const float *m, int row, int column) {
    const int single = row ^ 1;
    const int upper = row < 2 ? 2 : 0;
    int rest[3];
    for (int j = 0, n = 0; j < 4; ++j) {
        if (j != column) {
            rest[n++] = j;
        }
    }
    const auto pair = [&](int i, int j) {
        const float *const a = m + 4 * upper;
        const float *const b = a + 4;
        return a[rest[i]] * b[rest[j]] - a[rest[j]] * b[rest[i]];
    };
    const float *const r = m + 4 * single;
    return (r[rest[0]] * pair(1, 2) - r[rest[1]] * pair(0, 2)) + r[rest[2]] * pair(0, 1);
}

} // namespace

LxpStatus lxpmIdentity_m4_32f(float *dst) {
    Builder m;
    for (int i = 0; i < 4; ++i) {
        m(i, i) = 1;
    }
    return m.store(dst);
}

LxpStatus lxpmIsIdentity_m4_32f(const float *src, int *result) {
    *result = 0;
    if (src[0] == 1.0F) {
        for (int j = 0; j < 4; ++j) {
            int equal = 0;
            for (int i = 0; i < 4; ++i) {
                equal += src[4 * i + j] == (i == j ? 1.0F : 0.0F);
            }
            if (equal == 4) {
                *result = 1;
            }
        }
    }
    return lxpStatusOk;
}

LxpStatus lxpmTranslation_m4_32f(float x, float y, float z, float *dst) {
    Builder m;
    m(0, 0) = m(1, 1) = m(2, 2) = m(3, 3) = 1;
    m(3, 0) = x;
    m(3, 1) = y;
    m(3, 2) = z;
    return m.store(dst);
}

LxpStatus lxpmScaling_m4_32f(float x, float y, float z, float *dst) {
    Builder m;
    m(0, 0) = x;
    m(1, 1) = y;
    m(2, 2) = z;
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmRotationX_m4_32f(float angle, float *dst) {
    return rotation(0, angle, dst);
}

LxpStatus lxpmRotationY_m4_32f(float angle, float *dst) {
    return rotation(1, angle, dst);
}

LxpStatus lxpmRotationZ_m4_32f(float angle, float *dst) {
    return rotation(2, angle, dst);
}

LxpStatus lxpmRotationAxis_v3m4_32f(const float *axis, float angle, float *dst) {
    float unit[3];
    lxpmNormalize_v3_32f(axis, unit);
    const float x = unit[0];
    const float y = unit[1];
    const float z = unit[2];
    float s;
    float c;
    sincosf(angle, &s, &c);
    const float k = 1.0F - c;
    Builder m;
    m(0, 0) = c + x * (x * k);
    m(0, 1) = x * (y * k) + s * z;
    m(0, 2) = x * (z * k) - s * y;
    m(1, 0) = y * (x * k) - s * z;
    m(1, 1) = c + y * (y * k);
    m(1, 2) = s * x + y * (z * k);
    m(2, 0) = s * y + z * (x * k);
    m(2, 1) = z * (y * k) - s * x;
    m(2, 2) = c + z * (z * k);
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmRotationYawPitchRoll_m4_32f(float yaw, float pitch, float roll, float *dst) {
    float sy;
    float cy;
    float sp;
    float cp;
    float sr;
    float cr;
    sincosf(yaw, &sy, &cy);
    sincosf(pitch, &sp, &cp);
    sincosf(roll, &sr, &cr);
    Builder m;
    m(0, 0) = sr * (sy * sp) + cy * cr;
    m(0, 1) = sr * cp;
    m(0, 2) = sr * (sp * cy) - sy * cr;
    m(1, 0) = cr * (sy * sp) - cy * sr;
    m(1, 1) = cr * cp;
    m(1, 2) = sy * sr + cr * (sp * cy);
    m(2, 0) = sy * cp;
    m(2, 1) = 0.0F - sp;
    m(2, 2) = cy * cp;
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmLookAtLH_m4_32f(const float *eye, const float *at, const float *up, float *dst) {
    return lookAt(eye, eye, at, up, dst);
}

LxpStatus lxpmLookAtRH_m4_32f(const float *eye, const float *at, const float *up, float *dst) {
    return lookAt(eye, at, eye, up, dst);
}

LxpStatus lxpmOrthoLH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    Builder m;
    m(0, 0) = 2.0F / width;
    m(1, 1) = 2.0F / height;
    m(2, 2) = 1.0F / (zFar - zNear);
    m(3, 2) = zNear / (0.0F - (zFar - zNear));
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmOrthoRH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    Builder m;
    m(0, 0) = 2.0F / width;
    m(1, 1) = 2.0F / height;
    m(2, 2) = 1.0F / (zNear - zFar);
    m(3, 2) = zNear / (zNear - zFar);
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmOrthoOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                      float *dst) {
    Builder m;
    m(0, 0) = 2.0F / (right - left);
    m(1, 1) = 2.0F / (top - bottom);
    m(2, 2) = 1.0F / (zFar - zNear);
    m(3, 0) = (left + right) / (0.0F - (right - left));
    m(3, 1) = (bottom + top) / (0.0F - (top - bottom));
    m(3, 2) = zNear / (0.0F - (zFar - zNear));
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmOrthoOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                      float *dst) {
    Builder m;
    m(0, 0) = 2.0F / (right - left);
    m(1, 1) = 2.0F / (top - bottom);
    m(2, 2) = 1.0F / (zNear - zFar);
    m(3, 0) = (left + right) / (0.0F - (right - left));
    m(3, 1) = (bottom + top) / (0.0F - (top - bottom));
    m(3, 2) = zNear / (zNear - zFar);
    m(3, 3) = 1;
    return m.store(dst);
}

LxpStatus lxpmPerspectiveLH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    Builder m;
    m(0, 0) = (zNear + zNear) / width;
    m(1, 1) = (zNear + zNear) / height;
    m(2, 2) = zFar / (zFar - zNear);
    m(2, 3) = 1;
    m(3, 2) = (zNear * zFar) / (0.0F - (zFar - zNear));
    return m.store(dst);
}

LxpStatus lxpmPerspectiveRH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    Builder m;
    m(0, 0) = (zNear + zNear) / width;
    m(1, 1) = (zNear + zNear) / height;
    m(2, 2) = zFar / (zNear - zFar);
    m(2, 3) = -1;
    m(3, 2) = (zNear * zFar) / (zNear - zFar);
    return m.store(dst);
}

LxpStatus lxpmPerspectiveFovLH_m4_32f(float fovY, float aspect, float zNear, float zFar, float *dst) {
    float s;
    float c;
    sincosf(0.5F * fovY, &s, &c);
    Builder m;
    m(1, 1) = c / s;
    m(0, 0) = m(1, 1) / aspect;
    m(2, 2) = zFar / (zFar - zNear);
    m(2, 3) = 1;
    m(3, 2) = (0.0F - zNear * zFar) / (zFar - zNear);
    return m.store(dst);
}

LxpStatus lxpmPerspectiveFovRH_m4_32f(float fovY, float aspect, float zNear, float zFar, float *dst) {
    float s;
    float c;
    sincosf(0.5F * fovY, &s, &c);
    Builder m;
    m(1, 1) = c / s;
    m(0, 0) = m(1, 1) / aspect;
    m(2, 2) = zFar / (zNear - zFar);
    m(2, 3) = -1;
    m(3, 2) = (zNear * zFar) / (zNear - zFar);
    return m.store(dst);
}

LxpStatus lxpmPerspectiveOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                            float *dst) {
    Builder m;
    m(0, 0) = (zNear + zNear) / (right - left);
    m(1, 1) = (zNear + zNear) / (top - bottom);
    m(2, 0) = (left + right) / (0.0F - (right - left));
    m(2, 1) = (bottom + top) / (0.0F - (top - bottom));
    m(2, 2) = zFar / (zFar - zNear);
    m(2, 3) = 1;
    m(3, 2) = (zNear * zFar) / (0.0F - (zFar - zNear));
    return m.store(dst);
}

LxpStatus lxpmPerspectiveOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                            float *dst) {
    Builder m;
    m(0, 0) = (zNear + zNear) / (right - left);
    m(1, 1) = (zNear + zNear) / (top - bottom);
    m(2, 0) = (left + right) / (right - left);
    m(2, 1) = (bottom + top) / (top - bottom);
    m(2, 2) = zFar / (zNear - zFar);
    m(2, 3) = -1;
    m(3, 2) = (zNear * zFar) / (zNear - zFar);
    return m.store(dst);
}

LxpStatus lxpmMul_mm4x4_32f(const float *src1, const float *src2, float *dst) {
    const Vector<16> a(src1);
    const Vector<16> b(src2);
    return storeEach<16>(dst, [&](int at) {
        const int row = at / 4 * 4;
        const int column = at % 4;
        float sum = a[row] * b[column];
        for (int i = 1; i < 4; ++i) {
            sum += a[row + i] * b[4 * i + column];
        }
        return sum;
    });
}

LxpStatus lxpmTranspose_m4_32f(const float *src, float *dst) {
    const Vector<16> m(src);
    return storeEach<16>(dst, [&](int at) { return m[at % 4 * 4 + at / 4]; });
}

LxpStatus lxpmMulTranspose_m4_32f(const float *src1, const float *src2, float *dst) {
    lxpmMul_mm4x4_32f(src1, src2, dst);
    return lxpmTranspose_m4_32f(dst, dst);
}

LxpStatus lxpmDet_m4_32f(const float *src, float *dst) {
    *dst = determinantOf(src);
    return lxpStatusOk;
}

LxpStatus lxpmInvert_m4_32f(const float *src, float *det, float *dst) {
    const Vector<16> m(src);
    const float determinant = determinantOf(src);
    const bool isSingular = std::fabs(determinant) < 1.5046328e-36F;
    if (det != nullptr) {
        *det = isSingular ? 0 : determinant;
    }
    if (isSingular) {
        return lxpStatusSingularErr;
    }
    const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(determinant)));
    const float reciprocal = (r + r) - determinant * (r * r);
    return storeEach<16>(dst, [&](int at) {
        const int row = at / 4;
        const int column = at % 4;
        const float minor = minorOf(m.element, column, row);
        return reciprocal * ((row + column) % 2 == 0 ? minor : 0.0F - minor);
    });
}

LxpStatus lxpmAffineTransform_m4v2_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<2> v(srcVec);
    return storeEach<4>(dst, [&](int i) { return (v[0] * src[i] + src[12 + i]) + v[1] * src[4 + i]; });
}

LxpStatus lxpmAffineTransform_m4v3_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<3> v(srcVec);
    return storeEach<4>(dst,
                        [&](int i) { return ((v[0] * src[i] + src[12 + i]) + v[1] * src[4 + i]) + v[2] * src[8 + i]; });
}

LxpStatus lxpmAffineTransform_m4v4_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<4> v(srcVec);
    return storeEach<4>(
        dst, [&](int i) { return (v[0] * src[i] + v[1] * src[4 + i]) + (v[2] * src[8 + i] + v[3] * src[12 + i]); });
}

LxpStatus lxpmAffineTransformCoord_m4v2_32f(const float *src, const float *srcVec, float *dst) {
    float t[4];
    lxpmAffineTransform_m4v2_32f(src, srcVec, t);
    return storeEach<2>(dst, [&](int i) { return t[i] / t[3]; });
}

LxpStatus lxpmAffineTransformCoord_m4v3_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<3> v(srcVec);
    const auto t = [&](int i) { return (v[0] * src[i] + v[1] * src[4 + i]) + (src[12 + i] + v[2] * src[8 + i]); };
    return storeEach<3>(dst, [&](int i) { return t(i) / t(3); });
}

LxpStatus lxpmAffineTransformNormal_m4v2_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<2> v(srcVec);
    return storeEach<2>(dst, [&](int i) { return v[0] * src[i] + v[1] * src[4 + i]; });
}

LxpStatus lxpmAffineTransformNormal_m4v3_32f(const float *src, const float *srcVec, float *dst) {
    const Vector<3> v(srcVec);
    return storeEach<3>(dst, [&](int i) { return (v[0] * src[i] + v[1] * src[4 + i]) + v[2] * src[8 + i]; });
}

LxpStatus lxpmProject_m4v3_32f(const float *projection, const float *view, const float *world, const float *srcVec,
                               float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst) {
    const Vector<3> v(srcVec);
    float t[4];
    float u[4];
    float c[4];
    storeEach<4>(
        t, [&](int i) { return (world[12 + i] + v[2] * world[8 + i]) + (v[0] * world[i] + v[1] * world[4 + i]); });
    lxpmAffineTransform_m4v4_32f(view, t, u);
    lxpmAffineTransform_m4v4_32f(projection, u, c);
    dst[0] = 0.5F * vpWidth + (0.5F * vpWidth) * (c[0] / c[3]);
    dst[1] = 0.5F * vpHeight + (0.0F - 0.5F * vpHeight) * (c[1] / c[3]);
    dst[2] = vpMinZ + (vpMaxZ - vpMinZ) * (c[2] / c[3]);
    return lxpStatusOk;
}

LxpStatus lxpmUnproject_m4v3_32f(const float *projection, const float *view, const float *world, const float *srcVec,
                                 float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst) {
    const Vector<3> v(srcVec);
    dst[0] = (2.0F * v[0]) / vpWidth - 1.0F;
    dst[1] = 1.0F + (-2.0F * v[1]) / vpHeight;
    dst[2] = (v[2] - vpMinZ) / (vpMaxZ - vpMinZ);
    float m[16];
    lxpmMul_mm4x4_32f(world, view, m);
    lxpmMul_mm4x4_32f(m, projection, m);
    const LxpStatus status = lxpmInvert_m4_32f(m, nullptr, m);
    if (status == lxpStatusOk) {
        lxpmAffineTransformCoord_m4v3_32f(m, dst, dst);
    }
    return status;
}

#define DEFINE_ARRAY(operation)                                                                                        \
    LxpStatus lxpm##operation##a_32f(const float *src, const float *srcVecs, int srcObjStride, float *dst,             \
                                     int dstObjStride, int count) {                                                    \
        return forEach(srcVecs, srcObjStride, dst, dstObjStride, count,                                                \
                       [src](const float *from, float *to) { return lxpm##operation##_32f(src, from, to); });          \
    }

DEFINE_ARRAY(AffineTransform_m4v2)
DEFINE_ARRAY(AffineTransform_m4v3)
DEFINE_ARRAY(AffineTransform_m4v4)
DEFINE_ARRAY(AffineTransformCoord_m4v2)
DEFINE_ARRAY(AffineTransformCoord_m4v3)
DEFINE_ARRAY(AffineTransformNormal_m4v2)
DEFINE_ARRAY(AffineTransformNormal_m4v3)

LxpStatus lxpmProject_m4v3a_32f(const float *projection, const float *view, const float *world, const float *srcVecs,
                                int srcObjStride, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst,
                                int dstObjStride, int count) {
    return forEach(srcVecs, srcObjStride, dst, dstObjStride, count, [=](const float *from, float *to) {
        return lxpmProject_m4v3_32f(projection, view, world, from, vpWidth, vpHeight, vpMinZ, vpMaxZ, to);
    });
}

LxpStatus lxpmUnproject_m4v3a_32f(const float *projection, const float *view, const float *world, const float *srcVecs,
                                  int srcObjStride, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
                                  float *dst, int dstObjStride, int count) {
    return forEach(srcVecs, srcObjStride, dst, dstObjStride, count, [=](const float *from, float *to) {
        return lxpmUnproject_m4v3_32f(projection, view, world, from, vpWidth, vpHeight, vpMinZ, vpMaxZ, to);
    });
}

LxpStatus lxpmAffineTransform3DH_mva_32f(const float *src1, int src1RowStride, int src1ElemStride, const float *src2,
                                         int src2ObjStride, int src2ElemStride, float *dst, int dstObjStride,
                                         int dstElemStride, int count) {
    const auto address = [](auto *base, std::ptrdiff_t bytes) {
        return reinterpret_cast<decltype(base)>(reinterpret_cast<std::uintptr_t>(base) + bytes);
    };
    const auto element = [&](int i, int j) { return *address(src1, i * src1RowStride + j * src1ElemStride); };
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        const float *const v = address(src2, k * src2ObjStride);
        float h[4];
        for (int i = 0; i < 4; ++i) {
            h[i] = element(i, 0) * *v + element(i, 1) * *address(v, src2ElemStride);
            h[i] = (h[i] + element(i, 2) * *address(v, 2 * src2ElemStride)) + element(i, 3);
        }
        if (std::fabs(h[3]) < 1.1920929e-7F) {
            return lxpStatusDivByZeroErr;
        }
        for (int i = 0; i < 3; ++i) {
            *address(dst, k * dstObjStride + i * dstElemStride) = h[i] / h[3];
        }
    }
    return lxpStatusOk;
}

} // namespace lxpm::test::reference
