/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_GRAPHICS_H
#define LXPM_GRAPHICS_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * Graphics: vectors of 2, 3 and 4 elements (v2, v3, v4) and 4x4 matrices (m4), in single precision.
 *
 * Vectors are consecutive floats: x, y, z, w. Matrices are 16 consecutive floats by rows: element (r, c) is m[4*r +
 * c]; r0 to r3 are the rows. A point is a row vector on the left, p * M, so a translation stands in row 3, and A * B
 * applies A first. Angles are in radians.
 *
 * Checks. Unless its comment says otherwise a function checks nothing, not even for null pointers, and returns
 * lxpStatusOk. Divisions by zero (a vector without length, a viewport without width, w = 0) follow the IEEE rules and
 * leave infinities or NaN in the result.
 *
 * Bits. Formulas are to be read as they are written: every operation is rounded to single precision, in the order of
 * the parentheses, from the left where there are none. 0 - x is a subtraction: where x is 0 its result is +0. Results
 * of an array are those of its vectors one by one. Sine and cosine are the C library's, their last bit may differ from
 * one of its versions to the next.
 *
 * Threads. None are started.
 */

/*
 * Small vectors. Aliasing: elements are computed and stored one after the other, x first, and sources are read again
 * for each. dst may overlap a source in any way; an element sees what earlier ones have stored there. So dst may be
 * src1 or src2 of the functions that work element by element, but a cross product in place is not the cross product.
 */

/* dst[i] = src1[i] + src2[i] */
LxpStatus lxpmAdd_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmAdd_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmAdd_v4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* dst[i] = src1[i] - src2[i] */
LxpStatus lxpmSub_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmSub_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmSub_v4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* *dst = src1[0]*src2[0] + src1[1]*src2[1] + ... */
LxpStatus lxpmDotProduct_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmDotProduct_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmDotProduct_v4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* *dst = src[0]*src[0] + src[1]*src[1] + ... */
LxpStatus lxpmLenSqr_v2_32f(
    const float *src,
    float *dst);
LxpStatus lxpmLenSqr_v3_32f(
    const float *src,
    float *dst);
LxpStatus lxpmLenSqr_v4_32f(
    const float *src,
    float *dst);

/* *dst = sqrt(src[0]*src[0] + src[1]*src[1] + ...) */
LxpStatus lxpmLen_v2_32f(
    const float *src,
    float *dst);
LxpStatus lxpmLen_v3_32f(
    const float *src,
    float *dst);
LxpStatus lxpmLen_v4_32f(
    const float *src,
    float *dst);

/* dst[i] = src[i] / Len(src), a division. A vector of zeros gives NaN. */
LxpStatus lxpmNormalize_v2_32f(
    const float *src,
    float *dst);
LxpStatus lxpmNormalize_v3_32f(
    const float *src,
    float *dst);
LxpStatus lxpmNormalize_v4_32f(
    const float *src,
    float *dst);

/* dst[i] = src1[i] < src2[i] ? src1[i] : src2[i]; src2[i] where they are equal or one is NaN */
LxpStatus lxpmMin_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmMin_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmMin_v4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* dst[i] = src1[i] > src2[i] ? src1[i] : src2[i]; src2[i] where they are equal or one is NaN */
LxpStatus lxpmMax_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmMax_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);
LxpStatus lxpmMax_v4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* dst[i] = val * src[i] */
LxpStatus lxpmMulC_v2_32f(
    const float *src,
    float val,
    float *dst);
LxpStatus lxpmMulC_v3_32f(
    const float *src,
    float val,
    float *dst);
LxpStatus lxpmMulC_v4_32f(
    const float *src,
    float val,
    float *dst);

/* *dst = src1[0]*src2[1] - src1[1]*src2[0] */
LxpStatus lxpmCrossProduct_v2_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* dst[0] = src1[1]*src2[2] - src1[2]*src2[1]
 * dst[1] = src1[2]*src2[0] - src1[0]*src2[2]
 * dst[2] = src1[0]*src2[1] - src1[1]*src2[0] */
LxpStatus lxpmCrossProduct_v3_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* The vector that is orthogonal to three others. With a = src1 and m(i,j) = src2[i]*src3[j] - src2[j]*src3[i]:
 *
 * dst[0] =      (a[1]*m(2,3) - a[2]*m(1,3)) + a[3]*m(1,2)
 * dst[1] = 0 - ((a[0]*m(2,3) - a[2]*m(0,3)) + a[3]*m(0,2))
 * dst[2] =      (a[0]*m(1,3) - a[1]*m(0,3)) + a[3]*m(0,1)
 * dst[3] = 0 - ((a[0]*m(1,2) - a[1]*m(0,2)) + a[2]*m(0,1)) */
LxpStatus lxpmCrossProduct_v4_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    float *dst);

/* dst[i] = src1[i] + s*(src2[i] - src1[i]); s is not limited to 0..1 */
LxpStatus lxpmInterpolationLinear_v2_32f(
    const float *src1,
    const float *src2,
    float s,
    float *dst);
LxpStatus lxpmInterpolationLinear_v3_32f(
    const float *src1,
    const float *src2,
    float s,
    float *dst);
LxpStatus lxpmInterpolationLinear_v4_32f(
    const float *src1,
    const float *src2,
    float s,
    float *dst);

/* dst[i] = (src1[i] + f*(src2[i] - src1[i])) + g*(src3[i] - src1[i]) */
LxpStatus lxpmBaryCentric_v2_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    float f, float g,
    float *dst);
LxpStatus lxpmBaryCentric_v3_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    float f, float g,
    float *dst);
LxpStatus lxpmBaryCentric_v4_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    float f, float g,
    float *dst);

/* The cubic from point src1 with tangent src2 (s = 0) to point src3 with tangent src4 (s = 1):
 *
 * dst[i] = (src1[i] - src3[i])*(2s^3 - 3s^2) + ((src1[i] + (s^3 - 2s^2 + s)*src2[i]) + (s^3 - s^2)*src4[i])
 *
 * Powers are rounded to single precision, the three weights formed from them in double precision and then rounded. */
LxpStatus lxpmHermite_v2_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);
LxpStatus lxpmHermite_v3_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);
LxpStatus lxpmHermite_v4_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);

/* The cubic from src2 (s = 0) to src3 (s = 1) in a row of four points: Hermite from src2 with tangent
 * 0.5*(src3 - src1) to src3 with tangent 0.5*(src4 - src2). */
LxpStatus lxpmInterpolationCatmullRom_v2_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);
LxpStatus lxpmInterpolationCatmullRom_v3_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);
LxpStatus lxpmInterpolationCatmullRom_v4_32f(
    const float *src1,
    const float *src2,
    const float *src3,
    const float *src4,
    float s,
    float *dst);

/*
 * Builders of 4x4 matrices. In what follows n and f are zNear and zFar, l, r, b, t are left, right, bottom, top, w and
 * h are width and height; elements that are not mentioned are 0. Forms LH look along positive z, forms RH along
 * negative z; depths go from 0 to 1. dst may not overlap a source.
 */

/* m(0,0) = m(1,1) = m(2,2) = m(3,3) = 1 */
LxpStatus lxpmIdentity_m4_32f(
    float *dst);

/* *result = 1 if element (0, 0) is 1 and at least one whole column is that of the identity, else 0. This is less than a
 * test for the identity: every translation passes. -0 counts as 0. */
LxpStatus lxpmIsIdentity_m4_32f(
    const float *src,
    int *result);

/* The identity with row 3 = (x, y, z, 1) */
LxpStatus lxpmTranslation_m4_32f(
    float x, float y, float z,
    float *dst);

/* m(0,0) = x, m(1,1) = y, m(2,2) = z, m(3,3) = 1 */
LxpStatus lxpmScaling_m4_32f(
    float x, float y, float z,
    float *dst);

/* With s and c the sine and cosine of angle: the diagonal is c but for 1 in the row of the axis and in row 3;
 *
 * X: m(1,2) = s, m(2,1) = 0 - s     Y: m(0,2) = 0 - s, m(2,0) = s     Z: m(0,1) = s, m(1,0) = 0 - s */
LxpStatus lxpmRotationX_m4_32f(
    float angle,
    float *dst);
LxpStatus lxpmRotationY_m4_32f(
    float angle,
    float *dst);
LxpStatus lxpmRotationZ_m4_32f(
    float angle,
    float *dst);

/* Roll about z, then pitch about x, then yaw about y. With the sines and cosines sy, cy, sp, cp, sr, cr:
 *
 * m(0,0) = sr*(sy*sp) + cy*cr    m(0,1) = sr*cp     m(0,2) = sr*(sp*cy) - sy*cr
 * m(1,0) = cr*(sy*sp) - cy*sr    m(1,1) = cr*cp     m(1,2) = sy*sr + cr*(sp*cy)
 * m(2,0) = sy*cp                 m(2,1) = 0 - sp    m(2,2) = cy*cp                 m(3,3) = 1 */
LxpStatus lxpmRotationYawPitchRoll_m4_32f(
    float yaw, float pitch, float roll,
    float *dst);

/* About an axis (3 elements). With s and c the sine and cosine of angle, (x, y, z) = Normalize(axis), k = 1 - c:
 *
 * m(0,0) = c + x*(x*k)      m(0,1) = x*(y*k) + s*z    m(0,2) = x*(z*k) - s*y
 * m(1,0) = y*(x*k) - s*z    m(1,1) = c + y*(y*k)      m(1,2) = s*x + y*(z*k)
 * m(2,0) = s*y + z*(x*k)    m(2,1) = z*(y*k) - s*x    m(2,2) = c + z*(z*k)      m(3,3) = 1 */
LxpStatus lxpmRotationAxis_v3m4_32f(
    const float *axis,
    float angle,
    float *dst);

/* The view of a camera. zAxis = Normalize(at - eye), for RH Normalize(eye - at); xAxis = Normalize(Cross(up, zAxis));
 * yAxis = Cross(zAxis, xAxis). They are columns 0 to 2 of rows 0 to 2 in the order x, y, z;
 * row 3 = (0 - Dot(xAxis, eye), 0 - Dot(yAxis, eye), 0 - Dot(zAxis, eye), 1). All sources have 3 elements. */
LxpStatus lxpmLookAtLH_m4_32f(
    const float *eye,
    const float *at,
    const float *up,
    float *dst);
LxpStatus lxpmLookAtRH_m4_32f(
    const float *eye,
    const float *at,
    const float *up,
    float *dst);

/* m(0,0) = 2/w, m(1,1) = 2/h, m(2,2) = 1/(f - n), m(3,2) = n/(0 - (f - n)), m(3,3) = 1 */
LxpStatus lxpmOrthoLH_m4_32f(
    float width, float height, float zNear, float zFar,
    float *dst);

/* m(0,0) = 2/w, m(1,1) = 2/h, m(2,2) = 1/(n - f), m(3,2) = n/(n - f), m(3,3) = 1 */
LxpStatus lxpmOrthoRH_m4_32f(
    float width, float height, float zNear, float zFar,
    float *dst);

/* m(0,0) = 2/(r - l), m(1,1) = 2/(t - b), m(2,2) = 1/(f - n), m(3,3) = 1,
 * m(3,0) = (l + r)/(0 - (r - l)), m(3,1) = (b + t)/(0 - (t - b)), m(3,2) = n/(0 - (f - n)) */
LxpStatus lxpmOrthoOffCenterLH_m4_32f(
    float left, float right, float bottom, float top, float zNear, float zFar,
    float *dst);

/* m(0,0) = 2/(r - l), m(1,1) = 2/(t - b), m(2,2) = 1/(n - f), m(3,3) = 1,
 * m(3,0) = (l + r)/(0 - (r - l)), m(3,1) = (b + t)/(0 - (t - b)), m(3,2) = n/(n - f) */
LxpStatus lxpmOrthoOffCenterRH_m4_32f(
    float left, float right, float bottom, float top, float zNear, float zFar,
    float *dst);

/* m(0,0) = (n + n)/w, m(1,1) = (n + n)/h, m(2,2) = f/(f - n), m(2,3) = 1, m(3,2) = (n*f)/(0 - (f - n)) */
LxpStatus lxpmPerspectiveLH_m4_32f(
    float width, float height, float zNear, float zFar,
    float *dst);

/* m(0,0) = (n + n)/w, m(1,1) = (n + n)/h, m(2,2) = f/(n - f), m(2,3) = -1, m(3,2) = (n*f)/(n - f) */
LxpStatus lxpmPerspectiveRH_m4_32f(
    float width, float height, float zNear, float zFar,
    float *dst);

/* With s and c the sine and cosine of 0.5*fovY: m(1,1) = c/s, m(0,0) = m(1,1)/aspect,
 * m(2,2) = f/(f - n), m(2,3) = 1, m(3,2) = (0 - n*f)/(f - n) */
LxpStatus lxpmPerspectiveFovLH_m4_32f(
    float fovY, float aspect, float zNear, float zFar,
    float *dst);

/* With s and c the sine and cosine of 0.5*fovY: m(1,1) = c/s, m(0,0) = m(1,1)/aspect,
 * m(2,2) = f/(n - f), m(2,3) = -1, m(3,2) = (n*f)/(n - f) */
LxpStatus lxpmPerspectiveFovRH_m4_32f(
    float fovY, float aspect, float zNear, float zFar,
    float *dst);

/* m(0,0) = (n + n)/(r - l), m(1,1) = (n + n)/(t - b), m(2,0) = (l + r)/(0 - (r - l)),
 * m(2,1) = (b + t)/(0 - (t - b)), m(2,2) = f/(f - n), m(2,3) = 1, m(3,2) = (n*f)/(0 - (f - n)) */
LxpStatus lxpmPerspectiveOffCenterLH_m4_32f(
    float left, float right, float bottom, float top, float zNear, float zFar,
    float *dst);

/* m(0,0) = (n + n)/(r - l), m(1,1) = (n + n)/(t - b), m(2,0) = (l + r)/(r - l),
 * m(2,1) = (b + t)/(t - b), m(2,2) = f/(n - f), m(2,3) = -1, m(3,2) = (n*f)/(n - f) */
LxpStatus lxpmPerspectiveOffCenterRH_m4_32f(
    float left, float right, float bottom, float top, float zNear, float zFar,
    float *dst);

/*
 * Operations on 4x4 matrices. dst may be exactly a source; no other overlap is allowed.
 */

/* Row i of dst = ((a[0]*r0 + a[1]*r1) + a[2]*r2) + a[3]*r3 with a = row i of src1 and r0 to r3 = the rows of src2.
 * lxpStatusNullPtrErr if a pointer is null. */
LxpStatus lxpmMul_mm4x4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* The product of Mul_mm4x4, transposed */
LxpStatus lxpmMulTranspose_m4_32f(
    const float *src1,
    const float *src2,
    float *dst);

/* dst(r, c) = src(c, r) */
LxpStatus lxpmTranspose_m4_32f(
    const float *src,
    float *dst);

/* The determinant. With m(i,j) = r2[i]*r3[j] - r2[j]*r3[i]: *dst = (c0 - c1) + (c2 - c3), where
 *
 * c0 = ((r1[1]*m(2,3) - r1[2]*m(1,3)) + r1[3]*m(1,2))*r0[0]
 * c1 = ((r1[0]*m(2,3) - r1[2]*m(0,3)) + r1[3]*m(0,2))*r0[1]
 * c2 = ((r1[0]*m(1,3) - r1[1]*m(0,3)) + r1[3]*m(0,1))*r0[2]
 * c3 = ((r1[0]*m(1,2) - r1[1]*m(0,2)) + r1[2]*m(0,1))*r0[3] */
LxpStatus lxpmDet_m4_32f(
    const float *src,
    float *dst);

/* The inverse, and the determinant (that of Det_m4) in *det unless det is null. lxpStatusSingularErr if the
 * determinant's magnitude is below 2^-119 (1.5046328e-36): dst is not written, *det is 0. The limit is absolute, so
 * scale a matrix whose elements are all tiny.
 *
 * dst is the adjugate times an approximation r + r - det*(r*r) of the reciprocal, r being the processor's estimate of
 * 1/det (relative error below 1.5 * 2^-12). Its last bits can differ from those of a division, and between makes of
 * processors. Below about 2^-64 the square of r overflows, and the result is made of infinities and NaN although the
 * status is lxpStatusOk. */
LxpStatus lxpmInvert_m4_32f(
    const float *src,
    float *det,
    float *dst);

/*
 * Vectors times a 4x4 matrix. Missing elements of points count as 0, and w as 1.
 *
 * Arrays hold count vectors; the byte distances from one to the next are srcObjStride and dstObjStride and may be any
 * multiples of 4, vectors without space between them (stride 8, 12 or 16) being the fastest. If count < 1 nothing is
 * touched. Only vectors are read and written, and no memory behind the last one; what stands between vectors is not
 * written. dst may be exactly the source, with the same stride, where both have vectors of the same length; no other
 * overlap is allowed.
 */

/* dst = (x*r0 + r3) + y*r1, 4 elements */
LxpStatus lxpmAffineTransform_m4v2_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransform_m4v2a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* dst = ((x*r0 + r3) + y*r1) + z*r2, 4 elements */
LxpStatus lxpmAffineTransform_m4v3_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransform_m4v3a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* dst = (x*r0 + y*r1) + (z*r2 + w*r3) */
LxpStatus lxpmAffineTransform_m4v4_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransform_m4v4a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* t = (x*r0 + r3) + y*r1; dst[i] = t[i]/t[3], 2 elements */
LxpStatus lxpmAffineTransformCoord_m4v2_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransformCoord_m4v2a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* t = (x*r0 + y*r1) + (r3 + z*r2); dst[i] = t[i]/t[3], 3 elements */
LxpStatus lxpmAffineTransformCoord_m4v3_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransformCoord_m4v3a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* dst = x*r0 + y*r1, 2 elements; the translation has no part in it */
LxpStatus lxpmAffineTransformNormal_m4v2_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransformNormal_m4v2a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* dst = (x*r0 + y*r1) + z*r2, 3 elements; the translation has no part in it */
LxpStatus lxpmAffineTransformNormal_m4v3_32f(
    const float *src,
    const float *srcVec,
    float *dst);
LxpStatus lxpmAffineTransformNormal_m4v3a_32f(
    const float *src,
    const float *srcVecs, int srcObjStride,
    float *dst, int dstObjStride,
    int count);

/* From model space to the viewport. With the rows w0 to w3 of world, v0 to v3 of view, p0 to p3 of projection:
 *
 * t = (w3 + z*w2) + (x*w0 + y*w1)
 * u = (t[0]*v0 + t[1]*v1) + (t[2]*v2 + t[3]*v3)
 * c = (u[0]*p0 + u[1]*p1) + (u[2]*p2 + u[3]*p3)
 * n = c / c[3]
 * dst[0] = 0.5*vpWidth + (0.5*vpWidth)*n[0]
 * dst[1] = 0.5*vpHeight + (0 - 0.5*vpHeight)*n[1]
 * dst[2] = vpMinZ + (vpMaxZ - vpMinZ)*n[2]
 *
 * The viewport's origin is (0, 0), its y runs from top to bottom. */
LxpStatus lxpmProject_m4v3_32f(
    const float *projection,
    const float *view,
    const float *world,
    const float *srcVec,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
    float *dst);
LxpStatus lxpmProject_m4v3a_32f(
    const float *projection,
    const float *view,
    const float *world,
    const float *srcVecs, int srcObjStride,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
    float *dst, int dstObjStride,
    int count);

/* From the viewport back to model space:
 *
 * n = ((2*x)/vpWidth - 1, 1 + (-2*y)/vpHeight, (z - vpMinZ)/(vpMaxZ - vpMinZ))
 * dst = AffineTransformCoord_m4v3 of n by Invert_m4((world * view) * projection), products as those of Mul_mm4x4
 *
 * lxpStatusSingularErr if Invert_m4 finds the product singular; dst is then n, for an array that of every vector. */
LxpStatus lxpmUnproject_m4v3_32f(
    const float *projection,
    const float *view,
    const float *world,
    const float *srcVec,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
    float *dst);
LxpStatus lxpmUnproject_m4v3a_32f(
    const float *projection,
    const float *view,
    const float *world,
    const float *srcVecs, int srcObjStride,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
    float *dst, int dstObjStride,
    int count);

/* The homogeneous transform of an array of 3-element vectors by a 4x4 matrix, operands with strides in bytes. Unlike
 * the functions above, and like those of other families, the matrix stands on the left of a column vector:
 *
 * h[i] = ((m(i,0)*x + m(i,1)*y) + m(i,2)*z) + m(i,3)
 * dst[i] = h[i] / h[3], i < 3
 *
 * Status: the first failing check of lxpStatusNullPtrErr (a pointer is null), lxpStatusCountErr (count < 1),
 * lxpStatusStrideErr (a stride < 1 or not a multiple of 4); then, at the first vector with |h[3]| < 1.1920929e-7,
 * lxpStatusDivByZeroErr: the vectors in front of it are written, it and those behind it are not. dst may be src2 if its
 * strides are the same. */
LxpStatus lxpmAffineTransform3DH_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int count);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
