// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Saxpy (22) and LComb (16).

SINGLE(Saxpy, vv)
ARRAY(Saxpy, vav)
ARRAY(Saxpy, vva)
ARRAY(Saxpy, vava)

SINGLE(LComb, vv)
ARRAY(LComb, vav)
ARRAY(LComb, vava)
