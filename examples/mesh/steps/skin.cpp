// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A second skin around the mesh, as for shells, fur and outlines: each vertex moved outwards along its normal.

#include "skin.h"
#include "real.h"
#include "strides.h"

namespace lxpm::mesh {

Step outerSkin(Surface &surface) {
    constexpr float thickness = 0.01f;
    surface.skin.resize(surface.vertices.size());
    return {
        .name = "outer skin",
        .function = "lxpmSaxpy_vava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&surface] {
                return lxpmSaxpy_vava_32f(surface.vertices[0].normal.data(), vertexStride, floatStride,   //
                                          thickness,                                                      //
                                          surface.vertices[0].position.data(), vertexStride, floatStride, //
                                          surface.skin[0].data(), pointStride, floatStride, 3,
                                          countOf(surface.vertices));
            },
        .limit = 2,
        .deviation =
            [&surface] {
                Deviation deviation;
                for (std::size_t k = 0; k < surface.skin.size(); ++k) {
                    const auto &[position, normal] = surface.vertices[k];
                    for (int j = 0; j < 3; ++j) {
                        const double way = double(thickness) * normal[j];
                        deviation.add(surface.skin[k][j], way + position[j], std::abs(way) + std::abs(position[j]));
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
