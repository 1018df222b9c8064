// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "real.h"
#include "surface.h"

namespace lxpm::mesh {

// The mean distance of a vertex's neighbours, as the unit of length around it: vectors to them are of a magnitude
// around 1, as decompositions with absolute tolerances want them. 1 where there is nothing to measure.
double unitAround(const Surface &surface, int vertex);

// The vectors from a vertex to its neighbours, in that unit.
std::vector<Real3> waysToNeighbours(const Surface &surface, int vertex);

} // namespace lxpm::mesh
