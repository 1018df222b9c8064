// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_EXPECT_SOUND_H
#define LXPM_TESTS_SUPPORT_EXPECT_SOUND_H

#include "support/report.h"

#include <gtest/gtest.h>

#include <string>

namespace lxpm::test {

/// A check that ran, and had nothing to complain about.
inline void expectSound(const Report &report) {
    EXPECT_GT(report.cases(), 0) << "the check ran no case";
    for (const std::string &complaint : report.complaints()) {
        ADD_FAILURE() << complaint;
    }
}

} // namespace lxpm::test

#endif
