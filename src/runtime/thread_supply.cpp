// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/thread_supply.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <omp.h>
#include <pthread.h>

namespace lxpm {

namespace {

// The stack that the runtime gives its workers when the user sets it, 0 when he leaves it to the system. OpenMP's
// form: a number, in kilobytes unless B, K, M or G behind it says otherwise.
std::size_t workerStackSize() {
    for (const char *name : {"OMP_STACKSIZE", "GOMP_STACKSIZE", "KMP_STACKSIZE"}) {
        const char *text = std::getenv(name);
        if (text == nullptr) {
            continue;
        }
        char *unit = nullptr;
        const unsigned long long number = std::strtoull(text, &unit, 10);
        while (*unit == ' ') {
            ++unit;
        }
        switch (*unit | 0x20) {
        case 'b':
            return number;
        case 'm':
            return number << 20;
        case 'g':
            return number << 30;
        default:
            return number << 10;
        }
    }
    return 0;
}

// Where the threads of a trial wait until all of them stand here, so that they exist at the same time.
class Gate {
public:
    void wait() {
        pthread_mutex_lock(&mutex);
        ++waiting;
        pthread_cond_signal(&arrived);
        while (!open) {
            pthread_cond_wait(&opened, &mutex);
        }
        pthread_mutex_unlock(&mutex);
    }
    void releaseWhenAllWait(int threads) {
        pthread_mutex_lock(&mutex);
        while (waiting < threads) {
            pthread_cond_wait(&arrived, &mutex);
        }
        open = true;
        pthread_cond_broadcast(&opened);
        pthread_mutex_unlock(&mutex);
    }

private:
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    pthread_cond_t arrived = PTHREAD_COND_INITIALIZER;
    pthread_cond_t opened = PTHREAD_COND_INITIALIZER;
    int waiting = 0;
    bool open = false;
};

// A thread of a trial takes what a worker takes: its stack, and the address space that the C library sets aside for the
// memory of a thread.
void *standInForWorker(void *gate) {
    void *volatile memory = std::malloc(1);
    static_cast<Gate *>(gate)->wait();
    std::free(memory);
    return nullptr;
}

// Runtimes add something of their own to a worker's stack. The stacks of a trial are kept for the threads that come
// next, but only for such that ask for no more.
constexpr std::size_t stackMargin = 64 * 1024;

// How many of `wanted` threads the system starts beside the calling one.
int startable(int wanted) {
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0) {
        return 0;
    }
    std::size_t stack = workerStackSize();
    if (stack != 0 || pthread_attr_getstacksize(&attributes, &stack) == 0) {
        // A size that the system refuses is ignored by runtimes too.
        (void)pthread_attr_setstacksize(&attributes, stack + stackMargin);
    }
    auto *threads = static_cast<pthread_t *>(std::malloc(static_cast<std::size_t>(wanted) * sizeof(pthread_t)));
    int started = 0;
    if (threads != nullptr) {
        Gate gate;
        while (started < wanted && pthread_create(&threads[started], &attributes, standInForWorker, &gate) == 0) {
            ++started;
        }
        gate.releaseWhenAllWait(started);
        for (int i = 0; i < started; ++i) {
            pthread_join(threads[i], nullptr);
        }
    }
    std::free(threads);
    pthread_attr_destroy(&attributes);
    return started;
}

// The calling thread's last team. Runtimes keep the workers of each thread that starts teams until that thread ends or
// asks for a smaller team.
thread_local int lastTeam = 1;

} // namespace

int suppliedThreads(int wanted) noexcept {
    if (omp_get_active_level() >= omp_get_max_active_levels()) {
        return 1; // the runtime would serialise the region anyway
    }
    int team = std::clamp(wanted, 1, std::max(omp_get_thread_limit(), 1));
    if (team > lastTeam) {
        team = 1 + startable(team - 1);
    }
    lastTeam = team;
    return team;
}

} // namespace lxpm
