// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "scene.h"

#include <algorithm>
#include <utility>

namespace lxpm::mesh {

namespace {

std::vector<Edge> edgesOf(const std::vector<Triangle> &triangles) {
    std::vector<Edge> edges;
    edges.reserve(3 * triangles.size());
    for (const auto &[a, b, c] : triangles) {
        edges.push_back({std::min(a, b), std::max(a, b)});
        edges.push_back({std::min(b, c), std::max(b, c)});
        edges.push_back({std::min(c, a), std::max(c, a)});
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

} // namespace

Scene::Scene(Mesh read) : mesh(std::move(read)), centre(), extent(0), centred(mesh.vertices) {
    edges = edgesOf(mesh.triangles);
    for (int j = 0; j < 3; ++j) {
        const auto [lowest, highest] =
            std::minmax_element(mesh.vertices.begin(), mesh.vertices.end(),
                                [j](const Vertex &a, const Vertex &b) { return a.position[j] < b.position[j]; });
        centre[j] = lowest->position[j] / 2 + highest->position[j] / 2;
        extent = std::max(extent, highest->position[j] - lowest->position[j]);
    }
}

} // namespace lxpm::mesh
