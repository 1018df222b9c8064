// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// One row times a matrix of its own, of any size. Each element of the matrix is needed once, so it goes from memory
// straight into the sums, which fill whole registers: rows that touch as they stand, columns that touch turned on their
// way. The last register overlaps the one before it where the columns are no multiple of its lanes.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"

#include <array>
#include <cstddef>

namespace lxpm {

template <class T>
class RowProduct {
    static constexpr std::ptrdiff_t lanes = fullLanes<T>;
    static constexpr int turnedRegisters = 2; // at a time; more gain nothing

    using L = Lanes<T, fullLanes<T>>;

public:
    static bool accepts(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        return p.rows == 1 && (count == 1 || !p.b.isSingle()) && p.columns >= lanes && p.a.movesByBytes() &&
               p.b.movesByBytes() && (p.b.rowsTouch() || p.b.transposed().rowsTouch()) && p.writesRows();
    }

    static void run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const bool asTheyStand = p.b.rowsTouch();
        for (std::ptrdiff_t object = 0; object < count; ++object) {
            const Row row = {p.inner,
                             p.a.at(object, 0, 0),
                             p.a.step[2],
                             p.b.at(object, 0, 0),
                             asTheyStand ? p.b.step[1] : p.b.step[2],
                             p.addend ? p.addend->at(object, 0, 0) : nullptr,
                             p.dst.at(object, 0, 0)};
            asTheyStand ? row.template over<8, false>(p.columns) : row.template over<turnedRegisters, true>(p.columns);
        }
    }

private:
    struct Row {
        std::ptrdiff_t inner;
        const T *a;
        std::ptrdiff_t aStep;
        const T *b;
        std::ptrdiff_t bStep; // from row to row, or from column to column if these touch
        const T *addend;
        T *dst;

        // All columns, up to `registers` at a time.
        template <int registers, bool isTurned>
        [[gnu::always_inline]] void over(std::ptrdiff_t columns) const {
            std::ptrdiff_t column = 0;
            for (; column + registers * lanes <= columns; column += registers * lanes) {
                sum<registers, isTurned>(column, (registers - 1) * lanes);
            }
            overRest<registers, isTurned>(column, columns);
        }

        // As few registers as hold the rest.
        template <int registers, bool isTurned>
        [[gnu::always_inline]] void overRest(std::ptrdiff_t column, std::ptrdiff_t columns) const {
            if constexpr (registers > 0) {
                if (column + (registers - 1) * lanes < columns) {
                    sum<registers, isTurned>(column, columns - lanes - column);
                } else {
                    overRest<registers - 1, isTurned>(column, columns);
                }
            }
        }

        // The registers stand side by side from a column on, but for the last one, which is told where it starts.
        template <int registers, bool isTurned>
        [[gnu::always_inline]] void sum(std::ptrdiff_t column, std::ptrdiff_t last) const {
            std::array<L, registers> sums = {};
            if constexpr (isTurned) {
                turned(sums, shifted(b, column * bStep), last);
            } else {
                asItStands(sums, b + column, last);
            }
#pragma GCC unroll 8
            for (int r = 0; r < registers; ++r) {
                const std::ptrdiff_t place = column + (r + 1 < registers ? r * lanes : last);
                (addend != nullptr ? sums[r] + L::load(addend + place) : sums[r]).store(dst + place);
            }
        }

        template <std::size_t registers>
        [[gnu::always_inline]] void asItStands(std::array<L, registers> &sums, const T *row,
                                               std::ptrdiff_t last) const {
            const T *element = a;
            for (std::ptrdiff_t k = 0; k < inner; ++k) {
                const L factor = broadcast(element);
#pragma GCC unroll 8
                for (std::size_t r = 0; r < registers; ++r) {
                    sums[r] = sums[r] + factor * L::load(row + (r + 1 < registers ? std::ptrdiff_t(r) * lanes : last));
                }
                element = shifted(element, aStep);
                row = shifted(row, bStep);
            }
        }

        // Four elements of each column at a time.
        template <std::size_t registers>
        [[gnu::always_inline]] void turned(std::array<L, registers> &sums, const T *first, std::ptrdiff_t last) const {
            const TouchingColumns<T, registers> columns(first, bStep, last);
            aStep == sizeof(T) ? overElements<true>(sums, columns) : overElements<false>(sums, columns);
        }

        // Touching: the elements of a touch.
        template <bool touching, std::size_t registers>
        [[gnu::always_inline]] void overElements(std::array<L, registers> &sums,
                                                 TouchingColumns<T, registers> columns) const {
            const T *element = a;
            std::ptrdiff_t left = inner;
            for (; left >= 4; left -= 4) {
                addTurned<4, touching>(sums, columns, element);
                element = shifted(element, 4 * aStep);
            }
            switch (left) {
            case 3:
                return addTurned<3, touching>(sums, columns, element);
            case 2:
                return addTurned<2, touching>(sums, columns, element);
            case 1:
                return addTurned<1, touching>(sums, columns, element);
            default:
                return;
            }
        }

        template <int elements, bool touching, std::size_t registers>
        [[gnu::always_inline]] void addTurned(std::array<L, registers> &sums, TouchingColumns<T, registers> &columns,
                                              const T *element) const {
            auto terms = columns.template load<elements>();
            GroupColumns<T> factors;
            if constexpr (touching) {
                factors = loadSameRows<elements>(element);
            }
#pragma GCC unroll 2
            for (std::size_t r = 0; r < registers; ++r) {
                if constexpr (touching) {
                    terms[r] = multiplied<4>(terms[r], factors);
                }
                terms[r] = lxpm::turned<elements>(terms[r]);
            }
            if constexpr (!touching) {
#pragma GCC unroll 4
                for (int i = 0; i < elements; ++i) {
                    factors[i] = broadcast(shifted(element, i * aStep));
                }
#pragma GCC unroll 2
                for (std::size_t r = 0; r < registers; ++r) {
                    terms[r] = multiplied<elements>(terms[r], factors);
                }
            }
#pragma GCC unroll 4
            for (int i = 0; i < elements; ++i) {
#pragma GCC unroll 2
                for (std::size_t r = 0; r < registers; ++r) {
                    sums[r] = sums[r] + terms[r][i];
                }
            }
        }
    };
};

} // namespace lxpm
