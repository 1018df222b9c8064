// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Trace (10).

SINGLE(Trace, m)
ARRAY(Trace, ma)
