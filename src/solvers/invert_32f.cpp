// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/entry_call.h"
#include "solvers/invert_kernels.h"

namespace lxpm {

#define INSTANTIATE_32f(operation, code, type, layout)
#define INSTANTIATE_64f(operation, code, type, layout)
#undef INSTANTIATE_32f
#define INSTANTIATE_32f(operation, code, type, layout)                                                                 \
    template struct Entry<Member<operation, #code, Element_##type, Layout_##layout>>;
#define MEMBER(operation, code, type, layout, name) INSTANTIATE_##type(operation, code, type, layout)
#define EXPORT_LIST "solvers/invert.list.h"
#include "runtime/exports.h"

} // namespace lxpm
