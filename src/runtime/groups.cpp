// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/groups.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace lxpm {

namespace detail {

// The distance between two pointers of a table, which may lead into different memory.
template <class Element>
std::ptrdiff_t distance(Element *from, Element *to) {
    return static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from));
}

// Element pointers at regular steps, ascending, are strides by another name. Any other operand comes back as it is.
template <class Element>
Addresses<Element> withoutElementPointers(const Addresses<Element> &operand, int rows, int columns) {
    if (operand.movesByBytes()) {
        return operand;
    }
    const auto pointer = [&](std::ptrdiff_t i, std::ptrdiff_t j) {
        return operand.pointers[i * operand.pointerStep[1] + j * operand.pointerStep[2]];
    };
    Element *const first = pointer(0, 0);
    const std::ptrdiff_t rowStep =
        rows > 1 ? distance(first, pointer(1, 0)) : columns * std::ptrdiff_t(sizeof(Element));
    const std::ptrdiff_t columnStep = columns > 1 ? distance(first, pointer(0, 1)) : std::ptrdiff_t(sizeof(Element));
    bool isRegular = rowStep > 0 && columnStep > 0;
    for (std::ptrdiff_t i = 0; i < rows && isRegular; ++i) {
        for (std::ptrdiff_t j = 0; j < columns; ++j) {
            isRegular &= distance(first, pointer(i, j)) == i * rowStep + j * columnStep;
        }
    }
    if (!isRegular) {
        return operand;
    }
    return Addresses<Element>::strided(shifted(first, operand.offset), {operand.step[0], rowStep, columnStep});
}

template <class Element>
GroupOperand<Element>::GroupOperand(const Addresses<Element> &operand, int height, int width)
    : addresses(withoutElementPointers(operand, height, width)), rows(height), columns(width) {
    constexpr auto size = static_cast<std::ptrdiff_t>(sizeof(Element));
    if (columns == 1 && addresses.movesByBytes()) { // a column whose elements touch is a row
        addresses.step[2] = size;
    }
    access = addresses.rowsTouch()                                        ? Access::RowsTouch
             : addresses.step[0] == size && addresses.pointerStep[0] == 0 ? Access::ObjectsTouch
                                                                          : Access::OneByOne;
    isDense = access == Access::RowsTouch && (rows == 1 || addresses.step[1] == columns * size);
    isPlain = isDense && (addresses.pointers == nullptr || addresses.pointerStep == Steps{1, 0, 0});
}

template struct GroupOperand<const float>;
template struct GroupOperand<const double>;
template struct GroupOperand<float>;
template struct GroupOperand<double>;

} // namespace detail

namespace {

using detail::Access;

using detail::loadSome;
using detail::Pointers;
using detail::storeSome;

// A row of each object, by fours. The last of four or more elements go together with some that are done again.
template <class T>
[[gnu::always_inline]] inline void loadRow(const Pointers<const T> &from, int columns, Group<T> *to) {
    if (columns >= 4) {
        int j = 0;
        for (; j + 4 <= columns; j += 4) {
            loadSome<4, T>(from, j, to);
        }
        if (j < columns) {
            loadSome<4, T>(from, columns - 4, to);
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
        int j = 0;
        for (; j + 4 <= columns; j += 4) {
            storeSome<4, T>(from, j, to);
        }
        if (j < columns) {
            storeSome<4, T>(from, columns - 4, to);
        }
    } else if (columns == 3) {
        storeSome<3, T>(from, 0, to);
    } else if (columns == 2) {
        storeSome<2, T>(from, 0, to);
    } else {
        storeSome<1, T>(from, 0, to);
    }
}

// Where the objects of a group, their rows and their elements start. Of an operand that moves by bytes; or, where a row
// has element pointers of its own, of one that does so from object to object.
template <class Element>
class Places {
public:
    Places(const detail::GroupOperand<Element> &operand, std::ptrdiff_t object)
        : pointers(operand.addresses.movesByBytes() ? nullptr : operand.addresses.pointers),
          pointerRow(operand.addresses.pointerStep[1]), pointerColumn(operand.addresses.pointerStep[2]),
          rowStep(operand.addresses.step[1]), columnStep(operand.addresses.step[2]), rows(operand.rows) {
        const Addresses<Element> &a = operand.addresses;
        const std::ptrdiff_t step = a.step[0];
        std::ptrdiff_t bytes = a.offset + object * step;
        for (int lane = 0; lane < lanes; ++lane) {
            offset[lane] = bytes;
            bytes += step;
        }
        if (pointers != nullptr) {
            return;
        }
        for (int lane = 0; lane < lanes; ++lane) {
            start[lane] =
                shifted(a.pointers != nullptr ? a.pointers[(object + lane) * a.pointerStep[0]] : a.base, offset[lane]);
        }
    }

    bool movesByBytes() const { return pointers == nullptr; }

    Pointers<Element> row(std::ptrdiff_t i) const {
        Pointers<Element> to = {};
        if (!movesByBytes()) {
            return to;
        }
        for (int lane = 0; lane < lanes; ++lane) {
            to[lane] = shifted(start[lane], i * rowStep);
        }
        return to;
    }

    Pointers<Element> row(std::ptrdiff_t i, const int *rowOf) const {
        Pointers<Element> to = {};
        if (!movesByBytes()) {
            return to;
        }
        for (std::ptrdiff_t lane = 0; lane < lanes; ++lane) {
            to[lane] = shifted(start[lane], rowOf[lane * rows + i] * rowStep);
        }
        return to;
    }

    Element *element(int lane, std::ptrdiff_t i, std::ptrdiff_t j) const {
        return pointers != nullptr ? shifted(pointers[i * pointerRow + j * pointerColumn], offset[lane])
                                   : shifted(start[lane], i * rowStep + j * columnStep);
    }

private:
    static constexpr int lanes = fullLanes<std::remove_const_t<Element>>;

    Element *const *pointers;
    std::ptrdiff_t pointerRow;
    std::ptrdiff_t pointerColumn;
    std::ptrdiff_t rowStep;
    std::ptrdiff_t columnStep;
    std::ptrdiff_t rows;
    std::array<std::ptrdiff_t, lanes> offset;
    Pointers<Element> start;
};

// Where a load by fours of a row may end without leaving it.
constexpr int readableLengthOf(Part part, int row, int columns) {
    return part == Part::Whole ? columns : std::min(columns, (row / 4 + 1) * 4);
}

template <Part part, bool byIndex, class T>
void loadGroup(const detail::GroupOperand<const T> &from, std::ptrdiff_t object, Group<T> *to, const int *rowOf) {
    const int rows = from.rows;
    const int columns = from.columns;
    const Places<const T> source(from, object);
    if (from.access == Access::RowsTouch) {
        if (from.isDense && !byIndex && (part == Part::Whole || rows <= 6)) {
            loadRow<T>(source.row(0), rows * columns, to);
            return;
        }
        for (int i = 0; i < rows; ++i) {
            loadRow<T>(byIndex ? source.row(i, rowOf) : source.row(i), readableLengthOf(part, i, columns),
                       to + i * columns);
        }
        return;
    }
    if (from.access == Access::ObjectsTouch && !byIndex) {
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < lengthOf(part, i, columns); ++j) {
                to[i * columns + j] = Group<T>::load(source.element(0, i, j));
            }
        }
        return;
    }
    const auto rowOfLane = [&](int lane, int i) { return byIndex ? rowOf[lane * rows + i] : i; };
    const auto gather = [&](const auto &element) __attribute__((always_inline)) {
        return [&]<int... lane>(std::integer_sequence<int, lane...>) __attribute__((always_inline)) {
            return Group<T>{typename Group<T>::Vector{*element(lane)...}};
        }
        (std::make_integer_sequence<int, groupSize<T>>());
    };
    for (int i = 0; i < rows; ++i) {
        const Pointers<const T> row = byIndex ? source.row(i, rowOf) : source.row(i);
        for (int j = 0; j < lengthOf(part, i, columns); ++j) {
            Group<T> &element = to[i * columns + j];
            if (source.movesByBytes()) {
                const std::ptrdiff_t bytes = j * from.addresses.step[2];
                element = gather([&](int lane) __attribute__((always_inline)) { return shifted(row[lane], bytes); });
            } else {
                element = gather([&](int lane) __attribute__((always_inline)) {
                    return source.element(lane, rowOfLane(lane, i), j);
                });
            }
        }
    }
}

template <Part part, bool byIndex, class T>
void storeGroup(const detail::GroupOperand<T> &to, std::ptrdiff_t object, const Group<T> *from, const int *rowOf) {
    const int rows = to.rows;
    const int columns = to.columns;
    const Places<T> destination(to, object);
    if (to.access == Access::RowsTouch) {
        if (to.isDense && !byIndex && part == Part::Whole) {
            storeRow<T>(from, rows * columns, destination.row(0));
            return;
        }
        for (int i = 0; i < rows; ++i) {
            storeRow<T>(from + i * columns, lengthOf(part, i, columns),
                        byIndex ? destination.row(i, rowOf) : destination.row(i));
        }
        return;
    }
    if (to.access == Access::ObjectsTouch && !byIndex) {
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < lengthOf(part, i, columns); ++j) {
                from[i * columns + j].store(destination.element(0, i, j));
            }
        }
        return;
    }
    for (int i = 0; i < rows; ++i) {
        const Pointers<T> row = byIndex ? destination.row(i, rowOf) : destination.row(i);
        for (int j = 0; j < lengthOf(part, i, columns); ++j) {
            std::array<T, groupSize<T>> elements;
            from[i * columns + j].store(elements.data());
            const std::ptrdiff_t bytes = j * to.addresses.step[2];
#pragma GCC unroll 8
            for (int lane = 0; lane < groupSize<T>; ++lane) {
                *(destination.movesByBytes() ? shifted(row[lane], bytes)
                                             : destination.element(lane, byIndex ? rowOf[lane * rows + i] : i, j)) =
                    elements[lane];
            }
        }
    }
}

} // namespace

template <class T>
void GroupSource<T>::loadAny(std::ptrdiff_t object, Group<T> *to) const {
    loadGroup<Part::Whole, false>(from, object, to, nullptr);
}

template <class T>
void GroupSource<T>::loadAny(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const {
    loadGroup<Part::Whole, true>(from, object, to, rowOf);
}

template <class T>
void GroupSource<T>::loadAnyLowerTriangle(std::ptrdiff_t object, Group<T> *to) const {
    loadGroup<Part::LowerTriangle, false>(from, object, to, nullptr);
}

template <class T>
void GroupDestination<T>::storeAny(std::ptrdiff_t object, const Group<T> *from) const {
    storeGroup<Part::Whole, false>(to, object, from, nullptr);
}

template <class T>
void GroupDestination<T>::storeAny(std::ptrdiff_t object, const Group<T> *from, const int *rowOf) const {
    storeGroup<Part::Whole, true>(to, object, from, rowOf);
}

template <class T>
void GroupDestination<T>::storeAnyLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const {
    storeGroup<Part::LowerTriangle, false>(to, object, from, nullptr);
}

template class GroupSource<float>;
template class GroupSource<double>;
template class GroupDestination<float>;
template class GroupDestination<double>;

} // namespace lxpm
