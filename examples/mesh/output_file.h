// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

namespace lxpm::mesh {

// Writes a file as a whole: under a temporary name beside it, renamed once it is complete, so that nobody ever finds a
// part of it, and a file that was there before stays until then. Throws FileError.
void writeFile(const std::string &path, std::span<const unsigned char> content);

} // namespace lxpm::mesh
