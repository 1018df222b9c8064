// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "processor_quota.h"

#include "fake_tree.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using lxpm::noQuota;
using lxpm::processorQuota;

constexpr const char *memberships = "/proc/self/cgroup";

std::string version1(const std::string &group, const std::string &file) {
    return "/sys/fs/cgroup/cpu" + group + "/cpu.cfs_" + file + "_us";
}

std::string version2(const std::string &group) {
    return "/sys/fs/cgroup" + group + "/cpu.max";
}

class ProcessorQuota : public testing::Test {
protected:
    FakeTree tree;
};

using ProcessorQuotaVersion1 = ProcessorQuota;
using ProcessorQuotaVersion2 = ProcessorQuota;

TEST_F(ProcessorQuota, NoneWithoutControlGroups) {
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
}

TEST_F(ProcessorQuota, NoneWhenTheMembershipsAreGarbage) {
    tree.write(version2(""), "100000 100000\n");
    for (const char *text :
         {"", "\n", ":", "::", "garbage", "0", "0:", "7::/\n", "0:memory:/\n", "\xff:\n\n:::", "0::relative\n"}) {
        tree.write(memberships, text);
        EXPECT_EQ(processorQuota(tree.root()), noQuota) << text;
    }
}

TEST_F(ProcessorQuota, NoneWhereTheNameOfTheFileWouldBeTooLong) {
    tree.write(memberships, "0::/" + std::string(6000, 'x') + "\n");
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
}

TEST_F(ProcessorQuotaVersion2, LeafIsTighter) {
    tree.write(memberships, "0::/services/worker\n");
    tree.write(version2("/services"), "800000 100000\n");
    tree.write(version2("/services/worker"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

TEST_F(ProcessorQuotaVersion2, AncestorIsTighter) {
    tree.write(memberships, "0::/services/worker/part\n");
    tree.write(version2("/services"), "200000 100000\n");
    tree.write(version2("/services/worker"), "max 100000\n");
    tree.write(version2("/services/worker/part"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 2);
}

TEST_F(ProcessorQuotaVersion2, MountedDirectoryCounts) {
    tree.write(version2(""), "500000 100000\n");
    tree.write(memberships, "0::/\n");
    EXPECT_EQ(processorQuota(tree.root()), 5);
    tree.write(memberships, "0::/not/visible/in/here\n");
    EXPECT_EQ(processorQuota(tree.root()), 5);
}

TEST_F(ProcessorQuotaVersion2, OtherGroupsDoNot) {
    tree.write(memberships, "0::/services/worker\n");
    tree.write(version2("/services/worker"), "400000 100000\n");
    tree.write(version2("/services/worker/below"), "100000 100000\n");
    tree.write(version2("/services/other"), "100000 100000\n");
    tree.write(version2("/serv"), "100000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 4);
}

TEST_F(ProcessorQuotaVersion2, LastLineNeedsNoEnd) {
    tree.write(memberships, "0::/worker");
    tree.write(version2("/worker"), "300000 100000");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

TEST_F(ProcessorQuotaVersion2, GroupNameMayContainSeparators) {
    tree.write(memberships, "0::/a:b,c d\n");
    tree.write(version2("/a:b,c d"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

struct Limit {
    const char *text;
    int processors;
};

class ProcessorQuotaText : public ProcessorQuota, public testing::WithParamInterface<Limit> {};

TEST_P(ProcessorQuotaText, IsUnderstood) {
    tree.write(memberships, "0::/worker\n");
    tree.write(version2("/worker"), GetParam().text);
    EXPECT_EQ(processorQuota(tree.root()), GetParam().processors) << GetParam().text;
}

// A fraction of a processor is a whole one.
INSTANTIATE_TEST_SUITE_P(Fraction, ProcessorQuotaText,
                         testing::Values(Limit{"150000 100000\n", 2}, Limit{"200001 100000\n", 3},
                                         Limit{"1000 100000\n", 1}, Limit{"99999 100000\n", 1},
                                         Limit{"100000 100000\n", 1}, Limit{"25000 10000\n", 3}));

INSTANTIATE_TEST_SUITE_P(Unlimited, ProcessorQuotaText,
                         testing::Values(Limit{"max 100000\n", noQuota}, Limit{"max\n", noQuota},
                                         Limit{"9223372036854775807 1\n", noQuota},
                                         Limit{"9223372036854775808 100000\n", noQuota}));

// Nothing sensible to be read is no quota.
INSTANTIATE_TEST_SUITE_P(Garbage, ProcessorQuotaText,
                         testing::Values(Limit{"", noQuota}, Limit{"\n", noQuota}, Limit{" ", noQuota},
                                         Limit{"garbage", noQuota}, Limit{"100000", noQuota},
                                         Limit{"100000 \n", noQuota}, Limit{"100000 max\n", noQuota},
                                         Limit{"100000 0\n", noQuota}, Limit{"0 100000\n", noQuota},
                                         Limit{"-1 100000\n", noQuota}, Limit{"100000 -1\n", noQuota}));

TEST_F(ProcessorQuotaVersion1, QuotaOverPeriod) {
    tree.write(memberships, "9:name=systemd:/\n4:cpu,cpuacct:/worker\n3:memory:/worker\n");
    tree.write(version1("/worker", "quota"), "250000\n");
    tree.write(version1("/worker", "period"), "100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

TEST_F(ProcessorQuotaVersion1, ControllerStandsAnywhereInItsList) {
    tree.write(version1("/worker", "quota"), "300000\n");
    tree.write(version1("/worker", "period"), "100000\n");
    for (const char *line : {"4:cpu:/worker\n", "4:cpuacct,cpu:/worker\n", "4:cpuset,cpu,cpuacct:/worker\n"}) {
        tree.write(memberships, line);
        EXPECT_EQ(processorQuota(tree.root()), 3) << line;
    }
    for (const char *line : {"4:cpuset:/worker\n", "4:cpuacct,cpuset:/worker\n", "4:name=cpu:/worker\n"}) {
        tree.write(memberships, line);
        EXPECT_EQ(processorQuota(tree.root()), noQuota) << line;
    }
}

TEST_F(ProcessorQuotaVersion1, AncestorIsTighter) {
    tree.write(memberships, "4:cpu,cpuacct:/services/worker\n");
    tree.write(version1("/services", "quota"), "200000\n");
    tree.write(version1("/services", "period"), "100000\n");
    tree.write(version1("/services/worker", "quota"), "400000\n");
    tree.write(version1("/services/worker", "period"), "100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 2);
}

TEST_F(ProcessorQuotaVersion1, MinusOneIsUnlimited) {
    tree.write(memberships, "4:cpu,cpuacct:/worker\n");
    tree.write(version1("/worker", "quota"), "-1\n");
    tree.write(version1("/worker", "period"), "100000\n");
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
}

TEST_F(ProcessorQuotaVersion1, NoneWithHalfOfTheFiles) {
    tree.write(memberships, "4:cpu,cpuacct:/worker/one\n");
    tree.write(version1("/worker", "quota"), "100000\n");
    tree.write(version1("/worker/one", "period"), "100000\n");
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
}

TEST_F(ProcessorQuotaVersion1, NoneWithGarbageInTheFiles) {
    tree.write(memberships, "4:cpu,cpuacct:/worker\n");
    tree.write(version1("/worker", "quota"), "garbage\n");
    tree.write(version1("/worker", "period"), "100000\n");
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
    tree.write(version1("/worker", "quota"), "100000\n");
    tree.write(version1("/worker", "period"), "0\n");
    EXPECT_EQ(processorQuota(tree.root()), noQuota);
}

// Where both versions are mounted, the tighter quota binds, whichever has it.
class ProcessorQuotaHybrid : public ProcessorQuota {
protected:
    void SetUp() override {
        tree.write(memberships, "4:cpu,cpuacct:/worker\n1:name=systemd:/worker\n0::/worker\n");
        tree.write(version1("/worker", "period"), "100000\n");
    }
};

TEST_F(ProcessorQuotaHybrid, Version1IsTighter) {
    tree.write(version1("/worker", "quota"), "200000\n");
    tree.write(version2("/unified/worker"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 2);
}

TEST_F(ProcessorQuotaHybrid, Version2IsTighter) {
    tree.write(version1("/worker", "quota"), "400000\n");
    tree.write(version2("/unified/worker"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

TEST_F(ProcessorQuotaHybrid, OnlyVersion1Limits) {
    tree.write(version1("/worker", "quota"), "200000\n");
    EXPECT_EQ(processorQuota(tree.root()), 2);
}

TEST_F(ProcessorQuotaHybrid, OnlyVersion2Limits) {
    tree.write(version1("/worker", "quota"), "-1\n");
    tree.write(version2("/unified"), "300000 100000\n");
    EXPECT_EQ(processorQuota(tree.root()), 3);
}

} // namespace
