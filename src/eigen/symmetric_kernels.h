// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernels of symmetric eigenproblems. For the sources that instantiate them, one for each type.

#include "eigen/lane_memory.h"
#include "eigen/orders.h"
#include "eigen/symmetric.h"
#include "eigen/symmetric_objects.h"
#include "runtime/twice.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

// The elements of a row of an operand.
template <class T>
class RowOf {
public:
    RowOf(const Addresses<T> &operand, std::ptrdiff_t object, std::ptrdiff_t row)
        : operand_(operand), object_(object), row_(row) {}
    T &operator[](std::ptrdiff_t column) const { return *operand_.at(object_, row_, column); }

private:
    const Addresses<T> &operand_;
    std::ptrdiff_t object_;
    std::ptrdiff_t row_;
};

// The closed form of order 2. Values of a singular matrix mean nothing.
template <class V>
[[gnu::always_inline]] inline MaskOf<V> solvePair(V a, V b, V d, V (&values)[2]) {
    const V eps = constant<V>(symmetric::epsilon<ElementOf<V>>);
    const V half = constant<V>(0.5);
    const V determinant = a * d - b * b;
    const auto singular = isLessEqual(magnitude(determinant), eps);
    const V trace = a + d;
    const V root1 = (a - d) * (a - d);
    const V root2 = (b + b) * (b + b);
    const V r = root(root1 + root2);
    const auto isPositive = isLess(eps, trace);
    const auto isNegative = isLess(trace, negated(eps));
    const MaskOf<V> isEither = either(isPositive, isNegative);
    const V first = half * choose(isPositive, trace + r, choose(isNegative, trace - r, r));
    values[0] = first;
    values[1] = choose(isEither, determinant / divisorWhere(isEither, first), constant<V>(-0.5) * r);
    return singular;
}

template <class T, bool wantsVectors>
class SymmetricKernel {
public:
    static LxpStatus run(const SymmetricProblem<T> &shared, int first, int count, T *buffer) {
        SymmetricKernel kernel(shared, buffer);
        return withOrder<1, 6>(shared.order, [&](auto order) {
            if constexpr (order == 1) {
                return overEach(first, count, [&](int object) { return kernel.single(object); });
            } else if constexpr (order != 0) {
                return kernel.template all<order>(order, first, count);
            } else if (shared.order <= mostInLanes) {
                return kernel.template all<mostInLanes>(shared.order, first, count);
            } else {
                return overEach(first, count, [&](int object) { return kernel.large(object); });
            }
        });
    }

private:
    using L = typename LaneMemory<T>::L;
    static constexpr int lanes = LaneMemory<T>::lanes;
    static constexpr int mostInLanes = 16; // larger ones leave the first cache
    static constexpr int mostOnStack = 64;

    // Groups side by side, by the largest order. Where there are many vectors, rotating them in single precision takes
    // longer than what it waits for.
    static constexpr int atOnce(int most) { return wantsVectors && most > 4 && sizeof(T) == sizeof(float) ? 2 : 4; }

    SymmetricKernel(const SymmetricProblem<T> &problem, T *buffer) : problem_(problem), buffer_(buffer) {}

    template <int most, class Order>
    LxpStatus all(Order order, int first, int count) const {
        return overGroups<lanes, atOnce(most)>(
            first, count, [&](auto groups, int object) { return group<most, SideBySide<L, groups>>(order, object); },
            [&](int object) { return small<most>(order, object); });
    }

    T *valuesOf(std::ptrdiff_t object) const { return problem_.values + object * problem_.order; }

    template <class Order>
    void storeVectors(Order order, int object, const T *z) const {
        for (int i = 0; i < order; ++i) {
            for (int j = 0; j < order; ++j) {
                *problem_.vectors.at(object, i, j) = z[j * order + i];
            }
        }
    }

    // What is left to do with an object that was solved in a, d.
    template <class Order>
    LxpStatus finish(Order order, int object, symmetric::Failures<T> failures, T *a, T *d) const {
        if (!failures.unconverged && (wantsVectors || !failures.singular)) {
            symmetric::sort(order, d, wantsVectors ? a : nullptr);
        }
        T *values = valuesOf(object);
        if (d != values) {
            std::copy_n(d, static_cast<int>(order), values);
        }
        if (failures.unconverged) {
            return lxpStatusConvergeErr;
        }
        if (wantsVectors) {
            storeVectors(order, object, a);
        }
        return failures.singular ? lxpStatusSingularErr : lxpStatusOk;
    }

    LxpStatus single(int object) const {
        const T value = *problem_.source.at(object, 0, 0);
        *valuesOf(object) = value;
        if constexpr (wantsVectors) {
            *problem_.vectors.at(object, 0, 0) = 1;
            return magnitude(value) <= symmetric::epsilon<T> ? lxpStatusSingularErr : lxpStatusOk;
        }
        return lxpStatusOk;
    }

    // One object of an order up to `most`, on the stack.
    template <int most, class Order>
    [[gnu::noinline]] LxpStatus small(Order order, int object) const {
        expectBetween<1, most>(order);
        T a[most * most];
        T d[most];
        T e[most];
        loadDense(problem_.source, object, order, a);
        if constexpr (most == 2 && !wantsVectors) {
            if (solvePair(a[0], a[1], a[3], d)) {
                return lxpStatusSingularErr;
            }
            std::copy_n(d, 2, valuesOf(object));
            return lxpStatusOk;
        } else {
            const auto failures = symmetric::solve<most, wantsVectors>(order, a, d, e);
            return finish(order, object, failures, a, d);
        }
    }

    // One object of any order, in the caller's memory. The elements beside the diagonal are kept below it, where the
    // matrix is not read; where vectors take its place, on the stack or in the destination.
    [[gnu::noinline]] LxpStatus large(int object) const {
        const int order = problem_.order;
        T *d = valuesOf(object);
        loadDense(problem_.source, object, order, buffer_);
        if constexpr (!wantsVectors) {
            T *e = buffer_ + static_cast<std::ptrdiff_t>(order - 1) * order;
            return finish(order, object, symmetric::solve<1, false>(order, buffer_, d, e), buffer_, d);
        } else if (order <= mostOnStack) {
            T e[mostOnStack];
            return finish(order, object, symmetric::solve<1, true>(order, buffer_, d, e), buffer_, d);
        } else {
            const RowOf<T> e(problem_.vectors, object, 0);
            return finish(order, object, symmetric::solve<1, true>(order, buffer_, d, e), buffer_, d);
        }
    }

    // One object in each lane.
    template <int most, class V, class Order>
    [[gnu::noinline]] LxpStatus group(Order order, int object) const {
        constexpr int objects = NumberOf<V>::lanes;
        expectBetween<1, most>(order);
        V a[most * most];
        V d[most];
        LaneMemory<T>::load(problem_.source, object, order, order, a);
        if constexpr (most == 2 && !wantsVectors) {
            if (any(solvePair(a[0], a[1], a[3], d))) {
                return overEach(object, objects, [&](int one) { return small<most>(order, one); });
            }
            LaneMemory<T>::storeDense(d, valuesOf(object), 2);
            return lxpStatusOk;
        } else {
            V e[most];
            const auto failures = symmetric::solve<most, wantsVectors>(order, a, d, e);
            if (any(failures.unconverged)) {
                return overEach(object, objects, [&](int one) { return small<most>(order, one); });
            }
            const bool isAnySingular = any(failures.singular);
            if constexpr (wantsVectors) {
                symmetric::sort(order, d, a);
                LaneMemory<T>::store(a, 1, order, problem_.vectors, object, order, order);
            } else {
                V asFound[most];
                std::copy_n(d, static_cast<int>(order), asFound);
                symmetric::sort(order, d, static_cast<V *>(nullptr));
                for (int i = 0; i < order && isAnySingular; ++i) {
                    d[i] = choose(failures.singular, asFound[i], d[i]);
                }
            }
            LaneMemory<T>::storeDense(d, valuesOf(object), order);
            return isAnySingular ? lxpStatusSingularErr : lxpStatusOk;
        }
    }

    const SymmetricProblem<T> &problem_;
    T *buffer_;
};

template <bool wantsVectors, class T>
LxpStatus solveSymmetric(const SymmetricProblem<T> &problem, int first, int count, T *buffer) {
    return SymmetricKernel<T, wantsVectors>::run(problem, first, count, buffer);
}

} // namespace lxpm
