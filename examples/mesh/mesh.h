// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

namespace lxpm::mesh {

using Point = std::array<float, 3>;

// Interleaved, as a graphics program hands it to the graphics processor.
struct Vertex {
    Point position;
    Point normal; // outwards, of length 1, or 0 where the surface has none
};

// Indexes of the corners, counter-clockwise as seen from outside.
using Triangle = std::array<int, 3>;

struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<Triangle> triangles;
};

struct Bounds {
    Point lower;
    Point upper;
};

Bounds boundsOf(const std::vector<Vertex> &vertices);

} // namespace lxpm::mesh
