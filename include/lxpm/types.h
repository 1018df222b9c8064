/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_TYPES_H
#define LXPM_TYPES_H

/* LxpStatus, the result of every function, and its values. */
#include <lxp/status.h>

#endif
