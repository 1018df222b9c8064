// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "triad.h"

#include "blocks.h"

#include <algorithm>
#include <immintrin.h>

namespace lxpm::bench {

namespace {

// Work is counted in steps of four registers.
constexpr long lanes = 8;
constexpr long step = 4 * lanes;

void sumArrays(float *a, const float *b, const float *c, long begin, long end) {
    for (long i = begin * step; i < end * step; i += step) {
        for (long u = i; u < i + step; u += lanes) {
            _mm256_storeu_ps(a + u, _mm256_add_ps(_mm256_loadu_ps(b + u), _mm256_loadu_ps(c + u)));
        }
    }
}

void shiftArray(float *a, const float *b, long begin, long end) {
    const __m256 s = _mm256_set1_ps(1.5F);
    for (long i = begin * step; i < end * step; i += step) {
        for (long u = i; u < i + step; u += lanes) {
            _mm256_storeu_ps(a + u, _mm256_add_ps(_mm256_loadu_ps(b + u), s));
        }
    }
}

void fillArray(float *a, long begin, long end) {
    const __m256 s = _mm256_set1_ps(1.5F);
    for (long i = begin * step; i < end * step; i += step) {
        for (long u = i; u < i + step; u += lanes) {
            _mm256_storeu_ps(a + u, s);
        }
    }
}

// The sums go nowhere; the empty statement makes the compiler believe that they are used.
void readArray(const float *b, long begin, long end) {
    for (long i = begin * step; i < end * step; i += step) {
        const __m256 low = _mm256_add_ps(_mm256_loadu_ps(b + i), _mm256_loadu_ps(b + i + lanes));
        const __m256 high = _mm256_add_ps(_mm256_loadu_ps(b + i + 2 * lanes), _mm256_loadu_ps(b + i + 3 * lanes));
        const __m256 sum = _mm256_add_ps(low, high);
        asm volatile("" : : "x"(sum));
    }
}

} // namespace

void triad(const Memory &memory, std::size_t bytesRead, std::size_t bytesWritten, int threads) {
    auto *const a = static_cast<float *>(memory.result());
    const auto *const b = static_cast<const float *>(memory.source1());
    const auto *const c = static_cast<const float *>(memory.source2());

    const std::size_t arraysRead = std::min<std::size_t>(bytesRead / bytesWritten, 2);
    const auto steps = [](std::size_t bytes) { return static_cast<long>(bytes / (step * sizeof(float))); };
    inBlocks(steps(bytesWritten), threads, [=](long begin, long end) {
        switch (arraysRead) {
        case 2:
            return sumArrays(a, b, c, begin, end);
        case 1:
            return shiftArray(a, b, begin, end);
        default:
            return fillArray(a, begin, end);
        }
    });
    inBlocks(steps(bytesRead - arraysRead * bytesWritten), threads,
             [=](long begin, long end) { readArray(c, begin, end); });
}

} // namespace lxpm::bench
