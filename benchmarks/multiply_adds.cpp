// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "multiply_adds.h"

#include "blocks.h"

#include <immintrin.h>

namespace lxpm::bench {

namespace {

// As many sums as the registers hold beside the factors: enough that no addition waits for the one before it.
constexpr long sums = 12;

void addUpProducts(long begin, long end) {
    __m256 sum[sums] = {};
    __m256 factor = _mm256_set1_ps(1.0F);
    const __m256 element = _mm256_set1_ps(1.5F);
    for (long i = begin; i < end; ++i) {
#pragma GCC unroll 12
        for (__m256 &one : sum) {
            asm volatile("" : "+x"(factor)); // may be another one now, so it is multiplied again
            one = _mm256_add_ps(one, _mm256_mul_ps(factor, element));
        }
    }
    for (const __m256 &one : sum) {
        asm volatile("" : : "x"(one)); // and somebody wants to know
    }
}

} // namespace

void multiplyAdds(std::size_t bytesOfProducts, int threads) {
    inBlocks(static_cast<long>(bytesOfProducts / (sums * sizeof(__m256))), threads, addUpProducts);
}

} // namespace lxpm::bench
