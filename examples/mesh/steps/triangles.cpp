// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Sides, normals and areas of the triangles.

#include "triangles.h"
#include "real.h"
#include "reciprocals.h"
#include "strides.h"

#include <utility>

namespace lxpm::mesh {

// The corners are named by pointers into the mesh's own vertices, so nothing is gathered first.
Step sidesOfTriangles(Surface &surface) {
    std::array<std::vector<const float *>, 3> corners;
    std::vector<float *> results;
    for (std::size_t k = 0; k < surface.triangles.size(); ++k) {
        for (int c = 0; c < 3; ++c) {
            corners[c].push_back(surface.vertices[surface.triangles[k][c]].position.data());
        }
        results.push_back(surface.sides[k][0].data());
    }
    return {
        .name = "sides of triangles",
        .function = "lxpmSub_vava_32f_L",
        .objects = 3 * surface.triangles.size(),
        .compute =
            [corners = std::move(corners), results = std::move(results)] {
                LxpStatus status = lxpStatusOk;
                for (int c = 0; c < 3 && status == lxpStatusOk; ++c) {
                    status = lxpmSub_vava_32f_L(corners[(c + 2) % 3].data(), 0, floatStride, //
                                                corners[(c + 1) % 3].data(), 0, floatStride, //
                                                results.data(), c * pointStride, floatStride, 3, countOf(results));
                }
                return status;
            },
        .limit = 1,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.sides.size(); ++k) {
                    for (int c = 0; c < 3; ++c) {
                        const Point &from = surface.vertices[surface.triangles[k][(c + 1) % 3]].position;
                        const Point &to = surface.vertices[surface.triangles[k][(c + 2) % 3]].position;
                        for (int j = 0; j < 3; ++j) {
                            const double exact = double(to[j]) - from[j];
                            deviation.add(surface.sides[k][c][j], exact, exact);
                        }
                    }
                }
                return deviation;
            },
    };
}

// From sides inside of records into planes, both as pointers to the elements of the first triangle's vector.
Step normalsOfTriangles(Surface &surface) {
    const auto elementsOfSide = [&surface](int c) -> std::array<const float *, 3> {
        Point &side = surface.sides[0][c];
        return {&side[0], &side[1], &side[2]};
    };
    return {
        .name = "normals of triangles",
        .function = "lxpmCrossProduct_vava_32f_P",
        .objects = surface.triangles.size(),
        .compute =
            [&surface, first = elementsOfSide(1), second = elementsOfSide(2),
             results = elementPointers(surface.areaNormals)] {
                return lxpmCrossProduct_vava_32f_P(first.data(), 0, triangleStride,  //
                                                   second.data(), 0, triangleStride, //
                                                   results.data(), 0, floatStride, countOf(surface.triangles));
            },
        .limit = roundingsOfCross,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.sides.size(); ++k) {
                    const Real3 a = real(surface.sides[k][1]), b = real(surface.sides[k][2]);
                    const Real3 normal = real(surface.areaNormals, k);
                    for (int j = 0; j < 3; ++j) {
                        const int next = (j + 1) % 3, last = (j + 2) % 3;
                        const double plus = a[next] * b[last], minus = a[last] * b[next];
                        deviation.add(normal[j], plus - minus, std::abs(plus) + std::abs(minus));
                    }
                }
                return deviation;
            },
    };
}

Step areasOfTriangles(Surface &surface) {
    return {
        .name = "areas of triangles",
        .function = "lxpmL2Norm_va_32f_P",
        .objects = surface.triangles.size(),
        .compute =
            [&surface, normals = elementPointers(std::as_const(surface.areaNormals))] {
                float *areas = surface.areas.data();
                const int count = countOf(surface.areas);
                const LxpStatus status = lxpmL2Norm_va_32f_P(normals.data(), 0, floatStride, areas, 3, count);
                return status != lxpStatusOk ? status
                                             : lxpmMul_vc_32f(areas, floatStride, 0.5f, areas, floatStride, count);
            },
        .limit = roundingsOfNorm, // halving is exact
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.areas.size(); ++k) {
                    const double exact = length(real(surface.areaNormals, k)) / 2;
                    deviation.add(surface.areas[k], exact, magnitudeOfLength(exact));
                }
                return deviation;
            },
    };
}

Step unitNormalsOfTriangles(Surface &surface) {
    std::vector<float> factors;
    for (const float area : surface.areas) {
        factors.push_back(reciprocalOrZero(2 * area));
    }
    return {
        .name = "unit normals of triangles",
        .function = "lxpmMul_vaca_32f_P",
        .objects = surface.triangles.size(),
        .compute =
            [factors, normals = elementPointers(std::as_const(surface.areaNormals)),
             results = elementPointers(surface.unitNormals)] {
                return lxpmMul_vaca_32f_P(normals.data(), 0, floatStride, //
                                          factors.data(), floatStride,    //
                                          results.data(), 0, floatStride, 3, countOf(factors));
            },
        .limit = roundingsOfNormalising,
        .deviation =
            [&surface, factors] {
                Deviation deviation;
                for (std::size_t k = 0; k < factors.size(); ++k) {
                    const Real3 normal = real(surface.areaNormals, k), unit = real(surface.unitNormals, k);
                    for (int j = 0; j < 3; ++j) {
                        const double exact = factors[k] == 0 ? 0 : normal[j] / length(normal);
                        deviation.add(unit[j], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

// Sums around a vertex pick triangles in any order, and want the three coordinates of each side by side.
Step packNormals(Surface &surface) {
    return {
        .name = "normals, planes to points",
        .function = "lxpmCopy_va_32f_PS",
        .objects = surface.triangles.size(),
        .compute =
            [&surface, planes = elementPointers(std::as_const(surface.areaNormals))] {
                return lxpmCopy_va_32f_PS(planes.data(), 0, floatStride, //
                                          surface.packedNormals[0].data(), pointStride, floatStride, 3,
                                          countOf(surface.packedNormals));
            },
        .limit = 0,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.packedNormals.size(); ++k) {
                    const Real3 exact = real(surface.areaNormals, k);
                    for (int j = 0; j < 3; ++j) {
                        deviation.add(surface.packedNormals[k][j], exact[j], exact[j]);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
