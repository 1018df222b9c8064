// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernel of the element-wise families: dst(k, i, j) = f(src1(k, i, j), ...) over the objects, rows and columns of a
// call, in every layout, on one thread or on many. An element passes through the same function on every path, alone or
// as a lane, so all paths give the same bits.

#include "runtime/loops.h"
#include "runtime/nest.h"
#include "runtime/one_object.h"
#include "runtime/parallel.h"
#include "runtime/spreading.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace lxpm {

// Where the objects of an element-pointer layout stand apart, the runs of all their elements pass through the same
// cache lines. They are taken in pieces that leave these lines in the first cache.
template <class T, std::size_t sources>
bool isScattered(const Nest<T, sources> &nest) {
    const Addresses<T> &dst = nest.operand.dst;
    // Runs through pointers may be the rows of one object, which keep their order unless they are known to be apart.
    const bool mayBeCut = !nest.operand.movesThroughPointers(2) || (nest.isDisjoint && dst.pointerStep[1] == 0);
    return nest.operand.movesThroughPointers(1) && dst.step[2] != sizeof(T) && mayBeCut;
}

template <class T, class F, std::size_t sources>
void mapScattered(const F &f, Nest<T, sources> nest) {
    constexpr std::ptrdiff_t piece = 128;
    const std::ptrdiff_t n = nest.extent[2];
    for (std::ptrdiff_t done = 0; done < n; done += piece) {
        nest.extent[2] = std::min(piece, n - done);
        Loops<T, F, sources>::choose(nest)(f, nest);
        nest.advance(2, piece);
    }
}

// The objects of an array whose elements all touch make one long run, but not together with a single object that is
// used with each of them: there, each small object would end in scraps of registers. So the single object is written
// side by side until it fills whole registers, and used with that many objects at a time: all at once where there is a
// loop for so many registers, in which few of them stay loaded. Otherwise, and where results are streamed, the tile is
// made long and read again and again.
template <class T, std::size_t sources>
class Tiling {
public:
    static constexpr std::size_t none = sources;

    // The source that is to be tiled, or none.
    static std::size_t sourceOf(const Nest<T, sources> &nest) {
        const std::ptrdiff_t n = nest.extent[2];
        const std::ptrdiff_t objects = nest.extent[1];
        if (objects < enough || n > largestObject || nest.extent[0] != 1 || nest.operand.movesThroughPointers(1) ||
            !runsTouch(nest.operand.dst, n)) {
            return none;
        }
        std::size_t single = none;
        for (std::size_t s = 0; s < sources; ++s) {
            const auto &source = nest.operand.src[s];
            const bool isConstant = source.step[2] == 0 && source.step[1] == 0;
            if (runsTouch(source, n) || isConstant) {
                continue;
            }
            if (single != none || source.step[2] != sizeof(T) || source.step[1] != 0) {
                return none;
            }
            single = s;
        }
        return single;
    }

    template <class F>
    static void map(const F &f, Nest<T, sources> nest, std::size_t tiled) {
        using Loops = lxpm::Loops<T, F, sources>;
        const std::ptrdiff_t n = nest.extent[2];
        const std::ptrdiff_t objects = nest.extent[1];
        std::ptrdiff_t fewestObjects = fullLanes<T> / std::gcd(n, std::ptrdiff_t(fullLanes<T>));
        while (fewestObjects * n < fewestRegisters * fullLanes<T>) {
            fewestObjects *= 2;
        }
        const bool isStreamed = outgrowsCaches(objects * n * static_cast<std::ptrdiff_t>(sizeof(T)));
        const Loop<F> atOnce = isStreamed || !othersTouch(nest, tiled)
                                   ? nullptr
                                   : chooseAtOnce<F>(tiled, fewestObjects * n / fullLanes<T>);
        const std::ptrdiff_t objectsPerTile = atOnce != nullptr ? fewestObjects : longTile(n, fewestObjects);

        T tile[largestObject * fullLanes<T> + shortestTile];
        Addresses<const T> &source = nest.operand.src[tiled];
        const T *object = source.at(0, 0, 0);
        for (std::ptrdiff_t i = 0; i < objectsPerTile; ++i) {
            std::copy_n(object, n, tile + i * n);
        }
        nest.scaleSteps(1, objectsPerTile);
        source = Addresses<const T>::strided(tile, {0, 0, sizeof(T)});

        nest.extent = {1, objects / objectsPerTile, objectsPerTile * n};
        if (atOnce != nullptr) {
            atOnce(f, nest, tile);
        } else {
            Loops::choose(nest)(f, nest);
        }

        nest.advance(1, nest.extent[1]);
        nest.extent = {1, 1, objects % objectsPerTile * n};
        Loops::choose(nest)(f, nest);
    }

private:
    using L = Lanes<T, fullLanes<T>>;

    // The tiles that go at once: up to nine registers stay loaded, those of orders 8 and 5 are read.
    using Registers = std::integer_sequence<int, 4, 5, 6, 7, 8, 9, 16, 25>;
    static constexpr std::ptrdiff_t fewestRegisters = 4; // for a loop over them to pay
    static constexpr std::ptrdiff_t enough = 32;         // objects, for the tile to pay
    static constexpr std::ptrdiff_t largestObject = 64;  // elements; in larger ones the scraps do not matter
    static constexpr std::ptrdiff_t shortestTile = shortestStream / sizeof(T); // elements

    static bool othersTouch(const Nest<T, sources> &nest, std::size_t tiled) {
        bool all = true;
        for (std::size_t s = 0; s < sources; ++s) {
            all &= s == tiled || runsTouch(nest.operand.src[s], nest.extent[2]);
        }
        return all;
    }

    static std::ptrdiff_t longTile(std::ptrdiff_t n, std::ptrdiff_t fewestObjects) {
        const std::ptrdiff_t wanted = (shortestTile + n - 1) / n;
        return (wanted + fewestObjects - 1) / fewestObjects * fewestObjects;
    }

    template <class F>
    using Loop = void (*)(const F &, const Nest<T, sources> &, const T *);

    // The loop for a tile of so many registers in the place of one source, if there is one.
    template <class F>
    static Loop<F> chooseAtOnce(std::size_t tiled, std::ptrdiff_t registers) {
        Loop<F> loop = nullptr;
        [&]<std::size_t... s>(std::index_sequence<s...>) {
            ((s == tiled ? void(loop = chooseRegisters<F, s>(registers)) : void()), ...);
        }
        (std::make_index_sequence<sources>());
        return loop;
    }

    template <class F, std::size_t tiled>
    static Loop<F> chooseRegisters(std::ptrdiff_t registers) {
        return withKnown(Registers(), static_cast<int>(registers), [](auto known) -> Loop<F> {
            if constexpr (known != 0) {
                return overTiles<F, tiled, known>;
            } else {
                return nullptr;
            }
        });
    }

    template <class F, std::size_t tiled, int registers>
    static void overTiles(const F &function, const Nest<T, sources> &shared, const T *tile) {
        const Nest<T, sources> nest = shared;
        const F f = function;
        std::array<L, registers> loaded;
        for (int r = 0; r < registers; ++r) {
            loaded[r] = L::load(tile + r * fullLanes<T>);
        }
        [&]<std::size_t... s>(std::index_sequence<s...>) {
            T *dst = nest.operand.dst.at(0, 0, 0);
            std::array<const T *, sources> src = {nest.operand.src[s].at(0, 0, 0)...};
            for (std::ptrdiff_t i = 0; i < nest.extent[1]; ++i) {
#pragma GCC unroll 32
                for (int r = 0; r < registers; ++r) {
                    f((s == tiled ? loaded[r] : L::load(src[s] + r * fullLanes<T>))...).store(dst + r * fullLanes<T>);
                }
                dst += registers * fullLanes<T>;
                ((src[s] += s == tiled ? 0 : registers * fullLanes<T>), ...);
            }
        }
        (std::make_index_sequence<sources>());
    }
};

// The objects of one thread.
template <class T, class F, std::size_t sources>
void mapObjects(const F &f, const Extents &extents, const MapOperands<T, sources> &operands) {
    Nest<T, sources> nest(extents, operands);
    const bool isOneSmall = extents.objects == 1 && isSmall(extents.rows, extents.columns);
    if (isOneSmall || nest.isOneRun()) { // to arrange a few objects would take longer than to compute them
        isOneSmall ? void(nest.isDisjoint = false) : nest.makeOneRun();
        Loops<T, F, sources>::choose(nest)(f, nest);
        return;
    }
    nest.straighten();
    nest.arrange();
    if (isScattered(nest)) {
        mapScattered(f, nest);
    } else if (const std::size_t tiled = Tiling<T, sources>::sourceOf(nest); tiled != Tiling<T, sources>::none) {
        Tiling<T, sources>::map(f, nest, tiled);
    } else if (Spreading<T, F, sources>::accepts(nest)) {
        Spreading<T, F, sources>::map(f, nest);
    } else {
        Loops<T, F, sources>::choose(nest)(f, nest);
    }
}

// All objects of a call. Kept out of line: one for each function and type, not one for each member of a family.
template <class T, class F, std::size_t sources>
[[gnu::noinline]] LxpStatus mapElements(const F &f, bool parallel, int count, int rows, int columns,
                                        const MapOperands<T, sources> &operands) {
    return overObjects(parallel, count, [&](int first, int objects) {
        const Extents extents = {objects, rows, columns};
        withFrom(operands, first, [&](const MapOperands<T, sources> &later) { mapObjects(f, extents, later); });
        return lxpStatusOk;
    });
}

} // namespace lxpm
