// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "surface.h"

namespace lxpm::mesh {

// Strides, in bytes.
constexpr int floatStride = sizeof(float);
constexpr int doubleStride = sizeof(double);
constexpr int pointStride = sizeof(Point);
constexpr int matrixStride = sizeof(Matrix3);
constexpr int vertexStride = sizeof(Vertex);
constexpr int triangleStride = sizeof(Sides); // of what has a point for each corner or side of a triangle

template <class Array>
int countOf(const Array &array) {
    return static_cast<int>(array.size());
}

// The pointers to the elements of the first of an array of vectors that stands in planes.
inline std::array<const float *, 3> elementPointers(const Planes &planes) {
    return {planes.coordinates[0].data(), planes.coordinates[1].data(), planes.coordinates[2].data()};
}
inline std::array<float *, 3> elementPointers(Planes &planes) {
    return {planes.coordinates[0].data(), planes.coordinates[1].data(), planes.coordinates[2].data()};
}

} // namespace lxpm::mesh
