// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of QRDecomp and QRBackSubst run. For the sources that instantiate them, one for each type.

#include "runtime/numbers.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"
#include "solvers/by_groups.h"
#include "solvers/matrices.h"
#include "solvers/qr.h"
#include "solvers/right_sides.h"

#include <cstddef>
#include <limits>
#include <type_traits>

namespace lxpm {

namespace detail::qr {

inline constexpr InOrder orderOfChecks = {Check::Pointers, Check::Count,   Check::Sizes,
                                          Check::Strides,  Check::Offsets, Check::SizeMatch};

// When an array is serial.
inline constexpr Row<Threshold> thresholds[] = {
    {allCodes, Layouts::S, Types::Both, serialUpTo(2800)},
    {allCodes, Layouts::LP, Types::Both, serialUpTo(1800)},
};

// Rows and columns. A square matrix has nothing below the diagonal of its last column.
struct Size {
    int height;
    int width;

    constexpr int reflectors() const { return height > width ? width : width - 1; }
    constexpr bool fits(int elements) const { return std::ptrdiff_t(height) * width <= elements; }
};

// Orders of square matrices with unrolled loops; 0 stands for all other sizes.
template <int Order>
constexpr Size sizeOf(Size size) {
    return Order != 0 ? Size{Order, Order} : size;
}

// tau of the reflector below the diagonal of column k: -2 / (1 + sum of the squares of its tail).
template <int Order, class V, class Matrix>
[[gnu::always_inline]] inline V scaleOf(const Matrix &a, int k, int height) {
    V squares = constant<V>(1);
    overRange<Order>(
        k + 1, height, [&](int i) __attribute__((always_inline)) {
            const V v = number<V>(a(i, k));
            squares = squares + v * v;
        });
    return constant<V>(-2) / squares;
}

// One number of a matrix, or as many of a row as a register holds.
template <class Block, class V>
[[gnu::always_inline]] inline Block blockAt(V &element) {
    if constexpr (std::is_same_v<Block, V>) {
        return element;
    } else {
        return Block::load(&element);
    }
}

template <class Block, class V>
[[gnu::always_inline]] inline void storeBlock(Block block, V &element) {
    if constexpr (std::is_same_v<Block, V>) {
        element = block;
    } else {
        block.store(&element);
    }
}

// Householder reflections in place. Returns the number of columns in front of the first one that is too short, of any
// lane; the number of reflectors if there is none.
template <int Order, class V, class Matrix>
[[gnu::always_inline]] inline int reflect(const Matrix &a, Size anySize) {
    const Size size = sizeOf<Order>(anySize);
    const int reflectors = size.reflectors();
    int done = reflectors;
    overRange<Order>(
        0, reflectors, [&](int k) __attribute__((always_inline)) {
            if (done < k) {
                return;
            }
            V squares = constant<V>(0);
            overRange<Order>(
                k, size.height, [&](int i) __attribute__((always_inline)) { squares = squares + a(i, k) * a(i, k); });
            if (any(isLess(magnitude(squares), constant<V>(double(std::numeric_limits<ElementOf<V>>::epsilon()))))) {
                done = k;
                return;
            }
            const V length = root(squares);
            const V diagonal = a(k, k);
            const V shift = choose(isLess(constant<V>(0), diagonal), length, negated(length));
            const V factor = constant<V>(1) / (diagonal + shift);

            // The reflector, its scale, and what it makes of its own column.
            V tailSquares = constant<V>(1);
            V product = constant<V>(0) + diagonal;
            overRange<Order>(
                k + 1, size.height, [&](int i) __attribute__((always_inline)) {
                    const V element = a(i, k);
                    const V v = element * factor;
                    tailSquares = tailSquares + v * v;
                    product = product + v * element;
                    a(i, k) = v;
                });
            const V scale = constant<V>(-2) / tailSquares;
            a(k, k) = diagonal + scale * product;

            // The other columns, in any number at a time.
            const auto reflectColumns = [&]<class Block>(int j, const Block &) __attribute__((always_inline)) {
                Block sum = constant<Block>(0) + blockAt<Block>(a(k, j));
                overRange<Order>(
                    k + 1, size.height, [&](int i) __attribute__((always_inline)) {
                        sum = sum + number<Block>(a(i, k)) * blockAt<Block>(a(i, j));
                    });
                sum = number<Block>(scale) * sum;
                storeBlock(blockAt<Block>(a(k, j)) + sum, a(k, j));
                overRange<Order>(
                    k + 1, size.height, [&](int i) __attribute__((always_inline)) {
                        storeBlock(blockAt<Block>(a(i, j)) + sum * number<Block>(a(i, k)), a(i, j));
                    });
            };
            int next = k + 1;
            if constexpr (Order == 0 && isSingle<V> && std::is_same_v<Matrix, TouchingMatrix<V>>) {
                for (; next + groupSize<V> <= size.width; next += groupSize<V>) {
                    reflectColumns(next, Group<V>());
                }
            }
            overRange<Order>(
                next, size.width, [&](int j) __attribute__((always_inline)) { reflectColumns(j, V()); });
        });
    return done;
}

template <class T>
struct Decomposition {
    Size size;
    Addresses<const T> source;
    Addresses<T> destination;

    Decomposition from(std::ptrdiff_t object) const { return {size, source.from(object), destination.from(object)}; }
};

template <class T, int Order, class Source, class Destination>
bool decomposeGroup(const Source &source, const Destination &destination, Size size, std::ptrdiff_t object) {
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    source.template load<Order, Order>(object, a);
    const TouchingMatrix<Group<T>> matrix = {a, sizeOf<Order>(size).width};
    if (reflect<Order, Group<T>>(matrix, size) < size.reflectors()) {
        return false;
    }
    destination.template store<Order, Order>(object, a);
    return true;
}

constexpr LxpStatus statusOf(int done, Size size) {
    return done < size.reflectors() ? lxpStatusDivByZeroErr : lxpStatusOk;
}

template <class T, int Order, class Source, class Destination>
LxpStatus decomposeKnownOrder(const Source &source, const Destination &destination) {
    constexpr Size size = {Order, Order};
    T a[Order * Order];
    forEachOf<Order * Order>([&](auto k) __attribute__((always_inline)) { a[k] = source(k / Order, k % Order); });
    const LxpStatus status = statusOf(reflect<Order, T>(TouchingMatrix<T>{a, Order}, size), size);
    forEachOf<Order * Order>([&](auto k) __attribute__((always_inline)) { destination(k / Order, k % Order) = a[k]; });
    return status;
}

template <class T>
[[gnu::noinline]] LxpStatus decomposeAnySize(Decomposition<T> call) {
    const auto &[size, source, destination] = call;
    if (!destination.rowsTouch() && size.fits(largestGroup)) {
        T a[largestGroup];
        copyMatrix<Part::Whole>(source, plainMatrix(a, size.width), size.height, size.width);
        const LxpStatus status = statusOf(reflect<0, T>(TouchingMatrix<T>{a, size.width}, size), size);
        copyMatrix<Part::Whole>(plainMatrix<const T>(a, size.width), destination, size.height, size.width);
        return status;
    }
    copyMatrix<Part::Whole>(source, destination, size.height, size.width);
    return withViews([&](const auto &a) { return statusOf(reflect<0, T>(a, call.size), call.size); }, destination);
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus decomposeOne(const Decomposition<T> &call) {
    if constexpr (Order != 0) {
        return withViews([](const auto &from, const auto &to) { return decomposeKnownOrder<T, Order>(from, to); },
                         call.source, call.destination);
    } else {
        return decomposeAnySize<T>(call);
    }
}

// Calls the kernel of the size's order.
template <class Kernel>
[[gnu::always_inline]] inline LxpStatus withOrderOf(Size size, const Kernel &kernel) {
    return withOrder(size.width == size.height ? size.width : 0, kernel);
}

template <class T, int Order>
LxpStatus decomposeObjects(const Decomposition<T> &call, int first, int count) {
    const Size size = call.size;
    const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &source, const auto &destination) {
        return decomposeGroup<T, Order>(source, destination, size, object);
    };
    const auto one = [&](std::ptrdiff_t object) { return decomposeOne<T, Order>(call.from(object)); };
    return byGroups<T, Order>(size.fits(largestGroup), first, count, inLanes, one,
                              ForObjects{call.source, size.height, size.width},
                              ForObjects{call.destination, size.height, size.width});
}

template <class T>
LxpStatus decompose(bool parallel, int count, const Decomposition<T> &call) {
    return overObjects(parallel, count, [&](int first, int objects) {
        return withOrderOf(call.size, [&](auto order) { return decomposeObjects<T, order>(call, first, objects); });
    });
}

// x, which holds b, becomes transposed(Q) * b, and its first elements the solution of R * x = that. ScaleOfColumn(k) is
// tau of reflector k.
template <int Order, class V, class Matrix, class Vector, class Scale>
[[gnu::always_inline]] inline void substitute(const Matrix &a, Vector &x, Size anySize, const Scale &scaleOfColumn) {
    const Size size = sizeOf<Order>(anySize);
    overRange<Order>(
        0, size.reflectors(), [&](int k) __attribute__((always_inline)) {
            V product = x[k];
            overRange<Order>(
                k + 1, size.height, [&](int i) __attribute__((always_inline)) {
                    product = product + number<V>(a(i, k)) * x[i];
                });
            product = number<V>(scaleOfColumn(k)) * product;
            x[k] = x[k] + product;
            overRange<Order>(
                k + 1,
                size.height, [&](int i) __attribute__((always_inline)) { x[i] = x[i] + product * number<V>(a(i, k)); });
        });
    overRangeDown<Order>(
        0, size.width, [&](int i) __attribute__((always_inline)) {
            V element = x[i];
            overRange<Order>(
                i + 1, size.width, [&](int j) __attribute__((always_inline)) {
                    element = element - number<V>(a(i, j)) * x[j];
                });
            x[i] = element / number<V>(a(i, i));
        });
}

template <class T>
struct Substitution {
    Size size;
    Addresses<const T> factors;
    T *buffer; // the caller's, of `height` elements
    Addresses<const T> right;
    Addresses<T> solution;

    Substitution from(std::ptrdiff_t object) const {
        return {size, factors.from(object), buffer, right.from(object), solution.from(object)};
    }
};

// Factors and right-hand sides in lanes.
template <class T, int Order, class Source, class Destination>
void substituteGroup(const Source &factors, const Source &right, const Destination &solution, Size size,
                     std::ptrdiff_t object) {
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    Group<T> x[Order != 0 ? Order : largestGroup];
    factors.template load<Order, Order>(object, a);
    right.template load<Order != 0, Order>(object, x);
    const TouchingMatrix<Group<T>> matrix = {a, sizeOf<Order>(size).width};
    const auto scale = [&](int k) __attribute__((always_inline)) {
        return scaleOf<Order, Group<T>>(matrix, k, sizeOf<Order>(size).height);
    };
    substitute<Order, Group<T>>(matrix, x, size, scale);
    solution.template store<Order != 0, Order>(object, x);
}

// The right-hand side x, with scales that nothing else needs.
template <class T, int Order, class Matrix, class Vector>
[[gnu::always_inline]] inline void substituteWithScales(const Matrix &a, Vector &x, Size size) {
    const auto scale = [&](int k) __attribute__((always_inline)) {
        return scaleOf<Order, T>(a, k, size.height);
    };
    substitute<Order, T>(a, x, size, scale);
}

template <class T>
[[gnu::noinline]] void substituteAnySize(Substitution<T> call, T *x) {
    const Size size = call.size;
    for (int i = 0; i < size.height; ++i) {
        x[i] = *call.right.at(0, 0, i);
    }
    T copy[largestGroup];
    withViewOrCopy<Part::Whole>(call.factors, size.height, size.width, copy,
                                [&](const auto &a) { substituteWithScales<T, 0>(a, x, size); });
    for (int i = 0; i < size.width; ++i) {
        *call.solution.at(0, 0, i) = x[i];
    }
}

// Object 0. x: memory for `height` elements, where the order has no kernel of its own.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus substituteOne(const Substitution<T> &call, T *x) {
    if constexpr (Order != 0) {
        solveOne<Order, Part::Whole>(
            call.factors, Order, call.solution, [&](const auto &a, auto &elements) __attribute__((always_inline)) {
                forEachOf<Order>([&](auto i) __attribute__((always_inline)) { elements[i] = *call.right.at(0, 0, i); });
                substituteWithScales<T, Order>(a, elements, Size{Order, Order});
            });
    } else {
        substituteAnySize<T>(call, x);
    }
    return lxpStatusOk;
}

template <class T, int Order>
LxpStatus substituteObjects(const Substitution<T> &call, T *x, int first, int count) {
    const Size size = sizeOf<Order>(call.size);
    const auto one = [&](std::ptrdiff_t object) { return substituteOne<T, Order>(call.from(object), x); };
    if (!call.factors.isSingle() || count < groupSize<T>) {
        const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &factors, const auto &right,
                                 const auto &solution) {
            substituteGroup<T, Order>(factors, right, solution, size, object);
        };
        return byGroups<T, Order>(size.fits(largestGroup), first, count, inLanes, one,
                                  ForObjects{call.factors, size.height, size.width},
                                  ForObjects{call.right, 1, size.height}, ForObjects{call.solution, 1, size.width});
    }
    LxpStatus status = lxpStatusOk;
    T copy[Order != 0 ? Order * Order : largestGroup];
    withViewOrCopy<Part::Whole>(call.factors, size.height, size.width, copy, [&](const auto &a) {
        T scales[Order != 0 ? Order : largestGroup];
        const int scalesNeeded = size.height <= largestGroup ? size.reflectors() : 0; // in lanes only
        for (int k = 0; k < scalesNeeded; ++k) {
            scales[k] = scaleOf<Order, T>(a, k, size.height);
        }
        const auto scale = [&](int k) __attribute__((always_inline)) {
            return scales[k];
        };
        const auto solve = [&]<class V>(V * elements) __attribute__((always_inline)) {
            substitute<Order, V>(a, elements, size, scale);
        };
        status = overRightSides<Order, T>({call.right, size.height, call.solution, size.width}, first, count,
                                          AsTheyStand(), solve, one);
    });
    return status;
}

template <class T>
LxpStatus substituteAll(bool parallel, int count, const Substitution<T> &call) {
    const auto run = [&](T *x, int first, int objects) {
        return withOrderOf(call.size, [&](auto order) { return substituteObjects<T, order>(call, x, first, objects); });
    };
    if (call.size.height <= largestGroup) {
        return overObjects(parallel, count, [&](int first, int objects) {
            T x[largestGroup];
            return run(x, first, objects);
        });
    }
    return overShares(parallel, count, static_cast<std::size_t>(call.size.height) * sizeof(T),
                      [&](const Share &share) { return run(share.scratchOr(call.buffer), share.first, share.count); });
}

// The only right-hand side of a call.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus substituteSingle(const Substitution<T> &call) {
    if constexpr (Order != 0) {
        return substituteOne<T, Order>(call, nullptr);
    } else {
        return substituteAll<T>(false, 1, Substitution<T>(call)); // a copy: see AnyMatrix
    }
}

} // namespace detail::qr

template <Code operands, class T, Layout memory>
LxpStatus QRDecompMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::qr::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    // The reflectors are made where they are stored, so the buffer is not needed.
    const auto &[source, buffer, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();

    const detail::qr::Decomposition<T> call = {
        {height, width}, source.addresses(height, width), destination.addresses(height, width)};
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel =
            rowOf<QRDecompMember, detail::qr::thresholds>.isParallel(Work(2) * width * height * count);
        return detail::qr::decompose<T>(parallel, count, call);
    } else {
        return detail::qr::withOrderOf(call.size, [&](auto order) { return detail::qr::decomposeOne<T, order>(call); });
    }
}

template <Code operands, class T, Layout memory>
LxpStatus QRBackSubstMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::qr::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[factors, buffer, right, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();

    const detail::qr::Substitution<T> call = {{height, width},
                                              factors.addresses(height, width),
                                              buffer.first,
                                              right.addresses(1, height),
                                              destination.addresses(1, width)};
    if constexpr (isArray) {
        constexpr Kind matrix = operands[0];
        const int count = number.value;
        const Work work = matrix.array ? (Work(width) * (Work(height) + 1) + height) * count
                                       : Work(width) * height + (Work(width) + height) * count;
        const bool parallel = rowOf<QRBackSubstMember, detail::qr::thresholds>.isParallel(work);
        return detail::qr::substituteAll<T>(parallel, count, call);
    } else {
        return detail::qr::withOrderOf(call.size,
                                       [&](auto order) { return detail::qr::substituteSingle<T, order>(call); });
    }
}

} // namespace lxpm
