// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What an application defines to decide on the number of threads itself; linked into one program, preloaded into
// another.

#include <lxpcore.h>

int ownGetNumThreads(void) {
    return 41;
}
