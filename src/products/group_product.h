// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Products of small matrices of any shape, one object in each lane: every element of a result is a register, and rows
// and columns may be as short as they like.

#include "products/product.h"
#include "runtime/groups.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace lxpm {

template <class T>
class GroupProduct {
public:
    // Where columns would fill no register, or a matrix would have to be turned for a single row.
    static bool isBetter(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const bool isNarrow = p.columns < groupSize<T> || (p.rows == 1 && !p.b.isSingle() && !p.b.rowsTouch());
        return isNarrow && accepts(p, count);
    }

    // Where lanes are filled as memory stands.
    static bool loadsLanes(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const auto isInLanes = [](const auto &operand) { return operand.objectsTouch() && !operand.rowsTouch(); };
        return (isInLanes(p.a) || isInLanes(p.b) || isInLanes(p.dst)) && accepts(p, count);
    }

    // All objects but the last ones that do not fill the lanes; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const Factor a(p.a, p.rows, p.inner);
        const Factor b(p.b, p.inner, p.columns);
        std::optional<GroupSource<T>> addend;
        if (p.addend) {
            addend.emplace(*p.addend, static_cast<int>(p.rows), static_cast<int>(p.columns));
        }
        const GroupDestination<T> dst(p.dst, static_cast<int>(p.rows), static_cast<int>(p.columns));
        Group<T> elementsOfA[largestGroup];
        Group<T> elementsOfB[largestGroup];
        Group<T> sums[largestGroup];
        Group<T> addends[largestGroup];
        std::ptrdiff_t object = 0;
        for (; object + groupSize<T> <= count; object += groupSize<T>) {
            a.load(object, elementsOfA);
            b.load(object, elementsOfB);
            multiply(p, a, elementsOfA, b, elementsOfB, sums);
            if (addend) {
                addend->template load<0, 0>(object, addends);
                for (std::ptrdiff_t i = 0; i < p.rows * p.columns; ++i) {
                    sums[i] = sums[i] + addends[i];
                }
            }
            dst.template store<0, 0>(object, sums);
        }
        return object;
    }

private:
    static bool accepts(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        return std::max({p.rows, p.inner, p.columns}) <= largestGroup &&
               std::max({p.rows * p.inner, p.inner * p.columns, p.rows * p.columns}) <= largestGroup &&
               count >= groupSize<T>;
    }

    // An operand, read as it is stored: its rows, or its columns if these touch.
    struct Factor {
        bool isTurned;
        bool isSingle;
        std::ptrdiff_t rowStep; // between the registers of two rows
        std::ptrdiff_t columnStep;
        GroupSource<T> source;

        Factor(const Addresses<const T> &operand, std::ptrdiff_t rows, std::ptrdiff_t columns)
            : isTurned(!operand.rowsTouch() && operand.transposed().rowsTouch()), isSingle(operand.isSingle()),
              rowStep(isTurned ? 1 : columns), columnStep(isTurned ? rows : 1),
              source(isTurned ? operand.transposed() : operand, static_cast<int>(isTurned ? columns : rows),
                     static_cast<int>(isTurned ? rows : columns)) {}

        void load(std::ptrdiff_t object, Group<T> *to) const {
            if (object == 0 || !isSingle) {
                source.template load<0, 0>(object, to);
            }
        }
    };

    static void multiply(const MatrixProduct<T> &p, const Factor &a, const Group<T> *elementsOfA, const Factor &b,
                         const Group<T> *elementsOfB, Group<T> *sums) {
        const auto over = [&]<int Columns>(std::ptrdiff_t i, std::ptrdiff_t j) __attribute__((always_inline)) {
            Group<T> sum[Columns] = {};
            const Group<T> *ofA = elementsOfA + i * a.rowStep;
            const Group<T> *ofB = elementsOfB + j * b.columnStep;
            for (std::ptrdiff_t k = 0; k < p.inner; ++k) {
#pragma GCC unroll 4
                for (int c = 0; c < Columns; ++c) {
                    sum[c] = sum[c] + *ofA * ofB[c * b.columnStep];
                }
                ofA += a.columnStep;
                ofB += b.rowStep;
            }
#pragma GCC unroll 4
            for (int c = 0; c < Columns; ++c) {
                sums[i * p.columns + j + c] = sum[c];
            }
        };
        for (std::ptrdiff_t i = 0; i < p.rows; ++i) {
            std::ptrdiff_t j = 0;
            for (; j + 4 <= p.columns; j += 4) {
                over.template operator()<4>(i, j);
            }
            switch (p.columns - j) {
            case 3:
                over.template operator()<3>(i, j);
                break;
            case 2:
                over.template operator()<2>(i, j);
                break;
            case 1:
                over.template operator()<1>(i, j);
                break;
            default:
                break;
            }
        }
    }
};

} // namespace lxpm
