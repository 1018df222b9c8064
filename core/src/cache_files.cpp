// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "cache_files.h"

#include "text.h"

#include <algorithm>
#include <climits>
#include <cstdio>

namespace lxpm {

namespace {

// "48K" or "32M".
long long sizeInBytes(std::string_view text) {
    const auto [number, unit] = leadingNumber(text);
    if (unit.starts_with('K')) {
        return number * 1024;
    }
    if (unit.starts_with('M')) {
        return number * 1024 * 1024;
    }
    return number;
}

} // namespace

long long largestListedCache(const char *root) noexcept {
    long long largest = 0;
    for (int index = 0;; ++index) {
        char name[PATH_MAX];
        std::snprintf(name, sizeof name, "%s/sys/devices/system/cpu/cpu0/cache/index%d/size", root, index);
        char buffer[32];
        const std::string_view size = readFile(name, buffer);
        if (size.empty()) {
            return largest;
        }
        largest = std::max(largest, sizeInBytes(size));
    }
}

} // namespace lxpm
