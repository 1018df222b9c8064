// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace lxpm::bench {

// Memory for the operands of a case. All contestants of a case use the same addresses, so that none is better off by
// the way its memory happens to meet the caches.
class Memory {
public:
    // Room for operands of so many bytes in all, no single one of them larger than half of that.
    explicit Memory(std::size_t bytes);
    Memory(const Memory &) = delete;
    Memory &operator=(const Memory &) = delete;
    ~Memory();

    // The sources hold finite normal numbers, whichever type they are read as. Nobody writes there.
    const void *source1() const;
    const void *source2() const;
    void *result() const;

private:
    std::size_t areaBytes_;
    char *base_;
};

// How a case is measured: the bytes that its operands take in all, and the number of threads.
struct Setting {
    std::string name;
    std::size_t bytes;
    int threads;

    const Memory &memory() const;
};

// In the second-level cache, one thread: what the processor can do.
const Setting &cacheSetting();

// Beyond the last-level cache, two threads: what the memory lets through.
const Setting &memorySetting();

} // namespace lxpm::bench
