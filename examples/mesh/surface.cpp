// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "surface.h"

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

Surface::Surface(Mesh mesh)
    : triangles(std::move(mesh.triangles)), edges(edgesOf(triangles)), asRead(std::move(mesh.vertices)),
      vertices(asRead.size()), centred(asRead.size()), distances(asRead.size()), sides(triangles.size()),
      areaNormals(triangles.size()), areas(triangles.size()), unitNormals(triangles.size()),
      packedNormals(triangles.size()), crossMatrices(triangles.size()), areaGradients(triangles.size()),
      normalSums(asRead.size()), areaSums(asRead.size()), gradientSums(asRead.size()), normalLengths(asRead.size()),
      bendings(asRead.size()), meanCurvatures(asRead.size()) {
}

} // namespace lxpm::mesh
