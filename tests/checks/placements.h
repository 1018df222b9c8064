// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Stride patterns for the operands of one call.

#ifndef LXPM_TESTS_CHECKS_PLACEMENTS_H
#define LXPM_TESTS_CHECKS_PLACEMENTS_H

#include "support/model.h"
#include "support/placed_operand.h"

#include <vector>

namespace lxpm::test {

/// The number of combinations of patterns that `combination` makes: each pattern for all operands alike, and as many in
/// which all operands differ.
int combinations();

/// The placements of a combination, without alignment, order of pointers and offsets.
std::vector<Placement> combination(const Model &model, int number);

/// Gives each operand an alignment, an order of its pointers and a pointer offset of its own.
void scatter(std::vector<Placement> &placements, int seed);

/// Only the operands for which a bit is set have gaps between their elements.
std::vector<Placement> gappedIn(const Model &model, unsigned operands);

} // namespace lxpm::test

#endif
