/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_EIGEN_H
#define LXPM_EIGEN_H

#include <lxpm/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One operand per line. */
/* clang-format off */

/*
 * Eigenvalues and eigenvectors of square matrices of widthHeight rows and columns: of symmetric ones (EigenValuesSym,
 * EigenValuesVectorsSym) and of any real ones (EigenValues, EigenValuesVectors, EigenValuesVectorsRight,
 * EigenValuesVectorsLeft).
 *
 * Operands. src is a matrix, or an array of count matrices, and is never written. dstVectors (dstVectorsRight,
 * dstVectorsLeft) are matrices of the same size in the same layout, one eigenvector in each column, in the order of the
 * eigenvalues. Eigenvalues are plain vectors in every layout: those of matrix k start at element k * widthHeight of
 * dstValues, or of dstValuesRe and dstValuesIm. buffer is scratch memory of the caller's; what it holds afterwards
 * means nothing. Destinations and buffer may not overlap one another nor src.
 *
 * All arithmetic is done in the element type. An object's result depends on that object alone: not on layout, count,
 * place in the array or number of threads.
 *
 *
 * Symmetric matrices
 *
 * Symmetry is taken for granted: elements below the diagonal are not used. Values are real.
 *
 *   buffer   widthHeight * widthHeight elements; for an array with widthHeight * (widthHeight + 1) * count > 1000,
 *            which may run on ownGetNumThreads() threads, that many times as much
 *   order    EigenValuesSym of order 2: by the closed form, the value of larger magnitude first; with a trace of
 *            magnitude up to e (below) the positive one. All others: descending.
 *   vectors  of unit length, orthogonal to one another; their signs are as they come
 *
 * Method: Householder reduction to tridiagonal form, then the implicitly shifted QL iteration (Dubrulle, Martin and
 * Wilkinson, Numerische Mathematik 12, 1968), begun at the end at which the diagonal of the tridiagonal form is
 * the larger one, at most 30 times for one eigenvalue.
 *
 * All tolerances are ABSOLUTE, the machine epsilon e of the type: 2^-23 = 1.1920929e-07 for 32f, 2^-52 for 64f. An
 * element beside the diagonal of magnitude up to 2 e counts as zero, and a matrix whose eigenvalues have a product of
 * magnitude up to e counts as singular. So a matrix that is merely small in scale is solved without accuracy and called
 * singular: multiply it by a power of two that brings its elements to a magnitude around 1, and divide the eigenvalues
 * by that power. Elements whose squares overflow are too large in the same way.
 *
 *   lxpStatusSingularErr   |product of the eigenvalues| <= e. The results are written nevertheless, and are good:
 *                           values in the order in which they stand on the diagonal, not sorted, or values and vectors,
 *                           sorted. But EigenValuesSym of order 2 tests the determinant before all else, and then
 *                           writes nothing; of order 1 it does not test.
 *   lxpStatusConvergeErr   more than 30 iterations for one eigenvalue (with NaN or infinities, as good as never
 *                           otherwise). dstValues holds the eigenvalues found so far, in their places; its other
 *                           elements and dstVectors are left in no particular state.
 *
 *
 * General matrices
 *
 *   buffer   as many bytes as the GetBufSize function of values, or of vectors, says, whatever the count: the function
 *            allocates what other threads need
 *   values   real and imaginary parts. A real eigenvalue has the imaginary part 0. A complex pair stands in successive
 *            places, the value with the positive imaginary part first. Their order is that of the diagonal of the Schur
 *            form on which deflation finds them, from the last one up; they are not sorted.
 *   vectors  of unit Euclidean length. Of a pair the first column holds the real part of the eigenvector of the first
 *            value, the second column its imaginary part; the norm is that of the complex vector. The eigenvector of
 *            the second value is the conjugate. A right eigenvector v has src v = value v; a left one u has
 *            u^H src = value u^H, with u^H the conjugate transpose.
 *
 * Method: Householder reduction to Hessenberg form, then the double-shift QR iteration (Francis; Wilkinson and Reinsch,
 * Handbook for Automatic Computation II, 1971), then back-substitution. A matrix whose largest element is smaller than
 * 2^-10 or larger than 2^20 (64f: 2^-200, 2^200) is scaled by a power of two first; it is not balanced otherwise. An
 * element h(i, i-1) of the sub-diagonal counts as zero when
 *     |h(i, i-1)| <= r * (|h(i-1, i-1)| + |h(i, i)|)    or    |h(i, i-1)| <= m,
 * r = 2^-23, m = 2^-125 for 32f, r = 2^-52, m = 2^-1021 for 64f. On the 10th and 20th iteration for one eigenvalue the
 * shifts are replaced by those of an ad hoc matrix: with s = |h(i, i-1)| + |h(i-1, i-2)|, both diagonal elements
 * 0.75 * s + h(i, i), and -0.4375 * s * s as the product beside them.
 *
 *   lxpStatusConvergeErr   30 * widthHeight iterations were not enough for all eigenvalues (with NaN or infinities, as
 *                           good as never otherwise). Those found are written, in their places; nothing else is.
 *
 *
 * Arrays. Every object is computed, whatever becomes of the others, and the first status other than lxpStatusOk is
 * returned: of all objects in their order, or, if several threads ran, the one that a thread recorded first.
 *
 * Threads. Array forms share their objects out among ownGetNumThreads() threads when widthHeight * (widthHeight + 1) *
 * count is 1001 or more (symmetric), or 251 or more (general). Single objects never do.
 *
 * Status. lxpStatusSingularErr and lxpStatusConvergeErr as above; else lxpStatusOk, or the first failing check:
 *
 *   lxpStatusNullPtrErr    a pointer, or a pointer array, is null
 *   lxpStatusSizeErr       widthHeight < 1
 *   lxpStatusCountErr      count < 1
 *   lxpStatusRoiShiftErr   a pointer offset < 0 or not a multiple of the element size
 *   lxpStatusStrideErr     a stride < 1 or not a multiple of the element size
 *
 * in the order pointers, size, count, offsets, strides. The GetBufSize functions check size (null), then widthHeight;
 * their result is a product in 32 bits.
 */

/* EigenValuesSym: the eigenvalues of src, symmetric */

LxpStatus lxpmEigenValuesSym_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesSym_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *buffer,
    float *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesSym_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesSym_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *buffer,
    double *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesSym_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesSym_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesSym_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *buffer,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesSym_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesSym_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesSym_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *buffer,
    double *dstValues,
    int widthHeight, int count);

/* EigenValuesVectorsSym: src, symmetric, times column j of dstVectors = dstValues[j] times that column */

LxpStatus lxpmEigenValuesVectorsSym_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dstVectors, int dstRowStride, int dstElemStride,
    float *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesVectorsSym_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset,
    float *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesVectorsSym_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dstVectors, int dstRowStride, int dstElemStride,
    double *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesVectorsSym_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset,
    double *dstValues,
    int widthHeight);
LxpStatus lxpmEigenValuesVectorsSym_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *buffer,
    float *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesVectorsSym_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesVectorsSym_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *buffer,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    float *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesVectorsSym_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *buffer,
    double *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    double *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesVectorsSym_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    double *dstValues,
    int widthHeight, int count);
LxpStatus lxpmEigenValuesVectorsSym_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *buffer,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    double *dstValues,
    int widthHeight, int count);

/* The bytes of the buffer that EigenValues needs, for one matrix and for any number of them */

LxpStatus lxpmEigenValuesGetBufSize_32f(int widthHeight, int *size);
LxpStatus lxpmEigenValuesGetBufSize_64f(int widthHeight, int *size);

/* The same for EigenValuesVectors, EigenValuesVectorsRight and EigenValuesVectorsLeft */

LxpStatus lxpmEigenValuesVectorsGetBufSize_32f(int widthHeight, int *size);
LxpStatus lxpmEigenValuesVectorsGetBufSize_64f(int widthHeight, int *size);

/* EigenValues: the eigenvalues of src */

LxpStatus lxpmEigenValues_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValues_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValues_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValues_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValues_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValues_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValues_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValues_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValues_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValues_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);

/* EigenValuesVectors: the eigenvalues of src with right and left eigenvectors */

LxpStatus lxpmEigenValuesVectors_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dstVectorsRight, int dstRightRowStride, int dstRightElemStride,
    float *dstVectorsLeft, int dstLeftRowStride, int dstLeftElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectors_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstRightPtrs, int dstRightPtrOffset,
    float *const *dstLeftPtrs, int dstLeftPtrOffset,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectors_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dstVectorsRight, int dstRightRowStride, int dstRightElemStride,
    double *dstVectorsLeft, int dstLeftRowStride, int dstLeftElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectors_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstRightPtrs, int dstRightPtrOffset,
    double *const *dstLeftPtrs, int dstLeftPtrOffset,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectors_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dstVectorsRight, int dstRightObjStride, int dstRightRowStride, int dstRightElemStride,
    float *dstVectorsLeft, int dstLeftObjStride, int dstLeftRowStride, int dstLeftElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectors_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstRightPtrs, int dstRightPtrOffset, int dstRightRowStride, int dstRightElemStride,
    float *const *dstLeftPtrs, int dstLeftPtrOffset, int dstLeftRowStride, int dstLeftElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectors_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstRightPtrs, int dstRightPtrOffset, int dstRightObjStride,
    float *const *dstLeftPtrs, int dstLeftPtrOffset, int dstLeftObjStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectors_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dstVectorsRight, int dstRightObjStride, int dstRightRowStride, int dstRightElemStride,
    double *dstVectorsLeft, int dstLeftObjStride, int dstLeftRowStride, int dstLeftElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectors_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstRightPtrs, int dstRightPtrOffset, int dstRightRowStride, int dstRightElemStride,
    double *const *dstLeftPtrs, int dstLeftPtrOffset, int dstLeftRowStride, int dstLeftElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectors_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstRightPtrs, int dstRightPtrOffset, int dstRightObjStride,
    double *const *dstLeftPtrs, int dstLeftPtrOffset, int dstLeftObjStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);

/* EigenValuesVectorsRight: the eigenvalues of src with right eigenvectors */

LxpStatus lxpmEigenValuesVectorsRight_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dstVectors, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsRight_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsRight_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dstVectors, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsRight_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsRight_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);

/* EigenValuesVectorsLeft: the eigenvalues of src with left eigenvectors */

LxpStatus lxpmEigenValuesVectorsLeft_m_32f(
    const float *src, int srcRowStride, int srcElemStride,
    float *dstVectors, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_m_32f_P(
    const float *const *srcPtrs, int srcPtrOffset,
    float *const *dstPtrs, int dstPtrOffset,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_m_64f(
    const double *src, int srcRowStride, int srcElemStride,
    double *dstVectors, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_m_64f_P(
    const double *const *srcPtrs, int srcPtrOffset,
    double *const *dstPtrs, int dstPtrOffset,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_32f(
    const float *src, int srcObjStride, int srcRowStride, int srcElemStride,
    float *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_32f_L(
    const float *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    float *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_32f_P(
    const float *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    float *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    float *dstValuesRe, float *dstValuesIm,
    int widthHeight, int count,
    float *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_64f(
    const double *src, int srcObjStride, int srcRowStride, int srcElemStride,
    double *dstVectors, int dstObjStride, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_64f_L(
    const double *const *srcPtrs, int srcPtrOffset, int srcRowStride, int srcElemStride,
    double *const *dstPtrs, int dstPtrOffset, int dstRowStride, int dstElemStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);
LxpStatus lxpmEigenValuesVectorsLeft_ma_64f_P(
    const double *const *srcPtrs, int srcPtrOffset, int srcObjStride,
    double *const *dstPtrs, int dstPtrOffset, int dstObjStride,
    double *dstValuesRe, double *dstValuesIm,
    int widthHeight, int count,
    double *buffer);

/* clang-format on */

#ifdef __cplusplus
}
#endif

#endif
