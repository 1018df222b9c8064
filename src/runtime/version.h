// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <lxpm/version.h>

namespace lxpm::implementation {

const LxpmLibVersion *lxpmGetLibVersion();

} // namespace lxpm::implementation
