// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Transpose (10) for matrices of any size.

SINGLE(Transpose, m)
ARRAY(Transpose, ma)
