// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/crash_report.h"

#include <gtest/gtest.h>

#include <iostream>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // teams may have left threads behind, which no fork brings along
    lxpm::test::reportCrashes();
    const int result = RUN_ALL_TESTS();
    // A filter that matches nothing must not pass for a success.
    if (!GTEST_FLAG_GET(list_tests) && testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::cerr << "No test was selected.\n";
        return 1;
    }
    return result;
}
