// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Copy (36).

COPY(va)
COPY(ma)
