// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace lxpm::mesh {

struct Options {
    std::string input;
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
