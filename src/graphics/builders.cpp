// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Builders of 4x4 matrices, in rows: a point is a row vector on the left. What is negated is subtracted from 0, so that
// a zero comes out as +0. Nothing is validated; divisions by zero take the course that IEEE arithmetic gives them.

#include "graphics/graphics.h"
#include "graphics/small_vectors.h"
#include "runtime/lanes.h"

#include <math.h> // sincosf

namespace lxpm {

namespace {

struct Matrix4 {
    float row[4][4];

    // Whole rows: a caller who goes on with them loads rows, which must not wait for single elements to be merged.
    LxpStatus store(float *dst) const {
        for (int i = 0; i < 4; ++i) {
            const float *const r = row[i];
            Lanes<float, 4>{{r[0], r[1], r[2], r[3]}}.store(dst + 4 * i);
        }
        return lxpStatusOk;
    }
};

struct Angle {
    float sine;
    float cosine;

    explicit Angle(float radians) { sincosf(radians, &sine, &cosine); }
};

// The camera's own axes are the columns; `zAxis` is the direction that gets positive depths.
LxpStatus storeView(const float *zDirection, const float *eye, const float *up, float *dst) {
    float x[3];
    float y[3];
    float z[3];
    divideByLength<3>(zDirection, z);
    cross(up, z, y);
    divideByLength<3>(y, x);
    cross(z, x, y);
    return Matrix4{{{x[0], y[0], z[0], 0},
                    {x[1], y[1], z[1], 0},
                    {x[2], y[2], z[2], 0},
                    {0 - dotOf<3>(x, eye), 0 - dotOf<3>(y, eye), 0 - dotOf<3>(z, eye), 1}}}
        .store(dst);
}

} // namespace

namespace implementation {

LxpStatus lxpmIdentity_m4_32f(float *dst) {
    return Matrix4{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}.store(dst);
}

// Not a full test: element (0, 0) and any one column have to be those of the identity.
LxpStatus lxpmIsIdentity_m4_32f(const float *src, int *result) {
    bool any = false;
    for (int column = 0; column < 4; ++column) {
        bool all = true;
        for (int row = 0; row < 4; ++row) {
            all &= src[4 * row + column] == (row == column ? 1.0F : 0.0F);
        }
        any |= all;
    }
    *result = static_cast<int>(src[0] == 1 && any);
    return lxpStatusOk;
}

LxpStatus lxpmTranslation_m4_32f(float x, float y, float z, float *dst) {
    return Matrix4{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {x, y, z, 1}}}.store(dst);
}

LxpStatus lxpmScaling_m4_32f(float x, float y, float z, float *dst) {
    return Matrix4{{{x, 0, 0, 0}, {0, y, 0, 0}, {0, 0, z, 0}, {0, 0, 0, 1}}}.store(dst);
}

LxpStatus lxpmRotationX_m4_32f(float angle, float *dst) {
    const auto [s, c] = Angle(angle);
    return Matrix4{{{1, 0, 0, 0}, {0, c, s, 0}, {0, 0 - s, c, 0}, {0, 0, 0, 1}}}.store(dst);
}

LxpStatus lxpmRotationY_m4_32f(float angle, float *dst) {
    const auto [s, c] = Angle(angle);
    return Matrix4{{{c, 0, 0 - s, 0}, {0, 1, 0, 0}, {s, 0, c, 0}, {0, 0, 0, 1}}}.store(dst);
}

LxpStatus lxpmRotationZ_m4_32f(float angle, float *dst) {
    const auto [s, c] = Angle(angle);
    return Matrix4{{{c, s, 0, 0}, {0 - s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}.store(dst);
}

LxpStatus lxpmRotationAxis_v3m4_32f(const float *axis, float angle, float *dst) {
    float unit[3];
    divideByLength<3>(axis, unit);
    const auto [x, y, z] = unit;
    const auto [s, c] = Angle(angle);
    const float k = 1 - c;
    return Matrix4{{{c + x * (x * k), x * (y * k) + s * z, x * (z * k) - s * y, 0},
                    {y * (x * k) - s * z, c + y * (y * k), s * x + y * (z * k), 0},
                    {s * y + z * (x * k), z * (y * k) - s * x, c + z * (z * k), 0},
                    {0, 0, 0, 1}}}
        .store(dst);
}

// Roll about z, then pitch about x, then yaw about y.
LxpStatus lxpmRotationYawPitchRoll_m4_32f(float yaw, float pitch, float roll, float *dst) {
    const auto [sy, cy] = Angle(yaw);
    const auto [sp, cp] = Angle(pitch);
    const auto [sr, cr] = Angle(roll);
    return Matrix4{{{sr * (sy * sp) + cy * cr, sr * cp, sr * (sp * cy) - sy * cr, 0},
                    {cr * (sy * sp) - cy * sr, cr * cp, sy * sr + cr * (sp * cy), 0},
                    {sy * cp, 0 - sp, cy * cp, 0},
                    {0, 0, 0, 1}}}
        .store(dst);
}

LxpStatus lxpmLookAtLH_m4_32f(const float *eye, const float *at, const float *up, float *dst) {
    const float forward[3] = {at[0] - eye[0], at[1] - eye[1], at[2] - eye[2]};
    return storeView(forward, eye, up, dst);
}

LxpStatus lxpmLookAtRH_m4_32f(const float *eye, const float *at, const float *up, float *dst) {
    const float backward[3] = {eye[0] - at[0], eye[1] - at[1], eye[2] - at[2]};
    return storeView(backward, eye, up, dst);
}

LxpStatus lxpmOrthoLH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    const float depth = zFar - zNear;
    return Matrix4{{{2 / width, 0, 0, 0}, {0, 2 / height, 0, 0}, {0, 0, 1 / depth, 0}, {0, 0, zNear / (0 - depth), 1}}}
        .store(dst);
}

LxpStatus lxpmOrthoRH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    const float depth = zNear - zFar;
    return Matrix4{{{2 / width, 0, 0, 0}, {0, 2 / height, 0, 0}, {0, 0, 1 / depth, 0}, {0, 0, zNear / depth, 1}}}.store(
        dst);
}

LxpStatus lxpmOrthoOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                      float *dst) {
    const float width = right - left;
    const float height = top - bottom;
    const float depth = zFar - zNear;
    return Matrix4{{{2 / width, 0, 0, 0},
                    {0, 2 / height, 0, 0},
                    {0, 0, 1 / depth, 0},
                    {(left + right) / (0 - width), (bottom + top) / (0 - height), zNear / (0 - depth), 1}}}
        .store(dst);
}

LxpStatus lxpmOrthoOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                      float *dst) {
    const float width = right - left;
    const float height = top - bottom;
    const float depth = zNear - zFar;
    return Matrix4{{{2 / width, 0, 0, 0},
                    {0, 2 / height, 0, 0},
                    {0, 0, 1 / depth, 0},
                    {(left + right) / (0 - width), (bottom + top) / (0 - height), zNear / depth, 1}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveLH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    const float depth = zFar - zNear;
    return Matrix4{{{(zNear + zNear) / width, 0, 0, 0},
                    {0, (zNear + zNear) / height, 0, 0},
                    {0, 0, zFar / depth, 1},
                    {0, 0, (zNear * zFar) / (0 - depth), 0}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveRH_m4_32f(float width, float height, float zNear, float zFar, float *dst) {
    const float depth = zNear - zFar;
    return Matrix4{{{(zNear + zNear) / width, 0, 0, 0},
                    {0, (zNear + zNear) / height, 0, 0},
                    {0, 0, zFar / depth, -1},
                    {0, 0, (zNear * zFar) / depth, 0}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveFovLH_m4_32f(float fovY, float aspect, float zNear, float zFar, float *dst) {
    const auto [s, c] = Angle(0.5F * fovY);
    const float yScale = c / s;
    const float xScale = yScale / aspect;
    const float depth = zFar - zNear;
    return Matrix4{
        {{xScale, 0, 0, 0}, {0, yScale, 0, 0}, {0, 0, zFar / depth, 1}, {0, 0, (0 - zNear * zFar) / depth, 0}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveFovRH_m4_32f(float fovY, float aspect, float zNear, float zFar, float *dst) {
    const auto [s, c] = Angle(0.5F * fovY);
    const float yScale = c / s;
    const float xScale = yScale / aspect;
    const float depth = zNear - zFar;
    return Matrix4{{{xScale, 0, 0, 0}, {0, yScale, 0, 0}, {0, 0, zFar / depth, -1}, {0, 0, (zNear * zFar) / depth, 0}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                            float *dst) {
    const float width = right - left;
    const float height = top - bottom;
    const float depth = zFar - zNear;
    return Matrix4{{{(zNear + zNear) / width, 0, 0, 0},
                    {0, (zNear + zNear) / height, 0, 0},
                    {(left + right) / (0 - width), (bottom + top) / (0 - height), zFar / depth, 1},
                    {0, 0, (zNear * zFar) / (0 - depth), 0}}}
        .store(dst);
}

LxpStatus lxpmPerspectiveOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
                                            float *dst) {
    const float width = right - left;
    const float height = top - bottom;
    const float depth = zNear - zFar;
    return Matrix4{{{(zNear + zNear) / width, 0, 0, 0},
                    {0, (zNear + zNear) / height, 0, 0},
                    {(left + right) / width, (bottom + top) / height, zFar / depth, -1},
                    {0, 0, (zNear * zFar) / depth, 0}}}
        .store(dst);
}

} // namespace implementation

} // namespace lxpm
