// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of L2Norm (10).

SINGLE(L2Norm, v)
ARRAY(L2Norm, va)
