// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernel of the copying families.

#include "runtime/nest.h"

#include <lxpm/types.h>

namespace lxpm {

// Copies all objects of a call, bit for bit.
template <class T>
LxpStatus copyElements(bool parallel, int count, int rows, int columns, const MapOperands<T, 1> &operands);

// Those of one thread.
template <class T>
void copyObjects(const Extents &extents, const MapOperands<T, 1> &operands);

} // namespace lxpm
