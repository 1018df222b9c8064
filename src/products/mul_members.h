// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of Mul run. For the sources that instantiate them, one for each type.

#include "products/mul.h"
#include "products/one_product.h"
#include "products/product.h"
#include "products/scaling.h"
#include "runtime/rows.h"
#include "runtime/work.h"

namespace lxpm {

namespace detail::mul {

inline constexpr InOrder order = {Check::Pointers,  Check::Count,   Check::Sizes,
                                  Check::SizeMatch, Check::Strides, Check::Offsets};

// When an array is serial. Where both values are the same the case is decided by one test.
inline constexpr Codes matricesWithConstant = "mac tac";
inline constexpr Codes constants = "vca vaca";
inline constexpr Row<Thresholds> thresholds[] = {
    //                                                 contiguous        strided
    {matricesWithConstant, Layouts::S, Types::Both, {serialUpTo(3500), serialUpTo(3500)}},
    {matricesWithConstant, Layouts::L, Types::F32, {serialUpTo(3500), serialUpTo(1500)}},
    {matricesWithConstant, Layouts::L, Types::F64, {serialUpTo(3500), serialUpTo(3500)}},
    {matricesWithConstant, Layouts::P, Types::Both, {serialUpTo(1700), serialUpTo(1700)}},
    {constants, Layouts::S, Types::Both, {serialUpTo(2100), serialUpTo(2100)}},
    {constants, Layouts::L, Types::Both, {serialUpTo(1200), serialUpTo(1200)}},
    {constants, Layouts::P, Types::Both, {serialUpTo(650), serialUpTo(650)}},
    {allCodes, Layouts::S, Types::F32, {serialUpTo(2500), serialUpTo(1440)}},
    {allCodes, Layouts::S, Types::F64, {serialUpTo(3600), serialUpTo(1440)}},
    {allCodes, Layouts::L, Types::Both, {serialUpTo(3600), serialUpTo(1440)}},
    {allCodes, Layouts::P, Types::Both, {serialUpTo(1440), serialUpTo(1440)}},
};

// The elements of an operand that a call reads or writes: an array's once for each object, a single object's once.
template <Kind kind>
constexpr Work elementsOf(Work perObject, int count) {
    return kind.array ? perObject * count : perObject;
}

} // namespace detail::mul

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool ProductMember<operands, T, memory>::isShort(const Arguments &arguments) {
    return firstFailure<detail::mul::order>(arguments) == lxpStatusOk &&
           isShortProduct(arguments.rows(), arguments.inner(), arguments.columns());
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void ProductMember<operands, T, memory>::runShort(const Arguments &arguments) {
    const int rows = arguments.rows();
    const int inner = arguments.inner();
    const int columns = arguments.columns();
    const auto a = arguments.firstOperand().object(rows, inner);
    if constexpr (operands[1].shape == Shape::Vector) { // as a row: the vector times the transposed matrix
        multiplyObject(1, inner, rows, arguments.secondOperand().object(1, inner), a.transposed(),
                       arguments.destination().object(1, rows));
    } else {
        multiplyObject(rows, inner, columns, a, arguments.secondOperand().object(inner, columns),
                       arguments.destination().object(rows, columns));
    }
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool ProductMember<operands, T, memory>::isDense(const Arguments &arguments) {
    const int order = arguments.inner();
    return !arguments.violates(Check::Pointers) && arguments.isSquare() && isUnrolledOrder(order) &&
           (arguments.firstOperand().gaps(order) | arguments.secondOperand().gaps(order) |
            arguments.destination().gaps(order)) == 0;
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline LxpStatus ProductMember<operands, T, memory>::runDense(const Arguments &arguments) {
    const T *first = arguments.firstOperand().object().first;
    const T *second = arguments.secondOperand().object().first;
    T *dst = arguments.destination().object().first;
    const auto run = [=]<int Order>() __attribute__((always_inline)) {
        if constexpr (operands[1].shape == Shape::Vector) {
            return multiplyDenseVector<Order>(first, second, dst);
        } else {
            return multiplyDense<Order>(first, second, dst);
        }
    };
    // Not withOrder: with its chain of tests GCC saves six registers at the entry, for half of a product's time.
    switch (arguments.inner()) {
    case 3:
        return run.template operator()<3>();
    case 4:
        return run.template operator()<4>();
    case 5:
        return run.template operator()<5>();
    default:
        return run.template operator()<6>();
    }
}

template <Code operands, class T, Layout memory>
LxpStatus ProductMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::mul::order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &first = arguments.firstOperand();
    const auto &second = arguments.secondOperand();
    const auto &destination = arguments.destination();
    const int rows = arguments.rows();
    const int inner = arguments.inner();
    const int columns = arguments.columns();
    const int count = arguments.count();

    bool parallel = false;
    if constexpr (operands.hasArray()) {
        const Work work = detail::mul::elementsOf<operands[0]>(Work(rows) * inner, count) +
                          detail::mul::elementsOf<operands[1]>(Work(inner) * columns, count) +
                          Work(rows) * columns * count;
        const bool isContiguous = first.isContiguous() && second.isContiguous() && destination.isContiguous();
        parallel = rowOf<ProductMember, detail::mul::thresholds>.isParallel(work, isContiguous);
    }

    if constexpr (operands[1].shape == Shape::Vector) {
        return multiply<T>(parallel, count,
                           rowProduct<T>(rows, inner, first.addresses(rows, inner), second.addresses(1, inner),
                                         std::nullopt, destination.addresses(1, rows)));
    } else {
        return multiply<T>(parallel, count,
                           {.rows = rows,
                            .inner = inner,
                            .columns = columns,
                            .a = first.addresses(rows, inner),
                            .b = second.addresses(inner, columns),
                            .addend = std::nullopt,
                            .dst = destination.addresses(rows, columns)});
    }
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool ScalingMember<operands, T, memory>::isShort(const Arguments &arguments) {
    const auto &size = std::get<3>(arguments.parts);
    return firstFailure<detail::mul::order>(arguments) == lxpStatusOk && isSmall(size.height(), size.width());
}

template <Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void ScalingMember<operands, T, memory>::runShort(const Arguments &arguments) {
    const auto &[source, constant, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    mapObject(Times(), height, width, destination.object(height, width), source.object(height, width),
              constant.object());
}

template <Code operands, class T, Layout memory>
LxpStatus ScalingMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::mul::order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, constant, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    const int count = number.value;

    bool parallel = false;
    if constexpr (isArray) {
        const Work perObject = Work(width) * height;
        const Work work = detail::mul::elementsOf<operands[0]>(perObject, count) +
                          (hasConstants ? Work(count) : Work(0)) + perObject * count;
        parallel = rowOf<ScalingMember, detail::mul::thresholds>.isParallel(work, source.isContiguous() &&
                                                                                      destination.isContiguous());
    }

    const auto from = source.addresses(height, width);
    const auto to = destination.addresses(height, width);
    if constexpr (hasConstants) {
        return multiplyByConstants<T>(parallel, count, height, width, {to, {from, constant.addresses()}});
    } else {
        const T value = *constant.addresses().at(0, 0, 0);
        return multiplyByValue<T>(value, parallel, count, height, width, {to, {from}});
    }
}

} // namespace lxpm
