// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene.h"

#include <cstring>
#include <lxpm.h>
#include <memory>
#include <string_view>

namespace lxpm::mesh {

// One thing that somebody with a mesh wants computed. A step owns the memory of its results and prepares on
// construction whatever it needs beside the mesh, so compute() is calls of the library and nothing else.
class Step {
public:
    virtual ~Step() = default;

    virtual std::string_view name() const = 0;
    virtual std::string_view function() const = 0;
    virtual std::size_t objects() const = 0; // computed by one compute()

    // May be called again and again.
    virtual LxpStatus compute() = 0;

    // Whether every result has the bits that a plain loop gives.
    virtual bool agrees() const = 0;
};

// In the order in which they are to be run: the scene's centred vertices are a result of centreVertices.
std::unique_ptr<Step> centrePoints(Scene &scene);
std::unique_ptr<Step> centreVertices(Scene &scene);
std::unique_ptr<Step> edgeVectors(Scene &scene);
std::unique_ptr<Step> displacement(Scene &scene);
std::unique_ptr<Step> boxesAroundVertices(Scene &scene);
std::unique_ptr<Step> edgeQuadrics(Scene &scene);

// Strides, in bytes.
constexpr int floatStride = sizeof(float);
constexpr int doubleStride = sizeof(double);
constexpr int pointStride = sizeof(Point);
constexpr int vertexStride = sizeof(Vertex);

// Equal to the bit: zeros of different sign are different.
template <class Results>
bool sameBits(const Results &a, const Results &b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0;
}

} // namespace lxpm::mesh
