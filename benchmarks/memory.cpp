// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "memory.h"

#include <algorithm>
#include <map>
#include <omp.h>
#include <random>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace lxpm::bench {

namespace {

constexpr std::size_t KiB = 1024;
constexpr std::size_t MiB = 1024 * KiB;
constexpr std::size_t page = 4 * KiB;

// Where in their pages the operands start. A load waits for an earlier store that is still on its way if both addresses
// have the same place in their pages. Here a source's place is only met by stores almost a page before it, more than a
// processor has on their way at once.
constexpr std::size_t placeOfSource1 = 128;
constexpr std::size_t placeOfSource2 = 256;
constexpr std::size_t placeOfResult = 0;

// Numbers from [1, 2). Two of them read as one double are a number between 2^-7 and 2.
void fill(float *numbers, std::size_t count) {
    std::minstd_rand random(1);
    std::uniform_real_distribution<float> distribution(1.0F, 1.999F);
    std::generate(numbers, numbers + count, [&] { return distribution(random); });
}

} // namespace

Memory::Memory(std::size_t bytes) : areaBytes_((bytes / 2 / page + 2) * page) {
    void *mapped =
        mmap(nullptr, 3 * areaBytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED) {
        throw std::runtime_error("no memory for the operands");
    }
    base_ = static_cast<char *>(mapped);
    // The pages of the result too exist before anything is timed.
    fill(reinterpret_cast<float *>(base_), 3 * areaBytes_ / sizeof(float));
}

Memory::~Memory() {
    munmap(base_, 3 * areaBytes_);
}

const void *Memory::source1() const {
    return base_ + placeOfSource1;
}

const void *Memory::source2() const {
    return base_ + areaBytes_ + placeOfSource2;
}

void *Memory::result() const {
    return base_ + 2 * areaBytes_ + placeOfResult;
}

const Memory &Setting::memory() const {
    static std::map<std::string, Memory> memories;
    return memories.try_emplace(name, bytes).first->second;
}

const Setting &cacheSetting() {
    static const Setting setting{"cache", 384 * KiB, 1};
    return setting;
}

const Setting &memorySetting() {
    static const Setting setting = [] {
        const auto cache = static_cast<std::size_t>(std::max(0L, sysconf(_SC_LEVEL3_CACHE_SIZE)));
        const auto quarter = static_cast<std::size_t>(sysconf(_SC_PHYS_PAGES)) / 4 * sysconf(_SC_PAGESIZE);
        const std::size_t bytes = std::min(std::clamp(2 * cache, 256 * MiB, 1024 * MiB), quarter);
        return Setting{"memory", bytes, std::min(2, omp_get_max_threads())};
    }();
    return setting;
}

} // namespace lxpm::bench
