// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Mul as the tests know it.

#ifndef LXPM_TESTS_PRODUCTS_MUL_H
#define LXPM_TESTS_PRODUCTS_MUL_H

#include "support/model.h"

namespace lxpm::test {

Model describeMul(const ExportName &name);

} // namespace lxpm::test

#endif
