// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of LUDecomp and LUBackSubst (26).

SINGLE(LUDecomp, m)
ARRAY(LUDecomp, ma)
SINGLE(LUBackSubst, mv)
ARRAY(LUBackSubst, mva)
ARRAY(LUBackSubst, mava)
