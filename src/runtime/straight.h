// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Pointers that stand evenly apart, as those into an array of structures do, are strides by another name: what they
// lead to can be read and written as in the strided layout.

#include "runtime/addresses.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace lxpm {

// The loops of a call in their natural order.
struct Extents {
    std::ptrdiff_t objects;
    std::ptrdiff_t rows;
    std::ptrdiff_t columns;
};

namespace detail {

// Between two pointers of a table, which may lead into different memory.
template <class Element>
std::ptrdiff_t distance(Element *from, Element *to) {
    return static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from));
}

// Whether each of n pointers leads so many bytes behind the one before it. Several are looked at before the answer is
// asked for: a branch for each of them would take longer than to add what most of them lead to.
template <class Element>
bool areApart(std::ptrdiff_t bytes, Element *const *pointer, std::ptrdiff_t pointerStep, std::ptrdiff_t n) {
    constexpr std::ptrdiff_t atOnce = 8;
    Element *last = *pointer;
    std::ptrdiff_t i = 1;
    for (; i + atOnce <= n; i += atOnce) {
        std::ptrdiff_t differences = 0;
#pragma GCC unroll 8
        for (int k = 0; k < atOnce; ++k) {
            pointer += pointerStep;
            differences |= distance(last, *pointer) ^ bytes;
            last = *pointer;
        }
        if (differences != 0) {
            return false;
        }
    }
    for (; i < n; ++i) {
        pointer += pointerStep;
        if (distance(last, *pointer) != bytes) {
            return false;
        }
        last = *pointer;
    }
    return true;
}

} // namespace detail

// An operand without its pointers, if they stand evenly apart; any other one comes back as it is. What there is one of
// only, rows or columns, takes the step that it would have if all elements touched.
template <class Element>
Addresses<Element> straightened(const Addresses<Element> &operand, const Extents &extents) {
    if (operand.pointers == nullptr) {
        return operand;
    }
    // Object pointers move in the outermost loop alone, element pointers in the other two.
    const bool leadToObjects = operand.pointerStep[0] != 0;
    const std::array<std::ptrdiff_t, 3> extent = {extents.objects, extents.rows, extents.columns};
    const int inner = leadToObjects ? 0 : 2;
    const std::ptrdiff_t lines = leadToObjects ? 1 : extents.rows;
    Steps step = operand.step;
    if (!leadToObjects) {
        step[2] = sizeof(Element);
        step[1] = extents.columns * step[2];
    }
    // Further apart than any stride leads, or backwards, they are left alone; so are a destination's that meet.
    constexpr std::ptrdiff_t closest = std::is_const_v<Element> ? 0 : sizeof(Element);
    constexpr std::ptrdiff_t furthest = std::numeric_limits<int>::max();
    for (const int loop : {inner, 1}) {
        if (operand.pointerStep[loop] != 0 && extent[loop] > 1) {
            step[loop] = detail::distance(operand.pointers[0], operand.pointers[operand.pointerStep[loop]]);
            if (step[loop] < closest || step[loop] > furthest) {
                return operand;
            }
        }
    }
    for (std::ptrdiff_t line = 0; line < lines; ++line) {
        Element *const *pointer = operand.pointers + line * operand.pointerStep[1];
        if ((line > 0 && detail::distance(operand.pointers[0], *pointer) != line * step[1]) ||
            !detail::areApart(step[inner], pointer, operand.pointerStep[inner], extent[inner])) {
            return operand;
        }
    }
    return Addresses<Element>::strided(shifted(operand.pointers[0], operand.offset), step);
}

// An operand without its element pointers if they stand evenly apart and nothing stands between touching elements that
// are read together: kernels read there, and it may be another's.
template <class Element>
Addresses<Element> withoutElementPointers(const Addresses<Element> &operand, std::ptrdiff_t rows,
                                          std::ptrdiff_t columns) {
    if (operand.movesByBytes()) {
        return operand;
    }
    const auto straight = straightened(operand, {1, rows, columns});
    const bool hasGaps = (straight.rowsTouch() && columns > 1 && straight.step[1] != columns * straight.step[2]) ||
                         (straight.transposed().rowsTouch() && rows > 1 && straight.step[2] != rows * straight.step[1]);
    return hasGaps ? operand : straight;
}

// Calls use(operands), or use(straight()) if `any` of them moves through element pointers, as then all of them do. Most
// are used as they stand: to copy them would take as long as to compute a small object.
template <class Operands, class Straight, class Use, class Element>
[[gnu::always_inline]] inline auto withStraight(const Operands &operands, const Addresses<Element> &any,
                                                const Straight &straight, const Use &use) {
    return any.movesByBytes() ? use(operands) : use(straight());
}

} // namespace lxpm
