// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Shape and counts chosen by the measure that decides between serial and parallel.

#ifndef LXPM_TESTS_CHECKS_PARALLEL_SIZES_H
#define LXPM_TESTS_CHECKS_PARALLEL_SIZES_H

#include "support/model.h"

#include <vector>

namespace lxpm::test {

struct ParallelCase {
    Shape shape;
    int count;
};

/// The smallest count with which objects of this shape are computed in parallel.
int firstParallelCount(const Model &model, const Shape &shape, bool isContiguous);

/// Objects so large that an array of `count` of them is computed in parallel, and not much larger. Where all objects
/// have one size, that.
Shape firstParallelShape(const Model &model, int count, bool isContiguous);

/// For objects of many shapes the last serial count and the first parallel one; among them the largest serial and the
/// smallest parallel measure that any shape makes.
std::vector<ParallelCase> casesAroundThreshold(const Model &model, bool isContiguous);

} // namespace lxpm::test

#endif
