// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Det (10) for matrices of any order.

SINGLE(Det, m)
ARRAY(Det, ma)
