// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Where the elements of an operand stand, in one form for all layouts:
//
//   element (i, j) of object k   pointers[k * p0 + i * p1 + j * p2] + offset + k * s0 + i * s1 + j * s2
//
// with p in pointers and s in bytes. The strided layout has a single pointer and moves by bytes alone; object pointers
// move through the pointers from object to object, element pointers from row to row and column to column. A vector is
// a matrix of one row, a constant a matrix of one element, a single object an array whose objects stand in one place.
// Distances are 64 bits wide.

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace lxpm {

// The element that stands `bytes` behind `element`.
template <class Element>
inline Element *shifted(Element *element, std::ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<Element>, const char, char>;
    return reinterpret_cast<Element *>(reinterpret_cast<Byte *>(element) + bytes);
}

// Distances from object to object, from row to row and from column to column.
using Steps = std::array<std::ptrdiff_t, 3>;

template <class Element>
class Addresses {
public:
    static Addresses strided(Element *base, const Steps &step) { return {nullptr, base, 0, {0, 0, 0}, step}; }
    static Addresses pointed(Element *const *pointers, std::ptrdiff_t offset, const Steps &pointerStep,
                             const Steps &step) {
        return {pointers, nullptr, offset, pointerStep, step};
    }

    // Number by number: what was just written in that way would be slow to be read back by whole registers.
    Addresses(const Addresses &other)
        : pointers(other.pointers), base(other.base),
          offset(other.offset), pointerStep{other.pointerStep[0], other.pointerStep[1], other.pointerStep[2]},
          step{other.step[0], other.step[1], other.step[2]} {}
    Addresses &operator=(const Addresses &other) {
        pointers = other.pointers;
        base = other.base;
        offset = other.offset;
        pointerStep = {other.pointerStep[0], other.pointerStep[1], other.pointerStep[2]};
        step = {other.step[0], other.step[1], other.step[2]};
        return *this;
    }

    // The same operand without what stands before element (row, column) of `object`.
    [[gnu::always_inline]] Addresses from(std::ptrdiff_t object, std::ptrdiff_t row = 0,
                                          std::ptrdiff_t column = 0) const {
        Addresses later = *this;
        if (pointers != nullptr) {
            later.pointers += object * pointerStep[0] + row * pointerStep[1] + column * pointerStep[2];
        }
        later.offset += object * step[0] + row * step[1] + column * step[2];
        return later;
    }

    // The same elements with rows and columns exchanged.
    Addresses transposed() const {
        Addresses other = *this;
        std::swap(other.step[1], other.step[2]);
        std::swap(other.pointerStep[1], other.pointerStep[2]);
        return other;
    }

    // One object, used with every object of the other operands.
    bool isSingle() const { return step[0] == 0 && pointerStep[0] == 0; }

    // Whether the elements of an object stand at byte distances from its first one.
    bool movesByBytes() const { return pointerStep[1] == 0 && pointerStep[2] == 0; }

    // Whether the elements of a row touch.
    bool rowsTouch() const { return pointerStep[2] == 0 && step[2] == static_cast<std::ptrdiff_t>(sizeof(Element)); }

    // Whether the same element of successive objects touches, as in a structure of arrays.
    bool objectsTouch() const { return pointerStep[0] == 0 && step[0] == static_cast<std::ptrdiff_t>(sizeof(Element)); }

    [[gnu::always_inline]] Element *at(std::ptrdiff_t object, std::ptrdiff_t row, std::ptrdiff_t column) const {
        const std::ptrdiff_t pointer = object * pointerStep[0] + row * pointerStep[1] + column * pointerStep[2];
        return shifted(pointers != nullptr ? pointers[pointer] : base,
                       offset + object * step[0] + row * step[1] + column * step[2]);
    }

    Element *const *pointers; // null: base is the only one
    Element *base;
    std::ptrdiff_t offset;
    Steps pointerStep;
    Steps step;

private:
    Addresses(Element *const *table, Element *single, std::ptrdiff_t bytes, const Steps &pointerSteps,
              const Steps &steps)
        : pointers(table), base(single), offset(bytes), pointerStep(pointerSteps), step(steps) {}
};

} // namespace lxpm
