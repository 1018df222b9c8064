// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/product_kernels.h"

namespace lxpm {

template LxpStatus multiply(bool, int, const MatrixProduct<float> &);

} // namespace lxpm
