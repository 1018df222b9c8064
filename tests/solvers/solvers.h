// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Decompositions, substitutions, Det and Invert as the tests know them.

#ifndef LXPM_TESTS_SOLVERS_SOLVERS_H
#define LXPM_TESTS_SOLVERS_SOLVERS_H

#include "support/model.h"

namespace lxpm::test {

Model describeLUDecomp(const ExportName &name);
Model describeLUBackSubst(const ExportName &name);
Model describeCholeskyDecomp(const ExportName &name);
Model describeCholeskyBackSubst(const ExportName &name);
Model describeQRDecomp(const ExportName &name);
Model describeQRBackSubst(const ExportName &name);
Model describeDet(const ExportName &name);
Model describeInvert(const ExportName &name);

} // namespace lxpm::test

#endif
