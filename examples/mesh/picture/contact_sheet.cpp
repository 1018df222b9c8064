// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "contact_sheet.h"
#include "colours.h"
#include "raster.h"

#include <cmath>

namespace lxpm::mesh {

namespace {

constexpr Colour background = {0.87f, 0.88f, 0.90f};

Raster drawView(const Surface &surface, const Stage &stage, std::size_t view, const std::vector<Colour> &colours) {
    Raster raster(static_cast<int>(stage.rasterSize), background);
    const auto corner = [&](int vertex) {
        return Corner{stage.projected[view][vertex], stage.turned[view][vertex].normal, colours[vertex]};
    };
    for (const auto &[a, b, c] : surface.triangles) {
        raster.draw(corner(a), corner(b), corner(c));
    }
    return raster;
}

Colour meanOfSamples(const Image &samples, int x, int y) {
    Colour sum{};
    for (int i = 0; i < samplesPerPixel; ++i) {
        for (int j = 0; j < samplesPerPixel; ++j) {
            sum = sum + samples.at(x * samplesPerPixel + j, y * samplesPerPixel + i);
        }
    }
    return (1.0f / (samplesPerPixel * samplesPerPixel)) * sum;
}

} // namespace

Image drawContactSheet(const Surface &surface, const Stage &stage, int viewSize, Progress &progress) {
    const int views = static_cast<int>(stage.views.size());
    const int columns = static_cast<int>(std::ceil(std::sqrt(views)));
    const int rows = (views + columns - 1) / columns;
    Image sheet(columns * viewSize, rows * viewSize, background);

    const std::vector<Colour> colours = coloursOf(surface);
    for (int view = 0; view < views; ++view) {
        progress.show("drawing", static_cast<std::size_t>(view), stage.views.size());
        const Raster raster = drawView(surface, stage, static_cast<std::size_t>(view), colours);
        const int left = view % columns * viewSize, top = view / columns * viewSize;
        for (int y = 0; y < viewSize; ++y) {
            for (int x = 0; x < viewSize; ++x) {
                sheet.at(left + x, top + y) = meanOfSamples(raster.image(), x, y);
            }
        }
    }
    return sheet;
}

} // namespace lxpm::mesh
