// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "solvers/det_kernels.h"

#define ONLY_64f
#define EXPORT_LIST "solvers/det.list.h"
#include "runtime/instantiate.h"
