// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A race on purpose, in the shape of the library's parallel kernels without their barrier: the race detector must
// report it, or its silence about the library means nothing.

#include <omp.h>

int main() {
    int published = 0;
    int read[2] = {};
#pragma omp parallel num_threads(2) shared(published, read)
    {
#pragma omp master
        published = 1;
        read[omp_get_thread_num()] = published;
    }
    return read[0] - 1;
}
