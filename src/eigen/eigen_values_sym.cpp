// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "eigen/eigen_values_sym.h"

#include "eigen/symmetric_objects.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"

namespace lxpm {

namespace {

constexpr Row<InOrder> orders[] = {
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Sizes, Check::Count, Check::Offsets, Check::Strides}},
};

// When an array is serial.
constexpr Threshold threshold = serialBelow(1001);

// All objects of a call. Each thread has its own part of the caller's scratch.
template <bool hasVectors, class T>
[[gnu::noinline]] LxpStatus solveObjects(bool parallel, int count, const SymmetricProblem<T> &problem, T *buffer) {
    const auto area = static_cast<std::ptrdiff_t>(problem.order) * problem.order;
    return overShares(parallel, count, 0, [&](const Share &share) {
        return solveSymmetric<hasVectors>(problem, share.first, share.count, buffer + share.thread * area);
    });
}

} // namespace

template <bool hasVectors, Code operands, class T, Layout memory>
LxpStatus SymmetricMember<hasVectors, operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<SymmetricMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, buffer, vectors, values, size, number] = arguments.parts;
    const int order = size.width();
    const int count = number.value;

    const bool parallel = isArray && threshold.isParallel(Work(order) * (Work(order) + 1) * count);
    return solveObjects<hasVectors, T>(
        parallel, count, {source.addresses(order, order), vectors.addresses(order, order), values.first, order},
        buffer.first);
}

} // namespace lxpm

#define EXPORT_LIST "eigen/eigen_values_sym.list.h"
#include "runtime/instantiate.h"
