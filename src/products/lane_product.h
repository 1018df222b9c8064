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
        const bool isDense = touches(p.a, 0, vectorSize) && touches(p.dst, 0, vectorSize) &&
                             touches(p.b, 2, vectorSize) && touches(p.b, 0, Order * vectorSize);
        return isDense ? overGroups<true>(p, count) : overGroups<false>(p, count);
    }

private:
    static constexpr std::ptrdiff_t vectorSize = Order * sizeof(T);
    static constexpr int lastPiece = Order % 4 == 0 ? 4 : Order % 4; // of an object's elements, taken by fours

    using L = Lanes<T, lanes>;
    using Pointers = std::array<const T *, lanes>;
    using Elements = std::array<L, Order>;

    template <class Element>
    static bool touches(const Addresses<Element> &operand, int loop, std::ptrdiff_t size) {
        return operand.pointerStep[loop] == 0 && operand.step[loop] == size;
    }

    // The objects of the lanes. Where nothing has gaps the compiler knows all distances.
    template <bool dense, class Element>
    [[gnu::always_inline]] static std::array<Element *, lanes> pointersTo(const Addresses<Element> &operand,
                                                                          std::ptrdiff_t object, std::ptrdiff_t size) {
        std::array<Element *, lanes> pointers;
        Element *first = operand.at(object, 0, 0);
#pragma GCC unroll 8
        for (int lane = 0; lane < lanes; ++lane) {
            pointers[lane] = dense ? shifted(first, lane * size) : operand.at(object + lane, 0, 0);
        }
        return pointers;
    }

    template <bool dense>
    static std::ptrdiff_t overGroups(const MatrixProduct<T> &shared, std::ptrdiff_t count) {
        const MatrixProduct<T> p = shared;
        const std::ptrdiff_t columnStep = dense ? vectorSize : p.b.step[2];
        std::ptrdiff_t object = 0;
        for (; object + lanes <= count; object += lanes) {
            Pointers b = pointersTo<dense>(p.b, object, Order * vectorSize);
            const Elements factors = load<false, true>(pointersTo<dense>(p.a, object, vectorSize));
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
#pragma GCC unroll 8
                for (int lane = 0; lane < lanes; ++lane) {
                    b[lane] = shifted(b[lane], columnStep);
                }
            }
            store<dense>(results, pointersTo<dense>(p.dst, object, vectorSize));
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

    // Vectors without gaps are written in ascending order: what is written behind one the next one replaces.
    template <bool dense>
    [[gnu::always_inline]] static void store(const Elements &results, const std::array<T *, lanes> &to) {
        constexpr int blocks = (Order + 3) / 4;
        std::array<std::array<L, 4>, blocks> rows = {};
#pragma GCC unroll 2
        for (int piece = 0; piece < blocks; ++piece) {
            std::copy_n(results.begin() + 4 * piece, std::min(4, Order - 4 * piece), rows[piece].begin());
            turn(rows[piece]);
        }
#pragma GCC unroll 8
        for (int lane = 0; lane < lanes; ++lane) {
#pragma GCC unroll 2
            for (int piece = 0; piece < blocks; ++piece) {
                const bool isWhole = 4 * piece + 4 <= Order || (dense && lane + 1 < lanes);
                const Lanes<T, 4> four = ofLane(rows[piece], lane);
                if (isWhole) {
                    four.store(to[lane] + 4 * piece);
                } else {
                    storeFirst<lastPiece>(to[lane] + 4 * piece, four);
                }
            }
        }
    }

    // The row that belongs to an object.
    [[gnu::always_inline]] static Lanes<T, 4> ofLane(const std::array<L, 4> &rows, int lane) {
        if constexpr (lanes == 8) {
            return lane < 4 ? lowHalf(rows[lane]) : highHalf(rows[lane - 4]);
        } else {
            return rows[lane];
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
