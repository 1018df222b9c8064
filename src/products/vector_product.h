// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Arrays of short vectors times one matrix, in single precision: rows that would not fill a register go several at a
// time.

#include "products/product.h"
#include "runtime/lanes.h"
#include "runtime/object_walk.h"
#include "runtime/vector_groups.h"

#include <array>
#include <cstddef>

namespace lxpm {

// Vectors of three elements without gaps, one in each lane.
class VectorsOfOrder3 {
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

// Vectors of four elements, two in a register.
class VectorsOfOrder4 {
public:
    static bool accepts(const MatrixProduct<float> &p) {
        return p.rows == 1 && p.b.isSingle() && p.a.rowsTouch() && p.writesRows();
    }

    // All vectors but the last one of an odd number; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        const bool byBytes = p.walksByBytes();
        if (p.addend) {
            return byBytes ? overPairs<Walking::ByBytes, true>(p, count)
                           : overPairs<Walking::ThroughPointers, true>(p, count);
        }
        return byBytes ? overPairs<Walking::ByBytes, false>(p, count)
                       : overPairs<Walking::ThroughPointers, false>(p, count);
    }

private:
    template <Walking walking>
    [[gnu::always_inline]] static Lanes<float, 8> nextTwo(ObjectWalk<const float, walking> &walk) {
        const float *first = walk.object();
        walk.next();
        const float *second = walk.object();
        walk.next();
        return loadHalves(first, second);
    }

    template <Walking walking, bool hasAddend>
    static std::ptrdiff_t overPairs(const MatrixProduct<float> &p, std::ptrdiff_t count) {
        std::array<Lanes<float, 8>, 4> b;
        for (int k = 0; k < 4; ++k) {
            const Lanes<float, 4> row = {*p.b.at(0, k, 0), *p.b.at(0, k, 1), *p.b.at(0, k, 2), *p.b.at(0, k, 3)};
            b[k] = joined(row, row);
        }
        ObjectWalk<const float, walking> a(p.a);
        ObjectWalk<const float, walking> addend(p.addend ? *p.addend : p.a);
        ObjectWalk<float, walking> dst(p.dst);
        std::ptrdiff_t object = 0;
        for (; object + 2 <= count; object += 2) {
            const Lanes<float, 8> vectors = nextTwo(a);
            Lanes<float, 8> sum = {};
            sum = sum + chosenInHalves<0, 0, 0, 0>(vectors) * b[0];
            sum = sum + chosenInHalves<1, 1, 1, 1>(vectors) * b[1];
            sum = sum + chosenInHalves<2, 2, 2, 2>(vectors) * b[2];
            sum = sum + chosenInHalves<3, 3, 3, 3>(vectors) * b[3];
            if constexpr (hasAddend) {
                sum = sum + nextTwo(addend);
            }
            lowHalf(sum).store(dst.object());
            dst.next();
            highHalf(sum).store(dst.object());
            dst.next();
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
struct VectorsOf<float, 3> : VectorsOfOrder3 {};
template <>
struct VectorsOf<float, 4> : VectorsOfOrder4 {};

} // namespace lxpm
