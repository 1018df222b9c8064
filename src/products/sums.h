// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Sums of products: of one operand with itself (norms), or of two (dot products), one sum for each object of an array.
// A sum starts from +0 and goes by rows in one of two orders, whatever else is computed beside it:
//
//   ascending   one term after the other; alone, or with one object in each lane
//   split       term j of a row is added to partial sum j mod P, P = 32 for float and 16 for double, in every second
//               row to (j + P / 2) mod P; then the upper half of the partial sums is added to the lower half until one
//               is left
//
// so that an object's sum does not depend on its place in the array, the number of objects or of threads.

#include "products/readers.h"
#include "runtime/object_walk.h"
#include "runtime/parallel.h"
#include "runtime/straight.h"
#include "runtime/twice.h"
#include "runtime/with_order.h"

#include <array>
#include <cstddef>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

namespace lxpm {

// What becomes of a sum.
struct PlainSum {
    template <class Number>
    Number operator()(Number sum) const {
        return sum;
    }
};

struct RootOfSum {
    template <class Number>
    Number operator()(Number sum) const {
        return root(sum);
    }
};

// Vectors of this length and above are split where their elements touch.
inline constexpr int shortestSplit = 16;

// Rows of a matrix share the work of adding the partial sums. Shorter ones are split as well, but for their scraps.
constexpr bool isSplitRow(int length) {
    return length >= shortestSplit || (length >= 8 && length % 4 == 0);
}

template <class T, std::size_t sources>
struct SumOperands {
    std::array<Addresses<const T>, sources> src;
    T *dst;

    SumOperands from(std::ptrdiff_t object) const {
        SumOperands later = {src, dst + object};
        for (auto &source : later.src) {
            source = source.from(object);
        }
        return later;
    }
};

template <class T, class Finish, std::size_t sources>
class Sums {
public:
    using Operands = SumOperands<T, sources>;

    static void split(const Operands &operands, int rows, int columns, int objects) {
        bool byBytes = true;
        for (const auto &source : operands.src) {
            byBytes &= source.pointerStep[0] == 0;
        }
        const Split chosen = byBytes ? chooseSizes<Walking::ByBytes>(rows, columns)
                                     : chooseSizes<Walking::ThroughPointers>(rows, columns);
        chosen(operands, rows, columns, objects);
    }

    static void ascending(const Operands &operands, int rows, int columns, int objects) {
        if (rows > 1 && areOneRow(operands, rows, columns)) {
            columns *= rows;
            rows = 1;
        }
        const std::ptrdiff_t inGroups = objects / groupSize<T> * groupSize<T>;
        if (inGroups > 0) {
            overGroups(operands, rows, columns, objects);
        }
        for (std::ptrdiff_t object = inGroups; object < objects; ++object) {
            operands.dst[object] = Finish()(sumOfOne(operands.src, rows, columns, object));
        }
    }

    // Ascending, of one object alone.
    [[gnu::always_inline]] static void ascendingOfOne(const Operands &operands, int rows, int columns) {
        *operands.dst = Finish()(sumOfOne(operands.src, rows, columns, 0));
    }

private:
    using Index = std::make_index_sequence<sources>;
    using Groups = void (*)(const Operands &, int rows, int columns, std::ptrdiff_t objects);

    // Whether the rows follow one another and are one of a length that can be told.
    static bool areOneRow(const Operands &operands, int rows, int columns) {
        bool follow = rows <= std::numeric_limits<int>::max() / columns;
        for (const auto &source : operands.src) {
            follow &=
                source.step[1] == columns * source.step[2] && source.pointerStep[1] == columns * source.pointerStep[2];
        }
        return follow;
    }

    template <class Number>
    [[gnu::always_inline]] static Number product(Number a) {
        return a * a;
    }
    template <class Number>
    [[gnu::always_inline]] static Number product(Number a, Number b) {
        return a * b;
    }

    // Split.

    template <Walking walking, std::size_t>
    using WalkOf = ObjectWalk<const T, walking>;

    using Split = void (*)(const Operands &, int rows, int columns, int objects);

    // Short rows whose lengths the compiler knows: they are written out.
    using Lengths = std::integer_sequence<int, 8, 12, 16, 32, 64>;

    // The orders of matrices that are written out as a whole.
    using Orders = std::integer_sequence<int, 8, 12>;

    template <Walking walking>
    static Split chooseSizes(int rows, int columns) {
        if constexpr (sources == 1) {
            if (rows > 1) {
                return withKnown(Orders(), rows == columns ? rows : 0, [&](auto order) -> Split {
                    if constexpr (order != 0) {
                        return splitWalking<walking, order, order>;
                    } else {
                        return chooseColumns<walking, 0>(columns);
                    }
                });
            }
        }
        return chooseColumns<walking, 1>(columns);
    }

    template <Walking walking, int Rows>
    static Split chooseColumns(int columns) {
        return withKnown(Lengths(), columns, [](auto length) -> Split { return splitWalking<walking, Rows, length>; });
    }

    // Rows, columns: their numbers where they are known beforehand, else 0.
    template <Walking walking, int Rows, int Columns>
    static void splitWalking(const Operands &operands, int rows, int columns, int objects) {
        // Two rows of half the partial sums are one of all of them.
        if constexpr (Rows == 0 && Columns == 2 * groupSize<T>) {
            if (areOneRow(operands, rows, columns)) {
                return splitWalking<walking, 1, 0>(operands, 1, rows * columns, objects);
            }
        }
        splitObjects<walking, Rows, Columns>(operands, Rows != 0 ? Rows : rows, Columns != 0 ? Columns : columns,
                                             objects, Index());
    }

    // A vector that is used with every object is fetched once for two of them.
    template <Walking walking, int Rows, int Columns, std::size_t... s>
    [[gnu::always_inline]] static void splitObjects(const Operands &shared, int rows, int columns, int objects,
                                                    std::index_sequence<s...>) {
        const Operands operands = shared; // a copy that no store below can reach
        std::tuple<WalkOf<walking, s>...> walks(operands.src[s]...);
        const auto next = [&]<class V>(V) __attribute__((always_inline)) {
            std::tuple<Places<V, (groupsIn<V> > 1 && s + 1 == sources)>...> places;
            forEachOf<groupsIn<V>>([&](auto object) __attribute__((always_inline)) {
                ((std::get<s>(places).first[object] = std::get<s>(walks).object()), ...);
                (std::get<s>(walks).next(), ...);
            });
            return splitSum<V, Rows, Columns>(rows, columns, {operands.src[s].step[1]...}, std::get<s>(places)...);
        };
        std::ptrdiff_t object = 0;
        const auto overGroups = [&]<class V>(V) __attribute__((always_inline)) {
            for (; object + groupSize<T> <= objects; object += groupSize<T>) {
                std::array<Group<T>, groupSize<T>> partial;
#pragma GCC unroll 1
                for (int i = 0; i < groupSize<T>; i += groupsIn<V>) {
                    const V sums = next(V());
                    forEachOf<groupsIn<V>>([&](auto k) __attribute__((always_inline)) {
                        partial[i + k].vector = groupOf<k>(sums).vector;
                    });
                }
                Finish()(sumsOverLanes(partial)).store(operands.dst + object);
            }
        };
        if (sources == 2 && operands.src[sources - 1].isSingle()) {
            overGroups(SideBySide<Group<T>, sources>());
        } else {
            overGroups(Group<T>());
        }
        for (; object < objects; ++object) {
            operands.dst[object] = Finish()(sumOverLanes(next(Group<T>())));
        }
    }

    // Where the rows of an object start, or those of two: one in each group of a V. Where both are the same object, its
    // elements are fetched once, and opaque: the compiler would rather fetch them again than keep them.
    template <class V, bool areSame>
    struct Places {
        std::array<const T *, groupsIn<V>> first;

        template <class Load>
        [[gnu::always_inline]] V loaded(const Load &load) const {
            V all;
            Group<T> shared;
            if constexpr (areSame) {
                shared = opaque(load(first[0]));
            }
            forEachOf<groupsIn<V>>([&](auto object) __attribute__((always_inline)) {
                if constexpr (areSame) {
                    groupOf<object>(all).vector = shared.vector;
                } else {
                    groupOf<object>(all).vector = load(first[object]).vector;
                }
            });
            return all;
        }

        [[gnu::always_inline]] void move(std::ptrdiff_t bytes) {
            for (const T *&place : first) {
                place = shifted(place, bytes);
            }
        }
    };

    template <class V, int Rows, int Columns, class... Sources>
    [[gnu::always_inline]] static V splitSum(int rows, std::ptrdiff_t columns,
                                             std::array<std::ptrdiff_t, sources> rowStep, Sources... src) {
        std::array<V, 4> partial = {constant<V>(0), constant<V>(0), constant<V>(0), constant<V>(0)};
        const auto addNext = [&]() __attribute__((always_inline)) {
            addRow<Columns>(partial, columns, src...);
            // So that short rows too keep all registers busy.
            std::swap(partial[0], partial[2]);
            std::swap(partial[1], partial[3]);
            std::size_t source = 0;
            (src.move(rowStep[source++]), ...);
        };
        if constexpr (Rows > 1) {
#pragma GCC unroll 12
            for (int row = 0; row < Rows; ++row) {
                addNext();
            }
        } else {
#pragma GCC unroll 2
            for (int row = 0; row < rows; ++row) {
                addNext();
            }
        }
        return (partial[0] + partial[2]) + (partial[1] + partial[3]);
    }

    template <int Columns, class V, class... Sources>
    [[gnu::always_inline]] static void addRow(std::array<V, 4> &partial, std::ptrdiff_t n, const Sources &...src) {
        constexpr int lanes = groupSize<T>;
        std::ptrdiff_t i = 0;
#pragma GCC unroll 2
        for (; i + 4 * lanes <= n; i += 4 * lanes) {
            forEachOf<4>([&](auto r) __attribute__((always_inline)) {
                const std::ptrdiff_t at = i + r * lanes;
                addTo<r>(
                    partial, [at](const T *row) { return Group<T>::load(row + at); }, src...);
            });
        }
        addEnd<0, Columns % lanes>(partial, i, n, src...);
    }

    // From element i on, fewer than the partial sums from register r on. Scraps: what they leave of a register where it
    // is known, else 0.
    template <int r, int scraps, class V, class... Sources>
    [[gnu::always_inline]] static void addEnd(std::array<V, 4> &partial, std::ptrdiff_t i, std::ptrdiff_t n,
                                              const Sources &...src) {
        constexpr int lanes = groupSize<T>;
        if (i + lanes <= n) {
            addTo<r>(
                partial, [i](const T *row) { return Group<T>::load(row + i); }, src...);
            if constexpr (r < 3) {
                addEnd<r + 1, scraps>(partial, i + lanes, n, src...);
            }
        } else if (i < n) { // the lanes beyond add 0 * 0 to a sum, which leaves it as it is
            if constexpr (scraps == lanes / 2) {
                addTo<r>(
                    partial, [i](const T *row) { return loadFirstOf<lanes / 2>(row + i); }, src...);
            } else {
                addTo<r>(
                    partial, [i, n](const T *row) { return loadSome(row + i, n - i); }, src...);
            }
        }
    }

    template <int r, class V, class Load, class... Sources>
    [[gnu::always_inline]] static void addTo(std::array<V, 4> &partial, const Load &load, const Sources &...src) {
        partial[r] = partial[r] + product(src.loaded(load)...);
    }

    // Ascending.

    [[gnu::always_inline]] static T sumOfOne(const std::array<Addresses<const T>, sources> &src, int rows, int columns,
                                             std::ptrdiff_t object) {
        T sum = 0;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                sum += [&]<std::size_t... s>(std::index_sequence<s...>) __attribute__((always_inline)) {
                    return product(*src[s].at(object, row, column)...);
                }
                (Index());
            }
        }
        return sum;
    }

    // All whole groups: sources that are all read alike, but for a single vector.
    static void overGroups(const Operands &operands, int rows, int columns, std::ptrdiff_t objects) {
        const Reading reading = readingOf(operands.src[0]);
        if constexpr (sources == 2) {
            const Reading last = readingOf(operands.src[1]);
            if (last == Reading::Same && columns <= SingleVector<T>::longest) {
                const SingleVector<T> vector(operands.src[1], columns);
                const Operands copied = {{operands.src[0], vector.addresses()}, operands.dst};
                return chooseReading<Reading::Same>(reading, copied, rows, columns)(copied, rows, columns, objects);
            }
            if (last != reading) {
                return groups<Reading::Apart, Reading::Apart, 0, false>(operands, rows, columns, objects);
            }
        }
        chooseReading<Reading::Apart>(reading, operands, rows, columns)(operands, rows, columns, objects);
    }

    // Last: Same where the last source is a single object, else anything.
    template <Reading last>
    static Groups chooseReading(Reading reading, const Operands &operands, int rows, int columns) {
        switch (reading) {
        case Reading::Rows:
            return isDense(operands, rows, columns, last == Reading::Same)
                       ? chooseLength<Reading::Rows, lastOf(last, Reading::Rows), true>(columns)
                       : chooseLength<Reading::Rows, lastOf(last, Reading::Rows), false>(columns);
        case Reading::PointedRows:
            return chooseLength<Reading::PointedRows, lastOf(last, Reading::PointedRows), false>(columns);
        case Reading::Objects:
            return groups<Reading::Objects, lastOf(last, Reading::Objects), 0, false>;
        default:
            return groups<Reading::Apart, lastOf(last, Reading::Apart), 0, false>;
        }
    }

    static constexpr Reading lastOf(Reading last, Reading first) {
        return last == Reading::Same ? last : first;
    }

    // Objects one behind the other, each of one row.
    static bool isDense(const Operands &operands, int rows, int columns, bool lastIsSame) {
        bool dense = rows == 1 && columns >= 3;
        for (std::size_t source = 0; source < sources - lastIsSame; ++source) {
            dense &= operands.src[source].step[0] == columns * static_cast<std::ptrdiff_t>(sizeof(T));
        }
        return dense;
    }

    // Rows of any operand; and objects one behind the other, among them matrices of orders 3 to 5.
    using Short = std::integer_sequence<int, 1, 2, 3, 4>;
    using Dense = std::integer_sequence<int, 3, 4, 5, 6, 7, 8, 9, 16, 25>;

    template <Reading first, Reading last, bool dense>
    static Groups chooseLength(int columns) {
        return withKnown(std::conditional_t<dense, Dense, Short>(), columns, [](auto length) -> Groups {
            constexpr bool knownAndDense = dense && length != 0;
            return groups<first, last, length, knownAndDense>;
        });
    }

    // Length: of the rows where it is known beforehand, else 0. Dense: there is one row, and the objects touch.
    template <Reading first, Reading last, int Length, bool dense>
    static void groups(const Operands &shared, int rows, int columns, std::ptrdiff_t objects) {
        const Operands operands = shared; // a copy that no store below can reach
        std::ptrdiff_t object = 0;
        if constexpr (Length == 3 && !dense && groupSize<T> == 8 && first == Reading::Rows) {
            bool readsOn = true;
            for (const auto &source : operands.src) {
                readsOn &= mayReadOn(source);
            }
            for (; readsOn && object + groupSize<T> < objects; object += groupSize<T>) {
                store<first, last, Length, dense, true>(operands, object, rows, columns);
            }
        }
        for (; object + groupSize<T> <= objects; object += groupSize<T>) {
            store<first, last, Length, dense, false>(operands, object, rows, columns);
        }
    }

    template <Reading first, Reading last, int Length, bool dense, bool readsOn>
    [[gnu::always_inline]] static void store(const Operands &operands, std::ptrdiff_t object, int rows, int columns) {
        constexpr std::ptrdiff_t step = dense ? Length * static_cast<std::ptrdiff_t>(sizeof(T)) : 0;
        const int oneOrMore = dense || sources == 2 ? 1 : rows;
        const int length = Length != 0 ? Length : columns;
        const GroupReader<T, first, step> a(operands.src[0], object);
        if constexpr (sources == 1) {
            sumOfGroup<Length, readsOn>(operands.dst + object, oneOrMore, length, a);
        } else {
            const GroupReader<T, last, last == Reading::Same ? 0 : step> b(operands.src[1], object);
            sumOfGroup<Length, readsOn>(operands.dst + object, oneOrMore, length, a, b);
        }
    }

    template <int Length, bool readsOn, class... Reader>
    [[gnu::always_inline]] static void sumOfGroup(T *dst, std::ptrdiff_t rows, std::ptrdiff_t n,
                                                  const Reader &...reader) {
        Group<T> sum = Group<T>::splat(0);
        for (std::ptrdiff_t row = 0; row < rows; ++row) {
            std::ptrdiff_t column = 0;
#pragma GCC unroll 2
            for (; column + 4 <= n; column += 4) {
                add<0, 4>(sum, products<4>(row, column, reader...));
            }
            // The elements left, where the length says so together with some of those before them.
            const auto left = n - column;
            if (left == 0) {
                continue;
            }
            if constexpr (Length > 4) {
                constexpr int loaded = groupSize<T> == 4 && Length % 4 <= 2 ? 2 : 4;
                add<loaded - Length % 4, loaded>(sum, products<loaded>(row, Length - loaded, reader...));
            } else if (left == 1) {
                add<0, 1>(sum, products<1>(row, column, reader...));
            } else if (left == 2) {
                add<0, 2>(sum, products<2>(row, column, reader...));
            } else {
                add<0, 3>(sum, products<3, readsOn>(row, column, reader...));
            }
        }
        Finish()(sum).store(dst);
    }

    // Columns of products. Rows are multiplied before they are turned, which leaves half as many to turn.
    template <int columns, bool readsOn = false, class First, class... Last>
    [[gnu::always_inline]] static GroupColumns<T> products(std::ptrdiff_t row, std::ptrdiff_t column,
                                                           const First &first, const Last &...last) {
        if constexpr (!readsOn && multipliesRows<columns, First, Last...>()) {
            return First::template turn<columns>(
                productsOf<4>(first.template load<columns>(row, column), last.template load<columns>(row, column)...));
        } else {
            return productsOf<columns>(first.template read<columns, readsOn>(row, column),
                                       last.template read<columns, readsOn>(row, column)...);
        }
    }

    // A single vector has no form that whole vectors are loaded in.
    template <int columns, class First, class... Last>
    static consteval bool multipliesRows() {
        if constexpr (sources == 2 && requires { First::template isWhole<columns>; }) {
            return (std::is_same_v<First, Last> && ...) || !First::template isWhole<columns>;
        }
        return false;
    }

    template <int registers, class... Columns>
    [[gnu::always_inline]] static GroupColumns<T> productsOf(const Columns &...columns) {
        GroupColumns<T> all;
#pragma GCC unroll 4
        for (int i = 0; i < registers; ++i) {
            all[i] = product(columns[i]...);
        }
        return all;
    }

    template <int from, int to>
    [[gnu::always_inline]] static void add(Group<T> &sum, const GroupColumns<T> &terms) {
#pragma GCC unroll 4
        for (int i = from; i < to; ++i) {
            sum = sum + terms[i];
        }
    }
};

// All objects of a call. Out of line: one for each type and sum, not one for each member of a family.
template <class T, class Finish, std::size_t sources>
[[gnu::noinline]] LxpStatus sumProducts(bool parallel, bool isSplit, int count, int rows, int columns,
                                        const SumOperands<T, sources> &operands) {
    using Sums = lxpm::Sums<T, Finish, sources>;
    const auto sums = isSplit ? Sums::split : Sums::ascending;
    const auto straight = [&] {
        SumOperands<T, sources> all = operands;
        for (auto &source : all.src) {
            source = withoutElementPointers(source, rows, columns);
        }
        return all;
    };
    return withStraight(operands, operands.src[0], straight, [&](const SumOperands<T, sources> &all) {
        return overObjects(parallel, count, [&](int first, int objects) {
            withFrom(all, first, [&](const SumOperands<T, sources> &later) { sums(later, rows, columns, objects); });
            return lxpStatusOk;
        });
    });
}

// One object alone: the operands of a short sum need not be in memory.
template <class T, class Finish, std::size_t sources>
[[gnu::always_inline]] inline LxpStatus sumProductsOfOne(bool isSplit, int rows, int columns,
                                                         const SumOperands<T, sources> &operands) {
    if (isSplit) {
        const SumOperands<T, sources> inMemory = operands;
        return sumProducts<T, Finish, sources>(false, true, 1, rows, columns, inMemory);
    }
    Sums<T, Finish, sources>::ascendingOfOne(operands, rows, columns);
    return lxpStatusOk;
}

} // namespace lxpm
