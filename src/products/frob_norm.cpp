// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/frob_norm.h"

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
    {allCodes, Layouts::S, Types::F32, {serialUpTo(2500), serialUpTo(1800)}},
    {allCodes, Layouts::S, Types::F64, {serialUpTo(1800), serialUpTo(1500)}},
    {allCodes, Layouts::L, Types::Both, {serialUpTo(1600), serialUpTo(1600)}},
    {allCodes, Layouts::P, Types::F32, {serialUpTo(1500), serialUpTo(1500)}},
    {allCodes, Layouts::P, Types::F64, {serialUpTo(2500), serialUpTo(2500)}},
};

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus FrobNormMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<FrobNormMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, size, results, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();

    const SumOperands<T, 1> sum = {{source.addresses(height, width)}, results.first};
    const bool isSplit = layout != Layout::ElementPointers && source.isContiguous() && isSplitRow(width);
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel =
            rowOf<FrobNormMember, thresholds>.isParallel(Work(width) * height * count, source.isContiguous());
        return sumProducts<T, RootOfSum, 1>(parallel, isSplit, count, height, width, sum);
    } else {
        return sumProductsOfOne<T, RootOfSum, 1>(isSplit, height, width, sum);
    }
}

} // namespace lxpm

#define EXPORT_LIST "products/frob_norm.list.h"
#include "runtime/instantiate.h"
