// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of Add and Sub run. For the sources that instantiate them, one for each type.

#include "elementwise/add_sub.h"
#include "runtime/map.h"
#include "runtime/rows.h"
#include "runtime/work.h"

#include <cstddef>
#include <tuple>

namespace lxpm {

namespace detail::sum {

// The orders of the checks. A strided array of matrices with one matrix looks at the strides before the sizes, and an
// array of vectors with one vector at the count late.
inline constexpr Row<InOrder> orders[] = {
    {"mam mma", Layouts::S, Types::Both, {Check::Pointers, Check::Count, Check::Strides, Check::Sizes}},
    {"vav", Layouts::S, Types::Both, {Check::Pointers, Check::Sizes, Check::Strides, Check::Count}},
    {"vav", Layouts::L, Types::Both, {Check::Pointers, Check::Sizes, Check::Strides, Check::Offsets, Check::Count}},
    {"vav", Layouts::P, Types::Both, {Check::Pointers, Check::Sizes, Check::Strides, Check::Count, Check::Offsets}},
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets}},
};

// When an array is serial.
inline constexpr Codes matrices = "mam tam mat tat mama tama tata mata mma mta tma tta";
inline constexpr Codes vectors = "vav vva vava vca vac vaca cva cav cava";
inline constexpr Row<Thresholds> thresholds[] = {
    //                                   contiguous   strided
    {matrices, Layouts::S, Types::F32, {serialBelow(3000), serialBelow(2000)}},
    {matrices, Layouts::S, Types::F64, {serialBelow(2000), serialBelow(2000)}},
    {matrices, Layouts::LP, Types::Both, {serialBelow(2000), serialBelow(2000)}},
    {vectors, Layouts::S, Types::F32, {serialUpTo(4800), serialUpTo(4800)}},
    {vectors, Layouts::S, Types::F64, {serialUpTo(1400), serialUpTo(1400)}},
    {vectors, Layouts::L, Types::Both, {serialUpTo(2500), serialUpTo(2500)}},
    {vectors, Layouts::P, Types::Both, {serialBelow(1501), serialBelow(1501)}},
};

// The elements that a call reads and writes: those of arrays once for each object, those of single objects once.
template <class M>
Work workOf(int width, int height, int count) {
    const Work perObject = Work(width) * height;
    const auto operand = [&](Kind kind) {
        return (kind.isConstant() ? Work(1) : perObject) * (kind.array ? count : 1);
    };
    // The thresholds of a constant with an array of vectors were tuned with its vectors counted once.
    constexpr Kind first = M::code[0];
    constexpr Kind second = M::code == "cva" ? Kind{Shape::Vector} : M::code[1];
    return operand(first) + operand(second) + perObject * count;
}

} // namespace detail::sum

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool SumMember<Op, operands, T, memory>::isShort(const Arguments &arguments) {
    const auto &size = std::get<3>(arguments.parts);
    return firstFailure<rowOf<SumMember, detail::sum::orders>>(arguments) == lxpStatusOk &&
           isSmall(size.height(), size.width());
}

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void SumMember<Op, operands, T, memory>::runShort(const Arguments &arguments) {
    const auto &[first, second, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    mapObject(Operation(), height, width, destination.object(height, width), first.object(height, width),
              second.object(height, width));
}

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool SumMember<Op, operands, T, memory>::isDense(const Arguments &arguments) {
    const auto &[first, second, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    return !arguments.violates(Check::Pointers) && isWithin(width, mostSmallElements) &&
           isWithin(height, mostSmallElements) && width * height <= mostSmallElements &&
           (first.gaps(width) | second.gaps(width) | destination.gaps(width)) == 0;
}

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline LxpStatus SumMember<Op, operands, T, memory>::runDense(const Arguments &arguments) {
    const auto &[first, second, destination, size, number] = arguments.parts;
    return runDenseObject(Operation(), size.width() * size.height(), destination.object().first, first.object().lead(),
                          second.object().lead());
}

template <class Op, Code operands, class T, Layout memory>
LxpStatus SumMember<Op, operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<SumMember, detail::sum::orders>>(arguments);
        status != lxpStatusOk) {
        return status;
    }
    const auto &[first, second, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    const int count = number.value;

    bool parallel = false;
    if constexpr (isArray) {
        const bool isContiguous = first.isContiguous() && second.isContiguous() && destination.isContiguous();
        parallel = rowOf<SumMember, detail::sum::thresholds>.isParallel(
            detail::sum::workOf<SumMember>(width, height, count), isContiguous);
    }
    const auto sources = std::tie(first, second);
    constexpr std::size_t left = isReversed ? 1 : 0;
    return mapElements<T, Operation, 2>(
        Operation(), parallel, count, height, width,
        {destination.addresses(height, width),
         {std::get<left>(sources).addresses(height, width), std::get<1 - left>(sources).addresses(height, width)}});
}

} // namespace lxpm
