// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Rows times matrices of small orders, one object in each lane: for matrices whose columns touch, so that no row of
// them can be loaded as it stands. Groups of objects are transposed in registers.

#include "products/product.h"
#include "runtime/lanes.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lxpm {

template <class T, int Order>
class LaneProduct {
public:
    static constexpr int lanes = fullLanes<T>;

    // Whether an operand's elements let it pass through the lanes.
    static bool accepts(const MatrixProduct<T> &p) {
        return p.rows == 1 && !p.addend && !p.b.isSingle() && p.a.rowsTouch() && p.dst.rowsTouch() &&
               p.b.transposed().rowsTouch();
    }

    // All objects but the last ones that do not fill the lanes; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const bool isDense = p.b.step[2] == static_cast<std::ptrdiff_t>(Order * sizeof(T));
        return isDense ? overGroups<true>(p, count) : overGroups<false>(p, count);
    }

private:
    static constexpr int lastPiece = Order % 4 == 0 ? 4 : Order % 4; // of an object's elements, taken by fours

    using L = Lanes<T, lanes>;
    using Pointers = std::array<const T *, lanes>;
    using Elements = std::array<L, Order>;

    template <bool dense>
    static std::ptrdiff_t overGroups(const MatrixProduct<T> &shared, std::ptrdiff_t count) {
        const MatrixProduct<T> p = shared;
        const std::ptrdiff_t columnStep = p.b.step[2];
        std::ptrdiff_t object = 0;
        for (; object + lanes <= count; object += lanes) {
            Pointers a;
            Pointers b;
            for (int lane = 0; lane < lanes; ++lane) {
                a[lane] = p.a.at(object + lane, 0, 0);
                b[lane] = p.b.at(object + lane, 0, 0);
            }
            const Elements factors = load<false, true>(a);
            Elements results;
#pragma GCC unroll 8
            for (int j = 0; j < Order; ++j) {
                const Elements column = j + 1 < Order ? load<dense, false>(b) : load<dense, true>(b);
                L sum = {};
#pragma GCC unroll 8
                for (int k = 0; k < Order; ++k) {
                    sum = sum + factors[k] * column[k];
                }
                results[j] = sum;
                for (int lane = 0; lane < lanes; ++lane) {
                    b[lane] = shifted(b[lane], columnStep);
                }
            }
            store(results, p.dst, object);
        }
        return object;
    }

    // The elements of a vector of each object. Among vectors without gaps whole registers may be loaded: behind one
    // stands the next and in front of the last one the one before.
    template <bool dense, bool isLast>
    [[gnu::always_inline]] static Elements load(const Pointers &from) {
        Elements elements;
        if constexpr (dense && Order == 3) {
            const auto four = block<4>(from, isLast ? -1 : 0);
            std::copy_n(four.begin() + isLast, 3, elements.begin());
        } else {
#pragma GCC unroll 2
            for (int k = 0; k < Order; k += 4) {
                const bool isWhole = k + 4 <= Order || (dense && !isLast);
                const auto four = isWhole ? block<4>(from, k) : block<lastPiece>(from, k);
                std::copy_n(four.begin(), std::min(4, Order - k), elements.begin() + k);
            }
        }
        return elements;
    }

    // K elements from `first` on, as rows of lanes.
    template <int K>
    [[gnu::always_inline]] static std::array<L, 4> block(const Pointers &from, int first) {
        std::array<L, 4> rows;
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            if constexpr (lanes == 8) {
                rows[i] = joined(loadFirst<K>(from[i] + first), loadFirst<K>(from[i + 4] + first));
            } else {
                rows[i] = loadFirst<K>(from[i] + first);
            }
        }
        turn(rows);
        return rows;
    }

    [[gnu::always_inline]] static void store(const Elements &results, const Addresses<T> &dst, std::ptrdiff_t object) {
#pragma GCC unroll 2
        for (int j = 0; j < Order; j += 4) {
            std::array<L, 4> rows = {};
            std::copy_n(results.begin() + j, std::min(4, Order - j), rows.begin());
            turn(rows);
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) {
                if constexpr (lanes == 8) {
                    storePiece(dst.at(object + i, 0, j), j, lowHalf(rows[i]));
                    storePiece(dst.at(object + i + 4, 0, j), j, highHalf(rows[i]));
                } else {
                    storePiece(dst.at(object + i, 0, j), j, rows[i]);
                }
            }
        }
    }

    [[gnu::always_inline]] static void storePiece(T *to, int j, Lanes<T, 4> piece) {
        if (j + 4 <= Order) {
            piece.store(to);
        } else {
            storeFirst<lastPiece>(to, piece);
        }
    }

    [[gnu::always_inline]] static void turn(std::array<L, 4> &rows) {
        if constexpr (lanes == 8) {
            transposeHalves(rows);
        } else {
            transpose(rows);
        }
    }
};

} // namespace lxpm
