// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"
#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step rotations(Stage &stage);
Step cameras(Stage &stage);
Step perspective(Stage &stage);
Step turnedVertices(const Surface &surface, Stage &stage);
Step projectedVertices(Stage &stage);

} // namespace lxpm::mesh
