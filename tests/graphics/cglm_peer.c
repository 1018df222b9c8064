/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

#include "graphics/cglm_peer.h"

#include <cglm/cglm.h>
#include <cglm/clipspace/ortho_lh_zo.h>
#include <cglm/clipspace/ortho_rh_zo.h>
#include <cglm/clipspace/persp_lh_zo.h>
#include <cglm/clipspace/persp_rh_zo.h>
#include <cglm/clipspace/view_lh_zo.h>
#include <cglm/clipspace/view_rh_zo.h>

#include <string.h>

static void store(mat4 m, float *dst) {
    memcpy(dst, m, sizeof(mat4));
}

static void load(const float *src, mat4 m) {
    memcpy(m, src, sizeof(mat4));
}

static void loadVector(const float *src, vec3 v) {
    memcpy(v, src, sizeof(vec3));
}

void cglmLookAtLH(const float *eye, const float *at, const float *up, float *dst) {
    mat4 m;
    vec3 e, a, u;
    loadVector(eye, e);
    loadVector(at, a);
    loadVector(up, u);
    glm_lookat_lh_zo(e, a, u, m);
    store(m, dst);
}

void cglmLookAtRH(const float *eye, const float *at, const float *up, float *dst) {
    mat4 m;
    vec3 e, a, u;
    loadVector(eye, e);
    loadVector(at, a);
    loadVector(up, u);
    glm_lookat_rh_zo(e, a, u, m);
    store(m, dst);
}

void cglmPerspectiveFovLH(float fovY, float aspect, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_perspective_lh_zo(fovY, aspect, zNear, zFar, m);
    store(m, dst);
}

void cglmPerspectiveFovRH(float fovY, float aspect, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_perspective_rh_zo(fovY, aspect, zNear, zFar, m);
    store(m, dst);
}

void cglmPerspectiveOffCenterLH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_frustum_lh_zo(left, right, bottom, top, zNear, zFar, m);
    store(m, dst);
}

void cglmPerspectiveOffCenterRH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_frustum_rh_zo(left, right, bottom, top, zNear, zFar, m);
    store(m, dst);
}

void cglmOrthoOffCenterLH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_ortho_lh_zo(left, right, bottom, top, zNear, zFar, m);
    store(m, dst);
}

void cglmOrthoOffCenterRH(float left, float right, float bottom, float top, float zNear, float zFar, float *dst) {
    mat4 m;
    glm_ortho_rh_zo(left, right, bottom, top, zNear, zFar, m);
    store(m, dst);
}

void cglmRotationAxis(const float *axis, float angle, float *dst) {
    mat4 m;
    vec3 a;
    loadVector(axis, a);
    glm_rotate_make(m, angle, a);
    store(m, dst);
}

void cglmProduct(const float *a, const float *b, float *dst) {
    mat4 first, second, product;
    load(a, first);
    load(b, second);
    glm_mat4_mul(second, first, product);
    store(product, dst);
}

void cglmInverse(const float *src, float *dst) {
    mat4 m, inverse;
    load(src, m);
    glm_mat4_inv_precise(m, inverse);
    store(inverse, dst);
}

float cglmDeterminant(const float *src) {
    mat4 m;
    load(src, m);
    return glm_mat4_det(m);
}
