// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Add and Sub as the tests know them.

#ifndef LXPM_TESTS_ELEMENTWISE_ADD_SUB_H
#define LXPM_TESTS_ELEMENTWISE_ADD_SUB_H

#include "support/model.h"

namespace lxpm::test {

Model describeAddSub(const ExportName &name);

} // namespace lxpm::test

#endif
