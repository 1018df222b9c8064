// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A box around each vertex that holds all of its neighbours, as a search for collisions wants it: from every coordinate
// of a vertex, the vertex's own radius is taken, and to every coordinate it is added.

#include "boxes.h"
#include "real.h"
#include "strides.h"

#include <algorithm>

namespace lxpm::mesh {

namespace {

// The length of the longest edge at each vertex.
std::vector<float> radiiOf(const Surface &surface) {
    std::vector<float> radii(surface.vertices.size());
    for (const auto &[a, b] : surface.edges) {
        const Point &p = surface.vertices[a].position, &q = surface.vertices[b].position;
        const float edge = std::hypot(p[0] - q[0], p[1] - q[1], p[2] - q[2]);
        radii[a] = std::max(radii[a], edge);
        radii[b] = std::max(radii[b], edge);
    }
    return radii;
}

} // namespace

Step boxesAroundVertices(Surface &surface) {
    surface.boxes.resize(surface.vertices.size());
    const std::vector<float> radii = radiiOf(surface);
    const auto combine = [&surface, radii](decltype(lxpmAdd_vaca_32f) operation, Point &firstResult) {
        return operation(surface.vertices[0].position.data(), vertexStride, floatStride, //
                         radii.data(), floatStride,                                      //
                         firstResult.data(), sizeof(Bounds), floatStride, 3, countOf(radii));
    };
    return {
        .name = "boxes around vertices",
        .function = "lxpm{Sub,Add}_vaca_32f",
        .objects = 2 * surface.boxes.size(),
        .compute =
            [&surface, combine] {
                const LxpStatus status = combine(lxpmSub_vaca_32f, surface.boxes[0].lower);
                return status != lxpStatusOk ? status : combine(lxpmAdd_vaca_32f, surface.boxes[0].upper);
            },
        .limit = 1,
        .deviation =
            [&surface, radii] {
                Deviation deviation;
                for (std::size_t k = 0; k < radii.size(); ++k) {
                    const Real3 position = real(surface.vertices[k].position);
                    for (int j = 0; j < 3; ++j) {
                        const double lower = position[j] - radii[k], upper = position[j] + radii[k];
                        deviation.add(surface.boxes[k].lower[j], lower, lower);
                        deviation.add(surface.boxes[k].upper[j], upper, upper);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
