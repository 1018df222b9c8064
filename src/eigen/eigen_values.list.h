// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of EigenValues, EigenValuesVectors, EigenValuesVectorsRight and EigenValuesVectorsLeft (40).

SINGLE(EigenValues, m)
ARRAY(EigenValues, ma)
SINGLE(EigenValuesVectors, m)
ARRAY(EigenValuesVectors, ma)
SINGLE(EigenValuesVectorsRight, m)
ARRAY(EigenValuesVectorsRight, ma)
SINGLE(EigenValuesVectorsLeft, m)
ARRAY(EigenValuesVectorsLeft, ma)
