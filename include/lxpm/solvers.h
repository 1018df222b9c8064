/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_SOLVERS_H
#define LXPM_SOLVERS_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * LUDecomp, LUBackSubst, CholeskyDecomp, CholeskyBackSubst, QRDecomp, QRBackSubst, Det and Invert.
 *
 * Operands. Square matrices have widthHeight rows and columns, vectors widthHeight elements. QR takes matrices of
 * height rows and width columns, width <= height; there a right-hand side has height elements and a solution width.
 * Arrays hold count objects, found as in every family; a single src1 is used with every right-hand side. A
 * decomposition's results are, unchanged, the src1 (and srcIndex) of the matching substitution.
 *
 * LUDecomp: P * A = L * U, by Gaussian elimination with partial pivoting.
 *
 *   dstIndex   widthHeight ints for each matrix, one matrix behind the other, without gaps in every layout: dstIndex[k]
 *              is the number of the source row that was chosen as the k-th pivot row.
 *   dst        Rows are never moved: row k of the factors stands in row dstIndex[k]. There, columns k, k+1, ... hold
 *              row k of U, the columns before k the multipliers of row k of L, whose diagonal of ones is not stored.
 *
 *   The pivot of a column is the candidate of the largest magnitude, the first of equals in the order that the rows
 *   have by then. Orders 3 to 6 form the multipliers of the first column by multiplying by the pivot's reciprocal, and
 *   those of later columns by dividing by the pivot; other orders multiply by the reciprocal in every column. Products
 *   are subtracted from an element one by one, in ascending order of columns.
 *
 *   A matrix is singular if the magnitude of a pivot is
 *     orders 3 to 6   less than twice the smallest normal number (2^-125 in 32f, 2^-1021 in 64f)
 *     other orders    at most the machine epsilon (2^-23, 2^-52), whatever the scale of the matrix: scale matrices of
 *                     small elements before they are factored, or good ones are refused
 *   Then, of that matrix, orders 3 to 6 have written the rows of factors and the entries of dstIndex that belong to the
 *   columns before the singular one, and nothing else; other orders have written all of dst, eliminated as far as
 *   those columns, and the whole permutation as far as it was built.
 *
 * LUBackSubst: A * x = b by substitution, in natural order of x. Orders 3 to 6 subtract the products from an element
 * one by one, in ascending order; other orders subtract their sum, which starts from +0 and adds them in that order.
 * Nothing is tested: a zero on the diagonal makes infinities and NaN.
 *
 * CholeskyDecomp: A = L * transposed(L) of a symmetric positive definite matrix. Only the lower triangle of src is read
 * and only the lower triangle of dst written, of element pointers too: those above the diagonal are not followed. The
 * diagonal of dst holds the reciprocals of L's. In 32f these are the processor's estimate of the reciprocal square root
 * y of d, refined by one step of Newton's method, (-0.5 * y) * ((d * y) * y - 3), so their last bits differ between
 * makes of processor; in 64f they are 1 / sqrt(d). Products are subtracted one by one, in ascending order. A matrix is
 * not positive definite if a value d is 0 or less, before its root is taken; NaN passes. Then the rows before that one,
 * and its elements left of the diagonal, are written.
 *
 * CholeskyBackSubst: A * x = b with such a factor, whose upper triangle is not read. Products are subtracted one by
 * one, in ascending order; then the diagonal is multiplied by. Nothing is tested.
 *
 * QRDecomp: A = Q * R by Householder reflections, I + tau * v * transposed(v) with v = 1 at the diagonal. On and above
 * the diagonal dst holds R, below the diagonal of each column the rest of its v; tau = -2 / (1 + the sum of the squares
 * of that rest) is not stored. The last column of a square matrix has no reflector. With s the square root of the sum
 * of the squares of a column from its diagonal element d down, negative unless d > 0, the rest of v is the rest of the
 * column times 1 / (d + s). All sums start from 0, or from their first term, and ascend. A sum of squares less than
 * 1.1920929e-7 in 32f, 2.220446049250313e-16 in 64f ends the call with lxpStatusDivByZeroErr, whatever the scale of the
 * matrix: scale matrices of small elements before they are factored, or good ones are refused. Then the columns before
 * that one are finished and the others transformed as far as those.
 *
 * QRBackSubst: the solution of A * x = b or, of a tall matrix, of its least squares. b is multiplied by transposed(Q),
 * then R is substituted into its first width elements: products are subtracted one by one, in ascending order, then
 * divided by the diagonal. Nothing is tested.
 *
 *   buffer     scratch of the element type, height elements; what it holds afterwards is unspecified. One is enough for
 *              an array: what the threads need besides is allocated for the call.
 *
 * Det: the determinant. Orders 1 to 4 by expansion along the first row: with M(i,j) = a[i]*b[j] - a[j]*b[i] for two
 * rows, order 3 is (r0[0]*M(1,2) - r0[1]*M(0,2)) + r0[2]*M(0,1), and order 4 (c0 - c1) + (c2 - c3), where cj is r0[j]
 * times what order 3 makes of the other rows and columns. From order 5 on by the elimination of LUDecomp, with
 * multipliers formed by dividing: the product of the pivots in ascending order, starting from the permutation's sign.
 * A pivot of zero, and nothing else, makes it 0; that is no error.
 *
 * Invert: the inverse, as LUDecomp and LUBackSubst of the columns of the identity give it, with the bits and the tests
 * for singularity of these. Of a singular matrix nothing is written.
 *
 * Det and Invert need no scratch of the caller's. From order 17 on they allocate memory for the duration of the call.
 *
 * Bits. Arithmetic is done in the element type; a result depends on its own object alone, not on layout, strides, the
 * number of objects or of threads, nor on an object's place in an array. (Of several NaN operands, which one's payload
 * survives is left to the processor.)
 *
 * Aliasing. The dst of a decomposition and of Invert may be exactly src: same address, same strides or pointers, same
 * layout. Any other overlap of a destination, dstIndex or buffer with a source or with one another gives undefined
 * results, and so does a destination whose elements share memory.
 *
 * Threads. Arrays are shared out among ownGetNumThreads() threads from about a thousand elements on; single objects
 * never are.
 *
 * Status. lxpStatusOk, or the first failing check:
 *
 *   lxpStatusNullPtrErr     a pointer or a pointer array, dstIndex, srcIndex or buffer is null
 *   lxpStatusCountErr       count < 1
 *   lxpStatusSizeErr        widthHeight, width or height < 1
 *   lxpStatusStrideErr      a stride < 1 or not a multiple of the element size
 *   lxpStatusRoiShiftErr    a pointer offset < 0 or not a multiple of the element size
 *   lxpStatusSizeMatchErr   QR: width > height
 *
 * in this order: pointers, count, sizes, strides, offsets, size match. Then, once objects are computed,
 *
 *   lxpStatusSingularErr    LUDecomp, Invert: a matrix is singular
 *   lxpStatusNotPosDefErr   CholeskyDecomp: a matrix is not positive definite
 *   lxpStatusDivByZeroErr   QRDecomp: a column is too short
 *   lxpStatusSizeErr        Det, Invert from order 17 on: there is no memory; nothing is written
 *
 * The objects of an array are computed in ascending order, and the first one that fails ends the call: later ones are
 * not touched. Where an array is shared out, this holds for the objects of each thread, and the call returns the first
 * status that a thread recorded.
 */

/* LUDecomp */

/* P * src = L * U */
LxpStatus lxpmLUDecomp_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    int *dstIndex,
    float *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmLUDecomp_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    int *dstIndex,
    float *const *dstPtrs, int dstPtrOffset,
    int widthHeight);
LxpStatus lxpmLUDecomp_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    int *dstIndex,
    double *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmLUDecomp_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    int *dstIndex,
    double *const *dstPtrs, int dstPtrOffset,
    int widthHeight);

/* P[k] * src[k] = L[k] * U[k] */
LxpStatus lxpmLUDecomp_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int *dstIndex,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUDecomp_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int *dstIndex,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUDecomp_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int *dstIndex,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmLUDecomp_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int *dstIndex,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUDecomp_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int *dstIndex,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUDecomp_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int *dstIndex,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* LUBackSubst */

/* A * dst = src2, src1 and srcIndex being the factors of A */
LxpStatus lxpmLUBackSubst_mv_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int widthHeight);
LxpStatus lxpmLUBackSubst_mv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const int *srcIndex,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int widthHeight);
LxpStatus lxpmLUBackSubst_mv_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int widthHeight);
LxpStatus lxpmLUBackSubst_mv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const int *srcIndex,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int widthHeight);

/* A * dst[k] = src2[k] */
LxpStatus lxpmLUBackSubst_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const int *srcIndex,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mva_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const int *srcIndex,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* A[k] * dst[k] = src2[k] */
LxpStatus lxpmLUBackSubst_mava_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const int *srcIndex,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mava_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const int *srcIndex,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmLUBackSubst_mava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const int *srcIndex,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* CholeskyDecomp */

/* src = L * transposed(L) */
LxpStatus lxpmCholeskyDecomp_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmCholeskyDecomp_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int widthHeight);
LxpStatus lxpmCholeskyDecomp_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmCholeskyDecomp_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int widthHeight);

/* src[k] = L[k] * transposed(L[k]) */
LxpStatus lxpmCholeskyDecomp_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyDecomp_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyDecomp_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyDecomp_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyDecomp_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyDecomp_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* CholeskyBackSubst */

/* A * dst = src2, src1 being the factor of A */
LxpStatus lxpmCholeskyBackSubst_mv_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int widthHeight);
LxpStatus lxpmCholeskyBackSubst_mv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int widthHeight);
LxpStatus lxpmCholeskyBackSubst_mv_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int widthHeight);
LxpStatus lxpmCholeskyBackSubst_mv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int widthHeight);

/* A * dst[k] = src2[k] */
LxpStatus lxpmCholeskyBackSubst_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mva_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* A[k] * dst[k] = src2[k] */
LxpStatus lxpmCholeskyBackSubst_mava_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mava_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmCholeskyBackSubst_mava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* QRDecomp */

/* src = Q * R */
LxpStatus lxpmQRDecomp_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmQRDecomp_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmQRDecomp_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dst, int dstRowStride, int dstElemStride,
    int width, int height);
LxpStatus lxpmQRDecomp_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* src[k] = Q[k] * R[k] */
LxpStatus lxpmQRDecomp_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRDecomp_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRDecomp_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmQRDecomp_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRDecomp_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRDecomp_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* QRBackSubst */

/* the dst for which |A * dst - src2| is least, src1 being the decomposition of A */
LxpStatus lxpmQRBackSubst_mv_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    float *buffer,
    const float *src2, int src2ElemStride,
    float *dst, int dstElemStride,
    int width, int height);
LxpStatus lxpmQRBackSubst_mv_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    float *buffer,
    const float *const *src2Ptrs, int src2PtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int width, int height);
LxpStatus lxpmQRBackSubst_mv_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    double *buffer,
    const double *src2, int src2ElemStride,
    double *dst, int dstElemStride,
    int width, int height);
LxpStatus lxpmQRBackSubst_mv_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    double *buffer,
    const double *const *src2Ptrs, int src2PtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int width, int height);

/* the dst[k] for which |A * dst[k] - src2[k]| is least */
LxpStatus lxpmQRBackSubst_mva_32f(
    const float *src1, int src1RowStride, int src1ElemStride,
    float *buffer,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mva_32f_L(
    const float *src1, int src1RowStride, int src1ElemStride,
    float *buffer,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mva_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset,
    float *buffer,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mva_64f(
    const double *src1, int src1RowStride, int src1ElemStride,
    double *buffer,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mva_64f_L(
    const double *src1, int src1RowStride, int src1ElemStride,
    double *buffer,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mva_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset,
    double *buffer,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* the dst[k] for which |A[k] * dst[k] - src2[k]| is least */
LxpStatus lxpmQRBackSubst_mava_32f(
    const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    float *buffer,
    const float *src2, int src2ObjStride, int src2ElemStride,
    float *dst, int dstObjStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mava_32f_L(
    const float *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    float *buffer,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mava_32f_P(
    const float *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    float *buffer,
    const float *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mava_64f(
    const double *src1, int src1ObjStride, int src1RowStride, int src1ElemStride,
    double *buffer,
    const double *src2, int src2ObjStride, int src2ElemStride,
    double *dst, int dstObjStride, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mava_64f_L(
    const double *const *src1Ptrs, int src1PtrOffset, int src1RowStride, int src1ElemStride,
    double *buffer,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstElemStride,
    int width, int height, int count);
LxpStatus lxpmQRBackSubst_mava_64f_P(
    const double *const *src1Ptrs, int src1PtrOffset, int src1ObjStride,
    double *buffer,
    const double *const *src2Ptrs, int src2PtrOffset, int src2ObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int width, int height, int count);

/* Det */

/* *dst = determinant(src) */
LxpStatus lxpmDet_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst);
LxpStatus lxpmDet_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    int widthHeight,
    float *dst);
LxpStatus lxpmDet_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst);
LxpStatus lxpmDet_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    int widthHeight,
    double *dst);

/* dst[k] = determinant(src[k]) */
LxpStatus lxpmDet_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmDet_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmDet_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int widthHeight,
    float *dst,
    int count);
LxpStatus lxpmDet_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst,
    int count);
LxpStatus lxpmDet_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    int widthHeight,
    double *dst,
    int count);
LxpStatus lxpmDet_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    int widthHeight,
    double *dst,
    int count);

/* Invert */

/* dst = inverse(src) */
LxpStatus lxpmInvert_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmInvert_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    int widthHeight);
LxpStatus lxpmInvert_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dst, int dstRowStride, int dstElemStride,
    int widthHeight);
LxpStatus lxpmInvert_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    int widthHeight);

/* dst[k] = inverse(src[k]) */
LxpStatus lxpmInvert_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmInvert_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmInvert_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);
LxpStatus lxpmInvert_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dst, int dstObjStride, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmInvert_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    int widthHeight, int count);
LxpStatus lxpmInvert_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    int widthHeight, int count);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
