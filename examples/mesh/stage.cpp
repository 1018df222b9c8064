// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "stage.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace lxpm::mesh {

namespace {

constexpr float quarterTurn = std::numbers::pi_v<float> / 2;

// Named after where the onlooker stands; y points upwards, and the front is where z points to.
constexpr View allViews[] = {
    {"quarter", -0.4f * quarterTurn, 0}, {"front", 0, 0},          {"right", -quarterTurn, 0},
    {"back", 2 * quarterTurn, 0},        {"left", quarterTurn, 0}, {"above", 0, 0.8f * quarterTurn},
    {"below", 0, -quarterTurn},
};

} // namespace

const View *findView(std::string_view name) {
    const View *found =
        std::find_if(std::begin(allViews), std::end(allViews), [name](const View &view) { return view.name == name; });
    return found == std::end(allViews) ? nullptr : found;
}

std::string viewNames() {
    std::string names;
    for (const View &view : allViews) {
        names += names.empty() ? "" : ", ";
        names += view.name;
    }
    return names;
}

Stage::Stage(std::vector<View> viewsToShow, const std::vector<Vertex> &vertices, int size)
    : views(std::move(viewsToShow)), rasterSize(static_cast<float>(size)), rotations(views.size()),
      targets(views.size()), eyes(views.size()), cameras(views.size()),
      turned(views.size(), std::vector<Vertex>(vertices.size())),
      projected(views.size(), std::vector<Point>(vertices.size())) {
    const auto [lower, upper] = boundsOf(vertices);
    for (int j = 0; j < 3; ++j) {
        middle[j] = (lower[j] + upper[j]) / 2;
    }
    float radius = 0;
    for (const auto &[p, normal] : vertices) {
        radius = std::max(radius, std::hypot(p[0] - middle[0], p[1] - middle[1], p[2] - middle[2]));
    }
    const float distance = 4 * radius;
    eyeOffset = {0, 0.2f * distance, 0.98f * distance};
    nearest = 2.9f * radius;
    farthest = 5.1f * radius;
}

} // namespace lxpm::mesh
