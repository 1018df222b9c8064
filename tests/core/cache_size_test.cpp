// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <lxpcore.h>
#include <unistd.h>

namespace {

TEST(MaxCacheSize, RefusesANullPointer) {
    EXPECT_EQ(lxpGetMaxCacheSizeB(nullptr), lxpStatusNullPtrErr);
}

TEST(MaxCacheSize, IsThatOfTheLargestLevel) {
    int size = -1;
    ASSERT_EQ(lxpGetMaxCacheSizeB(&size), lxpStatusOk);
    EXPECT_GE(size, 0);
    for (const int level :
         {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE}) {
        EXPECT_GE(size, std::min<long>(sysconf(level), INT_MAX)) << level;
    }
}

TEST(MaxCacheSize, StaysTheSame) {
    int first = -1;
    int second = -2;
    ASSERT_EQ(lxpGetMaxCacheSizeB(&first), lxpStatusOk);
    ASSERT_EQ(lxpGetMaxCacheSizeB(&second), lxpStatusOk);
    EXPECT_EQ(first, second);
}

} // namespace
