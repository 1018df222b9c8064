// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The eigen functions as the tests know them.

#ifndef LXPM_TESTS_EIGEN_EIGEN_VALUES_H
#define LXPM_TESTS_EIGEN_EIGEN_VALUES_H

#include "support/model.h"

namespace lxpm::test {

/// EigenValuesSym and EigenValuesVectorsSym.
Model describeEigenValuesSym(const ExportName &name);

/// EigenValues, EigenValuesVectors, EigenValuesVectorsRight and EigenValuesVectorsLeft.
Model describeEigenValues(const ExportName &name);

} // namespace lxpm::test

#endif
