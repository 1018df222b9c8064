// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of DotProduct (16) with operands of any length.

SINGLE(DotProduct, vv)
ARRAY(DotProduct, vav)
ARRAY(DotProduct, vava)
