// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "memory.h"

namespace lxpm::bench {

// Moves so many bytes through the processor as fast as plain AVX code can, with an addition for each element written:
// a[i] = b[i] + c[i] where two bytes are read for each one written, a[i] = b[i] + s for one byte, a[i] = s for less;
// what is left to be read is summed up.
void triad(const Memory &memory, std::size_t bytesRead, std::size_t bytesWritten, int threads);

} // namespace lxpm::bench
