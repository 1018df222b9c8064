// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Groups: as many objects of an array as a register has lanes, one object in each lane. Their elements are brought from
// memory into lanes and back, row by row. Rows whose elements touch are turned in registers, four elements of each
// object at a time; where the same element of successive objects touches, a register is loaded as it stands; anything
// else is picked one by one.
//
// Rows may be permuted, each object's by its own indices. Of a lower triangle, what stands above the diagonal is
// neither read through pointers nor written.

#include "runtime/addresses.h"
#include "runtime/lanes.h"

#include <cstddef>

namespace lxpm {

template <class T>
using Group = Lanes<T, fullLanes<T>>;

template <class T>
inline constexpr int groupSize = fullLanes<T>;

namespace detail {

enum class Access { RowsTouch, ObjectsTouch, OneByOne };

// An operand, its element pointers replaced by steps in bytes where they are as regular as those.
template <class Element>
struct GroupOperand {
    GroupOperand(const Addresses<Element> &operand, int height, int width);

    Addresses<Element> addresses;
    Access access;
    int rows;
    int columns;
    bool isDense; // the elements of an object stand in one row
};

extern template struct GroupOperand<const float>;
extern template struct GroupOperand<const double>;
extern template struct GroupOperand<float>;
extern template struct GroupOperand<double>;

} // namespace detail

template <class T>
class GroupSource {
public:
    // Objects of `rows` rows of `columns` elements.
    GroupSource(const Addresses<const T> &operand, int rows, int columns) : from(operand, rows, columns) {}

    // The objects from `object` on, row by row. RowOf: row i of lane l is row rowOf[l * rows + i] of its object.
    void load(std::ptrdiff_t object, Group<T> *to) const;
    void load(std::ptrdiff_t object, Group<T> *to, const int *rowOf) const;
    void loadLowerTriangle(std::ptrdiff_t object, Group<T> *to) const;

private:
    detail::GroupOperand<const T> from;
};

template <class T>
class GroupDestination {
public:
    GroupDestination(const Addresses<T> &operand, int rows, int columns) : to(operand, rows, columns) {}

    void store(std::ptrdiff_t object, const Group<T> *from) const;
    void store(std::ptrdiff_t object, const Group<T> *from, const int *rowOf) const;
    void storeLowerTriangle(std::ptrdiff_t object, const Group<T> *from) const;

private:
    detail::GroupOperand<T> to;
};

extern template class GroupSource<float>;
extern template class GroupSource<double>;
extern template class GroupDestination<float>;
extern template class GroupDestination<double>;

} // namespace lxpm
