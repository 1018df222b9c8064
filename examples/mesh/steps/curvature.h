// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step crossMatrices(Surface &surface);
Step areaGradients(Surface &surface);
Step bendingAtVertices(Surface &surface);
Step meanCurvatures(Surface &surface);

} // namespace lxpm::mesh
