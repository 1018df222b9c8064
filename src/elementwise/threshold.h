// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/work.h"

namespace lxpm {

// When an array of Copy, Extract, LoadIdentity, Saxpy or LComb is serial, in elements read and written. Two threads
// break even here on dense 32f operands in cache, where one thread needs 3 microseconds; on 64f operands and on such
// that have to be gathered they already win.
inline constexpr Threshold movedByOneThread = serialBelow(60000);

} // namespace lxpm
