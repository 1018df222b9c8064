/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPCORE_H
#define LXPCORE_H

#include <lxp/status.h>

/*
 * lxpcore: what the libraries of the family ask about the machine they run on.
 *
 * The three services are ordinary dynamic symbols and stay interposable: a program that defines a function of the same
 * name, or preloads a library that does, is asked instead of this one.
 */

#ifdef __cplusplus
extern "C" {
#endif

/*
 * The number of threads that a library may use for one call: at least 1.
 *
 * It is the least of the processors that the process may run on (its affinity), the processor quota of its container
 * (control groups, version 1 and 2; a fraction counts as a whole one) and the calling thread's OpenMP setting
 * (OMP_NUM_THREADS, omp_set_num_threads). The first two are read once, the third at every call, which costs
 * nanoseconds.
 *
 * In a child that a process forked after it had asked for a number of threads, the answer is 1: OpenMP runtimes do not
 * survive a fork, and a parallel region in such a child would never return.
 */
int ownGetNumThreads(void);

/* What lxpGetEnabledCpuFeatures reports: one bit for each instruction set that both the processor and the operating
 * system support. */
#define LXP_CPU_SSE2 0x001ULL
#define LXP_CPU_SSE3 0x002ULL
#define LXP_CPU_SSSE3 0x004ULL
#define LXP_CPU_SSE41 0x008ULL
#define LXP_CPU_SSE42 0x010ULL
#define LXP_CPU_AVX 0x020ULL
#define LXP_CPU_FMA 0x040ULL
#define LXP_CPU_AVX2 0x080ULL
#define LXP_CPU_AVX512F 0x100ULL

/* The instruction sets of this processor that may be used, as a mask of LXP_CPU_ bits. */
unsigned long long lxpGetEnabledCpuFeatures(void);

/*
 * Stores the size in bytes of the processor's largest cache in *size, 0 when it is unknown.
 *
 * lxpStatusOk; lxpStatusNullPtrErr when size is null.
 */
LxpStatus lxpGetMaxCacheSizeB(int *size);

#ifdef __cplusplus
}
#endif

#endif
