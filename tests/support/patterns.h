// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// How the elements of an operand are spread in memory.

#ifndef LXPM_TESTS_SUPPORT_PATTERNS_H
#define LXPM_TESTS_SUPPORT_PATTERNS_H

#include <span>

namespace lxpm::test {

/// Byte distances between elements, rows and objects.
struct Strides {
    int element;
    int row;
    int object;
};

/// An array of objects as it is stored; all counted in elements of `size` bytes.
struct Extents {
    int rows;
    int columns;
    int count;
    int size;
};

struct Pattern {
    const char *name;
    Strides (*stridesOf)(const Extents &extents);
    bool objectsOverlap; // good for sources only: several threads write the objects of a destination in any order
    bool rowsOverlap;    // in a destination the last row wins

    bool isOneToOne() const { return !objectsOverlap && !rowsOverlap; }
};

/// Nothing between the elements: the plain C array.
extern const Pattern dense;

/// A leading dimension that is larger than the row: contiguous elements with something between the rows.
extern const Pattern paddedRows;

/// Every second element is used: the simplest pattern whose elements are not contiguous.
extern const Pattern gappedElements;

/// All of them, `dense` first.
std::span<const Pattern *const> allPatterns();

} // namespace lxpm::test

#endif
