// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Invert (10) for matrices of any order.

SINGLE(Invert, m)
ARRAY(Invert, ma)
