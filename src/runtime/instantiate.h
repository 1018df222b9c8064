// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Instantiates the entries of a family's list. For the sources of families, once for each list, behind what defines the
// members' functions:
//
//   #define EXPORT_LIST "products/trace.list.h"
//   #include "runtime/instantiate.h"
//
// A family whose kernels take long to compile has a source for each type, with ONLY_32f or ONLY_64f defined.

#include "runtime/entry_call.h"

#define INSTANTIATE(operation, code, type, layout)                                                                     \
    template struct Entry<Member<operation, #code, Element_##type, Layout_##layout>>;
#ifndef ONLY_64f
#define INSTANTIATE_32f(operation, code, type, layout) INSTANTIATE(operation, code, type, layout)
#else
#define INSTANTIATE_32f(operation, code, type, layout)
#endif
#ifndef ONLY_32f
#define INSTANTIATE_64f(operation, code, type, layout) INSTANTIATE(operation, code, type, layout)
#else
#define INSTANTIATE_64f(operation, code, type, layout)
#endif
#define MEMBER(operation, code, type, layout, name) INSTANTIATE_##type(operation, code, type, layout)

namespace lxpm {
#include "runtime/exports.h"
} // namespace lxpm

#undef INSTANTIATE
#undef INSTANTIATE_32f
#undef INSTANTIATE_64f
