// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Gaxpy as the tests know it.

#ifndef LXPM_TESTS_PRODUCTS_GAXPY_H
#define LXPM_TESTS_PRODUCTS_GAXPY_H

#include "support/model.h"

namespace lxpm::test {

Model describeGaxpy(const ExportName &name);

} // namespace lxpm::test

#endif
