// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "asking_library.h"

#include <lxpcore.h>

int threadsOfLibrary() {
    return ownGetNumThreads();
}
