// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "raster.h"
#include "light.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace lxpm::mesh {

namespace {

// Places are rounded to a fine grid of integers. Sides of triangles are then exact, so two triangles that share one
// leave no sample between them.
constexpr std::int64_t gridPerSample = 256;

struct GridPoint {
    std::int64_t x, y;
};

GridPoint toGrid(const Point &place) {
    return {std::llround(place[0] * gridPerSample), std::llround(place[1] * gridPerSample)};
}

GridPoint middleOfSample(int x, int y) {
    return {x * gridPerSample + gridPerSample / 2, y * gridPerSample + gridPerSample / 2};
}

// Twice the area of the triangle, positive if it is clockwise to the eye (y points downwards).
std::int64_t doubleArea(const GridPoint &a, const GridPoint &b, const GridPoint &c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

struct SampleRange {
    int begin, end;
};

SampleRange samplesBetween(std::int64_t a, std::int64_t b, std::int64_t c, int size) {
    const auto [least, greatest] = std::minmax({a, b, c});
    const auto sample = [size](std::int64_t coordinate) {
        return static_cast<int>(std::clamp<std::int64_t>(coordinate / gridPerSample, 0, size));
    };
    return {sample(least), sample(greatest + gridPerSample)};
}

} // namespace

Raster::Raster(int size, Colour background)
    : image_(size, size, background),
      depths_(static_cast<std::size_t>(size) * size, std::numeric_limits<float>::infinity()) {
}

void Raster::draw(const Corner &a, const Corner &b, const Corner &c) {
    const GridPoint p = toGrid(a.place), q = toGrid(b.place), r = toGrid(c.place);
    const std::int64_t area = doubleArea(p, q, r);
    if (area == 0) {
        return;
    }
    if (area > 0) { // seen from behind
        const auto turned = [](Corner corner) {
            return Corner{corner.place, {-corner.normal[0], -corner.normal[1], -corner.normal[2]}, corner.colour};
        };
        const Corner behind[] = {turned(a), turned(c), turned(b)};
        return draw(behind[0], behind[1], behind[2]);
    }

    const SampleRange rows = samplesBetween(p.y, q.y, r.y, image_.height());
    const SampleRange columns = samplesBetween(p.x, q.x, r.x, image_.width());
    for (int y = rows.begin; y < rows.end; ++y) {
        for (int x = columns.begin; x < columns.end; ++x) {
            const GridPoint sample = middleOfSample(x, y);
            const std::int64_t ofA = doubleArea(sample, q, r), ofB = doubleArea(p, sample, r),
                               ofC = doubleArea(p, q, sample);
            if (ofA > 0 || ofB > 0 || ofC > 0) {
                continue;
            }
            // Weights on the screen, not in space: triangles are too small for the difference to be seen.
            const float s = static_cast<float>(ofA) / static_cast<float>(area);
            const float t = static_cast<float>(ofB) / static_cast<float>(area);
            const float u = static_cast<float>(ofC) / static_cast<float>(area);
            const float depth = s * a.place[2] + t * b.place[2] + u * c.place[2];
            float &nearest = depths_[static_cast<std::size_t>(y) * image_.width() + x];
            if (!(depth < nearest)) {
                continue;
            }
            nearest = depth;
            Point normal;
            for (int j = 0; j < 3; ++j) {
                normal[j] = s * a.normal[j] + t * b.normal[j] + u * c.normal[j];
            }
            image_.at(x, y) = lit(s * a.colour + t * b.colour + u * c.colour, normal);
        }
    }
}

} // namespace lxpm::mesh
