// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/patterns.h"

namespace lxpm::test {

namespace {

Strides inElements(int element, int row, int object, int size) {
    return {element * size, row * size, object * size};
}

} // namespace

constexpr bool objectsOverlap = true;
constexpr bool rowsOverlap = true;

const Pattern dense = {
    "dense",
    [](const Extents &e) { return inElements(1, e.columns, e.rows * e.columns, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

const Pattern paddedRows = {
    "padded rows",
    [](const Extents &e) { return inElements(1, e.columns + 3, e.rows * (e.columns + 3), e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

const Pattern gappedElements = {
    "every second element",
    [](const Extents &e) { return inElements(2, 2 * e.columns, 2 * e.rows * e.columns, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

namespace {

// A record of which the object is one member: contiguous inside, apart outside.
const Pattern gappedObjects = {
    "gaps between objects",
    [](const Extents &e) { return inElements(1, e.columns, e.rows * e.columns + 5, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

// Three channels, rows and objects padded as well: no stride follows from another.
const Pattern widelyGapped = {
    "every third element, padded rows, gaps between objects",
    [](const Extents &e) { return inElements(3, 3 * e.columns + 2, e.rows * (3 * e.columns + 2) + 1, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

// The element stride is the larger one: a kernel that walks rows meets the longest steps.
const Pattern columnMajor = {
    "column-major",
    [](const Extents &e) { return inElements(e.rows, 1, e.rows * e.columns, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

const Pattern paddedColumns = {
    "column-major, padded columns",
    [](const Extents &e) { return inElements(e.rows + 3, 1, e.columns * (e.rows + 3) + 1, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

// The object stride is the smallest one: element (0, 0) of all objects first.
const Pattern structureOfArrays = {
    "structure of arrays",
    [](const Extents &e) { return inElements(e.count, e.columns * e.count, 1, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

// Objects side by side in one large matrix: the object stride lies between the others, rows are contiguous.
const Pattern sideBySide = {
    "objects side by side",
    [](const Extents &e) { return inElements(1, e.columns * e.count, e.columns, e.size); },
    !objectsOverlap,
    !rowsOverlap,
};

// The smallest row stride: each row starts at the second element of the one before (a Hankel matrix).
const Pattern overlappingRows = {
    "overlapping rows",
    [](const Extents &e) { return inElements(1, 1, e.rows + e.columns, e.size); },
    !objectsOverlap,
    rowsOverlap,
};

// The same with gaps between the elements: rows meet only at every second element.
const Pattern interlacedRows = {
    "interlaced rows",
    [](const Extents &e) { return inElements(2, 1, e.rows + 2 * e.columns, e.size); },
    !objectsOverlap,
    rowsOverlap,
};

// A window that moves on by one element from object to object.
const Pattern slidingObjects = {
    "objects overlapping by all but one element",
    [](const Extents &e) { return inElements(1, e.columns, 1, e.size); },
    objectsOverlap,
    !rowsOverlap,
};

constexpr const Pattern *patterns[] = {
    &dense,         &paddedRows,        &gappedObjects, &gappedElements,  &widelyGapped,   &columnMajor,
    &paddedColumns, &structureOfArrays, &sideBySide,    &overlappingRows, &interlacedRows, &slidingObjects,
};

} // namespace

std::span<const Pattern *const> allPatterns() {
    return patterns;
}

} // namespace lxpm::test
