// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The values that sizes and counts take in tests, each group with its reason.

#ifndef LXPM_TESTS_SUPPORT_AXES_H
#define LXPM_TESTS_SUPPORT_AXES_H

#include "support/model.h"

#include <span>

namespace lxpm::test {

/// Shape {width, height}.
extern const SizeAxes matrixSizes;

/// Shape {len}.
extern const SizeAxes vectorSizes;

/// Shape {width, height}, for sums over all elements: rows that are split among them.
extern const SizeAxes summedMatrixSizes;

/// Shape {widthHeight}.
extern const SizeAxes orders;

/// Shape {widthHeight} of eigenproblems: those in registers, and those that go through scratch memory.
extern const SizeAxes eigenOrders;

/// Shape {height, width} of matrices that are square or tall.
extern const SizeAxes tallSizes;

/// The empty shape, of functions whose operands have one size only.
extern const SizeAxes noSizes;
/// Shape {rows, inner, columns} of a product of matrices.
extern const SizeAxes productSizes;

/// Shape {rows, inner} of a product of a matrix and a vector.
extern const SizeAxes matrixVectorSizes;

/// The number of objects in an array; {1} for an export without arrays.
std::span<const int> countsOf(const Model &model);

} // namespace lxpm::test

#endif
