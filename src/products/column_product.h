// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Rows times matrices of small orders whose columns touch: every result is the dot product of a row and a column. As
// many columns as a register has lanes are loaded as they stand and multiplied by their rows; only the products are
// turned, so that a register holds one term of every sum. Where nothing has gaps, the columns of successive objects
// are one row of columns, and their results one row of results.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/object_walk.h"
#include "runtime/parallel.h"
#include "runtime/vector_groups.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <type_traits>
#include <utility>

namespace lxpm {

template <class T, int Order>
class ColumnProduct {
public:
    static bool accepts(const MatrixProduct<T> &p) {
        return p.rows == 1 && !p.addend && !p.b.isSingle() && p.a.rowsTouch() && p.dst.rowsTouch() &&
               p.b.movesByBytes() && p.b.transposed().rowsTouch();
    }

    // All objects but the last ones that do not fill the lanes; returns their number.
    static std::ptrdiff_t run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const bool isDense = touches(p.a, 0, vectorSize) && touches(p.dst, 0, vectorSize) &&
                             touches(p.b, 2, vectorSize) && touches(p.b, 0, Order * vectorSize);
        const std::ptrdiff_t done = isDense ? overDense(p, count) : 0;
        return done + withFrom(p, done, [&](const MatrixProduct<T> &rest) {
                   return p.walksByBytes() ? chooseApart<Walking::ByBytes>(rest, count - done)
                                           : chooseApart<Walking::ThroughPointers>(rest, count - done);
               });
    }

private:
    static constexpr int lanes = fullLanes<T>;
    static constexpr std::ptrdiff_t vectorSize = Order * sizeof(T);

    // The elements of a column behind its last four, and as how many they are loaded, together with some before them.
    static constexpr int rest = Order % 4;
    static constexpr int loadedRest = Order < 4 ? Order : lanes == 4 && rest <= 2 ? 2 : 4;

    using L = Group<T>;

    template <class Element>
    static bool touches(const Addresses<Element> &operand, int loop, std::ptrdiff_t size) {
        return operand.pointerStep[loop] == 0 && operand.step[loop] == size;
    }

    // What fills the lanes as often as it takes to come to the end of an object with them.
    template <int columnsOfObject>
    struct Batch {
        static constexpr int objects = lanes / std::gcd(columnsOfObject, lanes);
        static constexpr int groups = objects * columnsOfObject / lanes;
    };

    // The sums of a group's columns. At: column(i) and row(i) are where the one in lane i and its row start.
    template <class At>
    [[gnu::always_inline]] static L sumsOf(const At &at) {
        L sums = {};
#pragma GCC unroll 2
        for (int k = 0; k + 4 <= Order; k += 4) {
            addTerms<4, 0>(sums, at, k);
        }
        if constexpr (rest != 0) {
            addTerms<loadedRest, loadedRest - rest>(sums, at, Order - loadedRest);
        }
        return sums;
    }

    // Of `loaded` elements from k on those from `first` on.
    template <int loaded, int first, class At>
    [[gnu::always_inline]] static void addTerms(L &sums, const At &at, int k) {
        const auto load = [k](const auto &start) __attribute__((always_inline)) {
            return [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
                return loadRows<loaded, false>({(start(std::integral_constant<int, i>()) + k)...});
            }
            (std::make_integer_sequence<int, lanes>());
        };
        const GroupColumns<T> columns = load([&](auto i) { return at.column(i); });
        const GroupColumns<T> rows = load([&](auto i) { return at.row(i); });
        const GroupColumns<T> terms = turned<loaded>(multiplied<4>(columns, rows));
#pragma GCC unroll 4
        for (int i = first; i < loaded; ++i) {
            sums = sums + terms[i];
        }
    }

    // Objects without gaps.

    static std::ptrdiff_t overDense(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        using Dense = Batch<Order>;
        const T *a = p.a.at(0, 0, 0);
        const T *b = p.b.at(0, 0, 0);
        T *dst = p.dst.at(0, 0, 0);
        std::ptrdiff_t object = 0;
        for (; object + Dense::objects <= count; object += Dense::objects) {
            forEachOf<Dense::groups>([&](auto group) __attribute__((always_inline)) {
                constexpr int first = group * lanes; // column of all objects' columns
                if constexpr (Order == 3) {
                    sumsOfTriples<first>(a, b).store(dst + first);
                } else {
                    sumsOf(DenseAt<first>{a, b}).store(dst + first);
                }
            });
            a += Dense::objects * Order;
            b += Dense::objects * Order * Order;
            dst += Dense::objects * Order;
        }
        return object;
    }

    template <int first>
    struct DenseAt {
        const T *a;
        const T *b;

        const T *column(int i) const { return b + (first + i) * Order; }
        const T *row(int i) const { return a + (first + i) / Order * Order; }
    };

    // Columns of three elements fill three registers; so do the rows that belong to them.
    template <int first>
    [[gnu::always_inline]] static L sumsOfTriples(const T *a, const T *b) {
        Triples<T> terms = loadTriples(b + 3 * first);
        forEachOf<3>([&](auto r) __attribute__((always_inline)) {
            // Of a half of the register, the first element among those of all columns.
            constexpr int ofHalf = lanes / 2;
            constexpr int low = 3 * first + r * ofHalf;
            terms[r] = terms[r] * factorsOf<low, low + 3 * ofHalf>(a);
        });
        terms = turned(terms);
        return ((L::splat(0) + terms[0]) + terms[1]) + terms[2];
    }

    // The place in all rows of what an element of the columns is multiplied by.
    static constexpr int factorAt(int element) {
        return 3 * (element / 9) + element % 3;
    }

    // Where four elements stand that hold all factors of a half of floats, without a look behind the last row.
    static constexpr int firstOfFactors(int half) {
        const int least = std::min({factorAt(half), factorAt(half + 1), factorAt(half + 2), factorAt(half + 3)});
        return std::min(least, 3 * Batch<Order>::objects - 4);
    }

    // What the elements from `low` and from `high` on are multiplied by, half a register each.
    template <int low, int high>
    [[gnu::always_inline]] static Lanes<float, 8> factorsOf(const float *a) {
        constexpr auto lane = [](int half, int i) { return factorAt(half + i) - firstOfFactors(half); };
        const __m256i chosen = _mm256_setr_epi32(lane(low, 0), lane(low, 1), lane(low, 2), lane(low, 3), lane(high, 0),
                                                 lane(high, 1), lane(high, 2), lane(high, 3));
        const auto loaded = loadHalves(a + firstOfFactors(low), a + firstOfFactors(high));
        return {_mm256_permutevar_ps(loaded.vector, chosen)};
    }

    template <int low, int high>
    [[gnu::always_inline]] static Lanes<double, 4> factorsOf(const double *a) {
        // The last element of a row and its first one do not stand side by side.
        constexpr bool lowWraps = factorAt(low) > factorAt(low + 1);
        constexpr bool highWraps = factorAt(high) > factorAt(high + 1);
        const auto last = loadHalves(a + factorAt(low) - lowWraps, a + factorAt(high) - highWraps);
        if constexpr (!lowWraps && !highWraps) {
            return last;
        } else {
            const auto first = loadHalves(a + factorAt(low + 1) - !lowWraps, a + factorAt(high + 1) - !highWraps);
            constexpr int ofLow = lowWraps ? 0b01 : 0b10;
            constexpr int ofHigh = highWraps ? 0b01 : 0b10;
            return {_mm256_shuffle_pd(last.vector, first.vector, ofLow | ofHigh << 2)};
        }
    }

    // Objects with gaps in them or between them. Each fills a number of halves or quarters of registers: its last
    // column is taken as often as it takes to do so, which raises no flag that the column itself does not raise.

    static constexpr int filled = (Order + 3) / 4 * 4;
    using Apart = Batch<filled>;

    template <Walking walking>
    static std::ptrdiff_t chooseApart(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        if constexpr (Order == 3) {
            if (mayReadOn(p.b.step[2], vectorSize)) {
                return overApart<walking, true>(p, count);
            }
        }
        return overApart<walking, false>(p, count);
    }

    // Columns of three elements that stand close behind one another: four are loaded of the first two, so that nothing
    // but the space between columns is read with them. ReadsOn: there are four elements of each row that may be read.
    // The fourth lane repeats the third; opaque, since Clang would leave it to chance, and with it what it raises.

    template <bool readsOn>
    [[gnu::always_inline]] static L sumsOfThree(const std::array<const float *, 2> &rows,
                                                const std::array<const float *, 2> &matrices,
                                                std::ptrdiff_t columnStep) {
        using detail::shuffled;
        const auto [first, second, third] = loadRowsOfThree(matrices, columnStep);
        const L low = {_mm256_unpacklo_ps(first.vector, second.vector)};  // 00 10 01 11
        const L high = {_mm256_unpackhi_ps(first.vector, second.vector)}; // 02 12
        constexpr int loaded = readsOn ? 4 : 3;
        const L factors = joined(loadFirst<loaded>(rows[0]), loadFirst<loaded>(rows[1]));
        L sums = {};
        sums = sums + opaque(shuffled<0, 1, 1, 1>(low, third)) * spreadInHalves<0>(factors);
        sums = sums + opaque(shuffled<2, 3, 2, 2>(low, third)) * spreadInHalves<1>(factors);
        sums = sums + opaque(shuffled<0, 1, 3, 3>(high, third)) * spreadInHalves<2>(factors);
        return sums;
    }

    template <bool>
    [[gnu::always_inline]] static L sumsOfThree(const std::array<const double *, 1> &rows,
                                                const std::array<const double *, 1> &matrices,
                                                std::ptrdiff_t columnStep) {
        const auto [row] = rows;
        const auto [matrix] = matrices;
        const __m256d first = L::load(matrix).vector;
        const __m256d second = L::load(shifted(matrix, columnStep)).vector;
        const double *third = shifted(matrix, 2 * columnStep);
        const L low = {_mm256_unpacklo_pd(first, second)};  // 00 10 | 02 12
        const L high = {_mm256_unpackhi_pd(first, second)}; // 01 11
        L sums = {};
        sums = sums + opaque(halves<0, 2>(low, broadcast(third))) * broadcast(row);
        sums = sums + opaque(halves<0, 2>(high, broadcast(third + 1))) * broadcast(row + 1);
        sums = sums + opaque(halves<1, 2>(low, broadcast(third + 2))) * broadcast(row + 2);
        return sums;
    }

    // Close: three columns that sumsOfThree() can read.
    template <Walking walking, bool close>
    static std::ptrdiff_t overApart(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        const std::ptrdiff_t columnStep = p.b.step[2];
        ObjectWalk<const T, walking> a(p.a);
        ObjectWalk<const T, walking> b(p.b);
        ObjectWalk<T, walking> dst(p.dst);
        const auto multiplyNext = [&]<bool readsOn>(std::bool_constant<readsOn>) __attribute__((always_inline)) {
            const auto rows = nextObjects<Apart::objects>(a);
            const auto matrices = nextObjects<Apart::objects>(b);
            const auto results = nextObjects<Apart::objects>(dst);
            std::array<L, Apart::groups> sums;
            forEachOf<Apart::groups>([&](auto group) __attribute__((always_inline)) {
                if constexpr (close) {
                    sums[group] = sumsOfThree<readsOn>(rows, matrices, columnStep);
                } else {
                    sums[group] = sumsOf(ApartAt<group * lanes>{rows, matrices, columnStep});
                }
            });
            if constexpr (Apart::objects == 2) {
                storeFirst<Order>(results[0], lowHalf(sums[0]));
                storeFirst<Order>(results[1], highHalf(sums[0]));
            } else {
                forEachOf<Apart::groups>([&](auto group) __attribute__((always_inline)) {
                    storeFirstOf<std::min(lanes, Order - group * lanes)>(results[0] + group * lanes, sums[group]);
                });
            }
        };
        std::ptrdiff_t object = 0;
        if constexpr (close && lanes == 8 && walking == Walking::ByBytes) {
            const bool readsOn = !p.a.isSingle() && mayReadOn(p.a);
            for (; readsOn && object + Apart::objects < count; object += Apart::objects) {
                multiplyNext(std::true_type());
            }
        }
        for (; object + Apart::objects <= count; object += Apart::objects) {
            multiplyNext(std::false_type());
        }
        return object;
    }

    template <int first>
    struct ApartAt {
        const std::array<const T *, Apart::objects> &rows;
        const std::array<const T *, Apart::objects> &matrices;
        std::ptrdiff_t columnStep;

        [[gnu::always_inline]] const T *column(int i) const {
            return shifted(matrices[(first + i) / filled], std::min((first + i) % filled, Order - 1) * columnStep);
        }
        [[gnu::always_inline]] const T *row(int i) const { return rows[(first + i) / filled]; }
    };
};

} // namespace lxpm
