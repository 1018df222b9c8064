// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step covariances(Surface &surface);
Step principalDirections(Surface &surface);
Step agreements(Surface &surface);
Step orientedNormals(Surface &surface);

} // namespace lxpm::mesh
