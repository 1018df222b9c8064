// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include <fstream>
#include <gtest/gtest.h>
#include <lxpcore.h>
#include <set>
#include <sstream>
#include <string>

namespace {

// The kernel's list of what this processor can do, without what it does not enable itself.
std::set<std::string> listedFlags() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("flags")) {
            std::istringstream words(line.substr(line.find(':') + 1));
            return {std::istream_iterator<std::string>(words), {}};
        }
    }
    return {};
}

struct Feature {
    unsigned long long bit;
    const char *flag;
};

constexpr Feature features[] = {
    {0x001, "sse2"},  {0x002, "pni"}, // the kernel's name for SSE3
    {0x004, "ssse3"}, {0x008, "sse4_1"}, {0x010, "sse4_2"},  {0x020, "avx"},
    {0x040, "fma"},   {0x080, "avx2"},   {0x100, "avx512f"},
};

TEST(CpuFeatures, AgreeWithTheKernel) {
    const std::set<std::string> flags = listedFlags();
    ASSERT_FALSE(flags.empty());
    unsigned long long expected = 0;
    for (const Feature &feature : features) {
        expected |= flags.contains(feature.flag) ? feature.bit : 0;
    }
    EXPECT_EQ(lxpGetEnabledCpuFeatures(), expected);
}

TEST(CpuFeatures, IncludeWhatTheLibrariesNeed) {
    EXPECT_TRUE(lxpGetEnabledCpuFeatures() & LXP_CPU_AVX);
}

} // namespace
