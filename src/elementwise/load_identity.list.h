// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of LoadIdentity (6).

ARRAY(LoadIdentity, ma)
