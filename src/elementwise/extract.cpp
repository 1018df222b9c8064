// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/extract.h"

#include "elementwise/copy_elements.h"
#include "elementwise/threshold.h"
#include "runtime/entry_call.h"
#include "runtime/rows.h"

namespace lxpm {

namespace {

// The orders of the checks. A single object by element pointers looks at the sizes before the pointers.
constexpr Row<InOrder> orders[] = {
    {"v m t", Layouts::P, Types::Both, {Check::Sizes, Check::Pointers, Check::Offsets}},
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Sizes, Check::Count, Check::Offsets, Check::Strides}},
};

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus ExtractMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<ExtractMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    const int count = number.value;

    const bool parallel = isArray && movedByOneThread.isParallel(Work(2) * width * height * count);
    return copyElements<T>(parallel, count, height, width,
                           {destination.addresses(height, width), {source.addresses(height, width)}});
}

#define MEMBER(operation, code, type, layout, name)                                                                    \
    template struct Entry<Member<operation, #code, Element_##type, Layout_##layout>>;
#define EXPORT_LIST "elementwise/extract.list.h"
#include "runtime/exports.h"

} // namespace lxpm
