// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

namespace lxpm::mesh {

// Linear light, 0 to 1.
struct Colour {
    float red, green, blue;
};

inline Colour operator+(const Colour &a, const Colour &b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
inline Colour operator*(float factor, const Colour &a) {
    return {factor * a.red, factor * a.green, factor * a.blue};
}

// From a to b as t goes from 0 to 1.
inline Colour mix(const Colour &a, const Colour &b, float t) {
    return (1 - t) * a + t * b;
}

class Image {
public:
    Image(int width, int height, Colour colour)
        : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * height, colour) {}

    int width() const { return width_; }
    int height() const { return height_; }
    Colour &at(int x, int y) { return pixels_[static_cast<std::size_t>(y) * width_ + x]; }
    const Colour &at(int x, int y) const { return pixels_[static_cast<std::size_t>(y) * width_ + x]; }

private:
    int width_, height_;
    std::vector<Colour> pixels_;
};

} // namespace lxpm::mesh
