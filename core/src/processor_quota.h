// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

namespace lxpm {

// The answer where no control group limits the process.
inline constexpr int noQuota = std::numeric_limits<int>::max();

// The number of processors whose time the control groups of the process grant it: the least quota of its groups and of
// their ancestors, of version 1 and of version 2. A fraction of a processor counts as a whole one.
//
// The proc and sys file systems are looked for under `root`, which is empty for those of the system.
int processorQuota(const char *root) noexcept;

} // namespace lxpm
