/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_REDUCTIONS_H
#define LXPM_REDUCTIONS_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * DotProduct, CrossProduct, L2Norm, FrobNorm, Trace and Transpose.
 *
 *   DotProduct     the inner product of two vectors of len elements
 *   CrossProduct   the cross product of two vectors of three elements:
 *                      dst = (src1[1] * src2[2] - src1[2] * src2[1],
 *                             src1[2] * src2[0] - src1[0] * src2[2],
 *                             src1[0] * src2[1] - src1[1] * src2[0])
 *   L2Norm         the length of a vector of len elements: the plain square root of the plain sum of squares
 *   FrobNorm       the same of all elements of a matrix of height rows and width columns
 *   Trace          the sum of the diagonal of a matrix of widthHeight rows and columns
 *   Transpose      a copy, transposed: src has height rows of width columns, dst width rows of height columns
 *
 * Operands. Every array holds count objects; a single vector beside an array is used with every vector of the array.
 * The result of a sum is one scalar: dst points to it, and for an array to count of them, one behind the other
 * without gaps, in every layout.
 *
 * Parameters stand in the order sources, destination, sizes, count; the matrix functions have their sizes directly
 * behind the source.
 *
 * Arithmetic is done in the element type throughout: 32f sums stay float. The norms do not scale, so a sum of squares
 * overflows to infinity, or is lost to zero, where the norm itself would not be.
 *
 * Bits. A product, a difference, a root are each one IEEE operation; Transpose copies the bits. Sums start from +0
 * and add their terms in ascending order (those of a matrix row by row), with one exception. Where elements touch
 * (every element stride is the element size; strided and _L layouts only), and a vector has 16 elements or more, or a
 * matrix has 8, 12, or 16 and more columns, the sum is split: with P = 32 for 32f and P = 16 for 64f, term j (column j
 * of a row) is added to partial sum j mod P, in every second row of a matrix to partial sum (j + P / 2) mod P, in
 * ascending order, starting from +0; then the upper half of the partial sums is added to the lower half, element by
 * element, until one sum is left. Nothing else has an influence: not the alignment, not the other strides, not the
 * number of objects or of threads, nor an object's place in an array. (Of several NaN operands, which one's payload
 * survives is left to the processor.)
 *
 * Aliasing. The dst of CrossProduct may be exactly a source array, or for single vectors a source: same address, same
 * strides or pointers, same layout. Any other overlap of dst with a source gives undefined results; Transpose does not
 * work in place.
 *
 * Threads. Array forms of all but Transpose share their objects out among ownGetNumThreads() threads from a few
 * thousand elements on; Transpose and single objects never do.
 *
 * Status. lxpStatusOk, or the first failing check:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusCountErr      count < 1
 *   lxpStatusSizeErr       width, height, widthHeight or len < 1
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 *
 *   in the order                                        for
 *   pointers, count, sizes, strides, offsets            every function, but for the following
 *   pointers, strides, count                            CrossProduct vav, strided
 *   pointers, strides, offsets, count                   CrossProduct vav, _L
 *   pointers, strides, count, offsets                   CrossProduct vav, _P
 */

/* DotProduct */

/* *dst = src1 . src2 */
LxpStatus lxpmDotProduct_vv_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst,
    int len);
LxpStatus lxpmDotProduct_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *dst,
    int len);
LxpStatus lxpmDotProduct_vv_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst,
    int len);
LxpStatus lxpmDotProduct_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *dst,
    int len);

/* dst[k] = src1[k] . src2 */
LxpStatus lxpmDotProduct_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *dst,
    int len, int count);

/* dst[k] = src1[k] . src2[k] */
LxpStatus lxpmDotProduct_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmDotProduct_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *dst,
    int len, int count);

/* CrossProduct */

/* dst = src1 x src2 */
LxpStatus lxpmCrossProduct_vv_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride);
LxpStatus lxpmCrossProduct_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmCrossProduct_vv_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride);
LxpStatus lxpmCrossProduct_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset);

/* dst[k] = src1[k] x src2 */
LxpStatus lxpmCrossProduct_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmCrossProduct_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst[k] = src1 x src2[k] */
LxpStatus lxpmCrossProduct_vva_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vva_32f_L(
    const float *src1, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmCrossProduct_vva_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vva_64f_L(
    const double *src1, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst[k] = src1[k] x src2[k] */
LxpStatus lxpmCrossProduct_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmCrossProduct_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmCrossProduct_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* L2Norm */

/* *dst = sqrt(src . src) */
LxpStatus lxpmL2Norm_v_32f(
    const float *src, int srcElemStride,
    float *dst,
    int len);
LxpStatus lxpmL2Norm_v_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *dst,
    int len);
LxpStatus lxpmL2Norm_v_64f(
    const double *src, int srcElemStride,
    double *dst,
    int len);
LxpStatus lxpmL2Norm_v_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *dst,
    int len);

/* dst[k] = sqrt(src[k] . src[k]) */
LxpStatus lxpmL2Norm_va_32f(
    const float *src, int srcObjStride, int srcElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmL2Norm_va_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmL2Norm_va_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst,
    int len, int count);
LxpStatus lxpmL2Norm_va_64f(
    const double *src, int srcObjStride, int srcElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmL2Norm_va_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmL2Norm_va_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst,
    int len, int count);

/* FrobNorm */

/* *dst = sqrt(sum of the squares of all elements of src) */
LxpStatus lxpmFrobNorm_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    int width, int height,
    float *dst);
LxpStatus lxpmFrobNorm_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    int width, int height,
    float *dst);
LxpStatus lxpmFrobNorm_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    int width, int height,
    double *dst);
LxpStatus lxpmFrobNorm_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    int width, int height,
    double *dst);

/* dst[k] = sqrt(sum of the squares of all elements of src[k]) */
LxpStatus lxpmFrobNorm_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int width, int height,
    float *dst,
    int count);
LxpStatus lxpmFrobNorm_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int width, int height,
    float *dst,
    int count);
LxpStatus lxpmFrobNorm_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int width, int height,
    float *dst,
    int count);
LxpStatus lxpmFrobNorm_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int width, int height,
    double *dst,
    int count);
LxpStatus lxpmFrobNorm_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int width, int height,
    double *dst,
    int count);
LxpStatus lxpmFrobNorm_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int width, int height,
    double *dst,
    int count);

/* Trace */

/* *dst = src(0, 0) + src(1, 1) + ... */
LxpStatus lxpmTrace_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst);
LxpStatus lxpmTrace_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    int widthHeight,
    float *dst);
LxpStatus lxpmTrace_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst);
LxpStatus lxpmTrace_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    int widthHeight,
    double *dst);

/* dst[k] = src[k](0, 0) + src[k](1, 1) + ... */
LxpStatus lxpmTrace_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmTrace_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmTrace_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmTrace_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst,
    int count);
LxpStatus lxpmTrace_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst,
    int count);
LxpStatus lxpmTrace_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int widthHeight,
    double *dst,
    int count);

/* Transpose */

/* dst(j, i) = src(i, j) */
LxpStatus lxpmTranspose_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    int width, int height,
    float *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmTranspose_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    int width, int height,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmTranspose_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    int width, int height,
    double *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmTranspose_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    int width, int height,
    double *const *dstPtrs, int dstPtrOffset);

/* dst[k](j, i) = src[k](i, j) */
LxpStatus lxpmTranspose_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int width, int height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmTranspose_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int width, int height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmTranspose_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int width, int height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmTranspose_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int width, int height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmTranspose_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int width, int height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmTranspose_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int width, int height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
