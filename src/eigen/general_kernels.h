// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernels of general eigenproblems. For the sources that instantiate them, one for each type.

#include "eigen/general.h"
#include "eigen/general_objects.h"
#include "eigen/lane_memory.h"
#include "eigen/orders.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

namespace general {

// What a solution needs beside the matrix: an orthogonal matrix if vectors are wanted, the eigenvalues as they are
// found, and vectors for one thing after another.
template <class V>
struct Room {
    V *z;
    V *re;
    V *im;
    V *vectors;
};

inline constexpr int vectorsOfRoom = 4;

} // namespace general

template <class T, bool wantsVectors>
class GeneralKernel {
public:
    static LxpStatus run(const GeneralProblem<T> &shared, int first, int count, T *buffer) {
        const GeneralKernel kernel(shared, buffer);
        return withOrder<2, 4>(shared.order, [&](auto order) {
            if constexpr (order != 0) {
                return kernel.template all<order>(order, first, count);
            } else if (shared.order <= mostGeneralInLanes) {
                return kernel.template all<mostGeneralInLanes>(shared.order, first, count);
            } else {
                return overEach(first, count, [&](int object) { return kernel.large(object); });
            }
        });
    }

private:
    using L = typename LaneMemory<T>::L;
    static constexpr int lanes = LaneMemory<T>::lanes;

    // Groups side by side, by the largest order: more of larger ones crowd the registers.
    static constexpr int atOnce(int most) { return wantsVectors ? (most <= 4 ? 2 : 1) : (most <= 4 ? 4 : 2); }

    template <int most>
    static constexpr int mostOfVectors = wantsVectors ? most : 1;

    GeneralKernel(const GeneralProblem<T> &problem, T *buffer) : problem_(problem), buffer_(buffer) {}

    template <int most, class Order>
    LxpStatus all(Order order, int first, int count) const {
        return overGroups<lanes, atOnce(most)>(
            first, count, [&](auto groups, int object) { return group<most, SideBySide<L, groups>>(order, object); },
            [&](int object) { return small<most>(order, object); });
    }

    // Eigenvalues and eigenvectors of the matrix h. Calls storeValues(found, re, im), and
    // storeVector(isLeft, mask, column, elements) for every column.
    template <int most, class Order, class V, class StoreValues, class StoreVector>
    [[gnu::always_inline]] MaskOf<V> solve(Order order, V *h, const general::Room<V> &room,
                                           const StoreValues &storeValues, const StoreVector &storeVector) const {
        V *const work = room.vectors;
        V *const re = room.re;
        V *const im = room.im;
        const V scale = general::scaleDown(order, h);
        general::reduce<wantsVectors>(order, h, work, work + order, work + 2 * order);
        if constexpr (wantsVectors) {
            general::accumulate(order, h, room.z, work, work + order);
        }
        int found = 0;
        const auto unconverged = general::iterate<wantsVectors, most>(order, h, room.z, re, im, found);
        for (int i = found; i < order; ++i) {
            work[i] = re[i] * scale;
            work[i + order] = im[i] * scale;
        }
        storeValues(unconverged, found, work, work + order);
        if constexpr (wantsVectors) {
            if (any(unconverged)) {
                return unconverged;
            }
            if (problem_.wantsRight) {
                general::BackSubstitution<false, Order, V>(order, h, room.z, re, im, work)
                    .run([&](auto mask, int column, const V *elements) { storeVector(false, mask, column, elements); });
            }
            if (problem_.wantsLeft) {
                general::turnOver(order, h, room.z, re, im);
                general::BackSubstitution<true, Order, V>(order, h, room.z, re, im, work)
                    .run([&](auto mask, int column, const V *elements) { storeVector(true, mask, column, elements); });
            }
        }
        return unconverged;
    }

    template <int most, class Order>
    [[gnu::always_inline]] LxpStatus solveOne(Order order, int object, T *h, const general::Room<T> &room) const {
        const std::ptrdiff_t values = static_cast<std::ptrdiff_t>(object) * order;
        loadDense(problem_.source, object, order, h);
        const bool failed = solve<most>(
            order, h, room,
            [&](bool, int found, const T *re, const T *im) {
                std::copy(re + found, re + order, problem_.re + values + found);
                std::copy(im + found, im + order, problem_.im + values + found);
            },
            [&](bool isLeft, bool, int column, const T *elements) {
                const Addresses<T> &to = isLeft ? problem_.left : problem_.right;
                for (int i = 0; i < order; ++i) {
                    *to.at(object, i, column) = elements[i];
                }
            });
        return failed ? lxpStatusConvergeErr : lxpStatusOk;
    }

    // One object of an order up to `most`, on the stack.
    template <int most, class Order>
    [[gnu::noinline]] LxpStatus small(Order order, int object) const {
        expectBetween<1, most>(order);
        T h[most * most];
        T z[mostOfVectors<most> * mostOfVectors<most>];
        T re[most];
        T im[most];
        T vectors[general::vectorsOfRoom * most];
        return solveOne<most>(order, object, h, {z, re, im, vectors});
    }

    // One object of any order, in the buffer.
    [[gnu::noinline]] LxpStatus large(int object) const {
        const int order = problem_.order;
        const std::ptrdiff_t area = static_cast<std::ptrdiff_t>(order) * order;
        T *const z = buffer_ + area;
        T *const vectors = wantsVectors ? z + area : z;
        return solveOne<1>(order, object, buffer_, {z, vectors, vectors + order, vectors + 2 * order});
    }

    // One object in each lane. An object that fails sends its group back to be solved one by one.
    template <int most, class V, class Order>
    [[gnu::noinline]] LxpStatus group(Order order, int object) const {
        constexpr int objects = NumberOf<V>::lanes;
        expectBetween<1, most>(order);
        V h[most * most];
        V z[mostOfVectors<most> * mostOfVectors<most>];
        V right[mostOfVectors<most> * mostOfVectors<most>];
        V left[mostOfVectors<most> * mostOfVectors<most>];
        V re[most];
        V im[most];
        V vectors[general::vectorsOfRoom * most];
        LaneMemory<T>::load(problem_.source, object, order, order, h);
        const auto failed = solve<most>(
            order, h, general::Room<V>{z, re, im, vectors},
            [&](auto unconverged, int, const V *allRe, const V *allIm) {
                if (none(unconverged)) {
                    const std::ptrdiff_t values = static_cast<std::ptrdiff_t>(object) * order;
                    LaneMemory<T>::storeDense(allRe, problem_.re + values, order);
                    LaneMemory<T>::storeDense(allIm, problem_.im + values, order);
                }
            },
            [&](bool isLeft, auto mask, int column, const V *elements) {
                V *to = (isLeft ? left : right) + column * order;
                for (int i = 0; i < order; ++i) {
                    to[i] = choose(mask, elements[i], to[i]);
                }
            });
        if (any(failed)) {
            return overEach(object, objects, [&](int one) { return small<most>(order, one); });
        }
        if constexpr (wantsVectors) {
            if (problem_.wantsRight) {
                LaneMemory<T>::store(right, 1, order, problem_.right, object, order, order);
            }
            if (problem_.wantsLeft) {
                LaneMemory<T>::store(left, 1, order, problem_.left, object, order, order);
            }
        }
        return lxpStatusOk;
    }

    const GeneralProblem<T> &problem_;
    T *buffer_;
};

template <bool wantsVectors, class T>
LxpStatus solveGeneral(const GeneralProblem<T> &problem, int first, int count, T *buffer) {
    return GeneralKernel<T, wantsVectors>::run(problem, first, count, buffer);
}

} // namespace lxpm
