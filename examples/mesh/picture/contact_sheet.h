// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "image.h"
#include "progress.h"
#include "stage.h"
#include "surface.h"

namespace lxpm::mesh {

// Samples on each side of a pixel. The stage's raster has as many.
constexpr int samplesPerPixel = 3;

// All views of the stage beside and below each other, row by row, about as wide as high.
Image drawContactSheet(const Surface &surface, const Stage &stage, int viewSize, Progress &progress);

} // namespace lxpm::mesh
