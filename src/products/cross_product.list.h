// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of CrossProduct (22) in the layouts.

SINGLE(CrossProduct, vv)
ARRAY(CrossProduct, vav)
ARRAY(CrossProduct, vva)
ARRAY(CrossProduct, vava)
