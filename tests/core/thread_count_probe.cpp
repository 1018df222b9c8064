// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A process of its own that asks for the number of threads in the circumstances that its argument names, and prints
// each answer on a line.

#include <cstdio>
#include <cstring>
#include <lxpcore.h>
#include <omp.h>
#include <sched.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

void ask() {
    std::printf("%d\n", ownGetNumThreads());
    std::fflush(stdout);
}

// Runs the action in a forked child. False if the child did not end well; one that hangs is ended by its alarm.
template <class Action>
bool inChild(Action action) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);
        action();
        _exit(0);
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

void bindToOneProcessor() {
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(sched_getcpu(), &processors);
    sched_setaffinity(0, sizeof processors, &processors);
}

// Prints the size of a team that has the number of threads that is the answer.
void startTeam() {
    int members = 0;
#pragma omp parallel num_threads(ownGetNumThreads()) default(none) reduction(+ : members)
    members += 1;
    std::printf("%d\n", members);
    std::fflush(stdout);
}

bool run(const char *circumstances) {
    const auto are = [circumstances](const char *name) { return std::strcmp(circumstances, name) == 0; };
    if (are("alone")) {
        ask();
        return true;
    }
    if (are("settings")) {
        for (const int threads : {1, 2, 2000}) {
            omp_set_num_threads(threads);
            ask();
        }
        std::thread([] {
            omp_set_num_threads(1);
            ask();
        }).join();
        ask();
        return true;
    }
    if (are("bound-process")) {
        bindToOneProcessor();
        ask();
        return true;
    }
    if (are("bound-thread")) {
        omp_get_max_threads(); // a runtime that first looks around in the bound thread would know one processor only
        std::thread([] {
            bindToOneProcessor();
            ask();
        }).join();
        return true;
    }
    if (are("fork-before-asking")) {
        const bool ended = inChild(ask);
        ask();
        return ended;
    }
    if (are("fork-after-asking")) {
        ask();
        const bool ended = inChild([] {
            ask();
            omp_set_num_threads(8);
            ask();
            if (!inChild(ask)) {
                _exit(1);
            }
        });
        ask();
        return ended;
    }
    if (are("team-after-fork")) {
        startTeam();
        return inChild(startTeam);
    }
    return false;
}

} // namespace

int main(int argc, char **argv) {
    return argc == 2 && run(argv[1]) ? 0 : 1;
}
