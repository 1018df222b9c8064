/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_ELEMENTWISE_H
#define LXPM_ELEMENTWISE_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * Add and Sub: the sum and the difference of two operands, element by element.
 *
 * Operands. Every matrix is height rows of width columns, every vector len elements, every array count objects. A
 * matrix with code t is read transposed: it is stored as width rows of height columns, and its strides (its pointers in
 * the _P layout) describe it as it is stored. A single object beside an array is used with every object of the array.
 * A single constant is passed by value; an array of constants (vals) holds one constant for each object and keeps its
 * base pointer and stride in the _P layout. Add is offered in one order of each pair, Sub in both.
 *
 * Parameters stand in the order first source, second source, destination, sizes, count. One exception: Sub cav takes
 * its vector before its constants; the operation is constant minus vector all the same.
 *
 * Bits. Each result is one IEEE addition or subtraction in the element type; whatever the layout, the strides, the
 * number of objects or of threads, the bits are the same. (Of two NaN operands, which one's payload survives is left
 * to the processor.)
 *
 * Aliasing. dst may be exactly a source that is not transposed: same address, same strides or pointers, same layout.
 * Any other overlap of dst with a source gives undefined results.
 *
 * Threads. Array forms that touch more than a few thousand elements (1,400 to 4,800, depending on operands, layout and
 * type) share their objects out among ownGetNumThreads() threads; single objects never do.
 *
 * Status. lxpStatusOk, or the first failing check:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusCountErr      count < 1
 *   lxpStatusSizeErr       width, height or len < 1
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 *
 *   in the order                                        for
 *   pointers, count, sizes, strides, offsets            every code with an array, but for the following
 *   pointers, count, strides, sizes                     mam and mma, strided
 *   pointers, sizes, strides, count                     vav, strided
 *   pointers, sizes, strides, offsets, count            vav, _L
 *   pointers, sizes, strides, count, offsets            vav, _P
 *   pointers, sizes, strides or offsets                 single objects
 */

/* Add */

/* dst = src1 + src2 */
LxpStatus lxpmAdd_mm_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_mm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmAdd_mm_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_mm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = transpose(src1) + src2 */
LxpStatus lxpmAdd_tm_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_tm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmAdd_tm_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_tm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = transpose(src1) + transpose(src2) */
LxpStatus lxpmAdd_tt_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_tt_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmAdd_tt_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmAdd_tt_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = src1 + src2 */
LxpStatus lxpmAdd_vv_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmAdd_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmAdd_vv_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmAdd_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst = src + val */
LxpStatus lxpmAdd_vc_32f(
    const float *src, int srcElemStride,
    float val,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmAdd_vc_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float val,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmAdd_vc_64f(
    const double *src, int srcElemStride,
    double val,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmAdd_vc_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double val,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst[k] = src1[k] + src2 */
LxpStatus lxpmAdd_mam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) + src2 */
LxpStatus lxpmAdd_tam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] + transpose(src2) */
LxpStatus lxpmAdd_mat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) + transpose(src2) */
LxpStatus lxpmAdd_tat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] + src2[k] */
LxpStatus lxpmAdd_mama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_mama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) + src2[k] */
LxpStatus lxpmAdd_tama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) + transpose(src2[k]) */
LxpStatus lxpmAdd_tata_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tata_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tata_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tata_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tata_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmAdd_tata_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] + src2 */
LxpStatus lxpmAdd_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmAdd_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src1[k] + src2[k] */
LxpStatus lxpmAdd_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmAdd_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src + vals[k] */
LxpStatus lxpmAdd_vca_32f(
    const float *src, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vca_32f_L(
    const float *src, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmAdd_vca_64f(
    const double *src, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vca_64f_L(
    const double *src, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src[k] + val */
LxpStatus lxpmAdd_vac_32f(
    const float *src, int srcObjStride, int srcElemStride,
    float val,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vac_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vac_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmAdd_vac_64f(
    const double *src, int srcObjStride, int srcElemStride,
    double val,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vac_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vac_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src[k] + vals[k] */
LxpStatus lxpmAdd_vaca_32f(
    const float *src, int srcObjStride, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vaca_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vaca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmAdd_vaca_64f(
    const double *src, int srcObjStride, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vaca_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmAdd_vaca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* Sub */

/* dst = src1 - src2 */
LxpStatus lxpmSub_mm_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_mm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmSub_mm_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_mm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = src1 - transpose(src2) */
LxpStatus lxpmSub_mt_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_mt_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmSub_mt_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_mt_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = transpose(src1) - src2 */
LxpStatus lxpmSub_tm_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_tm_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmSub_tm_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_tm_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = transpose(src1) - transpose(src2) */
LxpStatus lxpmSub_tt_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_tt_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmSub_tt_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmSub_tt_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* dst = src1 - src2 */
LxpStatus lxpmSub_vv_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmSub_vv_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst = src - val */
LxpStatus lxpmSub_vc_32f(
    const float *src, int srcElemStride,
    float val,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_vc_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float val,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmSub_vc_64f(
    const double *src, int srcElemStride,
    double val,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_vc_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double val,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst = val - src */
LxpStatus lxpmSub_cv_32f(
    float val,
    const float *src, int srcElemStride,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_cv_32f_P(
    float val,
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmSub_cv_64f(
    double val,
    const double *src, int srcElemStride,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmSub_cv_64f_P(
    double val,
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst[k] = src1[k] - src2 */
LxpStatus lxpmSub_mam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) - src2 */
LxpStatus lxpmSub_tam_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tam_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tam_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tam_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tam_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tam_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] - transpose(src2) */
LxpStatus lxpmSub_mat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) - transpose(src2) */
LxpStatus lxpmSub_tat_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tat_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *src2, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tat_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tat_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tat_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *src2, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tat_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] - src2[k] */
LxpStatus lxpmSub_mama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) - src2[k] */
LxpStatus lxpmSub_tama_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tama_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tama_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tama_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tama_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tama_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1[k]) - transpose(src2[k]) */
LxpStatus lxpmSub_tata_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tata_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tata_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tata_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tata_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tata_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] - transpose(src2[k]) */
LxpStatus lxpmSub_mata_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mata_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mata_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mata_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mata_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mata_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1 - src2[k] */
LxpStatus lxpmSub_mma_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mma_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mma_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mma_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mma_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mma_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1 - transpose(src2[k]) */
LxpStatus lxpmSub_mta_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mta_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mta_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_mta_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mta_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_mta_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1) - src2[k] */
LxpStatus lxpmSub_tma_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tma_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tma_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tma_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tma_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tma_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = transpose(src1) - transpose(src2[k]) */
LxpStatus lxpmSub_tta_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tta_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tta_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmSub_tta_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2RowStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tta_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2RowStride, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmSub_tta_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* dst[k] = src1[k] - src2 */
LxpStatus lxpmSub_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src1 - src2[k] */
LxpStatus lxpmSub_vva_32f(
    const float *src1, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vva_32f_L(
    const float *src1, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vva_64f(
    const double *src1, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vva_64f_L(
    const double *src1, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src1[k] - src2[k] */
LxpStatus lxpmSub_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src - vals[k] */
LxpStatus lxpmSub_vca_32f(
    const float *src, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vca_32f_L(
    const float *src, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vca_64f(
    const double *src, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vca_64f_L(
    const double *src, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src[k] - val */
LxpStatus lxpmSub_vac_32f(
    const float *src, int srcObjStride, int srcElemStride,
    float val,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vac_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vac_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float val,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vac_64f(
    const double *src, int srcObjStride, int srcElemStride,
    double val,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vac_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vac_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double val,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src[k] - vals[k] */
LxpStatus lxpmSub_vaca_32f(
    const float *src, int srcObjStride, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vaca_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vaca_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_vaca_64f(
    const double *src, int srcObjStride, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vaca_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_vaca_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = val - src[k] */
LxpStatus lxpmSub_cva_32f(
    float val,
    const float *src, int srcObjStride, int srcElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cva_32f_L(
    float val,
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cva_32f_P(
    float val,
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_cva_64f(
    double val,
    const double *src, int srcObjStride, int srcElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cva_64f_L(
    double val,
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cva_64f_P(
    double val,
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = vals[k] - src; one vector, which stands before the constants here */
LxpStatus lxpmSub_cav_32f(
    const float *src, int srcElemStride,
    const float *vals, int valsObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cav_32f_L(
    const float *src, int srcElemStride,
    const float *const *valsPtrs, int valsPtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cav_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    const float *vals, int valsObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_cav_64f(
    const double *src, int srcElemStride,
    const double *vals, int valsObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cav_64f_L(
    const double *src, int srcElemStride,
    const double *const *valsPtrs, int valsPtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cav_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    const double *vals, int valsObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = vals[k] - src[k] */
LxpStatus lxpmSub_cava_32f(
    const float *vals, int valsObjStride,
    const float *src, int srcObjStride, int srcElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cava_32f_L(
    const float *const *valsPtrs, int valsPtrOffset,
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cava_32f_P(
    const float *vals, int valsObjStride,
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSub_cava_64f(
    const double *vals, int valsObjStride,
    const double *src, int srcObjStride, int srcElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cava_64f_L(
    const double *const *valsPtrs, int valsPtrOffset,
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSub_cava_64f_P(
    const double *vals, int valsObjStride,
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/*
 * Copy: an array from one layout into another, or into the same one.
 *
 * Operands. The two letters at the end of a name are the layouts of source and destination: S strided, L object
 * pointers, P element pointers. Every matrix is height rows of width columns, every vector len elements, every array
 * count objects.
 *
 * Parameters stand in the order source, destination, sizes, count, those of each operand as its own layout has them.
 *
 * Bits. Elements are moved, not computed with: every bit pattern arrives as it was, signalling NaN included, and no
 * floating-point exception is raised.
 *
 * Aliasing. dst may be exactly src: same address, same strides or pointers, same layout. Any other overlap of dst with
 * src gives undefined results.
 *
 * Threads. Calls that touch 60,000 elements or more, each one that is read and each one that is written counted, share
 * their objects out among ownGetNumThreads() threads.
 *
 * Status. lxpStatusOk, or the first failing check, in this order:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusSizeErr       width, height or len < 1
 *   lxpStatusCountErr      count < 1
 *   lxpStatusStrideErr     a stride of an S or L operand < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 *   lxpStatusStrideErr     the object stride of a P operand < 1 or not a multiple of the element size; with a count of 1
 *                          it is neither checked nor used
 */

/* dst[k] = src[k] */
LxpStatus lxpmCopy_va_32f_SS(
    const float *src, int srcObjStride, int srcElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_SL(
    const float *src, int srcObjStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_SP(
    const float *src, int srcObjStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_LS(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_LL(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_LP(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_PS(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_PL(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_32f_PP(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_SS(
    const double *src, int srcObjStride, int srcElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_SL(
    const double *src, int srcObjStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_SP(
    const double *src, int srcObjStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_LS(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_LL(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_LP(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_PS(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_PL(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmCopy_va_64f_PP(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = src[k] */
LxpStatus lxpmCopy_ma_32f_SS(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_SL(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_SP(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_LS(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_LL(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_LP(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_PS(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_PL(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_32f_PP(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_SS(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_SL(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_SP(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_LS(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_LL(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_LP(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_PS(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_PL(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmCopy_ma_64f_PP(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/*
 * Extract: an object, or an array of them, into plain dense memory.
 *
 * Operands. src is a matrix of height rows of width columns, a vector of len elements, or an array of count of them. A
 * matrix with code t is read transposed: it is stored as width rows of height columns, and its strides (its pointers in
 * the _P layout) describe it as it is stored; width and height are those of the result. dst points to the first element
 * of the result: rows without gaps between them, objects one behind the other.
 *
 * Parameters stand in the order source, destination, sizes, count.
 *
 * Bits. As for Copy.
 *
 * Aliasing. An overlap of dst with src gives undefined results.
 *
 * Threads. As for Copy; single objects never use them.
 *
 * Status. lxpStatusOk, or the first failing check:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusSizeErr       width, height or len < 1
 *   lxpStatusCountErr      count < 1
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 *
 *   in the order                                        for
 *   pointers, sizes, count, strides                     arrays, strided
 *   pointers, sizes, count, offsets, strides            arrays, _L and _P
 *   pointers, sizes, strides                            single objects, strided
 *   sizes, pointers, offsets                            single objects, _P
 */

/* dst = src */
LxpStatus lxpmExtract_v_32f(
    const float *src, int srcElemStride,
    float *dst,
    int len);
LxpStatus lxpmExtract_v_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *dst,
    int len);
LxpStatus lxpmExtract_v_64f(
    const double *src, int srcElemStride,
    double *dst,
    int len);
LxpStatus lxpmExtract_v_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *dst,
    int len);

/* dst = src */
LxpStatus lxpmExtract_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height);
LxpStatus lxpmExtract_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *dst,
    int width, int height);
LxpStatus lxpmExtract_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height);
LxpStatus lxpmExtract_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *dst,
    int width, int height);

/* dst = transpose(src) */
LxpStatus lxpmExtract_t_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height);
LxpStatus lxpmExtract_t_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *dst,
    int width, int height);
LxpStatus lxpmExtract_t_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height);
LxpStatus lxpmExtract_t_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *dst,
    int width, int height);

/* dst[k] = src[k] */
LxpStatus lxpmExtract_va_32f(
    const float *src, int srcObjStride, int srcElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmExtract_va_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    float *dst,
    int len, int count);
LxpStatus lxpmExtract_va_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst,
    int len, int count);
LxpStatus lxpmExtract_va_64f(
    const double *src, int srcObjStride, int srcElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmExtract_va_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcElemStride,
    double *dst,
    int len, int count);
LxpStatus lxpmExtract_va_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst,
    int len, int count);

/* dst[k] = src[k] */
LxpStatus lxpmExtract_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst,
    int width, int height, int count);

/* dst[k] = transpose(src[k]) */
LxpStatus lxpmExtract_ta_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ta_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ta_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ta_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ta_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *dst,
    int width, int height, int count);
LxpStatus lxpmExtract_ta_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dst,
    int width, int height, int count);

/*
 * LoadIdentity: ones where row equals column, zeros elsewhere.
 *
 * Operands. dst is an array of count matrices of height rows of width columns; they need not be square.
 *
 * Threads. As for Copy.
 *
 * Status. lxpStatusOk, or the first failing check, in this order:
 *
 *   lxpStatusNullPtrErr    the pointer, or the pointer array, is null
 *   lxpStatusSizeErr       width or height < 1
 *   lxpStatusCountErr      count < 1
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   the pointer offset < 0 or not a multiple of the element size
 */

/* dst[k] = identity */
LxpStatus lxpmLoadIdentity_ma_32f(
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmLoadIdentity_ma_32f_L(
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmLoadIdentity_ma_32f_P(
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmLoadIdentity_ma_64f(
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmLoadIdentity_ma_64f_L(
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmLoadIdentity_ma_64f_P(
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/*
 * Saxpy and LComb: a vector times a constant plus another vector, and the sum of two vectors times a constant each.
 *
 * Operands. Every vector is len elements, every array count objects. A single vector beside an array is used with every
 * object of the array. The constants are passed by value and are the same for all objects.
 *
 * Parameters stand in the order first source, its constant, second source (LComb: its constant), destination, len,
 * count.
 *
 * Bits. Each product and each sum is one IEEE operation in the element type, rounded by itself; whatever the layout,
 * the strides, the number of objects or of threads, the bits are the same. (Of two NaN operands, which one's payload
 * survives is left to the processor.)
 *
 * Aliasing. dst may be exactly a source of the same kind: same address, same strides or pointers, same layout. Any
 * other overlap of dst with a source gives undefined results.
 *
 * Threads. Array forms that touch 60,000 elements or more (those of arrays counted once for each object, those of
 * single vectors once) share their objects out among ownGetNumThreads() threads; single objects never do.
 *
 * Status. lxpStatusOk, or the first failing check, in this order:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusCountErr      count < 1
 *   lxpStatusSizeErr       len < 1
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 */

/* Saxpy */

/* dst = (val * src1) + src2 */
LxpStatus lxpmSaxpy_vv_32f(
    const float *src1, int src1ElemStride,
    float val,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmSaxpy_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmSaxpy_vv_64f(
    const double *src1, int src1ElemStride,
    double val,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmSaxpy_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst[k] = (val * src1[k]) + src2 */
LxpStatus lxpmSaxpy_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    float val,
    const float *src2, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    float val,
    const float *src2, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSaxpy_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    double val,
    const double *src2, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    double val,
    const double *src2, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = (val * src1) + src2[k] */
LxpStatus lxpmSaxpy_vva_32f(
    const float *src1, int src1ElemStride,
    float val,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vva_32f_L(
    const float *src1, int src1ElemStride,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSaxpy_vva_64f(
    const double *src1, int src1ElemStride,
    double val,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vva_64f_L(
    const double *src1, int src1ElemStride,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = (val * src1[k]) + src2[k] */
LxpStatus lxpmSaxpy_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    float val,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    float val,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmSaxpy_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    double val,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmSaxpy_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    double val,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* LComb */

/* dst = (val1 * src1) + (val2 * src2) */
LxpStatus lxpmLComb_vv_32f(
    const float *src1, int src1ElemStride,
    float val1,
    const float *src2, int src2ElemStride,
    float val2,
    float *dst, int dstElemStride,
    int len);
LxpStatus lxpmLComb_vv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    float val1,
    const float *const *src2Ptrs, int src2PtrOffset,
    float val2,
    float *const *dstPtrs, int dstPtrOffset,
    int len);
LxpStatus lxpmLComb_vv_64f(
    const double *src1, int src1ElemStride,
    double val1,
    const double *src2, int src2ElemStride,
    double val2,
    double *dst, int dstElemStride,
    int len);
LxpStatus lxpmLComb_vv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    double val1,
    const double *const *src2Ptrs, int src2PtrOffset,
    double val2,
    double *const *dstPtrs, int dstPtrOffset,
    int len);

/* dst[k] = (val1 * src1[k]) + (val2 * src2) */
LxpStatus lxpmLComb_vav_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    float val1,
    const float *src2, int src2ElemStride,
    float val2,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vav_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    float val1,
    const float *src2, int src2ElemStride,
    float val2,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vav_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    float val1,
    const float *const *src2Ptrs, int src2PtrOffset,
    float val2,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmLComb_vav_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    double val1,
    const double *src2, int src2ElemStride,
    double val2,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vav_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    double val1,
    const double *src2, int src2ElemStride,
    double val2,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vav_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    double val1,
    const double *const *src2Ptrs, int src2PtrOffset,
    double val2,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* dst[k] = (val1 * src1[k]) + (val2 * src2[k]) */
LxpStatus lxpmLComb_vava_32f(
    const float *src1, int src1ObjStride, int src1ElemStride,
    float val1,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float val2,
    float *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    float val1,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float val2,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    float val1,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float val2,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);
LxpStatus lxpmLComb_vava_64f(
    const double *src1, int src1ObjStride, int src1ElemStride,
    double val1,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double val2,
    double *dst, int dstObjStride, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ElemStride,
    double val1,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double val2,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int len, int count);
LxpStatus lxpmLComb_vava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    double val1,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double val2,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int len, int count);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
