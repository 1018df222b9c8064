// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "surface.h"

#include <cmath>

namespace lxpm::mesh {

// Plain vectors in double precision, for the loops that the library is held against.
using Real3 = std::array<double, 3>;
using Real3x3 = std::array<Real3, 3>; // by rows

inline Real3 real(const Point &p) {
    return {p[0], p[1], p[2]};
}

inline Real3 real(const Planes &planes, std::size_t k) {
    return {planes.coordinates[0][k], planes.coordinates[1][k], planes.coordinates[2][k]};
}

inline Real3 magnitudes(const Real3 &v) {
    return {std::abs(v[0]), std::abs(v[1]), std::abs(v[2])};
}

inline double dot(const Real3 &a, const Real3 &b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline Real3 cross(const Real3 &a, const Real3 &b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline double length(const Real3 &v) {
    return std::sqrt(dot(v, v));
}

inline Real3 normalised(const Real3 &v) {
    return {v[0] / length(v), v[1] / length(v), v[2] / length(v)};
}

inline Real3x3 real(const Matrix3 &m) {
    return {real(m[0]), real(m[1]), real(m[2])};
}

// The root of the sum of all squares.
inline double norm(const Real3x3 &m) {
    return std::hypot(length(m[0]), length(m[1]), length(m[2]));
}

} // namespace lxpm::mesh
