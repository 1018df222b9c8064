// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "image.h"
#include "mesh.h"

namespace lxpm::mesh {

// The light that comes from a surface to the camera: a strong lamp at the upper left, a weak one at the right, and a
// sky that is brighter than the floor. The normal may have any length.
Colour lit(const Colour &surface, const Point &normal);

} // namespace lxpm::mesh
