// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/arena.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <new>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace lxpm::test {

namespace {

std::size_t pageSize() {
    static const std::size_t size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

using Pool = std::map<std::size_t, std::vector<std::unique_ptr<Arena>>>;

Pool &pool() {
    thread_local Pool pool;
    return pool;
}

constexpr std::size_t canaryBytes = 64 * 1024;

std::vector<std::byte> makeCanaries(ElementType type) {
    std::vector<std::byte> canaries(canaryBytes);
    const std::size_t step = sizeOf(type);
    for (std::size_t at = 0; at < canaryBytes; at += step) {
        // An all-ones exponent without the topmost bit of the fraction; a fraction of zero would be an infinity.
        const std::uint32_t payload = static_cast<std::uint32_t>(at / step) + 1;
        const std::uint32_t in32f = 0x7f800000u | payload;
        const std::uint64_t in64f = 0x7ff0000000000000u | (static_cast<std::uint64_t>(payload) << 20) | payload;
        std::memcpy(&canaries[at], type == ElementType::Float32 ? static_cast<const void *>(&in32f) : &in64f, step);
    }
    return canaries;
}

} // namespace

std::shared_ptr<Arena> Arena::acquire(std::size_t bytes) {
    const std::size_t pages = std::max<std::size_t>(1, (bytes + pageSize() - 1) / pageSize());
    std::vector<std::unique_ptr<Arena>> &free = pool()[pages];
    std::unique_ptr<Arena> arena;
    if (free.empty()) {
        arena = std::make_unique<Arena>(pages);
    } else {
        arena = std::move(free.back());
        free.pop_back();
    }
    return {arena.release(), [pages](Arena *used) { pool()[pages].emplace_back(used); }};
}

Arena::Arena(std::size_t pages)
    : size_(pages * pageSize()), expected_(std::make_unique_for_overwrite<std::byte[]>(size_)) {
    void *mapping = mmap(nullptr, size_ + 2 * pageSize(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapping == MAP_FAILED) {
        throw std::bad_alloc();
    }
    mapping_ = static_cast<std::byte *>(mapping);
    begin_ = mapping_ + pageSize();
    if (mprotect(begin_, size_, PROT_READ | PROT_WRITE) != 0) {
        throw std::bad_alloc();
    }
}

Arena::~Arena() {
    munmap(mapping_, size_ + 2 * pageSize());
}

void Arena::fillWithCanaries(ElementType type) {
    static const std::vector<std::byte> in32f = makeCanaries(ElementType::Float32);
    static const std::vector<std::byte> in64f = makeCanaries(ElementType::Float64);
    const std::vector<std::byte> &canaries = type == ElementType::Float32 ? in32f : in64f;
    for (std::size_t at = 0; at < size_; at += canaryBytes) {
        std::memcpy(begin_ + at, canaries.data(), std::min(canaryBytes, size_ - at));
    }
}

void Arena::expectUnchanged() {
    std::memcpy(expected_.get(), begin_, size_);
}

bool Arena::isAsExpected() const {
    return std::memcmp(expected_.get(), begin_, size_) == 0;
}

const std::byte *Arena::findDifference(const std::byte *from) const {
    return std::mismatch(from, static_cast<const std::byte *>(end()), expected(from)).first;
}

} // namespace lxpm::test
