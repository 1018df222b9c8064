// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The first elements of one object after the other, for kernels whose objects take no longer than to find them would.

#include "runtime/addresses.h"

#include <cstddef>

namespace lxpm {

// How the operands of a call lead from object to object: all that have more than one object through a pointer to
// each; all by bytes; or every one in its own way, which needs more of the processor's registers.
enum class Walking { ThroughPointers, ByBytes, EitherWay };

template <class Element, Walking walking>
class ObjectWalk;

template <class Element>
class ObjectWalk<Element, Walking::ByBytes> {
public:
    explicit ObjectWalk(const Addresses<Element> &operand) : element(operand.at(0, 0, 0)), step(operand.step[0]) {}

    [[gnu::always_inline]] Element *object() const { return element; }
    [[gnu::always_inline]] void next() { element = shifted(element, step); }

private:
    Element *element;
    std::ptrdiff_t step;
};

// An operand without pointers gets one.
template <class Element>
class ObjectWalk<Element, Walking::ThroughPointers> {
public:
    explicit ObjectWalk(const Addresses<Element> &operand)
        : base(operand.base), pointer(operand.pointers != nullptr ? operand.pointers : &base),
          pointerStep(operand.pointerStep[0]), offset(operand.offset) {}
    ObjectWalk(const ObjectWalk &) = delete;
    ObjectWalk &operator=(const ObjectWalk &) = delete;

    // Of the object at which the walk stands. A pointer behind the last object's is never read.
    [[gnu::always_inline]] Element *object() const { return shifted(*pointer, offset); }
    [[gnu::always_inline]] void next() { pointer += pointerStep; }

private:
    Element *base;
    Element *const *pointer;
    std::ptrdiff_t pointerStep;
    std::ptrdiff_t offset;
};

template <class Element>
class ObjectWalk<Element, Walking::EitherWay> {
public:
    explicit ObjectWalk(const Addresses<Element> &operand) : throughPointers(operand), step(operand.step[0]) {}

    [[gnu::always_inline]] Element *object() const { return shifted(throughPointers.object(), bytes); }
    [[gnu::always_inline]] void next() {
        throughPointers.next();
        bytes += step;
    }

private:
    ObjectWalk<Element, Walking::ThroughPointers> throughPointers;
    std::ptrdiff_t step;
    std::ptrdiff_t bytes = 0;
};

} // namespace lxpm
