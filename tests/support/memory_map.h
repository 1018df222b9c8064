// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_MEMORY_MAP_H
#define LXPM_TESTS_SUPPORT_MEMORY_MAP_H

#include <string>

namespace lxpm::test {

/// What the process may do at an address: "r-xp" for code, "" for an address that is not mapped.
std::string permissionsAt(const void *address);

} // namespace lxpm::test

#endif
