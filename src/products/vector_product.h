// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Arrays of short vectors times one matrix, or each times its own, in single precision: rows that would not fill a
// register go several at a time.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"
#include "runtime/object_walk.h"
#include "runtime/vector_groups.h"

#include <array>
#include <cstddef>
#include <type_traits>

namespace lxpm {

// Vectors of three elements without gaps, one in each lane.
class PackedVectors {
public:
    static bool accepts(const MatrixProduct<float> &p) {
        return p.rows == 1 && p.b.isSingle() && isPacked(p.a) && isPacked(p.dst) &&
               (!p.addend || isPacked(*p.addend) || p.addend->isSingle());
    }

    // All vectors but the last ones that do not fill the lanes; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        if (!p.addend) {
            return overGroups(p, count, [](Vectors<3> &, std::ptrdiff_t) {});
        }
        if (p.addend->isSingle()) {
            Vectors<3> addend;
            for (int j = 0; j < 3; ++j) {
                addend[j] = broadcast(p.addend->at(0, 0, j));
            }
            return overGroups(p, count, [=](Vectors<3> &sums, std::ptrdiff_t) { add(sums, addend); });
        }
        const float *first = p.addend->at(0, 0, 0);
        return overGroups(p, count,
                          [=](Vectors<3> &sums, std::ptrdiff_t object) { add(sums, read(first + 3 * object)); });
    }

private:
    static constexpr std::ptrdiff_t vectorSize = 3 * sizeof(float);

    template <class Element>
    static bool isPacked(const Addresses<Element> &operand) {
        return operand.pointerStep[0] == 0 && operand.rowsTouch() && operand.step[0] == vectorSize;
    }

    [[gnu::always_inline]] static Vectors<3> read(const float *from) { return turned(loadTriples(from)); }

    [[gnu::always_inline]] static void add(Vectors<3> &sums, const Vectors<3> &addends) {
        for (int j = 0; j < 3; ++j) {
            sums[j] = sums[j] + addends[j];
        }
    }

    template <class AddTo>
    static std::ptrdiff_t overGroups(const MatrixProduct<float> &p, std::ptrdiff_t count, const AddTo &addTo) {
        std::array<Vectors<3>, 3> b;
        for (int k = 0; k < 3; ++k) {
            for (int j = 0; j < 3; ++j) {
                b[k][j] = broadcast(p.b.at(0, k, j));
            }
        }
        const float *a = p.a.at(0, 0, 0);
        float *dst = p.dst.at(0, 0, 0);
        std::ptrdiff_t object = 0;
        for (; object + groupSize<float> <= count; object += groupSize<float>) {
            const Vectors<3> vectors = read(a + 3 * object);
            Vectors<3> sums = {};
            for (int j = 0; j < 3; ++j) {
                for (int k = 0; k < 3; ++k) {
                    sums[j] = sums[j] + vectors[k] * b[k][j];
                }
            }
            addTo(sums, object);
            writeTriples(dst + 3 * object, sums);
        }
        return object;
    }
};

// Vectors of three or four elements, two in a register, one in each half.
template <int Order>
class VectorPairs {
public:
    static bool accepts(const MatrixProduct<float> &p) {
        return p.rows == 1 && p.a.rowsTouch() && p.writesRows() && (p.b.isSingle() || readsRows(p.b));
    }

    // All vectors but the last one of an odd number; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        return p.walksByBytes() ? chooseKernel<Walking::ByBytes>(p)(p, count)
                                : chooseKernel<Walking::ThroughPointers>(p)(p, count);
    }

private:
    using Two = Lanes<float, 8>;
    using Kernel = std::ptrdiff_t (*)(const MatrixProduct<float> &, std::ptrdiff_t);

    static constexpr std::ptrdiff_t vectorSize = Order * sizeof(float);

    // Whether the rows of each matrix can be read as they stand: rows of three elements as four, so that what is
    // between two of them must not be far.
    static bool readsRows(const Addresses<const float> &b) {
        return b.movesByBytes() && b.rowsTouch() && (Order == 4 || mayReadOn(b.step[1], vectorSize));
    }

    template <Walking walking>
    static Kernel chooseKernel(const MatrixProduct<float> &p) {
        if (p.b.isSingle()) {
            return p.addend ? overPairs<walking, true, true> : overPairs<walking, true, false>;
        }
        return p.addend ? overPairs<walking, false, true> : overPairs<walking, false, false>;
    }

    // ReadsOn: there are four elements that may be read.
    template <bool readsOn>
    [[gnu::always_inline]] static Two load(const std::array<const float *, 2> &vectors) {
        constexpr int loaded = readsOn ? 4 : Order;
        return joined(loadFirst<loaded>(vectors[0]), loadFirst<loaded>(vectors[1]));
    }

    // The rows of two matrices.
    [[gnu::always_inline]] static std::array<Two, Order> rowsOf(const std::array<const float *, 2> &matrices,
                                                                std::ptrdiff_t rowStep) {
        if constexpr (Order == 3) {
            return rowsOfThreeAlone(loadRowsOfThree(matrices, rowStep));
        } else {
            std::array<Two, Order> rows;
#pragma GCC unroll 4
            for (int k = 0; k < Order; ++k) {
                rows[k] = loadHalves(shifted(matrices[0], k * rowStep), shifted(matrices[1], k * rowStep));
            }
            return rows;
        }
    }

    template <Walking walking, bool singleB, bool hasAddend>
    static std::ptrdiff_t overPairs(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        const std::ptrdiff_t rowStep = p.b.step[1];
        std::array<Two, Order> b;
        if constexpr (singleB) {
            for (int k = 0; k < Order; ++k) {
                const Lanes<float, 4> row = {*p.b.at(0, k, 0), *p.b.at(0, k, 1), *p.b.at(0, k, 2),
                                             *p.b.at(0, k, Order - 1)};
                b[k] = joined(row, row);
            }
        }
        ObjectWalk<const float, walking> walkA(p.a);
        ObjectWalk<const float, walking> walkB(p.b);
        ObjectWalk<const float, walking> walkAddend(p.addend ? *p.addend : p.a);
        ObjectWalk<float, walking> dst(p.dst);
        const auto multiplyNextTwo = [&]<bool readsOn>(std::bool_constant<readsOn>) __attribute__((always_inline)) {
            if constexpr (!singleB) {
                b = rowsOf(nextObjects<2>(walkB), rowStep);
            }
            const Two vectors = load<readsOn>(nextObjects<2>(walkA));
            Two sum = {};
            forEachOf<Order>([&](auto k)
                                 __attribute__((always_inline)) { sum = sum + spreadInHalves<k>(vectors) * b[k]; });
            if constexpr (hasAddend) {
                sum = sum + load<false>(nextObjects<2>(walkAddend));
            }
            storeFirst<Order>(dst.object(), lowHalf(sum));
            dst.next();
            storeFirst<Order>(dst.object(), highHalf(sum));
            dst.next();
        };
        std::ptrdiff_t object = 0;
        if constexpr (Order == 3 && walking == Walking::ByBytes) {
            const bool readsOn = !p.a.isSingle() && mayReadOn(p.a);
            for (; readsOn && object + 2 < count; object += 2) {
                multiplyNextTwo(std::true_type());
            }
        }
        for (; object + 2 <= count; object += 2) {
            multiplyNextTwo(std::false_type());
        }
        return object;
    }
};

// Which of them there is for an order and type: none for most.
template <class T, int Order>
struct VectorsOf {
    static bool accepts(const MatrixProduct<T> &) { return false; }
    static std::ptrdiff_t run(const MatrixProduct<T> &, std::ptrdiff_t) { return 0; }
};

template <>
struct VectorsOf<float, 3> {
    static bool accepts(const MatrixProduct<float> &p) {
        return PackedVectors::accepts(p) || VectorPairs<3>::accepts(p);
    }
    static std::ptrdiff_t run(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        return PackedVectors::accepts(p) ? PackedVectors::run(p, count) : VectorPairs<3>::run(p, count);
    }
};

template <>
struct VectorsOf<float, 4> : VectorPairs<4> {};

} // namespace lxpm
