// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Transposition of the matrices of a call. Matrices whose rows touch in both operands go through registers: squares
// up to order 16 and what is too narrow for the blocks as any that are turned do (TurnedMatrices), others by blocks: as
// many rows of the source as a register has lanes and four columns leave it as four rows of the destination. Blocks at
// the far edges overlap their neighbours instead of ending early, which writes some elements twice; so a destination
// whose rows overlap is left to the loops that write each element once, in the order of its rows. Where the caches
// could not keep the matrices, blocks are collected in a buffer until they fill whole cache lines of the destination.

#include "products/readers.h"
#include "runtime/nest.h"
#include "runtime/object_walk.h"
#include "runtime/runs.h"
#include "runtime/straight.h"
#include "runtime/streaming.h"
#include "runtime/turned_matrices.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <immintrin.h>
#include <lxpcore.h>

namespace lxpm {

template <class T>
class Transposition {
public:
    static void run(std::ptrdiff_t objects, std::ptrdiff_t height, std::ptrdiff_t width,
                    const Addresses<const T> &source, const Addresses<T> &destination) {
        const Matrices matrices = {objects, height, width, source, destination};
        choose(matrices)(matrices);
    }

private:
    // The sizes are those of the source. The operands are those of the call, not copied where they need not be.
    struct Matrices {
        std::ptrdiff_t objects;
        std::ptrdiff_t height;
        std::ptrdiff_t width;
        const Addresses<const T> &src;
        const Addresses<T> &dst;
    };
    using Kernel = void (*)(const Matrices &);

    // One matrix of each operand, whose rows touch.
    struct Pair {
        const T *src;
        std::ptrdiff_t srcStep;
        T *dst;
        std::ptrdiff_t dstStep;

        const T *from(std::ptrdiff_t row, std::ptrdiff_t column) const { return shifted(src, row * srcStep) + column; }
        T *to(std::ptrdiff_t row, std::ptrdiff_t column) const { return shifted(dst, row * dstStep) + column; }
    };

    static constexpr std::ptrdiff_t size = sizeof(T);
    static constexpr std::ptrdiff_t side = 4;            // columns of a block
    static constexpr std::ptrdiff_t rows = groupSize<T>; // of a block
    static constexpr std::ptrdiff_t lineBytes = 64;      // of a cache line
    static constexpr std::ptrdiff_t line = lineBytes / size;
    static constexpr std::ptrdiff_t tileRows = 1024;
    static constexpr std::ptrdiff_t tileColumns = 256;
    static constexpr std::ptrdiff_t bandRows = 32;
    static constexpr std::ptrdiff_t bandColumns = 4096 / size;

    static Kernel choose(const Matrices &m) {
        if (m.objects > 1 && objectsTouch(m.src) && objectsTouch(m.dst) && resultsAreApart(m)) {
            return objectsByRuns;
        }
        const bool byBytes = m.src.pointerStep[2] == 0 && m.dst.pointerStep[2] == 0;
        if (!byBytes || m.dst.step[2] != size || m.dst.step[1] < m.height * size) {
            return oneByOne;
        }
        if (m.src.step[2] == size) {
            return chooseOrder(m);
        }
        return m.src.step[1] == size ? rowsByRuns : oneByOne;
    }

    static Kernel chooseOrder(const Matrices &m) {
        return withOrder<3, 16>(m.height == m.width ? static_cast<int>(m.height) : 0, [&](auto order) -> Kernel {
            const bool hasBlocks = m.height >= rows && m.width >= side;
            return order != 0 || !hasBlocks ? chooseTurned<order>(m) : chooseBlocks(m);
        });
    }

    // By the share of the largest cache that the operands would take.
    static Kernel chooseBlocks(const Matrices &m) {
        constexpr int sharesOfThreads = 32;
        const bool isTile = m.height <= tileRows && m.width <= tileColumns;
        const bool mayStream = m.height * size >= shortestStream;
        if (isTile && !mayStream) {
            return byBlocks;
        }
        int largestCache = 0; // unknown
        lxpGetMaxCacheSizeB(&largestCache);
        const std::ptrdiff_t bytes = 2 * m.height * m.width * size;
        // From two fifths on it makes no difference even to operands that are in the cache already.
        if (mayStream && largestCache != 0 && m.objects * bytes > largestCache / 5 * 2) {
            return pastCaches;
        }
        return !isTile && bytes > largestCache / sharesOfThreads ? byTiles : byBlocks;
    }

    template <class Element>
    static bool objectsTouch(const Addresses<Element> &operand) {
        return operand.step[0] == size && operand.pointerStep[0] == 0;
    }

    static bool resultsAreApart(const Matrices &m) { return areDisjoint(m.dst.step, {m.objects, m.width, m.height}); }

    template <class Function>
    [[gnu::always_inline]] static void forEachPair(const Matrices &m, const Function &function) {
        const bool byBytes = m.src.pointerStep[0] == 0 && m.dst.pointerStep[0] == 0;
        byBytes ? forEachPairWalking<Walking::ByBytes>(m, function)
                : forEachPairWalking<Walking::ThroughPointers>(m, function);
    }

    template <Walking walking, class Function>
    [[gnu::always_inline]] static void forEachPairWalking(const Matrices &m, const Function &function) {
        ObjectWalk<const T, walking> source(m.src);
        ObjectWalk<T, walking> destination(m.dst);
        const std::ptrdiff_t srcStep = m.src.step[1];
        const std::ptrdiff_t dstStep = m.dst.step[1];
        for (std::ptrdiff_t object = 0; object < m.objects; ++object) {
            function(Pair{source.object(), srcStep, destination.object(), dstStep});
            source.next();
            destination.next();
        }
    }

    // Turned. Order: of square matrices where it is known beforehand, else 0.

    using Turned = TurnedMatrices<T, Same, Moves::Across>;

    template <int Order>
    static Kernel chooseTurned(const Matrices &m) {
        constexpr std::ptrdiff_t row = Order * size;
        const bool byBytes = m.src.pointerStep[0] == 0 && m.dst.pointerStep[0] == 0;
        const bool isDense = m.src.step[1] == row && m.dst.step[1] == row;
        return Turned::template choose<Order>(
            isDense && (Order == 3 || m.objects == 1 || resultsAreApart(m)), byBytes,
            [](auto dense, auto walking) -> Kernel { return turned<Order, dense, walking>; });
    }

    template <int Order, bool isDense, Walking walking>
    static void turned(const Matrices &m) {
        Turned::template run<Order, isDense, walking>(Same(), {m.objects, m.width, m.height}, {m.dst, m.dst.step[1]},
                                                      {{{m.src, m.src.step[1]}}});
    }

    // In blocks.

    [[gnu::always_inline]] static void block(const Pair &pair, std::ptrdiff_t row, std::ptrdiff_t column) {
        // The rows of the source are the columns of the destination.
        const auto [columns] = TouchingColumns<T, 1>(pair.from(row, column), pair.srcStep, 0).template next<4>();
        T *const to = pair.to(column, row);
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            columns[i].store(shifted(to, i * pair.dstStep));
        }
    }

    // Calls at(0), at(step), ... and at last at(n - step).
    template <class At>
    [[gnu::always_inline]] static void forEachStep(std::ptrdiff_t n, std::ptrdiff_t step, const At &at) {
        std::ptrdiff_t i = 0;
        for (; i + step < n; i += step) {
            at(i);
        }
        at(n - step);
    }

    static void byBlocks(const Matrices &shared) {
        const Matrices m = shared;
        forEachPair(
            m, [&](const Pair &pair) __attribute__((always_inline)) {
                area(pair, {0, m.height}, {0, m.width});
            });
    }

    // Every row of a large matrix stands in a page of its own, and the processor remembers the places of so many pages
    // only: what is read and written at a time is limited in both directions. Tiles are higher than wide, since the
    // rows of the destination are then written on for longer, which memory likes better than many short pieces.
    static void byTiles(const Matrices &shared) {
        const Matrices m = shared;
        forEachPair(m, [&](const Pair &pair) {
            forEachPiece(m.height, tileRows, rows, [&](Piece ofRows) {
                forEachPiece(m.width, tileColumns, side, [&](Piece ofColumns) { area(pair, ofRows, ofColumns); });
            });
        });
    }

    struct Piece {
        std::ptrdiff_t first;
        std::ptrdiff_t length;
    };

    // A strip of columns as wide as a cache line at a time, so that each line of the source is needed once.
    [[gnu::always_inline]] static void area(const Pair &pair, Piece ofRows, Piece ofColumns) {
        forEachPiece(
            ofColumns.length, line, side, [&](Piece strip) __attribute__((always_inline)) {
                forEachStep(
                    ofRows.length, rows, [&](std::ptrdiff_t row) __attribute__((always_inline)) {
                        forEachStep(
                            strip.length, side, [&](std::ptrdiff_t column) __attribute__((always_inline)) {
                                block(pair, ofRows.first + row, ofColumns.first + strip.first + column);
                            });
                    });
            });
    }

    // Calls f with pieces of n that have the given length; the last one is shorter, but for the least length.
    template <class F>
    [[gnu::always_inline]] static void forEachPiece(std::ptrdiff_t n, std::ptrdiff_t length, std::ptrdiff_t least,
                                                    const F &f) {
        for (std::ptrdiff_t piece = 0; piece < n; piece += length) {
            const std::ptrdiff_t first = std::min(piece, n - least);
            f(Piece{first, std::min(length, n - first)});
        }
    }

    // Past the caches. A band of the source, some rows of it, becomes short pieces of the destination's rows, which are
    // written as whole cache lines only. What the band before could not fill of a line is therefore turned once more.

    static void pastCaches(const Matrices &shared) {
        const Matrices m = shared;
        forEachPair(m, [&](const Pair &pair) {
            forEachPiece(m.width, bandColumns, side, [&](Piece ofColumns) {
                forEachPiece(m.height, bandRows, rows, [&](Piece ofRows) { band(pair, m.height, ofRows, ofColumns); });
            });
        });
        finishStreaming();
    }

    // The first element of the cache line in which an element of a row stands.
    static std::ptrdiff_t startOfLine(const T *row, std::ptrdiff_t element) {
        return element -
               static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(row + element) % lineBytes) / size;
    }

    static void band(const Pair &pair, std::ptrdiff_t height, Piece ofRows, Piece ofColumns) {
        const std::ptrdiff_t end = ofRows.first + ofRows.length;
        const bool startAlike = pair.dstStep % lineBytes == 0; // in their lines, all rows of the destination
        const std::ptrdiff_t begin = std::max<std::ptrdiff_t>(
            startAlike ? startOfLine(pair.to(ofColumns.first, 0), ofRows.first) : ofRows.first - line, 0);

        const bool isAligned = (reinterpret_cast<std::uintptr_t>(pair.dst) | pair.dstStep) % size == 0;
        const bool areWholeLines = isAligned && ofRows.first > 0 && end < height;

        alignas(lineBytes) T turned[line][bandRows + line];
        constexpr std::ptrdiff_t turnedStep = sizeof(turned[0]);
        Fetch next(pair.from(end, ofColumns.first), pair.srcStep, std::min(bandRows, height - end), ofColumns.length);
        forEachPiece(ofColumns.length, line, side, [&](Piece strip) {
            next.lines(bandRows);
            const std::ptrdiff_t column = ofColumns.first + strip.first;
            area({pair.from(begin, column), pair.srcStep, turned[0], turnedStep}, {0, end - begin}, {0, strip.length});
            for (std::ptrdiff_t i = 0; i < strip.length; ++i) {
                T *const row = pair.to(column + i, 0);
                const std::ptrdiff_t from = std::max(startOfLine(row, ofRows.first), begin);
                const std::ptrdiff_t to = end == height ? end : startOfLine(row, end);
                const T *const elements = turned[i] + (from - begin);
                if (areWholeLines) {
                    streamLines(to - from, row + from, elements);
                } else {
                    runStreamed(Same(), to - from, row + from, Run<T, Moves::Along>{elements, size});
                }
            }
        });
    }

    static void streamLines(std::ptrdiff_t n, T *to, const T *from) {
        using L = Lanes<T, fullLanes<T>>;
        for (std::ptrdiff_t i = 0; i < n; i += fullLanes<T>) {
            L::load(from + i).stream(to + i);
        }
    }

    // Brings rows of the source closer, a few cache lines at a time in the order in which they stand, which memory
    // likes better than the order in which blocks need them.
    class Fetch {
    public:
        Fetch(const T *first, std::ptrdiff_t step, std::ptrdiff_t height, std::ptrdiff_t width)
            : row_(first), step_(step), rows_(height), columns_(width) {}

        [[gnu::always_inline]] void lines(std::ptrdiff_t number) {
            for (; number > 0 && rows_ > 0; --number) {
                _mm_prefetch(row_ + column_, _MM_HINT_T0);
                column_ += line;
                if (column_ >= columns_) {
                    column_ = 0;
                    row_ = shifted(row_, step_);
                    --rows_;
                }
            }
        }

    private:
        const T *row_;
        std::ptrdiff_t step_;
        std::ptrdiff_t rows_; // left
        std::ptrdiff_t columns_;
        std::ptrdiff_t column_ = 0;
    };

    // Elsewhere.

    // The elements of the source touch down the columns, so a row of the destination is a copy.
    static void rowsByRuns(const Matrices &m) {
        forEachPair(m, [&](const Pair &pair) {
            for (std::ptrdiff_t row = 0; row < m.width; ++row) {
                std::memcpy(pair.to(row, 0), shifted(pair.src, row * m.src.step[2]),
                            static_cast<std::size_t>(m.height * size));
            }
        });
    }

    // The same element of successive objects touches.
    static void objectsByRuns(const Matrices &m) {
        for (std::ptrdiff_t row = 0; row < m.width; ++row) {
            for (std::ptrdiff_t column = 0; column < m.height; ++column) {
                std::memcpy(m.dst.at(0, row, column), m.src.at(0, column, row),
                            static_cast<std::size_t>(m.objects * size));
            }
        }
    }

    static void oneByOne(const Matrices &shared) {
        const Matrices m = shared;
        const Addresses<const T> src = m.src;
        const Addresses<T> dst = m.dst;
        for (std::ptrdiff_t object = 0; object < m.objects; ++object) {
            for (std::ptrdiff_t row = 0; row < m.width; ++row) {
                for (std::ptrdiff_t column = 0; column < m.height; ++column) {
                    *dst.at(object, row, column) = *src.at(object, column, row);
                }
            }
        }
    }
};

// All objects of a call. Out of line: one for each type, not one for each member of the family.
template <class T>
[[gnu::noinline]] void transposeObjects(int objects, int height, int width, const Addresses<const T> &source,
                                        const Addresses<T> &destination) {
    if (source.movesByBytes() && destination.movesByBytes()) { // as they stand, not copies
        return Transposition<T>::run(objects, height, width, source, destination);
    }
    Transposition<T>::run(objects, height, width, withoutElementPointers(source, height, width),
                          withoutElementPointers(destination, width, height));
}

} // namespace lxpm
