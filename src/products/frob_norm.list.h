// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of FrobNorm (10).

SINGLE(FrobNorm, m)
ARRAY(FrobNorm, ma)
