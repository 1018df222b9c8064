// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "surface.h"

#include <cmath>

namespace lxpm::mesh {

// Plain vectors in double precision, for the loops that the library is held against.
using Real3 = std::array<double, 3>;

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

inline double length(const Real3 &v) {
    return std::sqrt(dot(v, v));
}

} // namespace lxpm::mesh
