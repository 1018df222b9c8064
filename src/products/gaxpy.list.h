// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Gaxpy (16).

SINGLE(Gaxpy, mv)
ARRAY(Gaxpy, mva)
ARRAY(Gaxpy, mvav)
