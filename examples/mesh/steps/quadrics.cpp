// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Error quadrics (Garland and Heckbert, "Surface simplification using quadric error metrics", 1997). The quadric of a
// vertex is a symmetric 4x4 matrix that tells how far a point is from the planes of the triangles around the vertex;
// what it costs to collapse an edge follows from the sum of the quadrics of its ends. Distances are differences of
// large terms, so the matrices are in double precision.

#include "quadrics.h"
#include "real.h"
#include "strides.h"

#include <utility>

namespace lxpm::mesh {

namespace {

constexpr int rowStride = 4 * doubleStride;

// p^T p for the plane p = (normal, distance) of a triangle; zero for a triangle without area.
Quadric quadricOfPlane(const Point &a, const Point &b, const Point &c) {
    const Real3 u = {double(b[0]) - a[0], double(b[1]) - a[1], double(b[2]) - a[2]};
    const Real3 v = {double(c[0]) - a[0], double(c[1]) - a[1], double(c[2]) - a[2]};
    const auto [x, y, z] = cross(u, v);
    double plane[4] = {x, y, z, 0};
    const double doubleArea = std::hypot(plane[0], plane[1], plane[2]);
    Quadric quadric{};
    if (doubleArea == 0) {
        return quadric;
    }
    for (int j = 0; j < 3; ++j) {
        plane[j] /= doubleArea;
        plane[3] -= plane[j] * a[j];
    }
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            quadric[4 * i + j] = plane[i] * plane[j];
        }
    }
    return quadric;
}

std::vector<Quadric> quadricsOfVertices(const Surface &surface) {
    std::vector<Quadric> quadrics(surface.vertices.size());
    for (const auto &[a, b, c] : surface.triangles) {
        const Quadric quadric =
            quadricOfPlane(surface.vertices[a].position, surface.vertices[b].position, surface.vertices[c].position);
        for (const int corner : {a, b, c}) {
            for (int i = 0; i < 16; ++i) {
                quadrics[corner][i] += quadric[i];
            }
        }
    }
    return quadrics;
}

} // namespace

Step edgeQuadrics(Surface &surface) {
    surface.vertexQuadrics = quadricsOfVertices(surface);
    surface.edgeQuadrics.resize(surface.edges.size());
    std::array<std::vector<const double *>, 2> ends;
    std::vector<double *> results;
    for (std::size_t k = 0; k < surface.edges.size(); ++k) {
        for (int end = 0; end < 2; ++end) {
            ends[end].push_back(surface.vertexQuadrics[surface.edges[k][end]].data());
        }
        results.push_back(surface.edgeQuadrics[k].data());
    }
    return {
        .name = "error quadrics of edges",
        .function = "lxpmAdd_mama_64f_L",
        .objects = surface.edges.size(),
        .compute =
            [ends = std::move(ends), results = std::move(results)] {
                return lxpmAdd_mama_64f_L(ends[0].data(), 0, rowStride, doubleStride, //
                                          ends[1].data(), 0, rowStride, doubleStride, //
                                          results.data(), 0, rowStride, doubleStride, 4, 4, countOf(results));
            },
        .limit = 0, // in double precision as well
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.edges.size(); ++k) {
                    const auto &[a, b] = surface.edges[k];
                    for (int i = 0; i < 16; ++i) {
                        const double exact = surface.vertexQuadrics[a][i] + surface.vertexQuadrics[b][i];
                        deviation.add(surface.edgeQuadrics[k][i], exact, exact);
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
