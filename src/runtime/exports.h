// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The list of all exports, in the order of their slots in the entry table. The entry stubs, the table, the check of the
// public headers, the symbol version script's test and the tests over all names come from it.
//
// To use it, define the two macros that its lines come down to, and include it; they are undefined at its end.
//
//   MEMBER(operation, code, type, layout, name)   one export of a family: MEMBER(Add, mam, 32f, L, lxpmAdd_mam_32f_L)
//   EXPORT(name)                                  an export that belongs to no family
//
// A family that wants its own lines only defines EXPORT_LIST as the file that holds them.
//
// The file is read by the assembler too: nothing but comments, directives and macros.

// ARRAY: a code with an array operand, both types in all three layouts. SINGLE: a code without one; the object-pointer
// layout is for arrays only.
#define ARRAY(operation, code) ARRAY_OF(operation, code, 32f) ARRAY_OF(operation, code, 64f)
#define SINGLE(operation, code) SINGLE_OF(operation, code, 32f) SINGLE_OF(operation, code, 64f)

// COPY: an array in each pair of layouts, the source's first. A member's operation names the layout of the destination.
#define COPY(code) COPY_OF(code, 32f) COPY_OF(code, 64f)
#define COPY_OF(code, type) COPY_FROM(S, code, type) COPY_FROM(L, code, type) COPY_FROM(P, code, type)

// clang-format off
#define ARRAY_OF(operation, code, type)                                      \
    MEMBER(operation, code, type, S, lxpm##operation##_##code##_##type)      \
    MEMBER(operation, code, type, L, lxpm##operation##_##code##_##type##_L)  \
    MEMBER(operation, code, type, P, lxpm##operation##_##code##_##type##_P)
#define SINGLE_OF(operation, code, type)                                     \
    MEMBER(operation, code, type, S, lxpm##operation##_##code##_##type)      \
    MEMBER(operation, code, type, P, lxpm##operation##_##code##_##type##_P)
#define COPY_FROM(layout, code, type)                                        \
    MEMBER(CopyToS, code, type, layout, lxpmCopy_##code##_##type##_##layout##S)  \
    MEMBER(CopyToL, code, type, layout, lxpmCopy_##code##_##type##_##layout##L)  \
    MEMBER(CopyToP, code, type, layout, lxpmCopy_##code##_##type##_##layout##P)
// clang-format on

// SMALL_VECTORS: an operation on plain vectors of 2, 3 and 4 elements, outside of all families.
#define SMALL_VECTORS(operation)                                                                                       \
    EXPORT(lxpm##operation##_v2_32f)                                                                                   \
    EXPORT(lxpm##operation##_v3_32f)                                                                                   \
    EXPORT(lxpm##operation##_v4_32f)

#ifdef EXPORT_LIST
#include EXPORT_LIST
#undef EXPORT_LIST
#else
// clang-format off
#include "elementwise/add.list.h"
SMALL_VECTORS(Add)
#include "elementwise/sub.list.h"
SMALL_VECTORS(Sub)
#include "products/mul.list.h"
EXPORT(lxpmMul_mm4x4_32f)
#include "products/gaxpy.list.h"
#include "products/dot_product.list.h"
SMALL_VECTORS(DotProduct)
#include "products/cross_product.list.h"
SMALL_VECTORS(CrossProduct)
#include "products/l2_norm.list.h"
#include "products/frob_norm.list.h"
#include "products/trace.list.h"
#include "products/transpose.list.h"
EXPORT(lxpmTranspose_m4_32f)
EXPORT(lxpmDet_m4_32f)
EXPORT(lxpmInvert_m4_32f)
#include "eigen/eigen_values_sym.list.h"
#include "eigen/eigen_values.list.h"
EXPORT(lxpmEigenValuesGetBufSize_32f)
EXPORT(lxpmEigenValuesGetBufSize_64f)
EXPORT(lxpmEigenValuesVectorsGetBufSize_32f)
EXPORT(lxpmEigenValuesVectorsGetBufSize_64f)
#include "graphics/graphics.list.h"
#include "solvers/lu.list.h"
#include "solvers/cholesky.list.h"
#include "solvers/qr.list.h"
#include "solvers/det.list.h"
#include "solvers/invert.list.h"
#include "elementwise/copy.list.h"
#include "elementwise/extract.list.h"
#include "elementwise/load_identity.list.h"
#include "elementwise/saxpy_lcomb.list.h"
// clang-format on
EXPORT(lxpmGetLibVersion)
#endif

#undef ARRAY
#undef SINGLE
#undef ARRAY_OF
#undef SINGLE_OF
#undef SMALL_VECTORS
#undef COPY
#undef COPY_OF
#undef COPY_FROM
#undef MEMBER
#undef EXPORT
