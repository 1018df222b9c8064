// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "light.h"

#include <algorithm>
#include <cmath>

namespace lxpm::mesh {

namespace {

Point normalised(const Point &v) {
    const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    return length > 0 ? Point{v[0] / length, v[1] / length, v[2] / length} : Point{};
}

float cosine(const Point &a, const Point &b) {
    return std::max(0.0f, a[0] * b[0] + a[1] * b[1] + a[2] * b[2]);
}

const Point lamp = normalised({-0.55f, 0.75f, 0.75f});
const Point fill = normalised({0.9f, 0.1f, 0.5f});
const Point towardsEye = normalised({0, 0.2f, 1});
const Point mirror = normalised({lamp[0] + towardsEye[0], lamp[1] + towardsEye[1], lamp[2] + towardsEye[2]});

} // namespace

Colour lit(const Colour &surface, const Point &normal) {
    const Point n = normalised(normal);
    const float diffuse = 0.14f + 0.08f * n[1] + 0.95f * cosine(n, lamp) + 0.22f * cosine(n, fill);
    const float gloss = 0.07f * std::pow(cosine(n, mirror), 30.0f);
    return diffuse * surface + Colour{gloss, gloss, gloss};
}

} // namespace lxpm::mesh
