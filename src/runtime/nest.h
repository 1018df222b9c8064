// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The loops over the objects, rows and columns of a call, nested as its memory likes best. An element of an
// element-wise operation depends on its sources alone, so the loops may be exchanged and merged.

#include "runtime/addresses.h"
#include "runtime/straight.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lxpm {

// The operands of an element-wise call, a destination and its sources.
template <class T, std::size_t sources>
struct MapOperands {
    Addresses<T> dst;
    std::array<Addresses<const T>, sources> src;

    // The same operands without what stands before element (row, column) of `object`.
    MapOperands from(std::ptrdiff_t object, std::ptrdiff_t row = 0, std::ptrdiff_t column = 0) const {
        MapOperands later = {dst.from(object, row, column), src};
        for (auto &source : later.src) {
            source = source.from(object, row, column);
        }
        return later;
    }

    bool movesThroughPointers(int loop) const {
        bool any = dst.pointerStep[loop] != 0;
        for (const auto &source : src) {
            any |= source.pointerStep[loop] != 0;
        }
        return any;
    }
};

// Whether runs of n elements that touch, in the innermost loop, follow one another in the middle one.
template <class Element>
inline bool runsTouch(const Addresses<Element> &operand, std::ptrdiff_t n) {
    return operand.step[2] == sizeof(Element) && operand.step[1] == n * operand.step[2];
}

// Whether no element that these loops lead to stands on another: each loop's steps lead beyond all that the loops
// closer together reach. Pointers are taken to lead apart.
inline bool areDisjoint(const Steps &step, const std::array<std::ptrdiff_t, 3> &extent) {
    std::array<std::pair<std::ptrdiff_t, std::ptrdiff_t>, 3> loops; // step, reach
    for (int loop = 0; loop < 3; ++loop) {
        loops[loop] = {step[loop], step[loop] * (extent[loop] - 1)};
    }
    for (const int at : {0, 1, 0}) {
        if (loops[at + 1].first < loops[at].first) {
            std::swap(loops[at], loops[at + 1]);
        }
    }
    const std::ptrdiff_t closest = loops[0].second;
    return (loops[1].second == 0 || loops[1].first > closest) &&
           (loops[2].second == 0 || loops[2].first > closest + loops[1].second);
}

// Three loops, the outermost first, and the operands with their steps in the same order. When arranged, the innermost
// loop moves by bytes alone if any does; loops that a call does not need take one step and stand outside.
template <class T, std::size_t sources>
struct Nest {
    std::array<std::ptrdiff_t, 3> extent;
    MapOperands<T, sources> operand;
    bool isDisjoint = true; // no element of the destination stands on another

    // In natural order.
    Nest(const Extents &loops, const MapOperands<T, sources> &operands)
        : extent{loops.objects, loops.rows, loops.columns}, operand(operands) {}

    // Whether all elements of every operand touch, one object after the other. In natural order.
    bool isOneRun() const {
        const std::ptrdiff_t row = extent[2] * std::ptrdiff_t(sizeof(T));
        const auto isRun = [&](const auto &o) { // the products overflow where the rows do not follow one another
            return o.pointers == nullptr && o.step[2] == sizeof(T) && (extent[1] == 1 || o.step[1] == row) &&
                   (extent[0] == 1 || o.step[0] == extent[1] * row);
        };
        bool areRuns = isRun(operand.dst);
        for (const auto &source : operand.src) {
            areRuns = areRuns && isRun(source);
        }
        return areRuns;
    }

    // If so, what arrange() would make of it.
    void makeOneRun() {
        extent = {1, 1, extent[0] * extent[1] * extent[2]};
        forEachOperand([](auto &o) { o.step[0] = o.step[1] = 0; });
    }

    // An operand whose pointers stand evenly apart is a strided one, and may be arranged as such. In natural order.
    void straighten() {
        const Extents extents = {extent[0], extent[1], extent[2]};
        forEachOperand([&](auto &o) { o = straightened(o, extents); });
    }

    // Nests the loops as the memory likes best.
    void arrange() {
        for (int loop = 0; loop < 3; ++loop) {
            if (extent[loop] == 1) {
                forEachOperand([loop](auto &o) { o.step[loop] = o.pointerStep[loop] = 0; });
            }
        }
        sort([](const Nest &nest, int loop) { return nest.rank(loop); });
        isDisjoint = areDisjoint(operand.dst.step, extent);
        // Innermost the loop in which the destination's elements stand closest. But where elements of the destination
        // stand on one another the order stays, so that the one written last is the last in natural order.
        if (isDisjoint) {
            sort([](const Nest &nest, int loop) { return nest.rank(loop) - nest.operand.dst.step[loop]; });
        }
        merge(2);
        merge(2);
        merge(1);
    }

    // Begins n steps of a loop later.
    void advance(int loop, std::ptrdiff_t n) {
        forEachOperand([=](auto &o) {
            o.offset += n * o.step[loop];
            if (o.pointers != nullptr) {
                o.pointers += n * o.pointerStep[loop];
            }
        });
    }

    // Takes n steps of a loop at a time.
    void scaleSteps(int loop, std::ptrdiff_t n) {
        forEachOperand([=](auto &o) { o.step[loop] *= n; });
    }

private:
    template <class F>
    void forEachOperand(const F &f) {
        f(operand.dst);
        for (auto &source : operand.src) {
            f(source);
        }
    }

    // Loops of a single step stand outermost, then those through pointers, then those by bytes.
    std::ptrdiff_t rank(int loop) const {
        constexpr std::ptrdiff_t beyondAnyStep = std::ptrdiff_t(1) << 40;
        return extent[loop] == 1 ? 0 : operand.movesThroughPointers(loop) ? beyondAnyStep : 3 * beyondAnyStep;
    }

    void exchange(int a, int b) {
        std::swap(extent[a], extent[b]);
        forEachOperand([a, b](auto &o) {
            std::swap(o.step[a], o.step[b]);
            std::swap(o.pointerStep[a], o.pointerStep[b]);
        });
    }

    // Three loops in the order of their keys, equal ones as they stand.
    template <class Key>
    void sort(const Key &key) {
        for (const int outer : {0, 1, 0}) {
            if (key(*this, outer + 1) < key(*this, outer)) {
                exchange(outer, outer + 1);
            }
        }
    }

    // A loop and the one outside of it become one where the outer goes on where the inner ends, for every operand.
    void merge(int inner) {
        const int outer = inner - 1;
        bool goesOn = extent[outer] > 1;
        forEachOperand([&](auto &o) {
            goesOn &= o.step[outer] == o.step[inner] * extent[inner] &&
                      o.pointerStep[outer] == o.pointerStep[inner] * extent[inner];
        });
        if (!goesOn) {
            return;
        }
        extent[inner] *= extent[outer];
        extent[outer] = 1;
        forEachOperand([outer](auto &o) { o.step[outer] = o.pointerStep[outer] = 0; });
        if (outer == 1) {
            exchange(0, 1);
        }
    }
};

} // namespace lxpm
