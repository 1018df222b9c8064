// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "cache_files.h"

#include "fake_tree.h"

#include <gtest/gtest.h>

namespace {

using lxpm::largestListedCache;

constexpr const char *caches = "/sys/devices/system/cpu/cpu0/cache";

TEST(CacheFiles, LargestOfAllCounts) {
    FakeTree tree;
    tree.write(std::string(caches) + "/index0/size", "48K\n");
    tree.write(std::string(caches) + "/index1/size", "32K\n");
    tree.write(std::string(caches) + "/index2/size", "2048K\n");
    tree.write(std::string(caches) + "/index3/size", "1024K\n");
    EXPECT_EQ(largestListedCache(tree.root()), 2048 * 1024);
}

TEST(CacheFiles, UnitsAreKibibytesAndMebibytes) {
    FakeTree tree;
    tree.write(std::string(caches) + "/index0/size", "512\n");
    EXPECT_EQ(largestListedCache(tree.root()), 512);
    tree.write(std::string(caches) + "/index1/size", "1K\n");
    EXPECT_EQ(largestListedCache(tree.root()), 1024);
    tree.write(std::string(caches) + "/index2/size", "3M\n");
    EXPECT_EQ(largestListedCache(tree.root()), 3 * 1024 * 1024);
}

TEST(CacheFiles, SizeMayExceedAnInt) {
    FakeTree tree;
    tree.write(std::string(caches) + "/index0/size", "4194304K\n");
    EXPECT_EQ(largestListedCache(tree.root()), 4294967296);
}

TEST(CacheFiles, NothingListedIsZero) {
    FakeTree tree;
    EXPECT_EQ(largestListedCache(tree.root()), 0);
}

TEST(CacheFiles, GarbageCountsAsZero) {
    FakeTree tree;
    tree.write(std::string(caches) + "/index0/size", "unknown\n");
    EXPECT_EQ(largestListedCache(tree.root()), 0);
    tree.write(std::string(caches) + "/index1/size", "16K\n");
    EXPECT_EQ(largestListedCache(tree.root()), 16 * 1024);
}

} // namespace
