// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step meanOfVertices(Surface &surface);
Step centre(Surface &surface);
Step distancesFromMean(Surface &surface);
Step scaleToUnitSphere(Surface &surface);

} // namespace lxpm::mesh
