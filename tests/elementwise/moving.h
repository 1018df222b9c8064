// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Copy, Extract and LoadIdentity as the tests know them.

#ifndef LXPM_TESTS_ELEMENTWISE_MOVING_H
#define LXPM_TESTS_ELEMENTWISE_MOVING_H

#include "support/model.h"

namespace lxpm::test {

/// The operation is CopyToS, CopyToL or CopyToP, for the layout of the destination; the name's layout is the source's.
Model describeCopy(const ExportName &name);
Model describeExtract(const ExportName &name);
Model describeLoadIdentity(const ExportName &name);

/// Arrays are parallel from 60000 elements on that are read or written. Operands are counted by the objects of which
/// each call touches them: as many as the array has, or one.
ParallelRule movedElements(std::vector<Operand> operands);

} // namespace lxpm::test

#endif
