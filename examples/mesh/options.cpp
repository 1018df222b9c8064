// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "options.h"

#include <charconv>
#include <string_view>

namespace lxpm::mesh {

const char *const usage = R"(Usage: mesh --input FILE [--repeat N]

Computes with lxpm on a triangle mesh, straight on the mesh's own memory, and
holds every result against a plain loop, bit for bit.

  --input FILE   the mesh, a Wavefront OBJ file; polygons are split into
                 triangles, normals are computed if the file has none
  --repeat N     run every step N times and report the fastest run (10)
  --help         show this text

Exit status: 0 if every step gave the bits of the plain loop, 1 on failure,
2 if the command line is wrong.
)";

namespace {

constexpr int mostRepetitions = 1'000'000;

int parseRepeat(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 1 || number > mostRepetitions) {
        throw UsageError("'--repeat' takes a number from 1 to " + std::to_string(mostRepetitions) + ", not '" +
                         std::string(text) + "'");
    }
    return number;
}

} // namespace

Options parseOptions(int argc, const char *const *argv) {
    Options options;
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

        if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (name == "--input") {
            options.input = value();
        } else if (name == "--repeat") {
            options.repeat = parseRepeat(value());
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
