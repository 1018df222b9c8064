// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "mesh.h"

#include <algorithm>

namespace lxpm::mesh {

Bounds boundsOf(const std::vector<Vertex> &vertices) {
    Bounds bounds{vertices[0].position, vertices[0].position};
    for (const Vertex &vertex : vertices) {
        for (int j = 0; j < 3; ++j) {
            bounds.lower[j] = std::min(bounds.lower[j], vertex.position[j]);
            bounds.upper[j] = std::max(bounds.upper[j], vertex.position[j]);
        }
    }
    return bounds;
}

} // namespace lxpm::mesh
