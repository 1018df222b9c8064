/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_PRODUCTS_H
#define LXPM_PRODUCTS_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * Mul: the product of two operands.
 *
 * Products of matrices and vectors. Each source's sizes stand behind it, those of a matrix as it is stored: srcHeight
 * rows of srcWidth columns, read transposed where its code is t. The result's size follows from them and is not passed:
 *
 *   mm, mt, tm, tt   A * B, where A is src1 or its transpose and B is src2 or its transpose: as many rows as A, as many
 *                    columns as B. A must have as many columns as B has rows.
 *   mv, tv           A * src2: as many elements as A has rows. src2Len must be the number of A's columns.
 *
 * An a behind a letter makes the operand an array of count objects, and the result too; a single object beside an array
 * is used with every object of it.
 *
 * Products with constants. mc, tc and vc multiply every element by val; width and height, or len, are those of the
 * result, and a matrix with code t is stored as width rows of height columns. An array of constants (ca) holds one
 * constant for each object and keeps its base pointer and stride in the _P layout; in vca they meet one vector.
 *
 * Strides and pointer offsets are in bytes; an operand's strides (its pointers in the _P layout) describe it as it is
 * stored.
 *
 * Bits. Every product and every sum is rounded to the element type. An element of a product of matrices or vectors is a
 * sum that starts at +0 and takes its products in ascending order of the inner index, for every size, layout, stride,
 * number of objects and of threads; a sum of products that are all -0 is +0. (Of several NaN operands, which one's
 * payload survives is left to the processor.)
 *
 * Aliasing. In the products with constants dst may be exactly the source, if that is not transposed: same address, same
 * strides or pointers, same layout. Any other overlap of dst with a source, or of its own elements with one another,
 * gives undefined results. What lies between the elements of dst is not written: rows of three elements that are padded
 * to four keep their fourth.
 *
 * Threads. Array forms that touch more than a few thousand elements (650 to 3,600, depending on operands, layout, type
 * and on whether elements touch) share their objects out among ownGetNumThreads() threads; single objects never do.
 *
 * Status. lxpStatusOk, or the first failing check, in this order:
 *
 *   lxpStatusNullPtrErr     a pointer, or a pointer array, is null
 *   lxpStatusCountErr       count < 1
 *   lxpStatusSizeErr        a width, a height or a length < 1
 *   lxpStatusSizeMatchErr   the inner dimensions of a product of matrices or vectors differ
 *   lxpStatusStrideErr      a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr    a pointer offset < 0 or not a multiple of the element size
 */

/* dst = src1 * src2 */
LxpStatus lxpmMul_mm_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_mm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_mm_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_mm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = src1 * transpose(src2) */
LxpStatus lxpmMul_mt_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_mt_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_mt_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_mt_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tm_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_tm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_tm_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_tm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = transpose(src1) * transpose(src2) */
LxpStatus lxpmMul_tt_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_tt_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_tt_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstRowStride, int dstElemStride);
LxpStatus lxpmMul_tt_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mv_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *dst, int dstElemStride);
LxpStatus lxpmMul_mv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Len,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_mv_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *dst, int dstElemStride);
LxpStatus lxpmMul_mv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Len,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tv_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *dst, int dstElemStride);
LxpStatus lxpmMul_tv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Len,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmMul_tv_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *dst, int dstElemStride);
LxpStatus lxpmMul_tv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Len,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = val * src */
LxpStatus lxpmMul_mc_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float val,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmMul_mc_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float val,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmMul_mc_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double val,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmMul_mc_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double val,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = val * transpose(src) */
LxpStatus lxpmMul_tc_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float val,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmMul_tc_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float val,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmMul_tc_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double val,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmMul_tc_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double val,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = val * src */
LxpStatus lxpmMul_vc_32f(
    const float *src, int srcElemStride,
    float val,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmMul_vc_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float val,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmMul_vc_64f(
    const double *src, int srcElemStride,
    double val,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmMul_vc_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double val,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mma_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mma_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mma_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mma_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mma_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mma_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * transpose(src2) */
LxpStatus lxpmMul_mat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * transpose(src2) */
LxpStatus lxpmMul_mta_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mta_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mta_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mta_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mta_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mta_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * transpose(src2) */
LxpStatus lxpmMul_mata_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mata_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mata_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mata_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mata_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mata_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tma_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tma_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tma_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tma_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tma_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tma_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * transpose(src2) */
LxpStatus lxpmMul_tat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * transpose(src2) */
LxpStatus lxpmMul_tta_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tta_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tta_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tta_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tta_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tta_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * transpose(src2) */
LxpStatus lxpmMul_tata_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tata_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tata_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tata_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tata_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tata_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Width, int src2Height,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mav_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mav_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mva_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 */
LxpStatus lxpmMul_mava_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_mava_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_mava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_mava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tav_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tav_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tva_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tva_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = transpose(src1) * src2 */
LxpStatus lxpmMul_tava_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmMul_tava_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmMul_tava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmMul_tava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = val * src */
LxpStatus lxpmMul_mac_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float val,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_mac_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_mac_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmMul_mac_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double val,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_mac_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_mac_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst = val * transpose(src) */
LxpStatus lxpmMul_tac_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float val,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_tac_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_tac_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmMul_tac_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double val,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_tac_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmMul_tac_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst = val * src */
LxpStatus lxpmMul_vac_32f(
    const float *src, int srcObjStride, int srcElemStride,
    float val,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vac_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vac_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmMul_vac_64f(
    const double *src, int srcObjStride, int srcElemStride,
    double val,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vac_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vac_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst = vals * src */
LxpStatus lxpmMul_vca_32f(
    const float *src, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vca_32f_L(
    const float *src, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmMul_vca_64f(
    const double *src, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vca_64f_L(
    const double *src, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst = vals * src */
LxpStatus lxpmMul_vaca_32f(
    const float *src, int srcObjStride, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vaca_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vaca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmMul_vaca_64f(
    const double *src, int srcObjStride, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vaca_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmMul_vaca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/*
 * Gaxpy: a matrix times a vector plus a vector, dst = src1 * src2 + src3.
 *
 * src1 is one matrix of src1Height rows and src1Width columns. In mv the vectors are single ones; in mva src2, src3 and
 * dst are arrays of count vectors; in mvav src3 is one vector, used with every object. src2Len must be src1Width, and
 * src3Len src1Height; dst has src1Height elements. Strides and pointer offsets are in bytes.
 *
 * Bits. An element is a sum that starts at +0, takes the products in ascending order, and the element of src3 last;
 * every product and every sum is rounded to the element type. All sizes, layouts, strides, numbers of objects and of
 * threads give the same bits.
 *
 * Aliasing. dst must not overlap a source, nor its elements one another.
 *
 * Threads. mva and mvav share their objects out among ownGetNumThreads() threads when their vectors have more than a
 * few thousand elements together (500 to 7,000, depending on layout, type and on whether elements touch).
 *
 * Status. As Mul: pointers, count, sizes, agreement of sizes, strides, offsets.
 */

/* dst = src1 * src2 + src3 */
LxpStatus lxpmGaxpy_mv_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ElemStride, int src2Len,
    const float *src3, int src3ElemStride, int src3Len,
    float *dst, int dstElemStride);
LxpStatus lxpmGaxpy_mv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2Len,
    const float *const *src3Ptrs, int src3PtrOffset, int src3Len,
    float *const *dstPtrs, int dstPtrOffset);
LxpStatus lxpmGaxpy_mv_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ElemStride, int src2Len,
    const double *src3, int src3ElemStride, int src3Len,
    double *dst, int dstElemStride);
LxpStatus lxpmGaxpy_mv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2Len,
    const double *const *src3Ptrs, int src3PtrOffset, int src3Len,
    double *const *dstPtrs, int dstPtrOffset);

/* dst = src1 * src2 + src3 */
LxpStatus lxpmGaxpy_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    const float *src3, int src3ObjStride, int src3ElemStride, int src3Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    const float *const *src3Ptrs, int src3PtrOffset, int src3ElemStride, int src3Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    const float *const *src3Ptrs, int src3PtrOffset, int src3ObjStride, int src3Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmGaxpy_mva_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    const double *src3, int src3ObjStride, int src3ElemStride, int src3Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    const double *const *src3Ptrs, int src3PtrOffset, int src3ElemStride, int src3Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    const double *const *src3Ptrs, int src3PtrOffset, int src3ObjStride, int src3Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* dst = src1 * src2 + src3 */
LxpStatus lxpmGaxpy_mvav_32f(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    const float *src3, int src3ElemStride, int src3Len,
    float *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mvav_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    const float *src3, int src3ElemStride, int src3Len,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mvav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    const float *const *src3Ptrs, int src3PtrOffset, int src3Len,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);
LxpStatus lxpmGaxpy_mvav_64f(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *src2, int src2ObjStride, int src2ElemStride, int src2Len,
    const double *src3, int src3ElemStride, int src3Len,
    double *dst, int dstObjStride, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mvav_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride, int src2Len,
    const double *src3, int src3ElemStride, int src3Len,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int count);
LxpStatus lxpmGaxpy_mvav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1Width, int src1Height,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride, int src2Len,
    const double *const *src3Ptrs, int src3PtrOffset, int src3Len,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int count);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
