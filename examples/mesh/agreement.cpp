// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "agreement.h"
#include "steps/neighbourhoods.h"

#include <algorithm>

namespace lxpm::mesh {

NormalAgreement agreementOfNormals(const Surface &surface) {
    std::vector<double> degrees;
    for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
        const Real3 normal = real(surface.vertices[k].normal);
        if (length(normal) > 0) {
            const double cosine = std::min(dot(normal, real(surface.pointNormals[k])), 1.0);
            degrees.push_back(std::acos(cosine) * 45 / std::atan(1.0));
        }
    }
    if (degrees.empty()) {
        return {0, 100};
    }
    std::sort(degrees.begin(), degrees.end());
    const auto within = std::upper_bound(degrees.begin(), degrees.end(), 30.0) - degrees.begin();
    return {degrees[degrees.size() / 2], 100.0 * static_cast<double>(within) / static_cast<double>(degrees.size())};
}

std::optional<double> correlationOfCurvatures(const Surface &surface) {
    double n = 0, sumX = 0, sumY = 0, squaresX = 0, squaresY = 0, products = 0;
    for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
        if (surface.neighbours[k].empty()) {
            continue;
        }
        // The height falls where the surface is convex; its second derivatives are 2 a and 2 c, in the unit's inverse.
        const auto [a, b, c] = surface.fits.paraboloids[k];
        const double x = -(double(a) + c) / unitAround(surface, static_cast<int>(k));
        const double y = surface.meanCurvatures[k];
        n += 1;
        sumX += x;
        sumY += y;
        squaresX += x * x;
        squaresY += y * y;
        products += x * y;
    }
    const double spreadX = n * squaresX - sumX * sumX, spreadY = n * squaresY - sumY * sumY;
    const double noise = 0x1p-40; // of results in single precision, squared
    if (spreadX <= noise * n * squaresX || spreadY <= noise * n * squaresY) {
        return std::nullopt;
    }
    return (n * products - sumX * sumY) / std::sqrt(spreadX * spreadY);
}

} // namespace lxpm::mesh
