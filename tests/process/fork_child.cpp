// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A process that has run a team forks, and its child calls with as much work. OpenMP runtimes do not survive a fork, so
// a child that started a team would wait for threads that it does not have.

#include "process/large_call.h"
#include "support/thread_count.h"

#include <lxpcore.h>

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

using namespace lxpm::test;

namespace {

constexpr unsigned secondsUntilHanging = 20;

int callInChild() {
    alarm(secondsUntilHanging);
    useThreadCountOfCore();
    return LargeCall().isRight() ? 0 : 1;
}

} // namespace

int main() {
    // The core library learns that its process has used threads, also on a machine with a single processor, where it
    // would not have allowed a team.
    useThreadCountOfCore();
    ownGetNumThreads();
    setThreadCount(2);
    if (!LargeCall().isRight()) {
        return 1;
    }

    const pid_t child = fork();
    if (child == 0) {
        _exit(callInChild());
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        std::perror("fork or waitpid");
        return 1;
    }
    if (WIFSIGNALED(status)) {
        std::fprintf(stderr, "the child was ended by signal %d (%d: it hung)\n", WTERMSIG(status), SIGALRM);
        return 1;
    }
    // The parent's team is none the worse for it.
    return WEXITSTATUS(status) == 0 && LargeCall().isRight() ? 0 : 1;
}
