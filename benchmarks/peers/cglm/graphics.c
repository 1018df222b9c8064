/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

#include "peers/cglm/graphics.h"

#include "peers/scene.h"

#include <cglm/cglm.h>
#include <stdint.h>
#include <string.h>

/* cglm has no const, and wants its matrices aligned. */
static vec4 *matrixAt(const float *m) {
    return (vec4 *)(uintptr_t)m;
}

static float *vectorAt(const float *v) {
    return (float *)(uintptr_t)v;
}

void cglmMul(const float *src1, const float *src2, float *dst, long count) {
    for (long k = 0; k < count; ++k) {
        glm_mat4_mul(matrixAt(src2 + 16 * k), matrixAt(src1 + 16 * k), matrixAt(dst + 16 * k));
    }
}

void cglmTranspose(const float *src1, const float *src2, float *dst, long count) {
    (void)src2;
    for (long k = 0; k < count; ++k) {
        glm_mat4_transpose_to(matrixAt(src1 + 16 * k), matrixAt(dst + 16 * k));
    }
}

void cglmDet(const float *src1, const float *src2, float *dst, long count) {
    (void)src2;
    for (long k = 0; k < count; ++k) {
        dst[k] = glm_mat4_det(matrixAt(src1 + 16 * k));
    }
}

void cglmInvert(const float *src1, const float *src2, float *dst, long count) {
    (void)src2;
    for (long k = 0; k < count; ++k) {
        glm_mat4_inv(matrixAt(src1 + 16 * k), matrixAt(dst + 16 * k));
    }
}

void cglmTranslation(const float *src1, const float *src2, float *dst, long count) {
    (void)src2;
    for (long k = 0; k < count; ++k) {
        glm_translate_make(matrixAt(dst + 16 * k), vectorAt(src1 + 16 * k));
    }
}

void cglmRotationAxis(const float *src1, const float *src2, float *dst, long count) {
    (void)src2;
    for (long k = 0; k < count; ++k) {
        glm_rotate_make(matrixAt(dst + 16 * k), src1[16 * k + 3], vectorAt(src1 + 16 * k));
    }
}

void cglmCoord(const float *src, float *dst, long stride, long count) {
    mat4 m;
    memcpy(m, sceneWorld, sizeof m);
    for (long k = 0; k < count; ++k) {
        const float *const v = src + k * stride;
        vec4 point = {v[0], v[1], v[2], 1};
        vec4 t;
        glm_mat4_mulv(m, point, t);
        for (int i = 0; i < 3; ++i) {
            dst[k * stride + i] = t[i] / t[3];
        }
    }
}

void cglmNormal(const float *src, float *dst, long stride, long count) {
    mat4 m;
    memcpy(m, sceneWorld, sizeof m);
    for (long k = 0; k < count; ++k) {
        glm_mat4_mulv3(m, vectorAt(src + k * stride), 0, dst + k * stride);
    }
}
