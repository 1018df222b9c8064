// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Plain loops in the stated order: what the graphics functions are held against, bit for bit.

#ifndef LXPM_TESTS_GRAPHICS_REFERENCE_H
#define LXPM_TESTS_GRAPHICS_REFERENCE_H

#include <lxpm.h>

namespace lxpm::test::reference {

#define MEMBER(operation, code, type, layout, name)
#define EXPORT(name) decltype(::name) name;
#include "runtime/exports.h"

} // namespace lxpm::test::reference

#endif
