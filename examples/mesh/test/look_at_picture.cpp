// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Fails, and says why, unless a PNG file shows what it should.
//
// usage: look_at_picture FILE WIDTH HEIGHT [EXPECTATION]...
//
//   whole     the only view is of something convex: no row has background between its first and its last pixel
//   upright   ... that is wider below than above
//   lit       ... that is brighter above than below

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <png.h>
#include <set>
#include <string_view>
#include <vector>

namespace {

struct Picture {
    int width = 0, height = 0;
    std::vector<png_byte> pixels; // three bytes each

    // As one number, for comparison.
    int colour(int x, int y) const {
        const png_byte *pixel = &pixels[3 * (static_cast<std::size_t>(y) * width + x)];
        return pixel[0] << 16 | pixel[1] << 8 | pixel[2];
    }
    int background() const { return colour(0, 0); }
    int brightness(int x, int y) const {
        const png_byte *pixel = &pixels[3 * (static_cast<std::size_t>(y) * width + x)];
        return pixel[0] + pixel[1] + pixel[2];
    }
};

[[noreturn]] void fail(const char *why) {
    std::printf("%s\n", why);
    std::exit(1);
}

void require(bool holds, const char *otherwise) {
    if (!holds) {
        fail(otherwise);
    }
}

Picture read(const char *path) {
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&header, path)) {
        fail(header.message);
    }
    header.format = PNG_FORMAT_RGB;
    Picture picture{static_cast<int>(header.width), static_cast<int>(header.height), {}};
    picture.pixels.resize(PNG_IMAGE_SIZE(header));
    if (!png_image_finish_read(&header, nullptr, picture.pixels.data(), 0, nullptr)) {
        fail(header.message);
    }
    return picture;
}

struct Row {
    int first, last, filled; // pixels that are not background
    double brightness;       // their mean
};

std::optional<Row> rowOf(const Picture &picture, int y) {
    std::optional<Row> row;
    for (int x = 0; x < picture.width; ++x) {
        if (picture.colour(x, y) != picture.background()) {
            if (!row) {
                row = Row{x, x, 0, 0};
            }
            row->last = x;
            ++row->filled;
            row->brightness += (picture.brightness(x, y) - row->brightness) / row->filled;
        }
    }
    return row;
}

void requireSomethingToSee(const Picture &picture) {
    int filled = 0;
    std::set<int> colours;
    for (int y = 0; y < picture.height; ++y) {
        filled += rowOf(picture, y).value_or(Row{}).filled;
        for (int x = 0; x < picture.width; ++x) {
            colours.insert(picture.colour(x, y));
        }
    }
    const double share = static_cast<double>(filled) / picture.width / picture.height;
    require(share > 0.1 && share < 0.9, "the mesh should cover between a tenth and nine tenths of the picture");
    require(colours.size() > 100, "the mesh is not shaded");
}

// The mesh's rows, from the highest to the lowest.
std::vector<Row> requireWhole(const Picture &picture) {
    std::vector<Row> rows;
    bool ended = false;
    for (int y = 0; y < picture.height; ++y) {
        if (const std::optional<Row> row = rowOf(picture, y)) {
            require(!ended, "there are pixels below the mesh");
            require(row->filled == row->last - row->first + 1, "there are holes in the mesh, or pixels beside it");
            rows.push_back(*row);
        } else {
            ended = !rows.empty();
        }
    }
    return rows;
}

} // namespace

int main(int argc, char **argv) {
    require(argc >= 4, "usage: look_at_picture FILE WIDTH HEIGHT [EXPECTATION]...");
    const Picture picture = read(argv[1]);
    require(picture.width == std::atoi(argv[2]) && picture.height == std::atoi(argv[3]), "the picture's size is wrong");
    requireSomethingToSee(picture);

    const std::vector<std::string_view> expectations(argv + 4, argv + argc);
    const auto expected = [&](std::string_view what) {
        return std::find(expectations.begin(), expectations.end(), what) != expectations.end();
    };
    if (expected("whole")) {
        const std::vector<Row> rows = requireWhole(picture);
        const Row &upper = rows[rows.size() / 4], &lower = rows[3 * rows.size() / 4];
        require(!expected("upright") || 2 * upper.filled < lower.filled, "the mesh does not stand upright");
        require(!expected("lit") || upper.brightness > 1.1 * lower.brightness, "the mesh is not lit from above");
    }
}
