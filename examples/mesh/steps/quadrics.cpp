// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Error quadrics (Garland and Heckbert, "Surface simplification using quadric error metrics", 1997). The quadric of a
// vertex is a symmetric 4x4 matrix that tells how far a point is from the planes of the triangles around the vertex;
// what it costs to collapse an edge follows from the sum of the quadrics of its ends. Distances are differences of
// large terms, so the matrices are in double precision.

#include "step.h"

#include <cmath>

namespace lxpm::mesh {

namespace {

using Quadric = std::array<double, 16>;

constexpr int rowStride = 4 * doubleStride;

// p^T p for the plane p = (normal, distance) of a triangle; zero for a triangle without area.
Quadric quadricOfPlane(const Point &a, const Point &b, const Point &c) {
    const double u[3] = {double(b[0]) - a[0], double(b[1]) - a[1], double(b[2]) - a[2]};
    const double v[3] = {double(c[0]) - a[0], double(c[1]) - a[1], double(c[2]) - a[2]};
    double plane[4] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0], 0};
    const double length = std::hypot(plane[0], plane[1], plane[2]);
    Quadric quadric{};
    if (length == 0) {
        return quadric;
    }
    for (int j = 0; j < 3; ++j) {
        plane[j] /= length;
        plane[3] -= plane[j] * a[j];
    }
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            quadric[4 * i + j] = plane[i] * plane[j];
        }
    }
    return quadric;
}

class EdgeQuadrics : public Step {
public:
    explicit EdgeQuadrics(const Scene &scene)
        : edges_(scene.edges), ofVertices_(scene.mesh.vertices.size()), ofEdges_(edges_.size()) {
        const std::vector<Vertex> &vertices = scene.mesh.vertices;
        for (const auto &[a, b, c] : scene.mesh.triangles) {
            const Quadric quadric = quadricOfPlane(vertices[a].position, vertices[b].position, vertices[c].position);
            for (const int corner : {a, b, c}) {
                for (int i = 0; i < 16; ++i) {
                    ofVertices_[corner][i] += quadric[i];
                }
            }
        }
        for (std::size_t k = 0; k < edges_.size(); ++k) {
            for (int end = 0; end < 2; ++end) {
                ends_[end].push_back(ofVertices_[edges_[k][end]].data());
            }
            results_.push_back(ofEdges_[k].data());
        }
    }

    std::string_view name() const override { return "error quadrics of edges"; }
    std::string_view function() const override { return "lxpmAdd_mama_64f_L"; }
    std::size_t objects() const override { return edges_.size(); }

    LxpStatus compute() override {
        return lxpmAdd_mama_64f_L(ends_[0].data(), 0, rowStride, doubleStride, //
                                  ends_[1].data(), 0, rowStride, doubleStride, //
                                  results_.data(), 0, rowStride, doubleStride, 4, 4, static_cast<int>(edges_.size()));
    }

    bool agrees() const override {
        std::vector<Quadric> expected(ofEdges_.size());
        for (std::size_t k = 0; k < edges_.size(); ++k) {
            const auto &[a, b] = edges_[k];
            for (int i = 0; i < 16; ++i) {
                expected[k][i] = ofVertices_[a][i] + ofVertices_[b][i];
            }
        }
        return sameBits(ofEdges_, expected);
    }

private:
    const std::vector<Edge> &edges_;
    std::vector<Quadric> ofVertices_;
    std::vector<Quadric> ofEdges_;
    std::array<std::vector<const double *>, 2> ends_;
    std::vector<double *> results_;
};

} // namespace

std::unique_ptr<Step> edgeQuadrics(Scene &scene) {
    return std::make_unique<EdgeQuadrics>(scene);
}

} // namespace lxpm::mesh
