// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Normals and curvatures from points alone (Hoppe et al., "Surface reconstruction from unorganized points", 1992;
// Pauly, Gross and Kobbelt, "Efficient simplification of point-sampled surfaces", 2002): the covariance of a
// vertex's neighbours is least along the normal, and what it is there, as a share of the whole, grows with the
// curvature. Which side is outside, points do not say: the triangles' normals do.

#include "covariances.h"
#include "neighbourhoods.h"
#include "real.h"
#include "strides.h"

#include <algorithm>
#include <lxpcore.h>

namespace lxpm::mesh {

namespace {

constexpr int leastValue = 2; // eigenvalues descend

// Of the reduction of a 3x3 matrix and of the rotations of a few sweeps.
constexpr double roundingsOfEigenproblem = 48;

} // namespace

// With the identity added, which moves all eigenvalues by 1 and no eigenvector: without it that of a plane would be
// singular.
Step covariances(Surface &surface) {
    for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
        Point *row = surface.deviationsFromMean.matrix(k);
        const std::vector<Real3> ways = waysToNeighbours(surface, static_cast<int>(k));
        Real3 mean{};
        for (const Real3 &way : ways) {
            for (int j = 0; j < 3; ++j) {
                mean[j] += way[j] / static_cast<double>(ways.size());
            }
        }
        for (const Real3 &way : ways) {
            *row++ = {float(way[0] - mean[0]), float(way[1] - mean[1]), float(way[2] - mean[2])};
        }
    }
    return productsOfColumns("covariances of neighbours", surface.deviationsFromMean, surface.covariances);
}

Step principalDirections(Surface &surface) {
    return {
        .name = "principal directions",
        .function = "lxpmEigenValuesVectorsSym_ma_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface, buffer = std::vector<float>(9 * std::size_t(std::max(ownGetNumThreads(), 1)))]() mutable {
                return lxpmEigenValuesVectorsSym_ma_32f(
                    surface.covariances[0][0].data(), matrixStride, pointStride, floatStride,
                    buffer.data(), //
                    surface.directions[0][0].data(), matrixStride, pointStride, floatStride,
                    surface.variances[0].data(), 3, countOf(surface.covariances));
            },
        .limit = roundingsOfEigenproblem,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.directions.size(); ++k) {
                    const Matrix3 &a = surface.covariances[k], &v = surface.directions[k];
                    const double size = norm(real(a));
                    for (int column = 0; column < 3; ++column) {
                        const Real3 direction = {v[0][column], v[1][column], v[2][column]};
                        for (int i = 0; i < 3; ++i) {
                            deviation.add(dot(real(a[i]), direction),
                                          double(surface.variances[k][column]) * direction[i], size);
                        }
                        for (int other = 0; other <= column; ++other) {
                            const Real3 second = {v[0][other], v[1][other], v[2][other]};
                            deviation.add(dot(direction, second), column == other ? 1 : 0, 1);
                        }
                    }
                }
                return deviation;
            },
    };
}

// The direction of least variance is the last column.
Step agreements(Surface &surface) {
    return {
        .name = "cosines with the normals",
        .function = "lxpmDotProduct_vava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface] {
                return lxpmDotProduct_vava_32f(&surface.directions[0][0][leastValue], matrixStride, pointStride, //
                                               surface.vertices[0].normal.data(), vertexStride, floatStride,     //
                                               surface.agreements.data(), 3, countOf(surface.agreements));
            },
        .limit = roundingsOfDot,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.agreements.size(); ++k) {
                    const Matrix3 &v = surface.directions[k];
                    const Real3 direction = {v[0][leastValue], v[1][leastValue], v[2][leastValue]};
                    const Real3 normal = real(surface.vertices[k].normal);
                    deviation.add(surface.agreements[k], dot(direction, normal),
                                  dot(magnitudes(direction), magnitudes(normal)));
                }
                return deviation;
            },
    };
}

// Those that point inwards are turned over.
Step orientedNormals(Surface &surface) {
    std::vector<float> signs;
    for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
        signs.push_back(surface.agreements[k] < 0 ? -1.0f : 1.0f);
        const auto [first, second, least] = surface.variances[k];
        const float all = first + second + least - 3;
        surface.variations[k] = all > 0 ? std::max(least - 1, 0.0f) / all : 0;
    }
    return {
        .name = "normals from points alone",
        .function = "lxpmMul_vaca_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface, signs] {
                return lxpmMul_vaca_32f(&surface.directions[0][0][leastValue], matrixStride, pointStride, //
                                        signs.data(), floatStride,                                        //
                                        surface.pointNormals[0].data(), pointStride, floatStride, 3, countOf(signs));
            },
        .limit = 0,
        .deviation =
            [&surface, signs] {
                Deviation deviation;
                for (std::size_t k = 0; k < signs.size(); ++k) {
                    for (int j = 0; j < 3; ++j) {
                        const double exact = double(signs[k]) * surface.directions[k][j][leastValue];
                        deviation.add(surface.pointNormals[k][j], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
