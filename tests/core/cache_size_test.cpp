// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <climits>
#include <fstream>
#include <gtest/gtest.h>
#include <lxpcore.h>
#include <string>
#include <unistd.h>

namespace {

TEST(MaxCacheSize, RefusesANullPointer) {
    EXPECT_EQ(lxpGetMaxCacheSizeB(nullptr), lxpStatusNullPtrErr);
}

// Both accounts of the machine name each level; the kernel's counts where there is one.
TEST(MaxCacheSize, IsThatOfTheLargestLevel) {
    int size = -1;
    ASSERT_EQ(lxpGetMaxCacheSizeB(&size), lxpStatusOk);
    EXPECT_GE(size, 0);
    long long largest = 0;
    for (int index = 0; index < 8; ++index) {
        std::ifstream file("/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + "/size");
        long long number = 0;
        char unit = ' ';
        if (file >> number) {
            file >> unit;
            largest = std::max(largest, number * (unit == 'K' ? 1024 : unit == 'M' ? 1024 * 1024 : 1));
        }
    }
    if (largest == 0) {
        for (const int level :
             {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE}) {
            largest = std::max<long long>(largest, sysconf(level));
        }
    }
    EXPECT_EQ(size, std::min<long long>(largest, INT_MAX));
}

TEST(MaxCacheSize, StaysTheSame) {
    int first = -1;
    int second = -2;
    ASSERT_EQ(lxpGetMaxCacheSizeB(&first), lxpStatusOk);
    ASSERT_EQ(lxpGetMaxCacheSizeB(&second), lxpStatusOk);
    EXPECT_EQ(first, second);
}

} // namespace
