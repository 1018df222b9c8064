// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace lxpm::bench {

// Multiplies and adds up products of so many bytes as fast as AVX without fused operations can, from registers alone.
void multiplyAdds(std::size_t bytesOfProducts, int threads);

} // namespace lxpm::bench
