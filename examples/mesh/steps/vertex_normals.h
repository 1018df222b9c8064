// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step lengthsOfNormalSums(Surface &surface);
Step unitNormalsOfVertices(Surface &surface);

} // namespace lxpm::mesh
