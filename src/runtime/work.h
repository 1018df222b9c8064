// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The choice between a serial and a parallel kernel: a measure of the work, in elements, against a threshold.

#include <cstdint>

namespace lxpm {

// A work measure. It wraps like a signed 32-bit number, so that a call whose measure overflows runs serially; the
// arithmetic is unsigned, where wrapping is defined.
class Work {
public:
    constexpr Work(int elements) : wrapped(static_cast<std::uint32_t>(elements)) {}

    constexpr int measure() const { return static_cast<std::int32_t>(wrapped); }

    friend constexpr Work operator+(Work a, Work b) { return Work(a.wrapped + b.wrapped); }
    friend constexpr Work operator*(Work a, Work b) { return Work(a.wrapped * b.wrapped); }

private:
    explicit constexpr Work(std::uint32_t bits) : wrapped(bits) {}

    std::uint32_t wrapped;
};

// A threshold, in the words in which it was tuned.
struct Threshold {
    constexpr bool isParallel(Work work) const { return work.measure() > largestSerial; }

    int largestSerial;
};

consteval Threshold serialBelow(int measure) {
    return {measure - 1};
}

consteval Threshold serialUpTo(int measure) {
    return {measure};
}

// The thresholds of one case: for calls whose elements are contiguous, and for all others.
struct Thresholds {
    Threshold contiguous;
    Threshold strided;

    constexpr bool isParallel(Work work, bool isContiguous) const {
        return (isContiguous ? contiguous : strided).isParallel(work);
    }
};

} // namespace lxpm
