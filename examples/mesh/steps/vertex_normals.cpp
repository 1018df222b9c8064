// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The normal of a vertex: the mean of those of the triangles around it, weighted with their areas.

#include "vertex_normals.h"
#include "real.h"
#include "reciprocals.h"
#include "strides.h"

namespace lxpm::mesh {

Step lengthsOfNormalSums(Surface &surface) {
    return {
        .name = "lengths of their sums",
        .function = "lxpmL2Norm_va_32f",
        .objects = surface.normalSums.size(),
        .compute =
            [&surface] {
                return lxpmL2Norm_va_32f(surface.normalSums[0].data(), pointStride, floatStride,
                                         surface.normalLengths.data(), 3, countOf(surface.normalSums));
            },
        .limit = roundingsOfNorm,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.normalSums.size(); ++k) {
                    const double exact = length(real(surface.normalSums[k]));
                    deviation.add(surface.normalLengths[k], exact, magnitudeOfLength(exact));
                }
                return deviation;
            },
    };
}

// Into the interleaved vertices.
Step unitNormalsOfVertices(Surface &surface) {
    std::vector<float> factors;
    for (const float length : surface.normalLengths) {
        factors.push_back(reciprocalOrZero(length));
    }
    return {
        .name = "unit normals of vertices",
        .function = "lxpmMul_vaca_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface, factors] {
                return lxpmMul_vaca_32f(surface.normalSums[0].data(), pointStride, floatStride, //
                                        factors.data(), floatStride,                            //
                                        surface.vertices[0].normal.data(), vertexStride, floatStride, 3,
                                        countOf(factors));
            },
        .limit = roundingsOfNormalising,
        .deviation =
            [&surface, factors] {
                Deviation deviation;
                for (std::size_t k = 0; k < factors.size(); ++k) {
                    const Real3 sum = real(surface.normalSums[k]);
                    for (int j = 0; j < 3; ++j) {
                        const double exact = factors[k] == 0 ? 0 : sum[j] / length(sum);
                        deviation.add(surface.vertices[k].normal[j], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
