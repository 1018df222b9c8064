// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/extract.h"

#include "elementwise/copy_elements.h"
#include "elementwise/threshold.h"
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
[[gnu::always_inline]] inline bool ExtractMember<operands, T, memory>::isShort(const Arguments &arguments) {
    const auto &size = std::get<2>(arguments.parts);
    return firstFailure<rowOf<ExtractMember, orders>>(arguments) == lxpStatusOk && isSmall(size.height(), size.width());
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void ExtractMember<operands, T, memory>::runShort(const Arguments &arguments) {
    const auto &[source, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    mapObject(Same(), height, width, destination.object(height, width), source.object(height, width));
}

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

} // namespace lxpm

#define EXPORT_LIST "elementwise/extract.list.h"
#include "runtime/instantiate.h"
