// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Saxpy and LComb as the tests know them.

#ifndef LXPM_TESTS_ELEMENTWISE_SAXPY_LCOMB_H
#define LXPM_TESTS_ELEMENTWISE_SAXPY_LCOMB_H

#include "support/model.h"

namespace lxpm::test {

Model describeSaxpyLComb(const ExportName &name);

} // namespace lxpm::test

#endif
