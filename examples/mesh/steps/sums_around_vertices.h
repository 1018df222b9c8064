// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

// What the triangles around each vertex have, summed.
Step normalsAroundVertices(Surface &surface);
Step areasAroundVertices(Surface &surface);
Step gradientsAroundVertices(Surface &surface);

} // namespace lxpm::mesh
