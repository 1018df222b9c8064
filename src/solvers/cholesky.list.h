// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of CholeskyDecomp and CholeskyBackSubst (26).

SINGLE(CholeskyDecomp, m)
ARRAY(CholeskyDecomp, ma)
SINGLE(CholeskyBackSubst, mv)
ARRAY(CholeskyBackSubst, mva)
ARRAY(CholeskyBackSubst, mava)
