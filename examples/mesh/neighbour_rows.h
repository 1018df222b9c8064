// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"

#include <cstddef>

namespace lxpm::mesh {

// The neighbours of each vertex.
using Neighbours = std::vector<std::vector<int>>;

// For each vertex a matrix of three columns with a row for each neighbour, in single precision. Objects of an array
// are of one size, so those with fewer neighbours than others have rows of zeros, which add nothing to sums over rows.
// The last three rows are a multiple of the identity: they keep the columns independent wherever the neighbours lie.
class NeighbourRows {
public:
    NeighbourRows(const Neighbours &neighbours, float identity);

    int height() const { return height_; }
    int stride() const; // in bytes, from the matrix of a vertex to that of the next one

    Point *matrix(std::size_t vertex) { return &rows_[vertex * static_cast<std::size_t>(height_)]; }
    const Point *matrix(std::size_t vertex) const { return &rows_[vertex * static_cast<std::size_t>(height_)]; }
    const float *data() const { return rows_[0].data(); }
    float *data() { return rows_[0].data(); }

private:
    int height_;
    std::vector<Point> rows_;
};

} // namespace lxpm::mesh
