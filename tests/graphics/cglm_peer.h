/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

/* cglm is written in C. Its matrices have the same 16 numbers in memory: columns there, rows here. */

#ifndef LXPM_TESTS_GRAPHICS_CGLM_PEER_H
#define LXPM_TESTS_GRAPHICS_CGLM_PEER_H

#ifdef __cplusplus
extern "C" {
#endif

void cglmLookAtLH(const float *eye, const float *at, const float *up, float *dst);
void cglmLookAtRH(const float *eye, const float *at, const float *up, float *dst);
void cglmPerspectiveFovLH(float fovY, float aspect, float zNear, float zFar, float *dst);
void cglmPerspectiveFovRH(float fovY, float aspect, float zNear, float zFar, float *dst);
void cglmPerspectiveOffCenterLH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst);
void cglmPerspectiveOffCenterRH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst);
void cglmOrthoOffCenterLH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst);
void cglmOrthoOffCenterRH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst);
void cglmRotationAxis(const float *axis, float angle, float *dst);

/* The product of row vectors: first a, then b. */
void cglmProduct(const float *a, const float *b, float *dst);
void cglmInverse(const float *src, float *dst);
float cglmDeterminant(const float *src);

#ifdef __cplusplus
}
#endif

#endif
