// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "processor_quota.h"

#include "fake_tree.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <vector>

namespace {

using Answers = std::vector<int>;

// The answers of the probe in an environment without OpenMP settings but those given ("NAME=value NAME=value"). The
// race detector cannot judge the OpenMP runtime, which is compiled without it.
Answers probe(const std::string &circumstances, const std::string &settings = "") {
    const std::string command =
        "env -u OMP_NUM_THREADS -u OMP_THREAD_LIMIT -u OMP_DYNAMIC -u OMP_PROC_BIND -u OMP_PLACES "
        "TSAN_OPTIONS=ignore_noninstrumented_modules=1 " +
        settings + " '" PROBE "' " + circumstances;
    std::FILE *output = popen(command.c_str(), "r");
    EXPECT_NE(output, nullptr);
    Answers answers;
    for (int answer = 0; std::fscanf(output, "%d", &answer) == 1;) {
        answers.push_back(answer);
    }
    EXPECT_EQ(pclose(output), 0) << command;
    return answers;
}

// The settings that preload a library. The address sanitizer wants to be the first of all libraries, unless told not
// to.
std::string preloading(const std::string &library) {
    return "ASAN_OPTIONS=verify_asan_link_order=0 LD_PRELOAD='" + library + "'";
}

// What this machine leaves to a process.
int machine() {
    cpu_set_t processors[16];
    EXPECT_EQ(sched_getaffinity(0, sizeof processors, processors), 0);
    return std::min(CPU_COUNT_S(sizeof processors, processors), lxpm::processorQuota(""));
}

TEST(ThreadCount, IsWhatTheMachineLeavesToTheProcess) {
    EXPECT_EQ(probe("alone"), Answers{machine()});
}

TEST(ThreadCount, FollowsTheEnvironment) {
    EXPECT_EQ(probe("alone", "OMP_NUM_THREADS=1"), Answers{1});
    EXPECT_EQ(probe("alone", "OMP_NUM_THREADS=2"), Answers{std::min(2, machine())});
    EXPECT_EQ(probe("alone", "OMP_NUM_THREADS=3,2"), Answers{std::min(3, machine())});
}

TEST(ThreadCount, ExceedsTheMachineUnderNoEnvironment) {
    EXPECT_EQ(probe("alone", "OMP_NUM_THREADS=2000"), Answers{machine()});
}

TEST(ThreadCount, FollowsTheThreadsSetting) {
    // set to 1, 2 and 2000, then to 1 in another thread, then asked once more in the first
    EXPECT_EQ(probe("settings"), (Answers{1, std::min(2, machine()), machine(), 1, machine()}));
}

TEST(ThreadCount, FollowsTheAffinityOfTheProcess) {
    cpu_set_t processors[16];
    ASSERT_EQ(sched_getaffinity(0, sizeof processors, processors), 0);
    cpu_set_t one[16] = {};
    CPU_SET_S(static_cast<std::size_t>(sched_getcpu()), sizeof one, one);
    ASSERT_EQ(sched_setaffinity(0, sizeof one, one), 0);
    const Answers answers = probe("alone");
    ASSERT_EQ(sched_setaffinity(0, sizeof processors, processors), 0);
    EXPECT_EQ(answers, Answers{1});
}

TEST(ThreadCount, FollowsTheAffinityThatAProcessGivesItself) {
    EXPECT_EQ(probe("bound-process"), Answers{1});
}

TEST(ThreadCount, FollowsTheQuota) {
    FakeTree tree;
    tree.write("/proc/self/cgroup", "0::/worker\n");
    tree.write("/sys/fs/cgroup/worker/cpu.max", "50000 100000\n");
    const std::string redirection = preloading(REDIRECTED_FILES) + " CONTROL_GROUPS_ROOT='" + tree.root() + "'";
    EXPECT_EQ(probe("alone", redirection), Answers{1});
}

TEST(ThreadCount, IsNotThatOfABoundThread) {
    EXPECT_EQ(probe("bound-thread"), Answers{machine()});
}

TEST(ThreadCount, IsNotLoweredByTheRuntimesBinding) {
    EXPECT_EQ(probe("alone", "OMP_PROC_BIND=true"), Answers{machine()});
}

TEST(ThreadCount, IsOneInAChildForkedAfterAsking) {
    // the parent; its child, before and after it sets its number of threads; the child's child; the parent again
    EXPECT_EQ(probe("fork-after-asking"), (Answers{machine(), 1, 1, 1, machine()}));
}

TEST(ThreadCount, IsTheUsualOneInAChildForkedBeforeAsking) {
    EXPECT_EQ(probe("fork-before-asking"), (Answers{machine(), machine()}));
}

TEST(ThreadCount, LetsAForkedChildRunItsTeams) {
    EXPECT_EQ(probe("team-after-fork"), (Answers{machine(), 1}));
}

TEST(ThreadCount, IsThatOfAPreloadedLibrary) {
    EXPECT_EQ(probe("alone", preloading(REPLACED_THREAD_COUNT)), Answers{41});
}

} // namespace
