// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "options.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace lxpm::mesh {

const char *const usage = R"(Usage: mesh --input FILE [--output FILE] [--size N] [--views LIST] [--repeat N]

Computes with lxpm on a triangle mesh, straight on the mesh's own memory: places
it, finds its normals, areas and curvatures, and projects it for a picture. Every
result is held against a plain loop in double precision.

  --input FILE   the mesh, a Wavefront OBJ file; polygons are split into triangles
  --output FILE  draw the mesh, coloured by its curvature, into this PNG file
  --size N       pixels on each side of one view, 16 to 1024 (360)
  --views LIST   what to draw, separated by commas, of quarter, front, right,
                 back, left, above, below (quarter,front,left,back,right,above)
  --repeat N     run every step N times and report the fastest run (10)
  --help         show this text

The library takes the threads that OpenMP has for it; OMP_NUM_THREADS limits them.
Exit status: 0 if every result is as exact as it has to be, 1 if one is not, 2 if
the command line is wrong or a file cannot be used. A picture is written as a
whole and after everything else, or not at all.
)";

namespace {

constexpr std::string_view defaultViews = "quarter,front,left,back,right,above";

int parseNumber(std::string_view option, std::string_view text, int least, int most) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least || number > most) {
        throw UsageError("'" + std::string(option) + "' takes a number from " + std::to_string(least) + " to " +
                         std::to_string(most) + ", not '" + std::string(text) + "'");
    }
    return number;
}

std::vector<View> parseViews(std::string_view list) {
    constexpr std::size_t most = 16;
    std::vector<View> views;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        const std::string_view name = list.substr(begin, end - begin);
        const View *view = findView(name);
        if (!view) {
            throw UsageError("there is no view '" + std::string(name) + "'; there are " + viewNames());
        }
        views.push_back(*view);
        begin = end + 1;
    }
    if (views.size() > most) {
        throw UsageError("'--views' takes up to " + std::to_string(most) + " views");
    }
    return views;
}

} // namespace

Options parseOptions(int argc, const char *const *argv) {
    Options options;
    options.views = parseViews(defaultViews);
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : argument.npos;
        const std::string_view name = argument.substr(0, equals);

        const auto value = [&]() -> std::string_view {
            if (equals != argument.npos) {
                return argument.substr(equals + 1);
            }
            if (i + 1 == argc) {
                throw UsageError("'" + std::string(name) + "' needs a value");
            }
            return argv[++i];
        };
        const auto fileName = [&] {
            const std::string_view file = value();
            if (file.empty()) {
                throw UsageError("'" + std::string(name) + "' needs the name of a file");
            }
            return std::string(file);
        };

        if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (name == "--input") {
            options.input = fileName();
        } else if (name == "--output") {
            options.output = fileName();
        } else if (name == "--size") {
            options.size = parseNumber(name, value(), 16, 1024);
        } else if (name == "--views") {
            options.views = parseViews(value());
        } else if (name == "--repeat") {
            options.repeat = parseNumber(name, value(), 1, 1'000'000);
        } else {
            throw UsageError("unknown option '" + std::string(argument) + "'");
        }
    }
    if (options.input.empty() && !options.help) {
        throw UsageError("no mesh given; name one with --input FILE");
    }
    return options;
}

} // namespace lxpm::mesh
