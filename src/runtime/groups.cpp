// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/groups.h"

#include "runtime/straight.h"

#include <algorithm>
#include <array>

namespace lxpm {

namespace detail {

template <class Element>
GroupOperand<Element>::GroupOperand(const Addresses<Element> &operand, int height, int width)
    : addresses(operand.movesByBytes() ? operand : straightened(operand, {1, height, width})), rows(height),
      columns(width) {
    constexpr auto size = static_cast<std::ptrdiff_t>(sizeof(Element));
    if (columns == 1 && addresses.movesByBytes()) { // a column whose elements touch is a row
        addresses.step[2] = size;
    }
    access = addresses.rowsTouch()                                            ? Access::RowsTouch
             : addresses.objectsTouch()                                       ? Access::ObjectsTouch
             : addresses.movesByBytes() && addresses.transposed().rowsTouch() ? Access::ColumnsTouch
                                                                              : Access::OneByOne;
    isDense = access == Access::RowsTouch && (rows == 1 || addresses.step[1] == columns * size);
}

// Where rows or columns touch, a pointer leads to all objects or to each.
template <class Element>
bool GroupOperand<Element>::areAll(ObjectKind kind) const {
    switch (kind) {
    case ObjectKind::Follow:
        return isDense && addresses.pointers == nullptr &&
               addresses.step[0] == std::ptrdiff_t(sizeof(Element)) * columns * rows;
    case ObjectKind::Anywhere:
        return isDense;
    case ObjectKind::WithGaps:
        return access == Access::RowsTouch;
    case ObjectKind::ByColumns:
        return access == (rows > 1 && columns > 1 ? Access::ColumnsTouch : Access::RowsTouch);
    case ObjectKind::Interleaved:
        return access == Access::ObjectsTouch || (columns == 1 && addresses.objectsTouch());
    }
    return false;
}

template struct GroupOperand<const float>;
template struct GroupOperand<const double>;
template struct GroupOperand<float>;
template struct GroupOperand<double>;

} // namespace detail

namespace {

using detail::Access;
using detail::GroupOperand;
using detail::inLanes;
using detail::loadEights;
using detail::loadLength;
using detail::loadSome;
using detail::Pointers;
using detail::readableLengthOf;
using detail::storeEights;
using detail::storeLength;
using detail::storeSome;

// A row of each object, by eights, then by fours. The last of four or more elements go together with some that are done
// again.
template <class T>
[[gnu::always_inline]] inline void loadRow(const Pointers<const T> &from, int columns, Group<T> *to) {
    if (columns >= 4) {
        for (int j = loadEights<T>(from, columns, to); j < columns; j += 4) {
            loadSome<4, T>(from, std::min(j, columns - 4), to);
        }
    } else if (columns == 3) {
        loadSome<3, T>(from, 0, to);
    } else if (columns == 2) {
        loadSome<2, T>(from, 0, to);
    } else {
        loadSome<1, T>(from, 0, to);
    }
}

template <class T>
[[gnu::always_inline]] inline void storeRow(const Group<T> *from, int columns, const Pointers<T> &to) {
    if (columns >= 4) {
        for (int j = storeEights<T>(from, columns, to); j < columns; j += 4) {
            storeSome<4, T>(from, std::min(j, columns - 4), to);
        }
    } else if (columns == 3) {
        storeSome<3, T>(from, 0, to);
    } else if (columns == 2) {
        storeSome<2, T>(from, 0, to);
    } else {
        storeSome<1, T>(from, 0, to);
    }
}

// Where the elements of a group stand, of an operand that moves by bytes inside of objects.
template <class Element>
class Places {
public:
    [[gnu::always_inline]] Places(const Addresses<Element> &operand, std::ptrdiff_t object)
        : rowStep(operand.step[1]), columnStep(operand.step[2]), start(inLanes<Element>([&](std::ptrdiff_t lane) {
              Element *const base = operand.pointers != nullptr
                                        ? operand.pointers[(object + lane) * operand.pointerStep[0]]
                                        : operand.base;
              return shifted(base, operand.offset + (object + lane) * operand.step[0]);
          })) {}

    // Of element (i, j).
    [[gnu::always_inline]] Pointers<Element> at(std::ptrdiff_t i, std::ptrdiff_t j) const {
        const std::ptrdiff_t bytes = i * rowStep + j * columnStep;
        return inLanes<Element>([&](std::ptrdiff_t lane) { return shifted(start[lane], bytes); });
    }

    // Of another row in each object.
    [[gnu::always_inline]] Pointers<Element> atRow(const int *rowOf, std::ptrdiff_t rows, std::ptrdiff_t i,
                                                   std::ptrdiff_t j) const {
        return inLanes<Element>([&](std::ptrdiff_t lane) {
            return shifted(start[lane], rowOf[lane * rows + i] * rowStep + j * columnStep);
        });
    }

private:
    std::ptrdiff_t rowStep;
    std::ptrdiff_t columnStep;
    Pointers<Element> start;
};

// The same of an operand with a pointer to each element of an object.
template <class Element>
class PointedPlaces {
public:
    [[gnu::always_inline]] PointedPlaces(const Addresses<Element> &operand, std::ptrdiff_t object)
        : pointers(operand.pointers), pointerRow(operand.pointerStep[1]), pointerColumn(operand.pointerStep[2]),
          offset(operand.offset + object * operand.step[0]), step(operand.step[0]) {}

    [[gnu::always_inline]] Pointers<Element> at(std::ptrdiff_t i, std::ptrdiff_t j) const {
        Element *const first = shifted(pointers[i * pointerRow + j * pointerColumn], offset);
        return inLanes<Element>([&](std::ptrdiff_t lane) { return shifted(first, lane * step); });
    }

    [[gnu::always_inline]] Pointers<Element> atRow(const int *rowOf, std::ptrdiff_t rows, std::ptrdiff_t i,
                                                   std::ptrdiff_t j) const {
        return inLanes<Element>([&](std::ptrdiff_t lane) {
            return shifted(pointers[rowOf[lane * rows + i] * pointerRow + j * pointerColumn], offset + lane * step);
        });
    }

private:
    Element *const *pointers;
    std::ptrdiff_t pointerRow;
    std::ptrdiff_t pointerColumn;
    std::ptrdiff_t offset;
    std::ptrdiff_t step;
};

template <class T>
[[gnu::always_inline]] inline Group<T> gathered(const Pointers<const T> &from) {
    return Group<T>::of([&](auto lane) __attribute__((always_inline)) { return *from[lane]; });
}

template <class T>
[[gnu::always_inline]] inline void scatter(Group<T> group, const Pointers<T> &to) {
#pragma GCC unroll 8
    for (int lane = 0; lane < groupSize<T>; ++lane) {
        *to[lane] = group.vector[lane];
    }
}

// Calls f(element of the group, where it stands in each object).
template <Part part, bool byIndex, class Element, class F>
[[gnu::always_inline]] inline void forEachElement(const GroupOperand<Element> &operand, std::ptrdiff_t object, int rows,
                                                  int columns, const int *rowOf, const F &f) {
    const Addresses<Element> addresses = operand.addresses;
    const auto over = [&](const auto &places) __attribute__((always_inline)) {
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < lengthOf(part, i, columns); ++j) {
                f(i * columns + j, byIndex ? places.atRow(rowOf, rows, i, j) : places.at(i, j));
            }
        }
    };
    addresses.movesByBytes() ? over(Places<Element>(addresses, object))
                             : over(PointedPlaces<Element>(addresses, object));
}

// What has to be picked element by element. Functions of their own: known sizes would make them large, not fast.

template <Part part, bool byIndex, class T>
void pickGroup(const GroupOperand<const T> &from, std::ptrdiff_t object, Group<T> *to, const int *rowOf) {
    forEachElement<part, byIndex>(
        from, object, from.rows, from.columns,
        rowOf, [=](int element, const Pointers<const T> &places) __attribute__((always_inline)) {
            to[element] = gathered<T>(places);
        });
}

template <Part part, bool byIndex, class T>
void placeGroup(const GroupOperand<T> &to, std::ptrdiff_t object, const Group<T> *from, const int *rowOf) {
    forEachElement<part, byIndex>(
        to, object, to.rows, to.columns,
        rowOf, [=](int element, const Pointers<T> &places) __attribute__((always_inline)) {
            scatter<T>(from[element], places);
        });
}

// Rows, Columns: the sizes where they are known beforehand, else 0.
template <Part part, bool byIndex, int Rows, int Columns, class T>
void loadGroup(const GroupOperand<const T> &from, std::ptrdiff_t object, Group<T> *to, const int *rowOf) {
    constexpr bool isKnown = Rows != 0;
    const int rows = isKnown ? Rows : from.rows;
    const int columns = isKnown ? Columns : from.columns;
    constexpr bool isPermuted = byIndex && isKnown;
    if (from.access == Access::RowsTouch) {
        const Places<const T> places(from.addresses, object);
        if (from.isDense && !byIndex && (part == Part::Whole || rows <= 6)) {
            loadRow<T>(places.at(0, 0), rows * columns, to);
            return;
        }
        const auto rowOfObjects = [&](int i) __attribute__((always_inline)) {
            return byIndex ? places.atRow(rowOf, rows, i, 0) : places.at(i, 0);
        };
        if constexpr (isKnown) {
            forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
                loadLength<readableLengthOf(part, i, Columns), T>(rowOfObjects(i), to + i * Columns);
            });
            return;
        }
        for (int i = 0; i < rows; ++i) {
            loadRow<T>(rowOfObjects(i), readableLengthOf(part, i, columns), to + i * columns);
        }
    } else if (from.access == Access::ColumnsTouch && !byIndex) {
        const Places<const T> places(from.addresses, object);
        if constexpr (isKnown) {
            detail::loadColumns<Rows, Columns, T>(
                [&](int j) __attribute__((always_inline)) { return places.at(0, j); }, to);
            return;
        }
        Group<T> column[largestGroup];
        for (int j = 0; j < columns; ++j) {
            loadRow<T>(places.at(0, j), rows, column);
            for (int i = 0; i < rows; ++i) {
                to[i * columns + j] = column[i];
            }
        }
    } else if (from.access == Access::ObjectsTouch && !byIndex) {
        forEachElement<part, false>(
            from, object, rows, columns,
            nullptr, [=](int element, const Pointers<const T> &places) __attribute__((always_inline)) {
                to[element] = Group<T>::load(places[0]);
            });
    } else if (isPermuted && (from.access == Access::ColumnsTouch || from.access == Access::ObjectsTouch)) {
        if constexpr (isPermuted) {
            Group<T> elements[Rows * Columns];
            loadGroup<part, false, Rows, Columns, T>(from, object, elements, nullptr);
            takeRows<Rows, Columns, T>(detail::columnsOf<Rows, Columns, T>(elements), rowOf, to);
        }
    } else {
        pickGroup<part, byIndex, T>(from, object, to, rowOf);
    }
}

template <Part part, bool byIndex, int Rows, int Columns, class T>
void storeGroup(const GroupOperand<T> &to, std::ptrdiff_t object, const Group<T> *from, const int *rowOf) {
    constexpr bool isKnown = Rows != 0;
    const int rows = isKnown ? Rows : to.rows;
    const int columns = isKnown ? Columns : to.columns;
    if (to.access == Access::RowsTouch) {
        const Places<T> places(to.addresses, object);
        if (to.isDense && !byIndex && part == Part::Whole) {
            storeRow<T>(from, rows * columns, places.at(0, 0));
            return;
        }
        const auto rowOfObjects = [&](int i) __attribute__((always_inline)) {
            return byIndex ? places.atRow(rowOf, rows, i, 0) : places.at(i, 0);
        };
        if constexpr (isKnown) {
            forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
                storeLength<lengthOf(part, i, Columns), T>(from + i * Columns, rowOfObjects(i));
            });
            return;
        }
        for (int i = 0; i < rows; ++i) {
            storeRow<T>(from + i * columns, lengthOf(part, i, columns), rowOfObjects(i));
        }
    } else if (to.access == Access::ColumnsTouch && !byIndex) {
        const Places<T> places(to.addresses, object);
        if constexpr (isKnown) {
            detail::storeColumns<part, Rows, Columns, T>(
                from, [&](int i, int j) __attribute__((always_inline)) { return places.at(i, j); });
            return;
        }
        Group<T> column[largestGroup];
        for (int j = 0; j < columns; ++j) {
            const int first = part == Part::LowerTriangle ? j : 0;
            for (int i = first; i < rows; ++i) {
                column[i - first] = from[i * columns + j];
            }
            storeRow<T>(column, rows - first, places.at(first, j));
        }
    } else if (to.access == Access::ObjectsTouch && !byIndex) {
        forEachElement<part, false>(
            to, object, rows, columns,
            nullptr, [=](int element, const Pointers<T> &places) __attribute__((always_inline)) {
                from[element].store(places[0]);
            });
    } else {
        placeGroup<part, byIndex, T>(to, object, from, rowOf);
    }
}

} // namespace

template <class T>
template <int Rows, int Columns>
void GroupSource<T>::loadAny(std::ptrdiff_t object, Group<T> *to) const {
    loadGroup<Part::Whole, false, Rows, Columns, T>(from, object, to, nullptr);
}

template <class T>
template <int Rows, int Columns>
void GroupSource<T>::loadAny(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const {
    loadGroup<Part::Whole, true, Rows, Columns, T>(from, object, to, rowOf);
}

template <class T>
template <int Order>
void GroupSource<T>::loadAnyLowerTriangle(std::ptrdiff_t object, Group<T> *to) const {
    loadGroup<Part::LowerTriangle, false, Order, Order, T>(from, object, to, nullptr);
}

template <class T>
template <int Rows, int Columns>
void GroupDestination<T>::storeAny(std::ptrdiff_t object, const Group<T> *from) const {
    storeGroup<Part::Whole, false, Rows, Columns, T>(to, object, from, nullptr);
}

template <class T>
template <int Rows, int Columns>
void GroupDestination<T>::storeAny(std::ptrdiff_t object, const Group<T> *from, const int *rowOf) const {
    storeGroup<Part::Whole, true, Rows, Columns, T>(to, object, from, rowOf);
}

template <class T>
template <int Order>
void GroupDestination<T>::storeAnyLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const {
    storeGroup<Part::LowerTriangle, false, Order, Order, T>(to, object, from, nullptr);
}

// Matrices of an order, and vectors: as rows, and as columns whose elements are permuted.
#define INSTANTIATE_MATRICES(T, n)                                                                                     \
    template void GroupSource<T>::loadAny<n, n>(std::ptrdiff_t, Group<T> *) const;                                     \
    template void GroupSource<T>::loadAny<n, n>(std::ptrdiff_t, Group<T> *, const int *) const;                        \
    template void GroupSource<T>::loadAnyLowerTriangle<n>(std::ptrdiff_t, Group<T> *) const;                           \
    template void GroupDestination<T>::storeAny<n, n>(std::ptrdiff_t, const Group<T> *) const;                         \
    template void GroupDestination<T>::storeAny<n, n>(std::ptrdiff_t, const Group<T> *, const int *) const;            \
    template void GroupDestination<T>::storeAnyLowerTriangle<n>(std::ptrdiff_t, const Group<T> *) const;
#define INSTANTIATE_VECTORS(T, n)                                                                                      \
    template void GroupSource<T>::loadAny<1, n>(std::ptrdiff_t, Group<T> *) const;                                     \
    template void GroupSource<T>::loadAny<n, 1>(std::ptrdiff_t, Group<T> *, const int *) const;                        \
    template void GroupDestination<T>::storeAny<1, n>(std::ptrdiff_t, const Group<T> *) const;
#define INSTANTIATE_ORDER(T, n)                                                                                        \
    INSTANTIATE_MATRICES(T, n)                                                                                         \
    INSTANTIATE_VECTORS(T, n)
#define INSTANTIATE(T)                                                                                                 \
    INSTANTIATE_MATRICES(T, 0)                                                                                         \
    INSTANTIATE_MATRICES(T, 1)                                                                                         \
    INSTANTIATE_MATRICES(T, 2)                                                                                         \
    INSTANTIATE_ORDER(T, 3)                                                                                            \
    INSTANTIATE_ORDER(T, 4)                                                                                            \
    INSTANTIATE_ORDER(T, 5)                                                                                            \
    INSTANTIATE_ORDER(T, 6)
INSTANTIATE(float)
INSTANTIATE(double)

} // namespace lxpm
