// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include <lxpcore.h>

namespace lxpm {

namespace {

using Mask = unsigned long long;

// The compiler's answers include whether the operating system saves the registers of an instruction set.
Mask enabledFeatures() {
    __builtin_cpu_init();
    Mask mask = 0;
    mask |= __builtin_cpu_supports("sse2") ? LXP_CPU_SSE2 : 0;
    mask |= __builtin_cpu_supports("sse3") ? LXP_CPU_SSE3 : 0;
    mask |= __builtin_cpu_supports("ssse3") ? LXP_CPU_SSSE3 : 0;
    mask |= __builtin_cpu_supports("sse4.1") ? LXP_CPU_SSE41 : 0;
    mask |= __builtin_cpu_supports("sse4.2") ? LXP_CPU_SSE42 : 0;
    mask |= __builtin_cpu_supports("avx") ? LXP_CPU_AVX : 0;
    mask |= __builtin_cpu_supports("fma") ? LXP_CPU_FMA : 0;
    mask |= __builtin_cpu_supports("avx2") ? LXP_CPU_AVX2 : 0;
    mask |= __builtin_cpu_supports("avx512f") ? LXP_CPU_AVX512F : 0;
    return mask;
}

const Mask enabled = enabledFeatures();

} // namespace

extern "C" [[gnu::visibility("default")]] unsigned long long lxpGetEnabledCpuFeatures() {
    return enabled;
}

} // namespace lxpm
