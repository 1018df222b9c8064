// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The public headers as text. Most parameters are plain numbers, so the compiler cannot see two of them exchanged.

#ifndef LXPM_TESTS_SUPPORT_HEADER_TEXT_H
#define LXPM_TESTS_SUPPORT_HEADER_TEXT_H

#include <map>
#include <string>
#include <vector>

namespace lxpm::test {

/// The functions that the public headers declare: parameter lists, as they are written, by name.
const std::multimap<std::string, std::string> &declarations();

/// "float *dst, int count": each parameter by itself.
std::vector<std::string> splitParameters(const std::string &list);

} // namespace lxpm::test

#endif
