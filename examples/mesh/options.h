// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace lxpm::mesh {

struct Options {
    std::string input;
    std::string output; // empty: no picture
    int size = 360;     // of one view, in pixels
    std::vector<View> views;
    int repeat = 10;
    bool help = false;
};

// The command line is not one that the program understands.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

extern const char *const usage;

Options parseOptions(int argc, const char *const *argv);

} // namespace lxpm::mesh
