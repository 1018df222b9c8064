// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Extract (30).

SINGLE(Extract, v)
SINGLE(Extract, m)
SINGLE(Extract, t)
ARRAY(Extract, va)
ARRAY(Extract, ma)
ARRAY(Extract, ta)
