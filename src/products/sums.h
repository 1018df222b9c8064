// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Sums of products: of one operand with itself (norms), or of two (dot products), one sum for each object of an array.
// A sum starts from +0 and goes by rows in one of two orders, whatever else is computed beside it:
//
//   ascending   one term after the other; alone, or with one object in each lane
//   split       term j of a row is added to partial sum j mod P, P = 32 for float and 16 for double; then the upper
//               half of the partial sums is added to the lower half until one is left
//
// so that an object's sum does not depend on its place in the array, the number of objects or of threads.

#include "products/readers.h"
#include "runtime/parallel.h"

#include <array>
#include <cstddef>
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

// Rows of this length and above are split where their elements touch.
inline constexpr int shortestSplit = 16;

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
        std::ptrdiff_t object = 0;
        for (; object + groupSize<T> <= objects; object += groupSize<T>) {
            std::array<Group<T>, groupSize<T>> partial;
            for (int i = 0; i < groupSize<T>; ++i) {
                partial[i] = splitSum(operands.src, rows, columns, object + i, Index());
            }
            Finish()(sumsOverLanes(partial)).store(operands.dst + object);
        }
        for (; object < objects; ++object) {
            operands.dst[object] = Finish()(sumOverLanes(splitSum(operands.src, rows, columns, object, Index())));
        }
    }

    static void ascending(const Operands &operands, int rows, int columns, int objects) {
        if (rows > 1 && rowsFollow(operands, columns)) {
            columns *= rows;
            rows = 1;
        }
        const std::ptrdiff_t inGroups = objects / groupSize<T> * groupSize<T>;
        if (inGroups > 0) {
            chooseGroups<>(operands, columns)(operands, rows, columns, objects);
        }
        for (std::ptrdiff_t object = inGroups; object < objects; ++object) {
            operands.dst[object] = Finish()(sumOfOne(operands.src, rows, columns, object));
        }
    }

private:
    using Index = std::make_index_sequence<sources>;
    using Groups = void (*)(const Operands &, int rows, int columns, std::ptrdiff_t objects);

    template <class Number>
    [[gnu::always_inline]] static Number product(Number a) {
        return a * a;
    }
    template <class Number>
    [[gnu::always_inline]] static Number product(Number a, Number b) {
        return a * b;
    }

    // Split.

    template <std::size_t... s>
    [[gnu::always_inline]] static Group<T> splitSum(const std::array<Addresses<const T>, sources> &src, int rows,
                                                    std::ptrdiff_t columns, std::ptrdiff_t object,
                                                    std::index_sequence<s...>) {
        std::array<Group<T>, 4> partial = {Group<T>::splat(0), Group<T>::splat(0), Group<T>::splat(0),
                                           Group<T>::splat(0)};
        for (int row = 0; row < rows; ++row) {
            addRow(partial, columns, src[s].at(object, row, 0)...);
        }
        return (partial[0] + partial[2]) + (partial[1] + partial[3]);
    }

    template <class... Pointers>
    [[gnu::always_inline]] static void addRow(std::array<Group<T>, 4> &partial, std::ptrdiff_t n,
                                              const Pointers *...src) {
        constexpr int lanes = groupSize<T>;
        std::ptrdiff_t i = 0;
        for (; i + 4 * lanes <= n; i += 4 * lanes) {
#pragma GCC unroll 4
            for (int r = 0; r < 4; ++r) {
                partial[r] = partial[r] + product(Group<T>::load(src + i + r * lanes)...);
            }
        }
#pragma GCC unroll 4
        for (int r = 0; r < 4; ++r) {
            if (i + lanes > n) {
                if (i < n) { // the lanes beyond add 0 * 0 to a sum, which leaves it as it is
                    partial[r] = partial[r] + product(loadSome(src + i, n - i)...);
                }
                return;
            }
            partial[r] = partial[r] + product(Group<T>::load(src + i)...);
            i += lanes;
        }
    }

    // Ascending.

    static bool rowsFollow(const Operands &operands, std::ptrdiff_t columns) {
        bool follow = true;
        for (const auto &source : operands.src) {
            follow &=
                source.step[1] == columns * source.step[2] && source.pointerStep[1] == columns * source.pointerStep[2];
        }
        return follow;
    }

    static T sumOfOne(const std::array<Addresses<const T>, sources> &src, int rows, int columns,
                      std::ptrdiff_t object) {
        T sum = 0;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                sum += [&]<std::size_t... s>(std::index_sequence<s...>) {
                    return product(*src[s].at(object, row, column)...);
                }
                (Index());
            }
        }
        return sum;
    }

    // The kernel for all whole groups of a call.
    template <Reading... chosen>
    static Groups chooseGroups(const Operands &operands, int columns) {
        constexpr std::size_t source = sizeof...(chosen);
        if constexpr (source == sources) {
            if constexpr (((chosen == Reading::Rows) || ...) &&
                          ((chosen == Reading::Rows || chosen == Reading::Same) && ...)) {
                return chooseLength<chosen...>(columns);
            } else {
                return groups<0, chosen...>;
            }
        } else {
            switch (readingOf(operands.src[source])) {
            case Reading::Rows:
                return chooseGroups<chosen..., Reading::Rows>(operands, columns);
            case Reading::Objects:
                return chooseGroups<chosen..., Reading::Objects>(operands, columns);
            case Reading::Same:
                if constexpr (source > 0) { // the first source is an array
                    return chooseGroups<chosen..., Reading::Same>(operands, columns);
                }
                [[fallthrough]];
            case Reading::Apart:
                break;
            }
            return chooseGroups<chosen..., Reading::Apart>(operands, columns);
        }
    }

    template <Reading... reading>
    static Groups chooseLength(int columns) {
        static constexpr Groups unrolled[] = {groups<1, reading...>, groups<2, reading...>, groups<3, reading...>,
                                              groups<4, reading...>, groups<5, reading...>, groups<6, reading...>,
                                              groups<7, reading...>, groups<8, reading...>};
        return columns <= longestUnrolled ? unrolled[columns - 1] : groups<0, reading...>;
    }

    static constexpr int longestUnrolled = 8;

    // Length: of the rows where it is known beforehand, else 0.
    template <int Length, Reading... reading>
    static void groups(const Operands &shared, int rows, int columns, std::ptrdiff_t objects) {
        const Operands operands = shared; // a copy that no store below can reach
        [&]<std::size_t... s>(std::index_sequence<s...>) [[gnu::always_inline]] {
            // Four elements of a row of three may be read unless it is the last row of an array.
            std::ptrdiff_t object = 0;
            if constexpr (Length == 3 && groupSize<T> == 8) {
                if (((operands.src[s].pointerStep[0] == 0) && ...)) {
                    for (; object + groupSize<T> < objects; object += groupSize<T>) {
                        store<Length, true>(operands.dst + object, rows, columns,
                                            GroupReader<T, reading>(operands.src[s], object)...);
                    }
                }
            }
            for (; object + groupSize<T> <= objects; object += groupSize<T>) {
                store<Length, false>(operands.dst + object, rows, columns,
                                     GroupReader<T, reading>(operands.src[s], object)...);
            }
        }
        (Index());
    }

    template <int Length, bool readsOn, class... Reader>
    [[gnu::always_inline]] static void store(T *dst, int rows, int columns, const Reader &...reader) {
        Finish()(sumOfGroup<Length, readsOn>(rows, Length != 0 ? Length : columns, reader...)).store(dst);
    }

    template <int Length, bool readsOn, class... Reader>
    [[gnu::always_inline]] static Group<T> sumOfGroup(std::ptrdiff_t rows, std::ptrdiff_t n, const Reader &...reader) {
        Group<T> sum = Group<T>::splat(0);
        for (std::ptrdiff_t row = 0; row < rows; ++row) {
            std::ptrdiff_t column = 0;
#pragma GCC unroll 2
            for (; column + 4 <= n; column += 4) {
                add<0, 4>(sum, reader.template read<4>(row, column)...);
            }
            // The elements left: with the last ones of those before them where the length says that there are some.
            const auto left = n - column;
            if (left == 0) {
                continue;
            }
            if constexpr (Length > 4) {
                add<4 - Length % 4, 4>(sum, reader.template read<4>(row, Length - 4)...);
            } else if (left == 1) {
                add<0, 1>(sum, reader.template read<1>(row, column)...);
            } else if (left == 2) {
                add<0, 2>(sum, reader.template read<2>(row, column)...);
            } else {
                add<0, 3>(sum, reader.template read<3, readsOn>(row, column)...);
            }
        }
        return sum;
    }

    template <int from, int to, class... Columns>
    [[gnu::always_inline]] static void add(Group<T> &sum, const Columns &...columns) {
#pragma GCC unroll 4
        for (int i = from; i < to; ++i) {
            sum = sum + product(columns[i]...);
        }
    }
};

// All objects of a call. Out of line: one for each type and sum, not one for each member of a family.
template <class T, class Finish, std::size_t sources>
[[gnu::noinline]] LxpStatus sumProducts(bool parallel, bool isSplit, int count, int rows, int columns,
                                        const SumOperands<T, sources> &operands) {
    return overObjects(parallel, count, [&](int first, int objects) {
        using Sums = lxpm::Sums<T, Finish, sources>;
        (isSplit ? Sums::split : Sums::ascending)(operands.from(first), rows, columns, objects);
        return lxpStatusOk;
    });
}

} // namespace lxpm
