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

// clang-format off
#define ARRAY_OF(operation, code, type)                                      \
    MEMBER(operation, code, type, S, lxpm##operation##_##code##_##type)      \
    MEMBER(operation, code, type, L, lxpm##operation##_##code##_##type##_L)  \
    MEMBER(operation, code, type, P, lxpm##operation##_##code##_##type##_P)
#define SINGLE_OF(operation, code, type)                                     \
    MEMBER(operation, code, type, S, lxpm##operation##_##code##_##type)      \
    MEMBER(operation, code, type, P, lxpm##operation##_##code##_##type##_P)
// clang-format on

#ifdef EXPORT_LIST
#include EXPORT_LIST
#undef EXPORT_LIST
#else
#include "elementwise/add.list.h"
#include "elementwise/sub.list.h"
EXPORT(lxpmGetLibVersion)
#endif

#undef ARRAY
#undef SINGLE
#undef ARRAY_OF
#undef SINGLE_OF
#undef MEMBER
#undef EXPORT
