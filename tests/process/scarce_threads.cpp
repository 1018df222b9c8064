// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Threads that the system refuses are no reason to end the process: a call that asks for sixteen runs on those that can
// be had, and succeeds.
//
//   scarce_threads address-space <MiB>   that much memory beyond what the program has
//   scarce_threads processes <number>    that many threads for the user, this one included

#include "process/large_call.h"
#include "support/thread_count.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <sys/resource.h>
#include <unistd.h>

using namespace lxpm::test;

namespace {

constexpr int threads = 16;

bool setLimit(__rlimit_resource resource, rlim_t value) {
    const rlimit limit = {value, value};
    if (setrlimit(resource, &limit) != 0) {
        std::perror("setrlimit");
        return false;
    }
    return true;
}

rlim_t addressSpaceInUse() {
    unsigned long pages = 0;
    std::FILE *file = std::fopen("/proc/self/statm", "r");
    if (file == nullptr || std::fscanf(file, "%lu", &pages) != 1) {
        std::perror("/proc/self/statm");
        std::exit(1);
    }
    std::fclose(file);
    return static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

bool limitAddressSpace(rlim_t mebibytes) {
    return setLimit(RLIMIT_AS, addressSpaceInUse() + (mebibytes << 20));
}

bool limitProcesses(rlim_t number) {
    constexpr uid_t nobody = 65534;
    // The limit does not bind root.
    if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) {
        std::perror("setresuid");
        return false;
    }
    return setLimit(RLIMIT_NPROC, number);
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s address-space|processes <number>\n", argv[0]);
        return 2;
    }
    setThreadCount(threads);
    LargeCall call;
    const rlim_t number = std::strtoul(argv[2], nullptr, 10);
    const bool isLimited =
        std::string_view(argv[1]) == "processes" ? limitProcesses(number) : limitAddressSpace(number);
    if (!isLimited) {
        return 1;
    }
    // Twice: what the first call found out must hold for the second.
    const bool isRight = call.isRight() && call.isRight();
    if (threadCountQuestions() != 4) {
        std::fprintf(stderr, "the calls were not taken for large ones\n");
        return 1;
    }
    return isRight ? 0 : 1;
}
