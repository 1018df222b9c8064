// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step factorsOfFits(Surface &surface);
Step quadraticFits(Surface &surface);
Step normalMatrices(Surface &surface);
Step normalRightSides(Surface &surface);
Step factorsOfNormalMatrices(Surface &surface);
Step fitsByNormalEquations(Surface &surface);

} // namespace lxpm::mesh
