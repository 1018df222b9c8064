// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "eigen/eigen_values.h"

#include "eigen/general_objects.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"

#include <cstddef>

namespace lxpm {

namespace {

constexpr Row<InOrder> orders[] = {
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Sizes, Check::Count, Check::Offsets, Check::Strides}},
};

// When an array is serial.
constexpr Threshold threshold = serialBelow(251);

// The scratch for one matrix, in elements: the matrix, two more of its size if vectors are wanted, five vectors. A
// wrapping product in the reports of the sizes, one in 64 bits in the allocation for a team.
template <class Number>
constexpr Number bufferElements(Number order, bool hasVectors) {
    return order * (order * Number(hasVectors ? 3 : 1) + Number(5));
}

// All objects of a call. The calling thread has the caller's scratch, the others their own.
template <class T>
[[gnu::noinline]] LxpStatus solveObjects(bool parallel, int count, const GeneralProblem<T> &problem, T *buffer) {
    const std::size_t elements = bufferElements(static_cast<std::size_t>(problem.order), problem.wantsVectors());
    const std::size_t bytes = isSolvedOnStack(problem.order) ? 0 : elements * sizeof(T);
    return overShares(parallel, count, bytes, [&](const Share &share) {
        const auto solve = problem.wantsVectors() ? solveGeneral<true, T> : solveGeneral<false, T>;
        return solve(problem, share.first, share.count, share.scratchOr(buffer));
    });
}

template <class T>
LxpStatus reportSize(int order, bool hasVectors, int *size) {
    if (size == nullptr) {
        return lxpStatusNullPtrErr;
    }
    if (order < 1) {
        return lxpStatusSizeErr;
    }
    *size = (bufferElements(Work(order), hasVectors) * static_cast<int>(sizeof(T))).measure();
    return lxpStatusOk;
}

} // namespace

template <bool hasRight, bool hasLeft, Code operands, class T, Layout memory>
LxpStatus GeneralMember<hasRight, hasLeft, operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<GeneralMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, right, left, re, im, size, number, buffer] = arguments.parts;
    const int order = size.width();
    const int count = number.value;

    const bool parallel = isArray && threshold.isParallel(Work(order) * (Work(order) + 1) * count);
    return solveObjects<T>(parallel, count,
                           {source.addresses(order, order), right.addresses(order, order), left.addresses(order, order),
                            re.first, im.first, order, hasRight, hasLeft},
                           buffer.first);
}

namespace implementation {

LxpStatus lxpmEigenValuesGetBufSize_32f(int widthHeight, int *size) {
    return reportSize<float>(widthHeight, false, size);
}

LxpStatus lxpmEigenValuesGetBufSize_64f(int widthHeight, int *size) {
    return reportSize<double>(widthHeight, false, size);
}

LxpStatus lxpmEigenValuesVectorsGetBufSize_32f(int widthHeight, int *size) {
    return reportSize<float>(widthHeight, true, size);
}

LxpStatus lxpmEigenValuesVectorsGetBufSize_64f(int widthHeight, int *size) {
    return reportSize<double>(widthHeight, true, size);
}

} // namespace implementation

} // namespace lxpm

#define EXPORT_LIST "eigen/eigen_values.list.h"
#include "runtime/instantiate.h"
