// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of QRDecomp and QRBackSubst (26).

SINGLE(QRDecomp, m)
ARRAY(QRDecomp, ma)
SINGLE(QRBackSubst, mv)
ARRAY(QRBackSubst, mva)
ARRAY(QRBackSubst, mava)
