// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <new>

namespace lxpm {

// Memory for the duration of a call.
template <class T>
class OwnScratch {
public:
    explicit OwnScratch(std::size_t elements)
        : size(elements * sizeof(T)), memory(static_cast<T *>(::operator new(size, alignment, std::nothrow))) {}
    ~OwnScratch() { ::operator delete(memory, alignment); }
    OwnScratch(const OwnScratch &) = delete;
    OwnScratch &operator=(const OwnScratch &) = delete;

    bool isMissing() const { return memory == nullptr; }
    T *get() const { return memory; }
    std::size_t bytes() const { return size; }

private:
    static constexpr std::align_val_t alignment{32};

    std::size_t size;
    T *memory;
};

} // namespace lxpm
