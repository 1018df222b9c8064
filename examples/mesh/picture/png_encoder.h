// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "image.h"

namespace lxpm::mesh {

// The content of a PNG file of 8 bits for each colour, as screens want them (sRGB).
std::vector<unsigned char> encodePng(const Image &image);

} // namespace lxpm::mesh
