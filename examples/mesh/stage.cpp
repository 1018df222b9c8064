// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "stage.h"

#include <algorithm>
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

// 4.3 away, 0.2 radians above the horizon.
const Point eye = {0, 0.854f, 4.214f};
const Point lookedAt = {0, 0, 0};
const Point upwards = {0, 1, 0};

const View *findView(std::string_view name) {
    const View *found =
        std::find_if(std::begin(allViews), std::end(allViews), [name](const View &view) { return view.name == name; });
    return found == std::end(allViews) ? nullptr : found;
}

std::string_view viewNames() {
    return "quarter, front, right, back, left, above, below";
}

Stage::Stage(std::vector<View> viewsToShow, std::size_t vertexCount, int size)
    : views(std::move(viewsToShow)), rasterSize(static_cast<float>(size)), rotations(views.size()),
      turned(views.size(), std::vector<Vertex>(vertexCount)), projected(views.size(), std::vector<Point>(vertexCount)) {
}

} // namespace lxpm::mesh
