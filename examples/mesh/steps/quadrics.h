// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "step.h"
#include "surface.h"

namespace lxpm::mesh {

Step edgeQuadrics(Surface &surface);

} // namespace lxpm::mesh
