// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What is asked of every graphics function.

#ifndef LXPM_TESTS_GRAPHICS_CHECKS_H
#define LXPM_TESTS_GRAPHICS_CHECKS_H

#include "graphics/exports.h"
#include "support/report.h"

namespace lxpm::test {

/// Bits against the reference for ordinary values, at both ends of their pages and at every alignment.
Report checkGraphicsValues(const GraphicsExport &item);

/// The same for NaN, infinities, zeros of either sign, huge and tiny numbers.
Report checkGraphicsSpecialValues(const GraphicsExport &item);

/// Under each rounding mode.
Report checkGraphicsRounding(const GraphicsExport &item);

/// The destination is a source, or overlaps one where that is allowed.
Report checkGraphicsSharing(const GraphicsExport &item);

} // namespace lxpm::test

#endif
