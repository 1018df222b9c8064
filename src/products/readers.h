// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Groups: as many objects of an array as a register has lanes, one object in each lane. A reader brings columns of
// their elements into registers. How it does so depends on how the elements stand in memory:
//
//   Rows      the elements of a row touch: four of each object are loaded at once and turned in registers; vectors of
//             three that follow one another fill three registers (PointedRows: through a pointer to each object)
//   Objects   the same element of successive objects touches: a column is one load
//   Same      a single vector that is used with every object of the array, as a dense copy (SingleVector)
//   Apart     anything else: one by one
//
// The columns of one matrix are turned in the same way (TouchingColumns).
//
// Nothing behind the last element of an array is read.

#include "runtime/addresses.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/vector_groups.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lxpm {

enum class Reading { Rows, PointedRows, Objects, Same, Apart };

template <class T>
inline Reading readingOf(const Addresses<const T> &source) {
    const bool inRow = source.pointerStep[1] == 0 && source.pointerStep[2] == 0;
    if (source.pointerStep[0] == 0 && source.step[0] == 0) {
        return Reading::Same;
    }
    if (source.step[2] == sizeof(T) && inRow) {
        return source.pointerStep[0] == 0 ? Reading::Rows : Reading::PointedRows;
    }
    return source.objectsTouch() ? Reading::Objects : Reading::Apart;
}

// Whether four elements of a row of three may be read where another object follows: if that one is close behind, no
// page that might not be there stands between them.
template <class T>
inline bool mayReadOn(const Addresses<const T> &source) {
    return source.pointerStep[0] == 0 && source.step[0] <= smallestPage;
}

// Whether a row that another one follows may be read on behind its end: the rows stand one behind the other, so close
// that no page that might not be there stands between them. So may the last row be read from before its start.
inline bool mayReadOn(std::ptrdiff_t rowStep, std::ptrdiff_t rowSize) {
    return rowStep >= rowSize && rowStep <= smallestPage;
}

// Columns of a group, as many as are asked for, or what is to become columns.
template <class T>
using GroupColumns = std::array<Group<T>, 4>;

// The first `columns` elements of eight rows, four of which stand in a half. ReadsOn: there are four elements that may
// be read.
template <int columns, bool readsOn>
[[gnu::always_inline]] inline GroupColumns<float> loadRows(const std::array<const float *, 8> &row) {
    GroupColumns<float> rows;
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        if constexpr (columns == 4 || readsOn) {
            rows[i] = loadHalves(row[i], row[i + 4]);
        } else {
            rows[i] = joined(loadFirst<columns>(row[i]), loadFirst<columns>(row[i + 4]));
        }
    }
    return rows;
}

// The same of four rows, each in a register of its own, or two elements of two rows in each.
template <int columns, bool>
[[gnu::always_inline]] inline GroupColumns<double> loadRows(const std::array<const double *, 4> &row) {
    GroupColumns<double> rows = {};
    if constexpr (columns == 1) {
        rows[0] = {_mm256_setr_pd(*row[0], *row[1], *row[2], *row[3])};
    } else if constexpr (columns == 4) {
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            rows[i] = Group<double>::load(row[i]);
        }
    } else {
        // The second pair of three columns starts with the second column.
        rows[0] = loadHalves(row[0], row[2]);
        rows[1] = loadHalves(row[1], row[3]);
        if constexpr (columns > 2) {
            rows[2] = loadHalves(row[0] + columns - 2, row[2] + columns - 2);
            rows[3] = loadHalves(row[1] + columns - 2, row[3] + columns - 2);
        }
    }
    return rows;
}

// The same row as many times as it takes.
template <int columns, class T>
[[gnu::always_inline]] inline GroupColumns<T> loadSameRows(const T *row) {
    std::array<const T *, fullLanes<T>> rows;
    rows.fill(row);
    return loadRows<columns, false>(rows);
}

// Each of some columns, or of what is to become columns, times its factor.
template <int count, class T>
[[gnu::always_inline]] inline GroupColumns<T> multiplied(GroupColumns<T> columns, const GroupColumns<T> &factors) {
#pragma GCC unroll 4
    for (int i = 0; i < count; ++i) {
        columns[i] = columns[i] * factors[i];
    }
    return columns;
}

// The rows of two 3x3 matrices side by side, four elements of each: the last row comes with the element in front of it,
// the others with the one behind them, so that nothing behind the matrices is read.
[[gnu::always_inline]] inline std::array<Lanes<float, 8>, 3>
loadRowsOfThree(const std::array<const float *, 2> &matrices, std::ptrdiff_t rowStep) {
    const auto row = [&](std::ptrdiff_t bytes) __attribute__((always_inline)) {
        return loadHalves(shifted(matrices[0], bytes), shifted(matrices[1], bytes));
    };
    return {row(0), row(rowStep), row(2 * rowStep - static_cast<std::ptrdiff_t>(sizeof(float)))};
}

// The same rows without their neighbours: the fourth lane does what the third does, so that it raises no flag of its
// own. Opaque: Clang would leave it to chance, and with it what it raises.
[[gnu::always_inline]] inline std::array<Lanes<float, 8>, 3>
rowsOfThreeAlone(const std::array<Lanes<float, 8>, 3> &rows) {
    return {opaque(chosenInHalves<0, 1, 2, 2>(rows[0])), opaque(chosenInHalves<0, 1, 2, 2>(rows[1])),
            opaque(chosenInHalves<1, 2, 3, 3>(rows[2]))};
}

// Columns from what loadRows has loaded.
template <int columns>
[[gnu::always_inline]] inline GroupColumns<float> turned(GroupColumns<float> group) {
    transposeHalves(group);
    return group;
}

template <int columns>
[[gnu::always_inline]] inline GroupColumns<double> turned(GroupColumns<double> group) {
    if constexpr (columns == 4) {
        transpose(group);
    } else if constexpr (columns > 1) {
        transposeHalves(group[0], group[1]);
        if constexpr (columns == 3) {
            transposeHalves(group[2], group[3]);
            group[2] = group[3];
        }
    }
    return group;
}

// Columns of one matrix whose elements touch, as many as the lanes of some registers: side by side, but for the last
// register's, which start at column `last`. Four columns share a pointer: one for each of them would not stay in the
// processor's registers.
template <class T, std::size_t registers>
class TouchingColumns {
public:
    [[gnu::always_inline]] TouchingColumns(const T *first, std::ptrdiff_t columnStep, std::ptrdiff_t last)
        : step(columnStep), thrice(3 * columnStep) {
        for (std::size_t r = 0; r < registers; ++r) {
            const std::ptrdiff_t column = r + 1 < registers ? std::ptrdiff_t(r) * fullLanes<T> : last;
            for (std::size_t quad = 0; quad < quads; ++quad) {
                pointers[r][quad] = shifted(first, (column + 4 * std::ptrdiff_t(quad)) * step);
            }
        }
    }

    // The next elements of each column, as rows of each register.
    template <int elements>
    [[gnu::always_inline]] std::array<GroupColumns<T>, registers> next() {
        std::array<GroupColumns<T>, registers> rows = load<elements>();
        for (GroupColumns<T> &ofRegister : rows) {
            ofRegister = turned<elements>(ofRegister);
        }
        return rows;
    }

    // The same as they stand in memory.
    template <int elements>
    [[gnu::always_inline]] std::array<GroupColumns<T>, registers> load() {
        std::array<GroupColumns<T>, registers> columns;
#pragma GCC unroll 2
        for (std::size_t r = 0; r < registers; ++r) {
            std::array<const T *, fullLanes<T>> from;
#pragma GCC unroll 2
            for (std::size_t quad = 0; quad < quads; ++quad) {
                const T *&first = pointers[r][quad];
                from[4 * quad] = first;
                from[4 * quad + 1] = shifted(first, step);
                from[4 * quad + 2] = shifted(first, 2 * step);
                from[4 * quad + 3] = shifted(first, thrice);
                first += elements;
            }
            columns[r] = loadRows<elements, false>(from);
        }
        return columns;
    }

private:
    static constexpr std::size_t quads = fullLanes<T> / 4;

    std::ptrdiff_t step;
    std::ptrdiff_t thrice;
    std::array<std::array<const T *, quads>, registers> pointers;
};

template <class T, Reading reading, std::ptrdiff_t Step = 0>
class GroupReader;

// Step: bytes from object to object where they are known beforehand, else 0.
template <class T, std::ptrdiff_t Step>
class GroupReader<T, Reading::Rows, Step> {
public:
    GroupReader(const Addresses<const T> &source, std::ptrdiff_t first)
        : start(shifted(source.base, source.offset + first * source.step[0])), step(Step != 0 ? Step : source.step[0]),
          rowStep(source.step[1]) {}

    // Vectors that follow one another are loaded together: three registers hold them, and row and column are 0.
    template <int columns>
    static constexpr bool isWhole = columns == 3 && Step == 3 * sizeof(T);

    template <int columns, bool readsOn = false>
    [[gnu::always_inline]] GroupColumns<T> read(std::ptrdiff_t row, std::ptrdiff_t column) const {
        return turn<columns>(load<columns, readsOn>(row, column));
    }

    // As the elements stand in memory, and what becomes of that.
    template <int columns, bool readsOn = false>
    [[gnu::always_inline]] GroupColumns<T> load(std::ptrdiff_t row, std::ptrdiff_t column) const {
        if constexpr (isWhole<columns>) {
            const auto [first, second, third] = loadTriples(start);
            return {first, second, third};
        } else {
            return objects<columns, readsOn>(shifted(start, row * rowStep) + column,
                                             std::make_integer_sequence<int, groupSize<T>>());
        }
    }

    template <int columns>
    [[gnu::always_inline]] static GroupColumns<T> turn(const GroupColumns<T> &loaded) {
        if constexpr (isWhole<columns>) {
            const auto [x, y, z] = turned(Triples<T>{loaded[0], loaded[1], loaded[2]});
            return {x, y, z};
        } else {
            return turned<columns>(loaded);
        }
    }

private:
    template <int columns, bool readsOn, int... object>
    [[gnu::always_inline]] GroupColumns<T> objects(const T *first, std::integer_sequence<int, object...>) const {
        return loadRows<columns, readsOn>({shifted(first, object * step)...});
    }

    const T *start;
    std::ptrdiff_t step;
    std::ptrdiff_t rowStep;
};

template <class T>
class GroupReader<T, Reading::PointedRows, 0> {
public:
    GroupReader(const Addresses<const T> &source, std::ptrdiff_t first)
        : start(source.pointers + first), offset(source.offset), rowStep(source.step[1]) {}

    template <int>
    static constexpr bool isWhole = false;

    template <int columns, bool = false>
    [[gnu::always_inline]] GroupColumns<T> read(std::ptrdiff_t row, std::ptrdiff_t column) const {
        return turn<columns>(load<columns>(row, column));
    }

    template <int columns>
    [[gnu::always_inline]] GroupColumns<T> load(std::ptrdiff_t row, std::ptrdiff_t column) const {
        return objects<columns>(offset + row * rowStep + column * static_cast<std::ptrdiff_t>(sizeof(T)),
                                std::make_integer_sequence<int, groupSize<T>>());
    }

    template <int columns>
    [[gnu::always_inline]] static GroupColumns<T> turn(const GroupColumns<T> &loaded) {
        return turned<columns>(loaded);
    }

private:
    template <int columns, int... object>
    [[gnu::always_inline]] GroupColumns<T> objects(std::ptrdiff_t bytes, std::integer_sequence<int, object...>) const {
        return loadRows<columns, false>({shifted(start[object], bytes)...});
    }

    const T *const *start;
    std::ptrdiff_t offset;
    std::ptrdiff_t rowStep;
};

template <class T>
class GroupReader<T, Reading::Objects, 0> {
public:
    GroupReader(const Addresses<const T> &operand, std::ptrdiff_t firstObject) : source(operand), first(firstObject) {}

    template <int columns, bool = false>
    [[gnu::always_inline]] GroupColumns<T> read(std::ptrdiff_t row, std::ptrdiff_t column) const {
        GroupColumns<T> group;
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) {
            group[i] = Group<T>::load(source.at(first, row, column + i));
        }
        return group;
    }

private:
    const Addresses<const T> &source;
    std::ptrdiff_t first;
};

template <class T>
class GroupReader<T, Reading::Same, 0> {
public:
    GroupReader(const Addresses<const T> &source, std::ptrdiff_t) : first(source.base) {}

    template <int columns, bool = false>
    [[gnu::always_inline]] GroupColumns<T> read(std::ptrdiff_t, std::ptrdiff_t column) const {
        return splats(first + column, std::make_integer_sequence<int, columns>());
    }

    // As the rows of objects that this vector is multiplied with are loaded.
    template <int columns>
    [[gnu::always_inline]] GroupColumns<T> load(std::ptrdiff_t, std::ptrdiff_t column) const {
        return loadSameRows<columns>(first + column);
    }

private:
    template <int... column>
    [[gnu::always_inline]] static GroupColumns<T> splats(const T *from, std::integer_sequence<int, column...>) {
        return {broadcast(from + column)...};
    }

    const T *first;
};

// A single vector in the form in which Same reads it: a dense copy.
template <class T>
class SingleVector {
public:
    static constexpr int longest = 64;

    SingleVector(const Addresses<const T> &source, int length) {
        for (int i = 0; i < length; ++i) {
            copy[i] = *source.at(0, 0, i);
        }
    }

    Addresses<const T> addresses() const { return Addresses<const T>::strided(copy, {0, 0, sizeof(T)}); }

private:
    T copy[longest];
};

template <class T>
class GroupReader<T, Reading::Apart, 0> {
public:
    GroupReader(const Addresses<const T> &operand, std::ptrdiff_t firstObject) : source(operand), first(firstObject) {}

    template <int columns, bool = false>
    [[gnu::always_inline]] GroupColumns<T> read(std::ptrdiff_t row, std::ptrdiff_t column) const {
        GroupColumns<T> group;
#pragma GCC unroll 4
        for (int i = 0; i < columns; ++i) {
            group[i] = gathered(row, column + i, std::make_integer_sequence<int, groupSize<T>>());
        }
        return group;
    }

private:
    template <int... object>
    [[gnu::always_inline]] Group<T> gathered(std::ptrdiff_t row, std::ptrdiff_t column,
                                             std::integer_sequence<int, object...>) const {
        return {typename Group<T>::Vector{*source.at(first + object, row, column)...}};
    }

    const Addresses<const T> &source;
    std::ptrdiff_t first;
};

} // namespace lxpm
