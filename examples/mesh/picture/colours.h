// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "image.h"
#include "surface.h"

namespace lxpm::mesh {

// A colour for each vertex by its mean curvature: blue in hollows, red on ridges and tips, nearly white where the
// surface is flat. The colours are spread so that the picture of a round mesh shows as much as that of a rough one.
std::vector<Colour> coloursOf(const Surface &surface);

} // namespace lxpm::mesh
