// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace lxpm::mesh {

// A file cannot be read or written, or is not what it should be. The text says which, why, and where.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace lxpm::mesh
