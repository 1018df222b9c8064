// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

namespace lxpm {

// The size in bytes of the largest cache that the kernel lists for the first processor, 0 when it lists none. The sys
// file system is looked for under `root`, which is empty for that of the system.
long long largestListedCache(const char *root) noexcept;

} // namespace lxpm
