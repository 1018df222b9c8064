// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The formula that the product families share.

#ifndef LXPM_TESTS_PRODUCTS_SUMS_H
#define LXPM_TESTS_PRODUCTS_SUMS_H

#include "support/model.h"

namespace lxpm::test {

/// dst = first * second: sums from +0, in ascending order. With a third source, its element is added last.
Formula sumsOfProducts();

/// The same where the second source is a vector.
Formula sumsWithVector();

} // namespace lxpm::test

#endif
