// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "colours.h"

#include <algorithm>
#include <cmath>

namespace lxpm::mesh {

namespace {

constexpr Colour hollow = {0.03f, 0.14f, 0.45f};
constexpr Colour flat = {0.72f, 0.68f, 0.60f};
constexpr Colour ridge = {0.62f, 0.10f, 0.03f};

// Nine tenths of the magnitudes are below it.
float typicalLargest(const std::vector<float> &curvatures) {
    std::vector<float> magnitudes;
    for (const float curvature : curvatures) {
        magnitudes.push_back(std::abs(curvature));
    }
    const auto ninth = magnitudes.begin() + static_cast<std::ptrdiff_t>(9 * (magnitudes.size() - 1) / 10);
    std::nth_element(magnitudes.begin(), ninth, magnitudes.end());
    return *ninth;
}

} // namespace

std::vector<Colour> coloursOf(const std::vector<float> &curvatures) {
    const float scale = typicalLargest(curvatures);
    std::vector<Colour> colours;
    for (const float curvature : curvatures) {
        const float strength = scale > 0 ? std::tanh(curvature / scale) : 0;
        colours.push_back(mix(flat, strength < 0 ? hollow : ridge, std::abs(strength)));
    }
    return colours;
}

} // namespace lxpm::mesh
