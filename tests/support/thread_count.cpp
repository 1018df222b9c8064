// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/thread_count.h"

#include <lxpcore.h>

#include <atomic>

#include <dlfcn.h>

namespace {

std::atomic<int> answers[2] = {1, 1};
std::atomic<bool> asksCore = false;
std::atomic<int> questions = 0;

int askCore() {
    using Function = int (*)();
    static const auto ofCore = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "ownGetNumThreads"));
    return ofCore();
}

} // namespace

extern "C" int ownGetNumThreads(void) {
    const int asked = questions.fetch_add(1, std::memory_order_relaxed);
    return asksCore ? askCore() : answers[asked % 2].load(std::memory_order_relaxed);
}

namespace lxpm::test {

void setThreadCount(int count) {
    setThreadCounts(count, count);
}

void setThreadCounts(int atStart, int beforeTeam) {
    answers[0] = atStart;
    answers[1] = beforeTeam;
    asksCore = false;
    questions = 0;
}

void useThreadCountOfCore() {
    asksCore = true;
    questions = 0;
}

int teamFor(int count) {
    if (asksCore) {
        const int threads = askCore();
        return count < threads ? 1 : threads;
    }
    return answers[0] <= 1 || count < answers[0] ? 1 : answers[1].load();
}

int threadCountQuestions() {
    return questions.load(std::memory_order_relaxed);
}

} // namespace lxpm::test
