// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/sum_members.h"

#define ONLY_32f
#define EXPORT_LIST "elementwise/add.list.h"
#include "runtime/instantiate.h"

#define EXPORT_LIST "elementwise/sub.list.h"
#include "runtime/instantiate.h"
