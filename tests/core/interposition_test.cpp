// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "asking_library.h"

#include <gtest/gtest.h>

namespace {

// This program defines the service itself.
TEST(Interposition, ProgramIsAskedInsteadOfTheLibrary) {
    EXPECT_EQ(threadsOfLibrary(), 41);
}

} // namespace
