// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"

namespace lxpm::mesh {

using Edge = std::array<int, 2>;

// What the steps work on: the mesh as it was read, and what any program that works with meshes keeps beside it.
struct Scene {
    explicit Scene(Mesh read);

    Mesh mesh;
    Point centre;                // of the box around the mesh
    float extent;                // the longest side of that box
    std::vector<Vertex> centred; // the vertices, centred by the first step for those that follow
    std::vector<Edge> edges;     // each edge once, the smaller index first
};

} // namespace lxpm::mesh
