// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The first elements of one object after the other, for kernels whose objects take no longer than to find them would.

#include "runtime/addresses.h"

#include <array>
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

// An operand without pointers has one in its base. The operand has to stay where it is as long as the walk goes on; a
// walk that kept the base itself would be kept in memory by the compiler, for the sake of the base's address.
template <class Element>
class ObjectWalk<Element, Walking::ThroughPointers> {
public:
    explicit ObjectWalk(const Addresses<Element> &operand)
        : pointer(operand.pointers != nullptr ? operand.pointers : &operand.base),
          pointerStep(operand.pointerStep[0] * static_cast<std::ptrdiff_t>(sizeof(Element *))), offset(operand.offset) {
    }
    explicit ObjectWalk(const Addresses<Element> &&) = delete;

    // Of the object at which the walk stands. A pointer behind the last object's is never read.
    [[gnu::always_inline]] Element *object() const { return shifted(*pointer, offset); }
    [[gnu::always_inline]] void next() { pointer = shifted(pointer, pointerStep); }

private:
    Element *const *pointer;
    std::ptrdiff_t pointerStep; // in bytes
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

// The first elements of the next few objects.
template <int number, class Element, Walking walking>
[[gnu::always_inline]] inline std::array<Element *, number> nextObjects(ObjectWalk<Element, walking> &walk) {
    std::array<Element *, number> objects;
    for (Element *&object : objects) {
        object = walk.object();
        walk.next();
    }
    return objects;
}

} // namespace lxpm
