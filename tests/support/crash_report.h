// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_CRASH_REPORT_H
#define LXPM_TESTS_SUPPORT_CRASH_REPORT_H

namespace lxpm::test {

/// When the process is about to die of an access to memory that it does not own, the call that did it is printed.
void reportCrashes();

} // namespace lxpm::test

#endif
