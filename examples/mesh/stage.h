// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"

#include <string_view>

namespace lxpm::mesh {

using Matrix4 = std::array<float, 16>; // by rows, with points as row vectors on the left

// A side from which the mesh is looked at. The mesh is turned, the camera and the lights stay.
struct View {
    std::string_view name;
    float yaw, pitch; // radians
};

// The view of that name, or null.
const View *findView(std::string_view name);

// The names of all views, for messages.
std::string_view viewNames();

// What is needed to see the mesh from all views, and what the steps compute for it.
struct Stage {
    Stage(std::vector<View> views, std::size_t vertexCount, int rasterSize);

    std::vector<View> views;
    float rasterSize; // of the square viewport

    std::vector<Matrix4> rotations;            // for each view
    Matrix4 camera{}, projection{};            //
    std::vector<std::vector<Vertex>> turned;   // for each view
    std::vector<std::vector<Point>> projected; // for each view: to the viewport, z being the depth from 0 to 1
};

// The camera: a little above the mesh, which is inside of the unit sphere and fills the picture.
constexpr float fieldOfView = 0.5f; // radians
extern const Point eye;
extern const Point lookedAt;
extern const Point upwards;
constexpr float nearest = 3, farthest = 6; // depths in front of and behind the mesh

} // namespace lxpm::mesh
