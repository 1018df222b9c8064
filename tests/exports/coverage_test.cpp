// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/exports.h"
#include "support/exports.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace lxpm::test {

namespace {

TEST(Coverage, EveryExportIsOfAFamilyOrOfGraphicsOrHasTestsOfItsOwn) {
    std::multiset<std::string> covered = {
        "lxpmEigenValuesGetBufSize_32f",
        "lxpmEigenValuesGetBufSize_64f",
        "lxpmEigenValuesVectorsGetBufSize_32f",
        "lxpmEigenValuesVectorsGetBufSize_64f",
        "lxpmGetLibVersion",
    };
    for (const Export &item : familyExports()) {
        covered.insert(item.model.name);
    }
    for (const GraphicsExport &item : graphicsExports()) {
        covered.insert(item.name);
    }
    EXPECT_EQ(covered, std::multiset<std::string>(exportNames().begin(), exportNames().end()));
}

} // namespace

} // namespace lxpm::test
