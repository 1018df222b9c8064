// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/dot_product.h"

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
constexpr Row<Thresholds> thresholds[] = {
    //                                   contiguous   strided
    {allCodes, Layouts::S, Types::F32, {serialUpTo(5000), serialUpTo(2620)}},
    {allCodes, Layouts::S, Types::F64, {serialUpTo(3500), serialUpTo(2000)}},
    {allCodes, Layouts::L, Types::F32, {serialUpTo(2400), serialUpTo(2400)}},
    {allCodes, Layouts::L, Types::F64, {serialUpTo(4200), serialUpTo(3300)}},
    {allCodes, Layouts::P, Types::F32, {serialUpTo(2400), serialUpTo(2400)}},
    {allCodes, Layouts::P, Types::F64, {serialUpTo(2000), serialUpTo(2000)}},
};

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus DotProductMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<DotProductMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[first, second, results, size, number] = arguments.parts;
    const int length = size.width();

    const SumOperands<T, 2> sum = {{first.addresses(1, length), second.addresses(1, length)}, results.first};
    const bool isContiguous = first.isContiguous() && second.isContiguous();
    const bool isSplit = layout != Layout::ElementPointers && isContiguous && length >= shortestSplit;
    if constexpr (isArray) {
        constexpr Kind other = operands[1];
        const int count = number.value;
        const Work vectors = other.array ? Work(2) * count : Work(count) + 1;
        const bool parallel = rowOf<DotProductMember, thresholds>.isParallel(vectors * length, isContiguous);
        return sumProducts<T, PlainSum, 2>(parallel, isSplit, count, 1, length, sum);
    } else {
        return sumProductsOfOne<T, PlainSum, 2>(isSplit, 1, length, sum);
    }
}

} // namespace lxpm

#define EXPORT_LIST "products/dot_product.list.h"
#include "runtime/instantiate.h"
