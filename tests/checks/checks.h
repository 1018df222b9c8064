// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What is asked of every export. Each check goes through its axes and reports; it knows nothing of families but what
// their models say.

#ifndef LXPM_TESTS_CHECKS_CHECKS_H
#define LXPM_TESTS_CHECKS_CHECKS_H

#include "support/exports.h"
#include "support/report.h"

#include <span>

namespace lxpm::test {

/// The function takes the parameters that the model says.
Report checkParameterTypes(const Export &item);

/// Bits against the formula over sizes, counts, stride patterns, alignments, pointer orders and pointer offsets; bytes
/// between the elements stay as they are.
Report checkValues(const Export &item);

/// The same against guard pages: nothing in front of the first element or behind the last one is touched.
Report checkGuards(const Export &item);

/// NaN, infinities, zeros and denormals meet one another at every position.
Report checkSpecialValues(const Export &item);

/// Each fault and each pair of faults returns the status of the check that is made first, without touching memory or
/// asking for threads.
Report checkStatus(const Export &item);

/// The destination may be a source; both sources may be the same object.
Report checkInPlace(const Export &item);

/// Parallel from exactly the measure on that the model says, seen by the questions for the number of threads.
Report checkThresholds(const Export &item);

/// Bits against the formula for team sizes and counts around one another.
Report checkThreads(const Export &item);

/// Rounding mode, masks and flags of the calling thread are left alone and obeyed.
Report checkFloatingPointEnvironment(const Export &item);

/// The exports of one operation, code and type give equal bits for the same objects, whatever the layout, the strides
/// and the number of threads.
Report checkSameBits(std::span<const Export *const> layouts);

} // namespace lxpm::test

#endif
