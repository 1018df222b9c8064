// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Moves a mesh to the origin: one vector taken from an array of vectors.

#include "step.h"

namespace lxpm::mesh {

namespace {

// Points that stand one behind the other.
class CentrePoints : public Step {
public:
    explicit CentrePoints(const Scene &scene) : centre_(scene.centre) {
        for (const Vertex &vertex : scene.mesh.vertices) {
            points_.push_back(vertex.position);
        }
        centred_.resize(points_.size());
    }

    std::string_view name() const override { return "centre, packed points"; }
    std::string_view function() const override { return "lxpmSub_vav_32f"; }
    std::size_t objects() const override { return points_.size(); }

    LxpStatus compute() override {
        return lxpmSub_vav_32f(points_[0].data(), pointStride, floatStride, // from each point
                               centre_.data(), floatStride,                 // take the centre
                               centred_[0].data(), pointStride, floatStride, 3, static_cast<int>(points_.size()));
    }

    bool agrees() const override {
        std::vector<Point> expected(points_.size());
        for (std::size_t k = 0; k < points_.size(); ++k) {
            for (int j = 0; j < 3; ++j) {
                expected[k][j] = points_[k][j] - centre_[j];
            }
        }
        return sameBits(centred_, expected);
    }

private:
    Point centre_;
    std::vector<Point> points_;
    std::vector<Point> centred_;
};

// The positions inside of interleaved vertices: the normals between them are stepped over, and stay as they are.
class CentreVertices : public Step {
public:
    explicit CentreVertices(Scene &scene)
        : centre_(scene.centre), vertices_(scene.mesh.vertices), centred_(scene.centred) {}

    std::string_view name() const override { return "centre, interleaved vertices"; }
    std::string_view function() const override { return "lxpmSub_vav_32f"; }
    std::size_t objects() const override { return vertices_.size(); }

    LxpStatus compute() override {
        return lxpmSub_vav_32f(vertices_[0].position.data(), vertexStride, floatStride, //
                               centre_.data(), floatStride,                             //
                               centred_[0].position.data(), vertexStride, floatStride, 3,
                               static_cast<int>(vertices_.size()));
    }

    bool agrees() const override {
        std::vector<Vertex> expected = vertices_;
        for (Vertex &vertex : expected) {
            for (int j = 0; j < 3; ++j) {
                vertex.position[j] -= centre_[j];
            }
        }
        return sameBits(centred_, expected);
    }

private:
    Point centre_;
    const std::vector<Vertex> &vertices_;
    std::vector<Vertex> &centred_;
};

} // namespace

std::unique_ptr<Step> centrePoints(Scene &scene) {
    return std::make_unique<CentrePoints>(scene);
}

std::unique_ptr<Step> centreVertices(Scene &scene) {
    return std::make_unique<CentreVertices>(scene);
}

} // namespace lxpm::mesh
