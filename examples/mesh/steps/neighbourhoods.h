// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "real.h"
#include "step.h"

namespace lxpm::mesh {

// The mean distance of a vertex's neighbours, as the unit of length around it: vectors to them are of a magnitude
// around 1, as decompositions with absolute tolerances want them. 1 where there is nothing to measure.
double unitAround(const Surface &surface, int vertex);

// The vectors from a vertex to its neighbours, in that unit.
std::vector<Real3> waysToNeighbours(const Surface &surface, int vertex);

// The step transposed(A) * A for the rows of every vertex, the products of the columns with one another. Both must
// outlive the step.
Step productsOfColumns(std::string_view name, const NeighbourRows &rows, std::vector<Matrix3> &products);

} // namespace lxpm::mesh
