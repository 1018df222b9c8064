// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "image.h"
#include "mesh.h"

namespace lxpm::mesh {

// A corner of a triangle on its way into the picture.
struct Corner {
    Point place; // x to the right, y downwards, in samples; z the depth
    Point normal;
    Colour colour;
};

// A square of samples, each of which keeps what is nearest to the eye.
class Raster {
public:
    Raster(int size, Colour background);

    // Both sides are visible; the normals are taken to point out of the side that is counter-clockwise.
    void draw(const Corner &a, const Corner &b, const Corner &c);

    const Image &image() const { return image_; }

private:
    Image image_;
    std::vector<float> depths_;
};

} // namespace lxpm::mesh
