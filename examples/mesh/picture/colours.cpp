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

// Each value becomes the mean of itself and its neighbours, which takes the noise of a scanned surface away.
std::vector<float> smoothed(const std::vector<float> &values, const std::vector<Edge> &edges) {
    std::vector<float> sums = values, counts(values.size(), 1);
    for (const auto &[a, b] : edges) {
        sums[a] += values[b];
        sums[b] += values[a];
        ++counts[a];
        ++counts[b];
    }
    for (std::size_t k = 0; k < sums.size(); ++k) {
        sums[k] /= counts[k];
    }
    return sums;
}

} // namespace

std::vector<Colour> coloursOf(const Surface &surface) {
    const std::vector<float> curvatures = smoothed(surface.meanCurvatures, surface.edges);
    const float scale = typicalLargest(curvatures);
    std::vector<Colour> colours;
    for (const float curvature : curvatures) {
        const float strength = scale > 0 ? std::tanh(curvature / scale) : 0;
        colours.push_back(mix(flat, strength < 0 ? hollow : ridge, std::abs(strength)));
    }
    return colours;
}

} // namespace lxpm::mesh
