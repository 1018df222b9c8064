// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"

#include <string>
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

// The names of all views, separated by commas, for messages.
std::string viewNames();

// What is needed to see the mesh from all views, and what the steps compute for it. The camera stands a little above
// the middle of the mesh, four times as far from it as any of its vertices, so the mesh fills the picture from every
// side.
struct Stage {
    Stage(std::vector<View> views, const std::vector<Vertex> &vertices, int rasterSize);

    std::vector<View> views;
    float rasterSize; // of the square viewport
    Point middle;     // of the box around the mesh, before it is turned
    Point eyeOffset;  // from there to the camera
    float nearest, farthest;

    // for each view
    std::vector<Matrix4> rotations;
    std::vector<Point> targets; // the middle, turned
    std::vector<Point> eyes;
    std::vector<Matrix4> cameras;

    Matrix4 projection{};

    // for each view, all vertices
    std::vector<std::vector<Vertex>> turned;
    std::vector<std::vector<Point>> projected; // to the viewport, z being the depth from 0 to 1
};

constexpr Point upwards = {0, 1, 0};
constexpr float fieldOfView = 0.52f; // radians, a little more than what the sphere around the mesh takes

} // namespace lxpm::mesh
