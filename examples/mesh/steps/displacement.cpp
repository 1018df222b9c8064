// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A second skin around the mesh, as for shells, fur and outlines: each vertex moved outwards by a vector of its own.

#include "step.h"

namespace lxpm::mesh {

namespace {

class Displacement : public Step {
public:
    explicit Displacement(const Scene &scene) : vertices_(scene.centred), skin_(vertices_.size()) {
        const float thickness = scene.extent / 100;
        for (const Vertex &vertex : vertices_) {
            const auto &[x, y, z] = vertex.normal;
            offsets_.push_back({thickness * x, thickness * y, thickness * z});
        }
    }

    std::string_view name() const override { return "displacement along normals"; }
    std::string_view function() const override { return "lxpmAdd_vava_32f"; }
    std::size_t objects() const override { return vertices_.size(); }

    LxpStatus compute() override {
        return lxpmAdd_vava_32f(vertices_[0].position.data(), vertexStride, floatStride, //
                                offsets_[0].data(), pointStride, floatStride,            //
                                skin_[0].data(), pointStride, floatStride, 3, static_cast<int>(vertices_.size()));
    }

    bool agrees() const override {
        std::vector<Point> expected(skin_.size());
        for (std::size_t k = 0; k < skin_.size(); ++k) {
            for (int j = 0; j < 3; ++j) {
                expected[k][j] = vertices_[k].position[j] + offsets_[k][j];
            }
        }
        return sameBits(skin_, expected);
    }

private:
    const std::vector<Vertex> &vertices_;
    std::vector<Point> offsets_;
    std::vector<Point> skin_;
};

} // namespace

std::unique_ptr<Step> displacement(Scene &scene) {
    return std::make_unique<Displacement>(scene);
}

} // namespace lxpm::mesh
