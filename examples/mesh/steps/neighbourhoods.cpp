// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "neighbourhoods.h"

namespace lxpm::mesh {

namespace {

Real3 wayBetween(const Surface &surface, int from, int to) {
    const Real3 a = real(surface.vertices[from].position), b = real(surface.vertices[to].position);
    return {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
}

} // namespace

double unitAround(const Surface &surface, int vertex) {
    double sum = 0;
    for (const int other : surface.neighbours[vertex]) {
        sum += length(wayBetween(surface, vertex, other));
    }
    return sum > 0 ? sum / static_cast<double>(surface.neighbours[vertex].size()) : 1;
}

std::vector<Real3> waysToNeighbours(const Surface &surface, int vertex) {
    const double unit = unitAround(surface, vertex);
    std::vector<Real3> ways;
    for (const int other : surface.neighbours[vertex]) {
        Real3 way = wayBetween(surface, vertex, other);
        for (double &element : way) {
            element /= unit;
        }
        ways.push_back(way);
    }
    return ways;
}

} // namespace lxpm::mesh
