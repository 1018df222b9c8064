// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/mul_members.h"

#define ONLY_64f
#define EXPORT_LIST "products/mul.list.h"
#include "runtime/instantiate.h"
