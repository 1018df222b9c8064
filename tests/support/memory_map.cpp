// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/memory_map.h"

#include <cstdint>
#include <fstream>
#include <sstream>

namespace lxpm::test {

std::string permissionsAt(const void *address) {
    const std::uintptr_t wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream fields(line);
        std::uintptr_t first = 0;
        std::uintptr_t last = 0;
        char dash = 0;
        std::string permissions;
        fields >> std::hex >> first >> dash >> last >> permissions;
        if (first <= wanted && wanted < last) {
            return permissions;
        }
    }
    return "";
}

} // namespace lxpm::test
