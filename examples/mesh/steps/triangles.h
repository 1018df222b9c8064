// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step sidesOfTriangles(Surface &surface);
Step normalsOfTriangles(Surface &surface);
Step areasOfTriangles(Surface &surface);
Step unitNormalsOfTriangles(Surface &surface);
Step packNormals(Surface &surface);

} // namespace lxpm::mesh
