// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

namespace lxpm {

// How many threads a parallel region of the calling thread can have, of `wanted`: at least 1.
//
// OpenMP runtimes end the process when the operating system refuses them a thread (limits on processes or on address
// space). A library that reports by status must not, so before the calling thread's team grows, as many threads as it
// needs are started here and ended again; where that fails, the answer is what could be had. Costs nothing as long as
// the team does not grow.
int suppliedThreads(int wanted) noexcept;

} // namespace lxpm
