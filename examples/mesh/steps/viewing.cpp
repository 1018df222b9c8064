// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// From the mesh to the picture: each view turns the vertices, and one camera projects them to its viewport.

#include "viewing.h"
#include "real.h"
#include "strides.h"

namespace lxpm::mesh {

namespace {

// A sine or cosine of the C library is at most one unit of the last place off.
constexpr double roundingsOfSine = 2;

constexpr int rowStride4 = 4 * floatStride;

} // namespace

Step rotations(Stage &stage) {
    return {
        .name = "rotations of the views",
        .function = "lxpmRotationYawPitchRoll_m4_32f",
        .objects = stage.views.size(),
        .compute =
            [&stage] {
                LxpStatus status = lxpStatusOk;
                for (std::size_t v = 0; v < stage.views.size() && status == lxpStatusOk; ++v) {
                    const auto &[name, yaw, pitch] = stage.views[v];
                    status = lxpmRotationYawPitchRoll_m4_32f(yaw, pitch, 0, stage.rotations[v].data());
                }
                return status;
            },
        .limit = 2 * roundingsOfSine + 1,
        .deviation =
            [&stage] {
                Deviation deviation;
                for (std::size_t v = 0; v < stage.views.size(); ++v) {
                    const double sy = std::sin(double(stage.views[v].yaw)), cy = std::cos(double(stage.views[v].yaw));
                    const double sp = std::sin(double(stage.views[v].pitch)),
                                 cp = std::cos(double(stage.views[v].pitch));
                    const double exact[16] = {cy,      0,   -sy,     0, //
                                              sy * sp, cp,  sp * cy, 0, //
                                              sy * cp, -sp, cy * cp, 0, //
                                              0,       0,   0,       1};
                    for (int i = 0; i < 16; ++i) {
                        deviation.add(stage.rotations[v][i], exact[i], exact[i]);
                    }
                }
                return deviation;
            },
    };
}

namespace {

Real3 minus(const Real3 &a, const Real3 &b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

void compareCamera(const Stage &stage, std::size_t v, Deviation &deviation) {
    const Real3 target = real(stage.targets[v]), eye = real(stage.eyes[v]);
    const Matrix4 &rotation = stage.rotations[v], &camera = stage.cameras[v];
    for (int j = 0; j < 3; ++j) {
        const Real3 column = {rotation[j], rotation[4 + j], rotation[8 + j]};
        deviation.add(target[j], dot(column, real(stage.middle)),
                      dot(magnitudes(column), magnitudes(real(stage.middle))));
        deviation.add(eye[j], target[j] + stage.eyeOffset[j], std::abs(target[j]) + std::abs(stage.eyeOffset[j]));
    }

    const Real3 z = normalised(minus(eye, target));
    const Real3 x = normalised(cross(real(upwards), z));
    const std::array<Real3, 3> axes = {x, cross(z, x), z};
    for (int c = 0; c < 3; ++c) {
        for (int r = 0; r < 3; ++r) {
            deviation.add(camera[4 * r + c], axes[c][r], 1); // an axis has length 1
        }
        deviation.add(camera[4 * 3 + c], -dot(axes[c], eye), length(eye));
    }
    for (int r = 0; r < 4; ++r) {
        deviation.add(camera[4 * r + 3], r == 3, 1);
    }
}

} // namespace

// The camera looks at the middle of the mesh wherever the view's rotation takes it.
Step cameras(Stage &stage) {
    const auto computeOne = [&stage](std::size_t v) {
        float *target = stage.targets[v].data(), *eye = stage.eyes[v].data();
        LxpStatus status = lxpmAffineTransformNormal_m4v3_32f(stage.rotations[v].data(), stage.middle.data(), target);
        if (status == lxpStatusOk) {
            status = lxpmAdd_v3_32f(target, stage.eyeOffset.data(), eye);
        }
        return status != lxpStatusOk ? status
                                     : lxpmLookAtRH_m4_32f(eye, target, upwards.data(), stage.cameras[v].data());
    };
    return {
        .name = "cameras of the views",
        .function = "lxpmLookAtRH_m4_32f",
        .objects = stage.views.size(),
        .compute =
            [&stage, computeOne] {
                LxpStatus status = lxpStatusOk;
                for (std::size_t v = 0; v < stage.views.size() && status == lxpStatusOk; ++v) {
                    status = computeOne(v);
                }
                return status;
            },
        // The axes: z is a difference, normalised; x a cross product with it, normalised; y a cross product of both;
        // and each is multiplied with the eye. What one takes over from another counts fully.
        .limit = (1 + roundingsOfNormalising) + (roundingsOfCross + roundingsOfNormalising) + roundingsOfCross +
                 (1 + roundingsOfNormalising) + roundingsOfDot,
        .deviation =
            [&stage] {
                Deviation deviation;
                for (std::size_t v = 0; v < stage.views.size(); ++v) {
                    compareCamera(stage, v, deviation);
                }
                return deviation;
            },
    };
}

Step perspective(Stage &stage) {
    return {
        .name = "perspective",
        .function = "lxpmPerspectiveFovRH_m4_32f",
        .objects = 1,
        .compute =
            [&stage] {
                return lxpmPerspectiveFovRH_m4_32f(fieldOfView, 1, stage.nearest, stage.farthest,
                                                   stage.projection.data());
            },
        .limit = 2 * roundingsOfSine + 1, // cosine by sine; less for the depths
        .deviation =
            [&stage] {
                const double scale = 1 / std::tan(0.5 * fieldOfView);
                const double depthRange = double(stage.nearest) - stage.farthest;
                std::array<double, 16> exact{};
                exact[0] = exact[5] = scale;
                exact[10] = stage.farthest / depthRange;
                exact[11] = -1;
                exact[14] = double(stage.nearest) * stage.farthest / depthRange;
                Deviation deviation;
                for (std::size_t i = 0; i < exact.size(); ++i) {
                    deviation.add(stage.projection[i], exact[i], exact[i]);
                }
                return deviation;
            },
    };
}

// A position and its normal turn alike, and stand one behind the other: to the library they are one array of vectors.
// The rotation matrices are made for row vectors, p * M, so they are read with exchanged strides for M^T * p.
Step turnedVertices(const Surface &surface, Stage &stage) {
    return {
        .name = "vertices turned",
        .function = "lxpmMul_mva_32f",
        .objects = 2 * stage.views.size() * surface.vertices.size(),
        .compute =
            [&surface, &stage] {
                LxpStatus status = lxpStatusOk;
                for (std::size_t v = 0; v < stage.views.size() && status == lxpStatusOk; ++v) {
                    status = lxpmMul_mva_32f(stage.rotations[v].data(), floatStride, rowStride4, 3, 3,         //
                                             surface.vertices[0].position.data(), pointStride, floatStride, 3, //
                                             stage.turned[v][0].position.data(), pointStride, floatStride,
                                             2 * countOf(surface.vertices));
                }
                return status;
            },
        .limit = roundingsOfDot,
        .deviation =
            [&surface, &stage] {
                Deviation deviation;
                for (std::size_t v = 0; v < stage.views.size(); ++v) {
                    const Matrix4 &m = stage.rotations[v];
                    for (int j = 0; j < 3; ++j) {
                        const Real3 column = {m[j], m[4 + j], m[8 + j]};
                        const auto compare = [&](const Point &turned, const Point &source) {
                            deviation.add(turned[j], dot(column, real(source)),
                                          dot(magnitudes(column), magnitudes(real(source))));
                        };
                        for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
                            compare(stage.turned[v][k].position, surface.vertices[k].position);
                            compare(stage.turned[v][k].normal, surface.vertices[k].normal);
                        }
                    }
                }
                return deviation;
            },
    };
}

namespace {

using Real4 = std::array<double, 4>;

struct Homogeneous {
    Real4 value;
    Real4 magnitude; // of the terms
};

Homogeneous times(const Homogeneous &p, const Matrix4 &m) {
    Homogeneous product{};
    for (int c = 0; c < 4; ++c) {
        for (int r = 0; r < 4; ++r) {
            product.value[c] += p.value[r] * m[4 * r + c];
            product.magnitude[c] += p.magnitude[r] * std::abs(m[4 * r + c]);
        }
    }
    return product;
}

constexpr Matrix4 identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

void compareProjected(const Stage &stage, std::size_t v, std::size_t k, Deviation &deviation) {
    const Point &projected = stage.projected[v][k];
    const auto [x, y, z] = real(stage.turned[v][k].position);
    const Homogeneous clip =
        times(times({{x, y, z, 1}, {std::abs(x), std::abs(y), std::abs(z), 1}}, stage.cameras[v]), stage.projection);
    const double w = clip.value[3], half = 0.5 * stage.rasterSize;
    const double origin[3] = {half, half, 0}, scale[3] = {half, -half, 1};
    for (int j = 0; j < 3; ++j) {
        const double ratio = clip.value[j] / w;
        const double ratioMagnitude = (clip.magnitude[j] + std::abs(ratio) * clip.magnitude[3]) / std::abs(w);
        deviation.add(projected[j], origin[j] + scale[j] * ratio, origin[j] + std::abs(scale[j]) * ratioMagnitude);
    }
}

} // namespace

Step projectedVertices(Stage &stage) {
    return {
        .name = "vertices projected",
        .function = "lxpmProject_m4v3a_32f",
        .objects = stage.views.size() * stage.projected[0].size(),
        .compute =
            [&stage] {
                LxpStatus status = lxpStatusOk;
                for (std::size_t v = 0; v < stage.views.size() && status == lxpStatusOk; ++v) {
                    status = lxpmProject_m4v3a_32f(stage.projection.data(), stage.cameras[v].data(), identity.data(), //
                                                   stage.turned[v][0].position.data(), vertexStride,                  //
                                                   stage.rasterSize, stage.rasterSize, 0, 1,                          //
                                                   stage.projected[v][0].data(), pointStride, countOf(stage.turned[v]));
                }
                return status;
            },
        .limit = 3 * roundingsOfDot + 3, // three products with a matrix, then a quotient, a product and a sum
        .deviation =
            [&stage] {
                Deviation deviation;
                for (std::size_t v = 0; v < stage.views.size(); ++v) {
                    for (std::size_t k = 0; k < stage.turned[v].size(); ++k) {
                        compareProjected(stage, v, k, deviation);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
