// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/transpose.h"

#include "products/transposition.h"
#include "runtime/rows.h"

namespace lxpm {

namespace {

constexpr Row<InOrder> orders[] = {
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets}},
};

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus TransposeMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<TransposeMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, size, destination, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    transposeObjects<T>(number.value, height, width, source.addresses(height, width),
                        destination.addresses(width, height));
    return lxpStatusOk;
}

} // namespace lxpm

#define EXPORT_LIST "products/transpose.list.h"
#include "runtime/instantiate.h"
