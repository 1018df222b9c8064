/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

/* The smallest program that needs headers, library and companion library. Compiled as C99 and as C++11. */

#include <lxpcore.h>
#include <lxpm.h>

#include <stdio.h>

int main(void) {
    const float src[2][2] = {{1, 2}, {3, 4}};
    const float offset[2] = {10, 20};
    float dst[2][2];
    const LxpStatus status = lxpmAdd_vav_32f(src[0], 8, 4, offset, 4, dst[0], 8, 4, 2, 2);
    if (status != lxpStatusOk || dst[0][0] != 11 || dst[0][1] != 22 || dst[1][0] != 13 || dst[1][1] != 24) {
        fprintf(stderr, "wrong sum, status %d\n", (int)status);
        return 1;
    }
    if (ownGetNumThreads() < 1 || lxpmGetLibVersion()->majorVersion != 7) {
        fprintf(stderr, "wrong environment\n");
        return 1;
    }
    return 0;
}
