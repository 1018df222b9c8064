// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of EigenValuesSym and EigenValuesVectorsSym (20).

SINGLE(EigenValuesSym, m)
ARRAY(EigenValuesSym, ma)
SINGLE(EigenValuesVectorsSym, m)
ARRAY(EigenValuesVectorsSym, ma)
