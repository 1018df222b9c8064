// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Groups: as many objects of an array as a register has lanes, one object in each lane. Their elements are brought from
// memory into lanes and back, row by row. Rows or columns whose elements touch are turned in registers, four or eight
// elements of each object at a time, one or two that remain without; vectors of three that follow one another fill
// three registers; where the same element of successive objects touches, a register is loaded as it stands; anything
// else is picked one by one.
//
// Rows may be permuted, each object's by its own indices. Of a lower triangle, what stands above the diagonal is read
// only where it is memory between other elements of the object, not through pointers of its own, and never written.

#include "runtime/addresses.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/vector_groups.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <type_traits>

namespace lxpm {

// The order up to which a matrix is worth copying to the stack: in lanes, or where its rows do not touch.
inline constexpr int largestCopied = 16;

// The elements up to which an operand of a group of objects fits the stack and the first cache.
inline constexpr int largestGroup = largestCopied * largestCopied;

// The same of objects of known sizes.
inline constexpr int largestKnownGroup = 6 * 6;

// Whether all of a matrix takes part, or what stands above its diagonal is none of the operation's business.
enum class Part { Whole, LowerTriangle };

constexpr int lengthOf(Part part, int row, int columns) {
    return part == Part::LowerTriangle && row + 1 < columns ? row + 1 : columns;
}

namespace detail {

// Where a load by fours of a row may end without leaving it.
constexpr int readableLengthOf(Part part, int row, int columns) {
    return part == Part::Whole ? columns : std::min(columns, (row / 4 + 1) * 4);
}

enum class Access { RowsTouch, ColumnsTouch, ObjectsTouch, OneByOne };

// Kinds of objects: without gaps, the next one following without a gap, too, so that all are a known distance apart;
// without gaps, anywhere; with gaps between their rows; by columns, with gaps between them; the same element of
// successive objects touching, as in a structure of arrays. (Vectors, which a call has beside matrices of any kind, are
// by columns as well if their elements touch, or if they stand in a column.)
enum class ObjectKind { Follow, Anywhere, WithGaps, ByColumns, Interleaved };

constexpr bool isWithoutGaps(ObjectKind kind) {
    return kind == ObjectKind::Follow || kind == ObjectKind::Anywhere;
}

template <ObjectKind kind, int Columns>
inline constexpr bool goesByColumns = Columns > 1 && kind == ObjectKind::ByColumns;

// An operand, its element pointers replaced by steps in bytes where they are as regular as those.
template <class Element>
struct GroupOperand {
    GroupOperand(const Addresses<Element> &operand, int height, int width);

    Addresses<Element> addresses;
    Access access;
    int rows;
    int columns;
    bool isDense; // the elements of an object stand in one row

    // Whether all objects are of a kind.
    bool areAll(ObjectKind kind) const;
};

extern template struct GroupOperand<const float>;
extern template struct GroupOperand<const double>;
extern template struct GroupOperand<float>;
extern template struct GroupOperand<double>;

template <class Element>
using Pointers = std::array<Element *, fullLanes<std::remove_const_t<Element>>>;

// One for each lane: place(lane).
template <class Element, class Place>
[[gnu::always_inline]] inline Pointers<Element> inLanes(const Place &place) {
    Pointers<Element> pointers;
#pragma GCC unroll 8
    for (std::ptrdiff_t lane = 0; lane < static_cast<std::ptrdiff_t>(pointers.size()); ++lane) {
        pointers[lane] = place(lane);
    }
    return pointers;
}

template <class T>
[[gnu::always_inline]] inline void turn(std::array<Group<T>, 4> &rows) {
    if constexpr (groupSize<T> == 8) {
        transposeHalves(rows);
    } else {
        transpose(rows);
    }
}

// Two elements of each of four objects, and of eight: pairs of objects 0 and 1 (2 and 3) stand in the first half of a
// register.
using lxpm::loadPairs;
using lxpm::storePairs;

[[gnu::always_inline]] inline std::array<Group<float>, 2> loadPairs(const Pointers<const float> &from) {
    const auto pairs = [&](int object) __attribute__((always_inline)) {
        const auto two = [&](int first) __attribute__((always_inline)) {
            return _mm_loadh_pi(loadFirst<2>(from[first]).vector, reinterpret_cast<const __m64 *>(from[first + 1]));
        };
        return _mm256_set_m128(two(object + 4), two(object));
    };
    const __m256 first = pairs(0);  // 00 01 10 11 | 40 41 50 51
    const __m256 second = pairs(2); // 20 21 30 31 | 60 61 70 71
    return {{{_mm256_shuffle_ps(first, second, 0x88)}, {_mm256_shuffle_ps(first, second, 0xdd)}}};
}

[[gnu::always_inline]] inline void storePairs(const std::array<Group<float>, 2> &elements, const Pointers<float> &to) {
    const __m256 first = _mm256_unpacklo_ps(elements[0].vector, elements[1].vector);  // 00 01 10 11 | 40 41 50 51
    const __m256 second = _mm256_unpackhi_ps(elements[0].vector, elements[1].vector); // 20 21 30 31 | 60 61 70 71
    const auto two = [&](__m128 pairs, int object) __attribute__((always_inline)) {
        _mm_storel_pi(reinterpret_cast<__m64 *>(to[object]), pairs);
        _mm_storeh_pi(reinterpret_cast<__m64 *>(to[object + 1]), pairs);
    };
    two(_mm256_castps256_ps128(first), 0);
    two(_mm256_castps256_ps128(second), 2);
    two(_mm256_extractf128_ps(first, 1), 4);
    two(_mm256_extractf128_ps(second, 1), 6);
}

// K elements of each object, register by register: a copy of memory goes by halves of a register, and what reads whole
// ones would have to wait for it. One or two are brought together as they are read; more are turned.
template <int K, class T>
[[gnu::always_inline]] inline void loadSome(const Pointers<const T> &from, int first, Group<T> *to) {
    if constexpr (K == 1) {
        to[first] = Group<T>::of([&](auto lane) __attribute__((always_inline)) { return from[lane][first]; });
    } else if constexpr (K == 2) {
        const auto pairs = loadPairs(inLanes<const T>([&](std::ptrdiff_t lane) { return from[lane] + first; }));
        to[first].vector = pairs[0].vector;
        to[first + 1].vector = pairs[1].vector;
    } else {
        std::array<Group<T>, 4> rows;
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            if constexpr (groupSize<T> == 8 && K == 4) {
                rows[i] = loadHalves(from[i] + first, from[i + 4] + first);
            } else if constexpr (groupSize<T> == 8) {
                rows[i] = joined(loadFirst<K>(from[i] + first), loadFirst<K>(from[i + 4] + first));
            } else {
                rows[i] = loadFirst<K>(from[i] + first);
            }
        }
        turn<T>(rows);
        forEachOf<K>([&](auto i) __attribute__((always_inline)) { to[first + i].vector = rows[i].vector; });
    }
}

template <int K, class T>
[[gnu::always_inline]] inline void storeSome(const Group<T> *from, int first, const Pointers<T> &to) {
    if constexpr (K == 1) {
        const auto elements = from[first].vector;
        forEachOf<groupSize<T>>([&](auto lane)
                                    __attribute__((always_inline)) { to[lane][first] = elements[int(lane)]; });
    } else if constexpr (K == 2) {
        storePairs({from[first], from[first + 1]}, inLanes<T>([&](std::ptrdiff_t lane) { return to[lane] + first; }));
    } else {
        std::array<Group<T>, 4> rows;
        forEachOf<4>([&](auto i) __attribute__((always_inline)) {
            rows[i].vector = from[first + std::min<int>(i, K - 1)].vector;
        });
        turn<T>(rows);
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            if constexpr (groupSize<T> == 8) {
                storeFirst<K>(to[i] + first, lowHalf(rows[i]));
                storeFirst<K>(to[i + 4] + first, highHalf(rows[i]));
            } else {
                storeFirst<K>(to[i] + first, rows[i]);
            }
        }
    }
}

template <ObjectKind kind, int size, class Element>
[[gnu::always_inline]] inline Pointers<Element> pointersTo(const GroupOperand<Element> &operand,
                                                           std::ptrdiff_t object) {
    const Addresses<Element> &a = operand.addresses;
    if constexpr (kind == ObjectKind::Follow) {
        Element *const first = shifted(a.base, a.offset) + object * size;
        return inLanes<Element>([=](std::ptrdiff_t lane) { return first + lane * size; });
    }
    if (a.pointers != nullptr) {
        return inLanes<Element>([&](std::ptrdiff_t lane) { return shifted(a.pointers[object + lane], a.offset); });
    }
    const std::ptrdiff_t step = a.step[0];
    Element *const first = shifted(a.base, a.offset + object * step);
    return inLanes<Element>([=](std::ptrdiff_t lane) { return shifted(first, lane * step); });
}

// Eight elements of each object in fewer loads, and fewer stores, than by fours.
[[gnu::always_inline]] inline void loadEight(const Pointers<const float> &from, int first, Group<float> *to) {
    std::array<Group<float>, 4> low;
    std::array<Group<float>, 4> high;
    forEachOf<4>([&](auto i) __attribute__((always_inline)) {
        low[i].vector = Group<float>::load(from[i] + first).vector;
        high[i].vector = Group<float>::load(from[i + 4] + first).vector;
    });
    turn<float>(low);
    turn<float>(high);
    forEachOf<4>([&](auto i) __attribute__((always_inline)) {
        to[first + i].vector = halves<0, 2>(low[i], high[i]).vector;
        to[first + 4 + i].vector = halves<1, 3>(low[i], high[i]).vector;
    });
}

[[gnu::always_inline]] inline void storeEight(const Group<float> *from, int first, const Pointers<float> &to) {
    std::array<Group<float>, 4> left;
    std::array<Group<float>, 4> right;
    forEachOf<4>([&](auto i) __attribute__((always_inline)) {
        left[i].vector = from[first + i].vector;
        right[i].vector = from[first + 4 + i].vector;
    });
    turn<float>(left);
    turn<float>(right);
    forEachOf<4>([&](auto i) __attribute__((always_inline)) { halves<0, 2>(left[i], right[i]).store(to[i] + first); });
    forEachOf<4>([&](auto i)
                     __attribute__((always_inline)) { halves<1, 3>(left[i], right[i]).store(to[i + 4] + first); });
}

// Calls f(first) for as many elements of a row as go by eights. Returns their number.
template <class T, class F>
[[gnu::always_inline]] inline int overEights(int columns, const F &f) {
    int done = 0;
    if constexpr (groupSize<T> == 8) {
#pragma GCC unroll 8
        for (; done + 8 <= columns; done += 8) {
            f(done);
        }
    }
    return done;
}

template <class T>
[[gnu::always_inline]] inline int loadEights(const Pointers<const T> &from, int columns, Group<T> *to) {
    return overEights<T>(
        columns, [&](auto first) __attribute__((always_inline)) { loadEight(from, first, to); });
}

template <class T>
[[gnu::always_inline]] inline int storeEights(const Group<T> *from, int columns, const Pointers<T> &to) {
    return overEights<T>(
        columns, [&](auto first) __attribute__((always_inline)) { storeEight(from, first, to); });
}

// Calls fours(first) for what goes by fours of a row from element `first` on, then rest(count) for what remains.
template <int Length, class Fours, class Rest>
[[gnu::always_inline]] inline void overFours(int first, const Fours &fours, const Rest &rest) {
#pragma GCC unroll 16
    for (int j = first; j + 4 <= Length; j += 4) {
        fours(j);
    }
    if constexpr (Length % 4 != 0) {
        rest(std::integral_constant<int, Length % 4>());
    }
}

// A row of each object. Of more than four, three that remain go as four, together with one that is done again; so does
// a single one that is read, since what nobody asks for is not turned.
template <int Length, class T>
[[gnu::always_inline]] inline void loadLength(const Pointers<const T> &from, Group<T> *to) {
    overFours<Length>(
        loadEights<T>(from, Length, to), [&](int j) __attribute__((always_inline)) { loadSome<4, T>(from, j, to); },
        [&](auto count) __attribute__((always_inline)) {
            constexpr int K = Length > 4 && count != 2 ? 4 : count;
            loadSome<K, T>(from, Length - K, to);
        });
}

template <int Length, class T>
[[gnu::always_inline]] inline void storeLength(const Group<T> *from, const Pointers<T> &to) {
    overFours<Length>(
        storeEights<T>(from, Length, to), [&](int j) __attribute__((always_inline)) { storeSome<4, T>(from, j, to); },
        [&](auto count) __attribute__((always_inline)) {
            constexpr int K = Length > 4 && count == 3 ? 4 : count;
            storeSome<K, T>(from, Length - K, to);
        });
}

// What leads from row to row, in bytes.
template <ObjectKind kind, int Columns, class Element>
[[gnu::always_inline]] inline std::ptrdiff_t rowStepOf(const GroupOperand<Element> &operand) {
    return isWithoutGaps(kind) ? Columns * std::ptrdiff_t(sizeof(Element)) : operand.addresses.step[1];
}

// Row `line` of each object, or column, by its step; or the row that rowOf gives for it.
template <class Element>
[[gnu::always_inline]] inline Pointers<Element> lineOfObjects(const Pointers<Element> &objects, std::ptrdiff_t step,
                                                              std::ptrdiff_t line) {
    return inLanes<Element>([&](std::ptrdiff_t lane) { return shifted(objects[lane], line * step); });
}

// Where objects follow one another, one pointer is enough for all of them.
template <ObjectKind kind, int Rows, int size, class Element>
[[gnu::always_inline]] inline Pointers<Element> rowOfObjects(const Pointers<Element> &objects, std::ptrdiff_t step,
                                                             const int *rowOf, int row) {
    return inLanes<Element>([&](std::ptrdiff_t lane) {
        const std::ptrdiff_t offset = rowOf[lane * Rows + row] * step;
        return kind == ObjectKind::Follow ? shifted(objects[0], offset + lane * size * std::ptrdiff_t(sizeof(Element)))
                                          : shifted(objects[lane], offset);
    });
}

// Columns of each object, where they touch: column(j) leads to their elements.
template <int Rows, int Columns, class T, class Column>
[[gnu::always_inline]] inline void loadColumns(const Column &column, Group<T> *to) {
    forEachOf<Columns>([&](auto j) __attribute__((always_inline)) {
        Group<T> elements[Rows];
        loadLength<Rows, T>(column(j), elements);
        forEachOf<Rows>([&](auto i)
                            __attribute__((always_inline)) { to[i * Columns + j].vector = elements[i].vector; });
    });
}

// From the first row on that is part of it, column(i, j) leads to element (i, j).
template <Part part, int Rows, int Columns, class T, class Column>
[[gnu::always_inline]] inline void storeColumns(const Group<T> *from, const Column &column) {
    forEachOf<Columns>([&](auto j) __attribute__((always_inline)) {
        constexpr int first = part == Part::LowerTriangle ? j : 0;
        Group<T> elements[Rows];
        forEachOf<Rows - first>([&](auto i) __attribute__((always_inline)) {
            elements[i].vector = from[(first + i) * Columns + j].vector;
        });
        storeLength<Rows - first, T>(elements, column(first, j));
    });
}

// Calls f(element) for those that are part of the operation.
template <Part part, int Rows, int Columns, class F>
[[gnu::always_inline]] inline void overPart(const F &f) {
    forEachOf<Rows * Columns>([&](auto element) __attribute__((always_inline)) {
        if constexpr (element % Columns < lengthOf(part, element / Columns, Columns)) {
            f(element);
        }
    });
}

// To and from functions that take an address: a known number of elements goes by way of a copy, since what an address
// is taken of cannot stay in registers.
template <Part part, int Rows, int Columns, class T>
[[gnu::always_inline]] inline void copyElements(const Group<T> *from, Group<T> *to) {
    overPart<part, Rows, Columns>([&](auto element)
                                      __attribute__((always_inline)) { to[element].vector = from[element].vector; });
}

template <int Rows, int Columns, Part part = Part::Whole, class T, class Load>
[[gnu::always_inline]] inline void loadThrough(Group<T> *to, const Load &load) {
    if constexpr (Rows == 0) {
        load(to);
    } else {
        Group<T> elements[Rows * Columns];
        load(elements);
        copyElements<part, Rows, Columns>(elements, to);
    }
}

template <int Rows, int Columns, Part part = Part::Whole, class T, class Store>
[[gnu::always_inline]] inline void storeThrough(const Group<T> *from, const Store &store) {
    if constexpr (Rows == 0) {
        store(from);
    } else {
        Group<T> elements[Rows * Columns];
        copyElements<part, Rows, Columns>(from, elements);
        store(elements);
    }
}

} // namespace detail

// Rows in another order in each object: row i of them is row rowOf[i] of the result.
template <int Rows, int Columns, class L>
[[gnu::always_inline]] inline void putRows(const L *from, const L *rowOf, L *to) {
#pragma GCC unroll 8
    for (int i = 0; i < Rows; ++i) {
#pragma GCC unroll 8
        for (int j = 0; j < Columns; ++j) {
            to[i * Columns + j] = from[j];
        }
#pragma GCC unroll 8
        for (int k = 1; k < Rows; ++k) {
            const auto isMeant = isEqual(rowOf[k], constant<L>(i));
#pragma GCC unroll 8
            for (int j = 0; j < Columns; ++j) {
                to[i * Columns + j] = choose(isMeant, from[k * Columns + j], to[i * Columns + j]);
            }
        }
    }
}

namespace detail {

// Row numbers that stand object after object, in lanes, as bits of floats; those of four objects in both halves.
template <int Rows, class T>
[[gnu::always_inline]] inline std::array<Group<float>, Rows> numbersInLanes(const int *rowOf) {
    const float *const bits = reinterpret_cast<const float *>(rowOf);
    if constexpr (Rows == 3) {
        return turned(groupSize<T> == 8 ? loadTriples(bits)
                                        : Triples<float>{bothHalves(bits), bothHalves(bits + 4), bothHalves(bits + 8)});
    } else {
        std::array<Group<float>, Rows> numbers;
        loadLength<Rows, float>(
            inLanes<const float>([&](std::ptrdiff_t lane) { return bits + lane % groupSize<T> * Rows; }),
            numbers.data());
        return numbers;
    }
}

// Of the rows from `first` on, as many as `bits` bits tell apart, one for each lane: isSet[b] says where bit b of its
// number is.
template <int bits, int first, int Rows, class T>
[[gnu::always_inline]] inline Group<T> rowByBits(const Group<T> *rows, const MaskOf<Group<T>> *isSet) {
    if constexpr (bits == 0) {
        return rows[first];
    } else {
        constexpr int upper = first + (1 << (bits - 1));
        const Group<T> row = rowByBits<bits - 1, first, Rows, T>(rows, isSet);
        if constexpr (upper < Rows) {
            return choose(isSet[bits - 1], rowByBits<bits - 1, upper, Rows, T>(rows, isSet), row);
        }
        return row;
    }
}

} // namespace detail

// The other way round: row i of the result is row rowOf[i] of its object, numbers that stand object after object.
// loadColumn(j, elements) reads a column: one after the other, so that few registers have to hold them.
template <int Rows, int Columns, class T, class LoadColumn>
[[gnu::always_inline]] inline void takeRows(const LoadColumn &loadColumn, const int *rowOf, Group<T> *to) {
    constexpr int bits = std::max<int>(std::bit_width(static_cast<unsigned>(Rows - 1)), 1);
    const auto numbers = detail::numbersInLanes<Rows, T>(rowOf);
    MaskOf<Group<T>> isSet[Rows][bits];
    forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
        forEachOf<bits>([&](auto bit) __attribute__((always_inline)) {
            isSet[i][bit].bits = bitInLanes<bit, T>(numbers[i]).vector;
        });
    });
    forEachOf<Columns>([&](auto j) __attribute__((always_inline)) {
        Group<T> rows[Rows];
        loadColumn(j, rows);
        forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
            to[i * Columns + j].vector = detail::rowByBits<bits, 0, Rows, T>(rows, isSet[i]).vector;
        });
    });
}

namespace detail {

// Of what is in lanes.
template <int Rows, int Columns, class T>
[[gnu::always_inline]] inline auto columnsOf(const Group<T> *elements) {
    return [=](auto j, Group<T> *column) __attribute__((always_inline)) {
        forEachOf<Rows>([&](auto i)
                            __attribute__((always_inline)) { column[i].vector = elements[i * Columns + j].vector; });
    };
}

// Where the elements of object 0 stand, those of the next ones behind them.
template <class Element>
class InterleavedPlaces {
public:
    explicit InterleavedPlaces(const GroupOperand<Element> &operand) {
        for (int i = 0; i < operand.rows; ++i) {
            for (int j = 0; j < operand.columns; ++j) {
                places[i * operand.columns + j] = operand.addresses.at(0, i, j);
            }
        }
    }

    [[gnu::always_inline]] Element *at(std::ptrdiff_t object, int element) const { return places[element] + object; }

private:
    Element *places[largestKnownGroup];
};

// What is asked for the elements of objects of one kind.
template <ObjectKind kind, class Element>
using PlacesOf =
    std::conditional_t<kind == ObjectKind::Interleaved, InterleavedPlaces<Element>, const GroupOperand<Element> &>;

} // namespace detail

// How operands are read and written, object after object from `object` on, row by row.
//
//   Rows, Columns   the sizes where they are known beforehand, else 0
//   rowOf           row i of lane l is row rowOf[l * rows + i] of its object
//   rowOfInLanes    the same numbers, those of row i in a register

// Objects of one kind and known sizes.

template <class T, detail::ObjectKind kind>
class PlainGroupSource {
public:
    explicit PlainGroupSource(const detail::GroupOperand<const T> &operand) : from(operand) {}

    template <int Rows, int Columns>
    [[gnu::always_inline]] void load(std::ptrdiff_t object, Group<T> *to) const {
        loadPart<Part::Whole, Rows, Columns>(object, to);
    }

    template <int Rows, int Columns>
    [[gnu::always_inline]] void load(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const {
        // What stands in lanes already, the rows of three and columns are sooner exchanged than looked up, but not the
        // columns of four objects when a row's number has more than two bits.
        if constexpr (kind == detail::ObjectKind::Interleaved) {
            takeRows<Rows, Columns, T>(
                [&](auto j, Group<T> *column) __attribute__((always_inline)) {
                    forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
                        column[i].vector = Group<T>::load(from.at(object, i * Columns + j)).vector;
                    });
                },
                rowOf, to);
        } else if constexpr (detail::goesByColumns<kind, Columns> && Rows > 4 && groupSize<T> == 4) {
            const auto places = detail::pointersTo<kind, Rows * Columns>(from, object);
            forEachOf<Rows>([&](auto row) __attribute__((always_inline)) {
                const auto rows = detail::inLanes<const T>(
                    [&](std::ptrdiff_t lane) { return places[lane] + rowOf[lane * Rows + row]; });
                forEachOf<Columns>([&](auto column) __attribute__((always_inline)) {
                    const auto elements = detail::lineOfObjects(rows, from.addresses.step[2], column);
                    to[row * Columns + column] =
                        Group<T>::of([&](auto lane) __attribute__((always_inline)) { return *elements[lane]; });
                });
            });
        } else if constexpr (detail::goesByColumns<kind, Columns> && Rows != 3) {
            const auto places = detail::pointersTo<kind, Rows * Columns>(from, object);
            takeRows<Rows, Columns, T>(
                [&](auto j, Group<T> *column) __attribute__((always_inline)) {
                    detail::loadLength<Rows, T>(detail::lineOfObjects(places, from.addresses.step[2], j), column);
                },
                rowOf, to);
        } else if constexpr (Rows == 3) {
            Group<T> elements[Rows * Columns];
            load<Rows, Columns>(object, elements);
            takeRows<Rows, Columns, T>(detail::columnsOf<Rows, Columns, T>(elements), rowOf, to);
        } else {
            const auto places = detail::pointersTo<kind, Rows * Columns>(from, object);
            const std::ptrdiff_t step = detail::rowStepOf<kind, Columns>(from);
            forEachOf<Rows>([&](auto row) __attribute__((always_inline)) {
                detail::loadLength<Columns, T>(
                    detail::rowOfObjects<kind, Rows, Rows * Columns>(places, step, rowOf, row), to + row * Columns);
            });
        }
    }

    template <int Order>
    [[gnu::always_inline]] void loadLowerTriangle(std::ptrdiff_t object, Group<T> *to) const {
        loadPart<Part::LowerTriangle, Order, Order>(object, to);
    }

private:
    template <Part part, int Rows, int Columns>
    [[gnu::always_inline]] void loadPart(std::ptrdiff_t object, Group<T> *to) const {
        if constexpr (kind == detail::ObjectKind::Interleaved) {
            detail::overPart<part, Rows, Columns>([&](auto element) __attribute__((always_inline)) {
                to[element].vector = Group<T>::load(from.at(object, element)).vector;
            });
        } else {
            loadFrom<part, Rows, Columns>(detail::pointersTo<kind, Rows * Columns>(from, object), to);
        }
    }

    template <Part part, int Rows, int Columns>
    [[gnu::always_inline]] void loadFrom(const detail::Pointers<const T> &places, Group<T> *to) const {
        if constexpr (kind == detail::ObjectKind::Follow && Rows * Columns == 3) {
            const Triples<T> elements = turned(loadTriples(places[0]));
            forEachOf<3>([&](auto i) __attribute__((always_inline)) { to[i].vector = elements[i].vector; });
        } else if constexpr (Rows == 1 || detail::isWithoutGaps(kind)) {
            detail::loadLength<Rows * Columns, T>(places, to);
        } else if constexpr (detail::goesByColumns<kind, Columns>) {
            detail::loadColumns<Rows, Columns, T>(
                [&](int j)
                    __attribute__((always_inline)) { return detail::lineOfObjects(places, from.addresses.step[2], j); },
                to);
        } else {
            const std::ptrdiff_t step = detail::rowStepOf<kind, Columns>(from);
            forEachOf<Rows>([&](auto row) __attribute__((always_inline)) {
                detail::loadLength<detail::readableLengthOf(part, row, Columns), T>(
                    detail::lineOfObjects(places, step, row), to + row * Columns);
            });
        }
    }

    detail::PlacesOf<kind, const T> from;
};

template <class T, detail::ObjectKind kind>
class PlainGroupDestination {
public:
    explicit PlainGroupDestination(const detail::GroupOperand<T> &operand) : to(operand) {}

    template <int Rows, int Columns>
    [[gnu::always_inline]] void store(std::ptrdiff_t object, const Group<T> *from) const {
        storePart<Part::Whole, Rows, Columns>(object, from);
    }

    template <int Order>
    [[gnu::always_inline]] void store(std::ptrdiff_t object, const Group<T> *from, const int *rowOf,
                                      const Group<T> *rowOfInLanes) const {
        if constexpr (kind == detail::ObjectKind::ByColumns || kind == detail::ObjectKind::Interleaved) {
            Group<T> inPlace[Order * Order];
            putRows<Order, Order>(from, rowOfInLanes, inPlace);
            store<Order, Order>(object, inPlace);
        } else {
            const auto places = detail::pointersTo<kind, Order * Order>(to, object);
            const std::ptrdiff_t step = detail::rowStepOf<kind, Order>(to);
            forEachOf<Order>([&](auto row) __attribute__((always_inline)) {
                detail::storeLength<Order, T>(
                    from + row * Order, detail::rowOfObjects<kind, Order, Order * Order>(places, step, rowOf, row));
            });
        }
    }

    template <int Order>
    [[gnu::always_inline]] void storeLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const {
        storePart<Part::LowerTriangle, Order, Order>(object, from);
    }

private:
    template <Part part, int Rows, int Columns>
    [[gnu::always_inline]] void storePart(std::ptrdiff_t object, const Group<T> *from) const {
        if constexpr (kind == detail::ObjectKind::Interleaved) {
            detail::overPart<part, Rows, Columns>([&](auto element) __attribute__((always_inline)) {
                from[element].store(to.at(object, element));
            });
        } else {
            storeTo<part, Rows, Columns>(from, detail::pointersTo<kind, Rows * Columns>(to, object));
        }
    }

    template <Part part, int Rows, int Columns>
    [[gnu::always_inline]] void storeTo(const Group<T> *from, const detail::Pointers<T> &places) const {
        if constexpr (kind == detail::ObjectKind::Follow && Rows * Columns == 3) {
            writeTriples(places[0], Triples<T>{from[0], from[1], from[2]});
        } else if constexpr (part == Part::Whole && (Rows == 1 || detail::isWithoutGaps(kind))) {
            detail::storeLength<Rows * Columns, T>(from, places);
        } else if constexpr (detail::goesByColumns<kind, Columns>) {
            detail::storeColumns<part, Rows, Columns, T>(
                from, [&](std::ptrdiff_t i, int j) __attribute__((always_inline)) {
                    const auto column = detail::lineOfObjects(places, to.addresses.step[2], j);
                    return detail::inLanes<T>([&](std::ptrdiff_t lane) { return column[lane] + i; });
                });
        } else {
            const std::ptrdiff_t step = detail::rowStepOf<kind, Columns>(to);
            forEachOf<Rows>([&](auto row) __attribute__((always_inline)) {
                detail::storeLength<lengthOf(part, row, Columns), T>(from + row * Columns,
                                                                     detail::lineOfObjects(places, step, row));
            });
        }
    }

    detail::PlacesOf<kind, T> to;
};

// Any objects.

template <class T>
class GroupSource {
public:
    // Objects of `rows` rows of `columns` elements.
    GroupSource(const Addresses<const T> &operand, int rows, int columns) : from(operand, rows, columns) {}

    bool areAll(detail::ObjectKind kind) const { return from.areAll(kind); }
    template <detail::ObjectKind kind>
    PlainGroupSource<T, kind> plain() const {
        return PlainGroupSource<T, kind>(from);
    }

    template <int Rows, int Columns>
    [[gnu::always_inline]] void load(std::ptrdiff_t object, Group<T> *to) const {
        detail::loadThrough<Rows, Columns>(to, [&](Group<T> *elements) { loadAny<Rows, Columns>(object, elements); });
    }

    template <int Rows, int Columns>
    [[gnu::always_inline]] void load(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const {
        detail::loadThrough<Rows, Columns>(
            to, [&](Group<T> *elements) { loadAny<Rows, Rows != 0 ? Columns : 0>(object, elements, rowOf); });
    }

    template <int Order>
    [[gnu::always_inline]] void loadLowerTriangle(std::ptrdiff_t object, Group<T> *to) const {
        detail::loadThrough<Order, Order, Part::LowerTriangle>(
            to, [&](Group<T> *elements) { loadAnyLowerTriangle<Order>(object, elements); });
    }

private:
    template <int Rows, int Columns>
    void loadAny(std::ptrdiff_t object, Group<T> *to) const;
    template <int Rows, int Columns>
    void loadAny(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const;
    template <int Order>
    void loadAnyLowerTriangle(std::ptrdiff_t object, Group<T> *to) const;

    detail::GroupOperand<const T> from;
};

template <class T>
class GroupDestination {
public:
    GroupDestination(const Addresses<T> &operand, int rows, int columns) : to(operand, rows, columns) {}

    bool areAll(detail::ObjectKind kind) const { return to.areAll(kind); }
    template <detail::ObjectKind kind>
    PlainGroupDestination<T, kind> plain() const {
        return PlainGroupDestination<T, kind>(to);
    }

    template <int Rows, int Columns>
    [[gnu::always_inline]] void store(std::ptrdiff_t object, const Group<T> *from) const {
        detail::storeThrough<Rows, Columns>(
            from, [&](const Group<T> *elements) { storeAny<Rows, Columns>(object, elements); });
    }

    // Unless rows are written one by one anyway, they are exchanged in lanes.
    template <int Order>
    [[gnu::always_inline]] void store(std::ptrdiff_t object, const Group<T> *from, const int *rowOf,
                                      const Group<T> *rowOfInLanes) const {
        if constexpr (Order != 0) {
            if (to.access == detail::Access::ColumnsTouch || to.access == detail::Access::ObjectsTouch) {
                Group<T> inPlace[Order * Order];
                putRows<Order, Order>(from, rowOfInLanes, inPlace);
                store<Order, Order>(object, inPlace);
                return;
            }
        }
        detail::storeThrough<Order, Order>(
            from, [&](const Group<T> *elements) { storeAny<Order, Order>(object, elements, rowOf); });
    }

    template <int Order>
    [[gnu::always_inline]] void storeLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const {
        detail::storeThrough<Order, Order, Part::LowerTriangle>(
            from, [&](const Group<T> *elements) { storeAnyLowerTriangle<Order>(object, elements); });
    }

private:
    template <int Rows, int Columns>
    void storeAny(std::ptrdiff_t object, const Group<T> *from) const;
    template <int Rows, int Columns>
    void storeAny(std::ptrdiff_t object, const Group<T> *from, const int *rowOf) const;
    template <int Order>
    void storeAnyLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const;

    detail::GroupOperand<T> to;
};

// Calls f with the operands, of a known order (0: of none) as plain ones if all of them are of one kind. A kernel that
// serves all kinds would ask for every group, and keep its elements in memory, where their ways meet.
template <int Order, class F, class... Operands>
[[gnu::always_inline]] inline void withPlain(const F &f, const Operands &...operands) {
    using detail::ObjectKind;
    bool isDone = false;
    const auto tryKind = [&]<ObjectKind kind>(std::integral_constant<ObjectKind, kind>) __attribute__((always_inline)) {
        if (!isDone && (operands.areAll(kind) && ...)) {
            isDone = true;
            f(operands.template plain<kind>()...);
        }
    };
    if constexpr (Order != 0) {
        static_assert(Order * Order <= largestKnownGroup);
        tryKind(std::integral_constant<ObjectKind, ObjectKind::Follow>());
        tryKind(std::integral_constant<ObjectKind, ObjectKind::Anywhere>());
        tryKind(std::integral_constant<ObjectKind, ObjectKind::WithGaps>());
        tryKind(std::integral_constant<ObjectKind, ObjectKind::ByColumns>());
        tryKind(std::integral_constant<ObjectKind, ObjectKind::Interleaved>());
    }
    if (!isDone) {
        f(operands...);
    }
}

} // namespace lxpm
