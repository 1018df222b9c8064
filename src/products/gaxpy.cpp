// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/gaxpy.h"

#include "products/one_product.h"
#include "products/product.h"
#include "runtime/rows.h"
#include "runtime/work.h"

namespace lxpm {

namespace {

constexpr InOrder order = {Check::Pointers,  Check::Count,   Check::Sizes,
                           Check::SizeMatch, Check::Strides, Check::Offsets};

// When an array is serial.
constexpr Row<Thresholds> thresholds[] = {
    //                                     contiguous        strided
    {allCodes, Layouts::S, Types::F32, {serialUpTo(7000), serialUpTo(5000)}},
    {allCodes, Layouts::S, Types::F64, {serialUpTo(5000), serialUpTo(5000)}},
    {allCodes, Layouts::L, Types::F32, {serialUpTo(7000), serialUpTo(500)}},
    {allCodes, Layouts::L, Types::F64, {serialUpTo(6000), serialUpTo(5000)}},
    {allCodes, Layouts::P, Types::F32, {serialUpTo(4500), serialUpTo(4500)}},
    {allCodes, Layouts::P, Types::F64, {serialUpTo(7000), serialUpTo(7000)}},
};

} // namespace

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool GaxpyMember<operands, T, memory>::isShort(const Arguments &arguments) {
    return firstFailure<order>(arguments) == lxpStatusOk && isShortProduct(arguments.rows(), arguments.inner(), 1);
}

// As a row: the vector times the transposed matrix.
template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void GaxpyMember<operands, T, memory>::runShort(const Arguments &arguments) {
    const int rows = arguments.rows();
    const int inner = arguments.inner();
    multiplyObject(1, inner, rows, arguments.vector().object(1, inner),
                   arguments.matrix().object(rows, inner).transposed(), arguments.destination().object(1, rows),
                   arguments.addend().object(1, rows));
}

template <Code operands, class T, Layout memory>
LxpStatus GaxpyMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &matrix = arguments.matrix();
    const auto &vector = arguments.vector();
    const auto &addend = arguments.addend();
    const auto &destination = arguments.destination();
    const int rows = arguments.rows();
    const int inner = arguments.inner();
    const int count = arguments.count();

    bool parallel = false;
    if constexpr (operands.hasArray()) {
        // The vectors alone are counted, the matrix is not.
        const Work addends = std::decay_t<decltype(addend)>::isArray ? Work(rows) * count : Work(rows);
        const Work work = Work(inner) * count + addends + Work(rows) * count;
        const bool isContiguous =
            matrix.isContiguous() && vector.isContiguous() && addend.isContiguous() && destination.isContiguous();
        parallel = rowOf<GaxpyMember, thresholds>.isParallel(work, isContiguous);
    }
    return multiply<T>(parallel, count,
                       rowProduct<T>(rows, inner, matrix.addresses(rows, inner), vector.addresses(1, inner),
                                     addend.addresses(1, rows), destination.addresses(1, rows)));
}

} // namespace lxpm

#define EXPORT_LIST "products/gaxpy.list.h"
#include "runtime/instantiate.h"
