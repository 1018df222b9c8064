// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// DotProduct, CrossProduct, L2Norm, FrobNorm, Trace and Transpose as the tests know them.

#ifndef LXPM_TESTS_PRODUCTS_REDUCTIONS_H
#define LXPM_TESTS_PRODUCTS_REDUCTIONS_H

#include "support/model.h"

namespace lxpm::test {

Model describeDotProduct(const ExportName &name);
Model describeCrossProduct(const ExportName &name);
Model describeL2Norm(const ExportName &name);
Model describeFrobNorm(const ExportName &name);
Model describeTrace(const ExportName &name);
Model describeTranspose(const ExportName &name);

} // namespace lxpm::test

#endif
