// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "neighbour_rows.h"

#include <algorithm>

namespace lxpm::mesh {

namespace {

int heightOf(const Neighbours &neighbours) {
    std::size_t most = 0;
    for (const std::vector<int> &around : neighbours) {
        most = std::max(most, around.size());
    }
    return static_cast<int>(most) + 3;
}

} // namespace

NeighbourRows::NeighbourRows(const Neighbours &neighbours, float identity)
    : height_(heightOf(neighbours)), rows_(neighbours.size() * static_cast<std::size_t>(height_)) {
    for (std::size_t vertex = 0; vertex < neighbours.size(); ++vertex) {
        for (int j = 0; j < 3; ++j) {
            matrix(vertex)[height_ - 3 + j][j] = identity;
        }
    }
}

int NeighbourRows::stride() const {
    return height_ * static_cast<int>(sizeof(Point));
}

} // namespace lxpm::mesh
