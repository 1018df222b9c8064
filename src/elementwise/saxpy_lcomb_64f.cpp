// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/combination_members.h"

#define ONLY_64f
#define EXPORT_LIST "elementwise/saxpy_lcomb.list.h"
#include "runtime/instantiate.h"
