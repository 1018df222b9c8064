// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/l2_norm.h"

#include "products/sums.h"
#include "runtime/rows.h"
#include "runtime/work.h"

namespace lxpm {

namespace {

constexpr Row<InOrder> orders[] = {
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets}},
};

// When an array is serial.
constexpr Threshold threshold = serialUpTo(1500);

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus L2NormMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<L2NormMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, results, size, number] = arguments.parts;
    const int length = size.width();

    const SumOperands<T, 1> sum = {{source.addresses(1, length)}, results.first};
    const bool isSplit = layout != Layout::ElementPointers && source.isContiguous() && length >= shortestSplit;
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel = threshold.isParallel(Work(length) * count);
        return sumProducts<T, RootOfSum, 1>(parallel, isSplit, count, 1, length, sum);
    } else {
        return sumProductsOfOne<T, RootOfSum, 1>(isSplit, 1, length, sum);
    }
}

} // namespace lxpm

#define EXPORT_LIST "products/l2_norm.list.h"
#include "runtime/instantiate.h"
