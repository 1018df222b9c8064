// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A box around each vertex that holds all of its neighbours, as a search for collisions wants it: from every coordinate
// of a vertex, the vertex's own radius is taken, and to every coordinate it is added.

#include "step.h"

#include <algorithm>
#include <cmath>

namespace lxpm::mesh {

namespace {

struct Box {
    Point lower;
    Point upper;
};

constexpr int boxStride = sizeof(Box);

float distance(const Point &a, const Point &b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

class Boxes : public Step {
public:
    explicit Boxes(const Scene &scene) : vertices_(scene.centred), radii_(vertices_.size()), boxes_(vertices_.size()) {
        for (const auto &[a, b] : scene.edges) {
            const float length = distance(scene.mesh.vertices[a].position, scene.mesh.vertices[b].position);
            radii_[a] = std::max(radii_[a], length);
            radii_[b] = std::max(radii_[b], length);
        }
    }

    std::string_view name() const override { return "boxes around vertices"; }
    std::string_view function() const override { return "lxpm{Sub,Add}_vaca_32f"; }
    std::size_t objects() const override { return 2 * boxes_.size(); }

    LxpStatus compute() override {
        const LxpStatus status = combine(lxpmSub_vaca_32f, boxes_[0].lower);
        return status == lxpStatusOk ? combine(lxpmAdd_vaca_32f, boxes_[0].upper) : status;
    }

    bool agrees() const override {
        std::vector<Box> expected(boxes_.size());
        for (std::size_t k = 0; k < boxes_.size(); ++k) {
            for (int j = 0; j < 3; ++j) {
                expected[k].lower[j] = vertices_[k].position[j] - radii_[k];
                expected[k].upper[j] = vertices_[k].position[j] + radii_[k];
            }
        }
        return sameBits(boxes_, expected);
    }

private:
    LxpStatus combine(decltype(lxpmAdd_vaca_32f) operation, Point &firstResult) {
        return operation(vertices_[0].position.data(), vertexStride, floatStride, //
                         radii_.data(), floatStride,                              //
                         firstResult.data(), boxStride, floatStride, 3, static_cast<int>(boxes_.size()));
    }

    const std::vector<Vertex> &vertices_;
    std::vector<float> radii_; // the length of the longest edge at each vertex
    std::vector<Box> boxes_;
};

} // namespace

std::unique_ptr<Step> boxesAroundVertices(Scene &scene) {
    return std::make_unique<Boxes>(scene);
}

} // namespace lxpm::mesh
