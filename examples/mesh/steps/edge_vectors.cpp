// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Two sides of each triangle, from which normals, areas and angles follow. The corners are named by pointers into the
// mesh's own vertices, so nothing is gathered first.

#include "step.h"

#include <cstddef>

namespace lxpm::mesh {

namespace {

struct Sides {
    Point first;  // from corner 0 to corner 1
    Point second; // from corner 0 to corner 2
};

class EdgeVectors : public Step {
public:
    explicit EdgeVectors(const Scene &scene)
        : vertices_(scene.centred), triangles_(scene.mesh.triangles), sides_(triangles_.size()) {
        for (int c = 0; c < 3; ++c) {
            for (const Triangle &triangle : triangles_) {
                corners_[c].push_back(vertices_[triangle[c]].position.data());
            }
        }
        for (Sides &sides : sides_) {
            results_.push_back(sides.first.data());
        }
    }

    std::string_view name() const override { return "edge vectors of triangles"; }
    std::string_view function() const override { return "lxpmSub_vava_32f_L"; }
    std::size_t objects() const override { return 2 * triangles_.size(); }

    LxpStatus compute() override {
        const LxpStatus status = subtract(1, offsetof(Sides, first));
        return status == lxpStatusOk ? subtract(2, offsetof(Sides, second)) : status;
    }

    bool agrees() const override {
        std::vector<Sides> expected(sides_.size());
        for (std::size_t k = 0; k < sides_.size(); ++k) {
            const auto &[a, b, c] = triangles_[k];
            for (int j = 0; j < 3; ++j) {
                expected[k].first[j] = vertices_[b].position[j] - vertices_[a].position[j];
                expected[k].second[j] = vertices_[c].position[j] - vertices_[a].position[j];
            }
        }
        return sameBits(sides_, expected);
    }

private:
    LxpStatus subtract(int corner, int resultOffset) {
        return lxpmSub_vava_32f_L(corners_[corner].data(), 0, floatStride, //
                                  corners_[0].data(), 0, floatStride,      //
                                  results_.data(), resultOffset, floatStride, 3, static_cast<int>(triangles_.size()));
    }

    const std::vector<Vertex> &vertices_;
    const std::vector<Triangle> &triangles_;
    std::vector<Sides> sides_;
    std::array<std::vector<const float *>, 3> corners_;
    std::vector<float *> results_;
};

} // namespace

std::unique_ptr<Step> edgeVectors(Scene &scene) {
    return std::make_unique<EdgeVectors>(scene);
}

} // namespace lxpm::mesh
