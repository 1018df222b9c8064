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

Neighbours neighboursOf(const std::vector<Edge> &edges, std::size_t vertices) {
    Neighbours neighbours(vertices);
    for (const auto &[a, b] : edges) {
        neighbours[a].push_back(b);
        neighbours[b].push_back(a);
    }
    for (std::vector<int> &around : neighbours) {
        std::sort(around.begin(), around.end());
    }
    return neighbours;
}

// Of least squares: as much as the rest of a neighbour at a sixteenth of the mean distance.
constexpr float pullOfPlanes = 1.0f / 16;

} // namespace

Fits::Fits(const Neighbours &neighbours, float pull)
    : matrices(neighbours, pull), rightSides(neighbours.size() * static_cast<std::size_t>(matrices.height())),
      factors(neighbours, 0), buffer(static_cast<std::size_t>(matrices.height())), paraboloids(neighbours.size()),
      normalMatrices(neighbours.size()), normalSides(neighbours.size()), normalFactors(neighbours.size()),
      sameParaboloids(neighbours.size()) {
}

Surface::Surface(Mesh mesh)
    : triangles(std::move(mesh.triangles)), edges(edgesOf(triangles)),
      neighbours(neighboursOf(edges, mesh.vertices.size())), asRead(std::move(mesh.vertices)), vertices(asRead.size()),
      centred(asRead.size()), distances(asRead.size()), sides(triangles.size()), areaNormals(triangles.size()),
      areas(triangles.size()), unitNormals(triangles.size()), packedNormals(triangles.size()),
      crossMatrices(triangles.size()), areaGradients(triangles.size()), normalSums(asRead.size()),
      areaSums(asRead.size()), gradientSums(asRead.size()), normalLengths(asRead.size()), bendings(asRead.size()),
      meanCurvatures(asRead.size()), fits(neighbours, pullOfPlanes), deviationsFromMean(neighbours, 1),
      covariances(asRead.size()), directions(asRead.size()), variances(asRead.size()), agreements(asRead.size()),
      pointNormals(asRead.size()), variations(asRead.size()) {
}

} // namespace lxpm::mesh
