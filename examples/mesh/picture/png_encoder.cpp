// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "png_encoder.h"

#include <algorithm>
#include <cmath>
#include <png.h>
#include <stdexcept>
#include <string>

namespace lxpm::mesh {

namespace {

unsigned char encodeLight(float linear) {
    const float light = std::clamp(linear, 0.0f, 1.0f);
    const float encoded = light <= 0.0031308f ? 12.92f * light : 1.055f * std::pow(light, 1 / 2.4f) - 0.055f;
    return static_cast<unsigned char>(std::lround(255 * encoded));
}

} // namespace

std::vector<unsigned char> encodePng(const Image &image) {
    std::vector<unsigned char> pixels;
    pixels.reserve(std::size_t{3} * image.width() * image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const Colour &colour = image.at(x, y);
            pixels.insert(pixels.end(), {encodeLight(colour.red), encodeLight(colour.green), encodeLight(colour.blue)});
        }
    }

    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    header.width = static_cast<png_uint_32>(image.width());
    header.height = static_cast<png_uint_32>(image.height());
    header.format = PNG_FORMAT_RGB;
    std::vector<unsigned char> file(PNG_IMAGE_PNG_SIZE_MAX(header));
    png_alloc_size_t size = file.size();
    if (!png_image_write_to_memory(&header, file.data(), &size, 0, pixels.data(), 0, nullptr)) {
        throw std::runtime_error(std::string("cannot encode the picture: ") + header.message);
    }
    file.resize(size);
    return file;
}

} // namespace lxpm::mesh
