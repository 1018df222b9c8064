// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The roof of the library: the table of code addresses through which the entry stubs jump, one slot for each export. It
// is writable, so that an implementation can be exchanged as a whole, but nothing here writes it.

#include "eigen/eigen_values.h"
#include "eigen/eigen_values_sym.h"
#include "elementwise/add_sub.h"
#include "elementwise/copy.h"
#include "elementwise/extract.h"
#include "elementwise/load_identity.h"
#include "elementwise/saxpy_lcomb.h"
#include "graphics/graphics.h"
#include "products/cross_product.h"
#include "products/dot_product.h"
#include "products/frob_norm.h"
#include "products/gaxpy.h"
#include "products/l2_norm.h"
#include "products/mul.h"
#include "products/trace.h"
#include "products/transpose.h"
#include "runtime/entry.h"
#include "runtime/version.h"
#include "solvers/cholesky.h"
#include "solvers/det.h"
#include "solvers/invert.h"
#include "solvers/lu.h"
#include "solvers/qr.h"

#include <lxpm.h>
#include <type_traits>

namespace lxpm {

// The public headers are written out by hand; here each declaration is held against the operands of its member.
#define MEMBER(operation, code, type, layout, name)                                                                    \
    static_assert(std::is_same_v<decltype(::name),                                                                     \
                                 Member<operation, #code, Element_##type, Layout_##layout>::Arguments::Signature>,     \
                  "the public header declares " #name " with other parameters than its operands contribute");
#define EXPORT(name)                                                                                                   \
    static_assert(std::is_same_v<decltype(::name), decltype(implementation::name)>,                                    \
                  "the public header declares " #name " with other parameters than its implementation has");
#include "runtime/exports.h"

using CodeAddress = void (*)();

extern "C" {

#define MEMBER(operation, code, type, layout, name)                                                                    \
    reinterpret_cast<CodeAddress>(&Entry<Member<operation, #code, Element_##type, Layout_##layout>>::call),
#define EXPORT(name) reinterpret_cast<CodeAddress>(&implementation::name),

CodeAddress lxpmEntryTable[] = {
#include "runtime/exports.h"
};
}

} // namespace lxpm
