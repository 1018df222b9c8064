// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/memory_map.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace lxpm::test {

namespace {

TEST(Version, FieldsHaveTheirValues) {
    const LxpmLibVersion *version = lxpmGetLibVersion();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->majorVersion, 7);
    EXPECT_EQ(version->minorVersion, 1);
    EXPECT_EQ(version->updateNumber, 1);
    EXPECT_EQ(version->revision, 37466);
    EXPECT_EQ(std::string_view(version->cpuCode, sizeof version->cpuCode), std::string_view("e9\0\0", 4));
    EXPECT_STREQ(version->libName, "lxpm AVX (e9)");
    EXPECT_STREQ(version->versionText, "7.1.1 (r37466)");
    EXPECT_STREQ(version->buildDateText, "Sep 24 2012");
}

TEST(Version, FieldsLieWithoutGaps) {
    EXPECT_EQ(offsetof(LxpmLibVersion, majorVersion), 0u);
    EXPECT_EQ(offsetof(LxpmLibVersion, minorVersion), 4u);
    EXPECT_EQ(offsetof(LxpmLibVersion, updateNumber), 8u);
    EXPECT_EQ(offsetof(LxpmLibVersion, revision), 12u);
    EXPECT_EQ(offsetof(LxpmLibVersion, cpuCode), 16u);
    EXPECT_EQ(offsetof(LxpmLibVersion, libName), 24u);
    EXPECT_EQ(offsetof(LxpmLibVersion, versionText), 32u);
    EXPECT_EQ(offsetof(LxpmLibVersion, buildDateText), 40u);
    EXPECT_EQ(sizeof(LxpmLibVersion), 48u);
}

TEST(Version, TextAgreesWithTheNumbers) {
    const LxpmLibVersion &version = *lxpmGetLibVersion();
    EXPECT_EQ(version.versionText, std::to_string(version.majorVersion) + "." + std::to_string(version.minorVersion) +
                                       "." + std::to_string(version.updateNumber) + " (r" +
                                       std::to_string(version.revision) + ")");
}

TEST(Version, IsOneRecord) {
    EXPECT_EQ(lxpmGetLibVersion(), lxpmGetLibVersion());
}

TEST(Version, CannotBeWritten) {
    const LxpmLibVersion *version = lxpmGetLibVersion();
    for (const void *address :
         {static_cast<const void *>(version), static_cast<const void *>(version->libName),
          static_cast<const void *>(version->versionText), static_cast<const void *>(version->buildDateText)}) {
        EXPECT_EQ(permissionsAt(address), "r--p");
    }
}

} // namespace

} // namespace lxpm::test
