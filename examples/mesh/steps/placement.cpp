// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Brings a mesh from wherever the file has it into the unit sphere around its mean.

#include "placement.h"
#include "real.h"
#include "strides.h"

#include <algorithm>

namespace lxpm::mesh {

// The positions are a matrix of three rows, a column for each vertex: its product with a vector of weights is the mean.
Step meanOfVertices(Surface &surface) {
    const int count = countOf(surface.asRead);
    return {
        .name = "mean of the vertices",
        .function = "lxpmMul_mv_32f",
        .objects = surface.asRead.size(),
        .compute =
            [&surface, count, weights = std::vector<float>(count, 1.0f / static_cast<float>(count))] {
                return lxpmMul_mv_32f(surface.asRead[0].position.data(), floatStride, vertexStride, count, 3, //
                                      weights.data(), floatStride, count,                                     //
                                      surface.mean.data(), floatStride);
            },
        .limit = count + 1.0, // the weight is rounded, then a product and count - 1 sums
        .deviation =
            [&surface] {
                Real3 sum{}, magnitude{};
                for (const Vertex &vertex : surface.asRead) {
                    for (int j = 0; j < 3; ++j) {
                        sum[j] += vertex.position[j];
                        magnitude[j] += std::abs(vertex.position[j]);
                    }
                }
                Deviation deviation;
                const double vertices = static_cast<double>(surface.asRead.size());
                for (int j = 0; j < 3; ++j) {
                    deviation.add(surface.mean[j], sum[j] / vertices, magnitude[j] / vertices);
                }
                return deviation;
            },
    };
}

// The normals between the positions are stepped over.
Step centre(Surface &surface) {
    return {
        .name = "vertices minus mean",
        .function = "lxpmSub_vav_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface] {
                return lxpmSub_vav_32f(surface.asRead[0].position.data(), vertexStride, floatStride, //
                                       surface.mean.data(), floatStride,                             //
                                       surface.centred[0].data(), pointStride, floatStride, 3,
                                       countOf(surface.vertices));
            },
        .limit = 1,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.centred.size(); ++k) {
                    for (int j = 0; j < 3; ++j) {
                        const double exact = double(surface.asRead[k].position[j]) - surface.mean[j];
                        deviation.add(surface.centred[k][j], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

Step distancesFromMean(Surface &surface) {
    return {
        .name = "distances from the mean",
        .function = "lxpmL2Norm_va_32f",
        .objects = surface.centred.size(),
        .compute =
            [&surface] {
                return lxpmL2Norm_va_32f(surface.centred[0].data(), pointStride, floatStride, surface.distances.data(),
                                         3, countOf(surface.centred));
            },
        .limit = roundingsOfNorm,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.centred.size(); ++k) {
                    const double exact = length(real(surface.centred[k]));
                    deviation.add(surface.distances[k], exact, magnitudeOfLength(exact));
                }
                return deviation;
            },
    };
}

Step scaleToUnitSphere(Surface &surface) {
    surface.scale = 1 / *std::max_element(surface.distances.begin(), surface.distances.end());
    return {
        .name = "scaled to the unit sphere",
        .function = "lxpmMul_vac_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface] {
                return lxpmMul_vac_32f(surface.centred[0].data(), pointStride, floatStride, //
                                       surface.scale,                                       //
                                       surface.vertices[0].position.data(), vertexStride, floatStride, 3,
                                       countOf(surface.vertices));
            },
        .limit = 1,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
                    for (int j = 0; j < 3; ++j) {
                        const double exact = double(surface.centred[k][j]) * surface.scale;
                        deviation.add(surface.vertices[k].position[j], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
