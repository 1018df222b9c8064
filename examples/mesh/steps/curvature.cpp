// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The mean curvature H at a vertex (Meyer, Desbrun, Schroeder and Barr, "Discrete differential-geometry operators for
// triangulated 2-manifolds", 2003). Moving the vertex along its normal changes the area around it by 2 H for each unit
// of area and of way. The area of one triangle changes, as one of its corners moves, with the gradient n x e / 2: n is
// the triangle's unit normal, e the side opposite of the corner.

#include "curvature.h"
#include "real.h"
#include "reciprocals.h"
#include "strides.h"

#include <utility>

namespace lxpm::mesh {

// The cross product with a fixed vector is a matrix; the coordinates of the vector, which stand in planes, are
// scattered into the matrices, three as they are and three negative. The diagonals are 0 from the beginning.
Step crossMatrices(Surface &surface) {
    Matrix3 &first = surface.crossMatrices[0];
    const std::array<float *, 3> plus = {&first[2][1], &first[0][2], &first[1][0]};
    const std::array<float *, 3> minus = {&first[1][2], &first[2][0], &first[0][1]};
    return {
        .name = "matrices of n x",
        .function = "lxpmCopy_va_32f_PP, Mul_vac_P",
        .objects = surface.triangles.size(),
        .compute =
            [&surface, plus, minus, normals = elementPointers(std::as_const(surface.unitNormals))] {
                const int count = countOf(surface.crossMatrices);
                const LxpStatus status = lxpmCopy_va_32f_PP(normals.data(), 0, floatStride, //
                                                            plus.data(), 0, triangleStride, 3, count);
                return status != lxpStatusOk ? status
                                             : lxpmMul_vac_32f_P(normals.data(), 0, floatStride, -1.0f, //
                                                                 minus.data(), 0, triangleStride, 3, count);
            },
        .limit = 0,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.crossMatrices.size(); ++k) {
                    const auto [x, y, z] = real(surface.unitNormals, k);
                    const std::array<Real3, 3> exact = {{{0, -z, y}, {z, 0, -x}, {-y, x, 0}}};
                    for (int i = 0; i < 3; ++i) {
                        for (int j = 0; j < 3; ++j) {
                            deviation.add(surface.crossMatrices[k][i][j], exact[i][j], exact[i][j]);
                        }
                    }
                }
                return deviation;
            },
    };
}

// The half is left out until the end.
Step areaGradients(Surface &surface) {
    return {
        .name = "area gradients at corners",
        .function = "lxpmMul_mava_32f",
        .objects = 3 * surface.triangles.size(),
        .compute =
            [&surface] {
                LxpStatus status = lxpStatusOk;
                for (int c = 0; c < 3 && status == lxpStatusOk; ++c) {
                    status = lxpmMul_mava_32f(
                        surface.crossMatrices[0][0].data(), matrixStride, pointStride, floatStride, 3, 3, //
                        surface.sides[0][c].data(), triangleStride, floatStride, 3,                       //
                        surface.areaGradients[0][c].data(), triangleStride, floatStride, countOf(surface.triangles));
                }
                return status;
            },
        .limit = roundingsOfDot,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.triangles.size(); ++k) {
                    for (int c = 0; c < 3; ++c) {
                        const Real3 side = real(surface.sides[k][c]);
                        for (int i = 0; i < 3; ++i) {
                            const Real3 row = real(surface.crossMatrices[k][i]);
                            deviation.add(surface.areaGradients[k][c][i], dot(row, side),
                                          dot(magnitudes(row), magnitudes(side)));
                        }
                    }
                }
                return deviation;
            },
    };
}

Step bendingAtVertices(Surface &surface) {
    return {
        .name = "gradients along normals",
        .function = "lxpmDotProduct_vava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface] {
                return lxpmDotProduct_vava_32f(surface.gradientSums[0].data(), pointStride, floatStride,     //
                                               surface.vertices[0].normal.data(), vertexStride, floatStride, //
                                               surface.bendings.data(), 3, countOf(surface.vertices));
            },
        .limit = roundingsOfDot,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
                    const Real3 gradient = real(surface.gradientSums[k]), normal = real(surface.vertices[k].normal);
                    deviation.add(surface.bendings[k], dot(gradient, normal),
                                  dot(magnitudes(gradient), magnitudes(normal)));
                }
                return deviation;
            },
    };
}

// A vertex has a third of the area around it, and its gradient is twice too long: H = (b / 2) / (2 S / 3) = 0.75 b / S.
Step meanCurvatures(Surface &surface) {
    std::vector<float> factors;
    for (const float area : surface.areaSums) {
        factors.push_back(0.75f * reciprocalOrZero(area));
    }
    return {
        .name = "mean curvatures",
        .function = "lxpmMul_vaca_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface, factors] {
                return lxpmMul_vaca_32f(surface.bendings.data(), floatStride, floatStride, //
                                        factors.data(), floatStride,                       //
                                        surface.meanCurvatures.data(), floatStride, floatStride, 1, countOf(factors));
            },
        .limit = 3, // of the reciprocal and of both products
        .deviation =
            [&surface, factors] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
                    const double exact = factors[k] == 0 ? 0 : 0.75 * surface.bendings[k] / surface.areaSums[k];
                    deviation.add(surface.meanCurvatures[k], exact, exact);
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
