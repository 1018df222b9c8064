// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The implementations of the graphics functions. They check nothing and have no layouts, so each is a plain function of
// its export's name and type.

#include <lxpm.h>

namespace lxpm::implementation {

// An implementation that is defined with other parameters is another function, and the table then misses this one.
#define MEMBER(operation, code, type, layout, name)
#define EXPORT(name) decltype(::name) name;
#include "runtime/exports.h"

} // namespace lxpm::implementation
