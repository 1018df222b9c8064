// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lxpm::bench {

// The processor's name, as the system tells it.
std::string processorName();

} // namespace lxpm::bench
