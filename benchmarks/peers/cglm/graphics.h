/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

/* cglm's kernels, in its own language: `count` objects each. */

#ifndef LXPM_BENCHMARKS_CGLM_GRAPHICS_H
#define LXPM_BENCHMARKS_CGLM_GRAPHICS_H

#ifdef __cplusplus
extern "C" {
#endif

void cglmMul(const float *src1, const float *src2, float *dst, long count);
void cglmTranspose(const float *src1, const float *src2, float *dst, long count);
void cglmDet(const float *src1, const float *src2, float *dst, long count);
void cglmInvert(const float *src1, const float *src2, float *dst, long count);
void cglmTranslation(const float *src1, const float *src2, float *dst, long count);
void cglmRotationAxis(const float *src1, const float *src2, float *dst, long count);

/* Vectors `stride` elements apart. */
void cglmCoord(const float *src, float *dst, long stride, long count);
void cglmNormal(const float *src, float *dst, long stride, long count);

#ifdef __cplusplus
}
#endif

#endif
