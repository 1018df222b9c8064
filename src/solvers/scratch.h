// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/lanes.h"

#include <cstddef>
#include <mutex>
#include <new>

namespace lxpm {

inline constexpr std::align_val_t scratchAlignment{32};

template <class T>
inline T *newScratch(std::size_t elements) {
    return static_cast<T *>(::operator new(elements * sizeof(T), scratchAlignment, std::nothrow));
}

// Memory for the duration of a call; none for no elements.
template <class T>
class OwnScratch {
public:
    explicit OwnScratch(std::size_t elements)
        : memory(elements > 0 ? newScratch<T>(elements) : nullptr), missing(elements > 0 && memory == nullptr) {}
    ~OwnScratch() { ::operator delete(memory, scratchAlignment); }
    OwnScratch(const OwnScratch &) = delete;
    OwnScratch &operator=(const OwnScratch &) = delete;

    bool isMissing() const { return missing; }
    T *get() const { return memory; }

private:
    T *memory;
    bool missing;
};

// Scratch of a call, of which the threads of a team need one each: the one that comes with the call for the thread that
// made it, for the others memory of their own. A thread that gets none waits for the call's.
template <class T>
class Scratch {
public:
    explicit Scratch(T *ofCall) : first(ofCall) {}

    T *get() const { return first; }
    std::mutex &inUse() { return mutex; }

private:
    T *first;
    std::mutex mutex;
};

template <class T>
class ThreadScratch {
public:
    // IsCaller: of the thread that made the call, which does the first objects.
    ThreadScratch(Scratch<T> &ofCall, bool isCaller, std::size_t elements)
        : own(isCaller ? 0 : elements), memory(own.get()) {
        if (memory == nullptr) {
            lock = std::unique_lock(ofCall.inUse());
            memory = ofCall.get();
        }
    }

    T *get() const { return memory; }

private:
    OwnScratch<T> own;
    T *memory;
    std::unique_lock<std::mutex> lock;
};

} // namespace lxpm
