// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Matrices of which some sources are turned: dst = f(src1, ...), where the destination's elements touch along its rows
// and each source's along the rows or down the columns. They go by blocks of 4 by 4 elements that are turned in
// registers, two of them at once in single precision, which takes half as many exchanges of lanes. Each element is
// computed once, so that a source that is not turned may be the destination. Nothing behind the last element of an
// operand is read or written.

#include "runtime/addresses.h"
#include "runtime/lanes.h"
#include "runtime/nest.h"
#include "runtime/object_walk.h"
#include "runtime/runs.h"

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace lxpm {

// moves: those of each source, Along or Across.
template <class T, class F, Moves... moves>
class TurnedMatrices {
public:
    static constexpr std::size_t sources = sizeof...(moves);

    // The matrices of an operand, and the bytes between the rows of one, or between the columns if these touch.
    template <class Element>
    struct Operand {
        const Addresses<Element> &matrices;
        std::ptrdiff_t step;
    };
    using Sources = std::array<Operand<const T>, sources>;

    // What kernel(isDense, walking) gives with constants, for matrices of the given order, 0 if it is not known
    // beforehand. isDense: nothing stands between the rows, or columns, of any operand's matrices. Where they move by
    // bytes and are not of order 3, no matrix of a dense destination may stand on another.
    template <int Order, class Kernel>
    static auto choose(bool isDense, bool byBytes, const Kernel &kernel) {
        return byBytes ? chooseDensity<Order, Walking::ByBytes>(isDense, kernel)
                       : chooseDensity<Order, Walking::EitherWay>(isDense, kernel);
    }

    // Order, isDense, walking: as choose() chooses them.
    template <int Order, bool isDense, Walking walking>
    [[gnu::always_inline]] static void run(const F &f, const Extents &extents, const Operand<T> &dst,
                                           const Sources &src) {
        run<Order, isDense, walking>(f, extents, dst, src, std::make_index_sequence<sources>());
    }

private:
    static constexpr int side = 4;                  // of a block
    static constexpr int whole = fullLanes<T>;      // columns of two blocks where a register has so many lanes
    using Block = std::array<Lanes<T, side>, side>; // by rows

    // Dense matrices of order 3 have rows too short for registers, and go as runs of nine elements wherever they stand.
    // Others may go two at a time, which those behind pointers may not: two pointers may lead to the same memory.
    template <int Order, Walking walking, class Kernel>
    static auto chooseDensity(bool isDense, const Kernel &kernel) {
        constexpr std::integral_constant<Walking, walking> itsWalking;
        if constexpr (Order == 3 || (Order != 0 && walking == Walking::ByBytes)) {
            if (isDense) {
                return kernel(std::true_type(), itsWalking);
            }
        }
        return kernel(std::false_type(), itsWalking);
    }

    template <int Order, bool isDense, Walking walking, std::size_t... s>
    [[gnu::always_inline]] static void run(const F &function, const Extents &extents, const Operand<T> &dst,
                                           const Sources &src, std::index_sequence<s...>) {
        const F f = function; // copies that no store below can reach, so that they stay in registers
        const std::ptrdiff_t objects = extents.objects;
        const std::ptrdiff_t rows = Order != 0 ? Order : extents.rows;
        const std::ptrdiff_t columns = Order != 0 ? Order : extents.columns;
        const auto stepOf = [](const auto &operand) __attribute__((always_inline)) {
            return isDense ? std::ptrdiff_t(Order * sizeof(T)) : operand.step;
        };
        const std::ptrdiff_t dstStep = stepOf(dst);
        const std::array<std::ptrdiff_t, sources> srcStep = {stepOf(src[s])...};
        ObjectWalk<T, walking> destination(dst.matrices);
        std::array<ObjectWalk<const T, walking>, sources> source = {ObjectWalk<const T, walking>(src[s].matrices)...};
        std::ptrdiff_t i = 0;
        if constexpr (isDense && sideBySide<Order>) {
            for (; i + 2 <= objects; i += 2) {
                overTwoMatrices<Order>(f, nextObjects<2>(destination), dstStep,
                                       Two<moves>(nextObjects<2>(source[s]), srcStep[s])...);
            }
        }
        if constexpr (isDense && Order == 3) {
            // Where so short a loop starts in memory would make a difference of a factor of two.
#pragma GCC unroll 2
            for (; i < objects; ++i) {
                storeDense3(f, destination.object(), Dense3(source[s].object(), moves)...);
                destination.next();
                (source[s].next(), ...);
            }
        } else {
            for (; i < objects; ++i) {
                overOneMatrix<Order>(f, rows, columns, destination.object(), dstStep,
                                     Matrix<moves>{source[s].object(), srcStep[s]}...);
                destination.next();
                (source[s].next(), ...);
            }
        }
    }

    struct Dense3 {
        std::array<Lanes<T, 4>, 2> fours;
        T ninth;

        [[gnu::always_inline]] Dense3(const T *matrix, Moves itsMoves)
            : fours(itsMoves == Moves::Across
                        ? transposeDense3(matrix)
                        : std::array<Lanes<T, 4>, 2>{Lanes<T, 4>::load(matrix), Lanes<T, 4>::load(matrix + 4)}),
              ninth(matrix[8]) {}
    };

    template <class... D>
    [[gnu::always_inline]] static void storeDense3(const F &f, T *dst, const D &...src) {
        f(src.fours[0]...).store(dst);
        f(src.fours[1]...).store(dst + 4);
        dst[8] = f(src.ninth...);
    }

    // What at(0) to at(3) give.
    template <class At>
    [[gnu::always_inline]] static auto fourOf(const At &at) {
        return std::array{at(0), at(1), at(2), at(3)};
    }

    // One matrix of a source: its rows, or its columns, stand by `step` apart.
    template <Moves itsMoves>
    struct Matrix {
        static constexpr bool isAlong = itsMoves == Moves::Along;

        const T *first;
        std::ptrdiff_t step;

        const T *at(std::ptrdiff_t row, std::ptrdiff_t column) const {
            return isAlong ? shifted(first, row * step) + column : shifted(first, column * step) + row;
        }

        // A block by rows.
        template <int Rows, int Columns>
        [[gnu::always_inline]] auto block(std::ptrdiff_t row, std::ptrdiff_t column) const {
            if constexpr (Columns > side) {
                std::array<Lanes<T, Columns>, Rows> lanes;
                forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
                    lanes[i] = isAlong ? Lanes<T, Columns>::load(at(row + i, column))
                                       : loadHalves(at(row, column + i), at(row, column + i + side));
                });
                if constexpr (!isAlong) {
                    transposeHalves(lanes);
                }
                return lanes;
            } else if constexpr (!isAlong && Rows == 1) {
                const auto elements = fourOf([&](int j) { return *at(row, column + j); });
                return std::array<Lanes<T, 4>, 1>{{{elements[0], elements[1], elements[2], elements[3]}}};
            } else if constexpr (!isAlong && Rows == 2) {
                return loadPairs(fourOf([&](int j) { return at(row, column + j); }));
            } else {
                constexpr int lines = isAlong ? Rows : Columns;
                constexpr int length = isAlong ? Columns : Rows;
                Block lanes = {};
                forEachOf<lines>([&](auto i) __attribute__((always_inline)) {
                    lanes[i] = loadFirst<length>(isAlong ? at(row + i, column) : at(row, column + i));
                });
                if constexpr (!isAlong) {
                    transpose(lanes);
                }
                return lanes;
            }
        }

        // Four elements from each of two columns.
        [[gnu::always_inline]] std::array<Lanes<T, 4>, 2> columns(std::ptrdiff_t row, std::ptrdiff_t column) const {
            if constexpr (isAlong) {
                return loadPairs(fourOf([&](int i) { return at(row + i, column); }));
            } else {
                return {Lanes<T, 4>::load(at(row, column)), Lanes<T, 4>::load(at(row, column + 1))};
            }
        }
    };

    // Two matrices whose first blocks go side by side, each in its half of a register.

    template <int Order>
    static constexpr bool sideBySide = whole > side && (Order / side == 1);

    template <Moves itsMoves>
    struct Two {
        Matrix<itsMoves> first;
        Matrix<itsMoves> second;

        Two(const std::array<const T *, 2> &matrices, std::ptrdiff_t step)
            : first{matrices[0], step}, second{matrices[1], step} {}

        [[gnu::always_inline]] std::array<Lanes<T, 2 * side>, side> firstBlocks() const {
            std::array<Lanes<T, 2 * side>, side> lanes;
            forEachOf<side>([&](auto i) __attribute__((always_inline)) {
                lanes[i] = Matrix<itsMoves>::isAlong ? loadHalves(first.at(i, 0), second.at(i, 0))
                                                     : loadHalves(first.at(0, i), second.at(0, i));
            });
            if constexpr (!Matrix<itsMoves>::isAlong) {
                transposeHalves(lanes);
            }
            return lanes;
        }
    };

    template <int Order, class... M>
    [[gnu::always_inline]] static void overTwoMatrices(const F &f, const std::array<T *, 2> &dst,
                                                       std::ptrdiff_t dstStep, const M &...src) {
        storeTwo(f, dst, dstStep, src.firstBlocks()...);
        if constexpr (Order > side) {
            overRest<Order>(f, dst[0], dstStep, src.first...);
            overRest<Order>(f, dst[1], dstStep, src.second...);
        }
    }

    template <class... B>
    [[gnu::always_inline]] static void storeTwo(const F &f, const std::array<T *, 2> &dst, std::ptrdiff_t dstStep,
                                                const B &...blocks) {
        forEachOf<side>([&](auto i) __attribute__((always_inline)) {
            const auto rows = f(std::get<i>(blocks)...);
            lowHalf(rows).store(shifted(dst[0], i * dstStep));
            highHalf(rows).store(shifted(dst[1], i * dstStep));
        });
    }

    // What stands beside and below the first block.
    template <int Order, class... M>
    [[gnu::always_inline]] static void overRest(const F &f, T *dst, std::ptrdiff_t dstStep, const M &...src) {
        overBlock<side, Order - side>(f, 0, side, dst, dstStep, src...);
        overStrip<Order - side>(f, side, Order, dst, dstStep, src...);
    }

    template <int Order, class... M>
    [[gnu::always_inline]] static void overOneMatrix(const F &f, std::ptrdiff_t rows, std::ptrdiff_t columns, T *dst,
                                                     std::ptrdiff_t dstStep, const M &...src) {
        std::ptrdiff_t row = 0;
        for (; row + side <= rows; row += side) {
            overStrip<side>(f, row, columns, dst, dstStep, src...);
        }
        const auto left = rows - row;
        if (left == 1) {
            overStrip<1>(f, row, columns, dst, dstStep, src...);
        } else if (left == 2) {
            overStrip<2>(f, row, columns, dst, dstStep, src...);
        } else if (left == 3) {
            overStrip<3>(f, row, columns, dst, dstStep, src...);
        }
    }

    // Some rows from `row` on.
    template <int Rows, class... M>
    [[gnu::always_inline]] static void overStrip(const F &f, std::ptrdiff_t row, std::ptrdiff_t columns, T *dst,
                                                 std::ptrdiff_t dstStep, const M &...src) {
        std::ptrdiff_t column = 0;
        if constexpr (Rows == side && whole > side) {
            for (; column + whole <= columns; column += whole) {
                overBlock<side, whole>(f, row, column, dst, dstStep, src...);
            }
        }
        for (; column + side <= columns; column += side) {
            overBlock<Rows, side>(f, row, column, dst, dstStep, src...);
        }
        const auto left = columns - column;
        if (left == 1) {
            overBlock<Rows, 1>(f, row, column, dst, dstStep, src...);
        } else if (left == 2) {
            overBlock<Rows, 2>(f, row, column, dst, dstStep, src...);
        } else if (left == 3) {
            overBlock<Rows, 3>(f, row, column, dst, dstStep, src...);
        }
    }

    // Blocks go by rows; two columns are turned when they are stored, and what fills no register goes by elements.
    template <int Rows, int Columns, class... M>
    [[gnu::always_inline]] static void overBlock(const F &f, std::ptrdiff_t row, std::ptrdiff_t column, T *dst,
                                                 std::ptrdiff_t dstStep, const M &...src) {
        const auto to = [&](int i) __attribute__((always_inline)) {
            return shifted(dst, (row + i) * dstStep) + column;
        };
        if constexpr (Columns >= side || (Columns == 3 && Rows >= 3)) {
            storeBlock<Rows, Columns>(f, to, src.template block<Rows, Columns>(row, column)...);
        } else if constexpr (Rows == side && Columns == 2) {
            storeColumns(f, to, src.columns(row, column)...);
        } else {
            forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
                forEachOf<Columns>([&](auto j) __attribute__((always_inline)) {
                    to(i)[j] = f(*src.at(row + i, column + j)...);
                });
            });
        }
    }

    template <int Rows, int Columns, class To, class... B>
    [[gnu::always_inline]] static void storeBlock(const F &f, const To &to, const B &...block) {
        forEachOf<Rows>([&](auto i) __attribute__((always_inline)) {
            const auto row = f(std::get<i>(block)...);
            if constexpr (Columns > side) {
                row.store(to(i));
            } else {
                storeFirst<Columns>(to(i), row);
            }
        });
    }

    template <class To, class... B>
    [[gnu::always_inline]] static void storeColumns(const F &f, const To &to, const B &...columns) {
        storePairs({f(columns[0]...), f(columns[1]...)}, fourOf(to));
    }
};

} // namespace lxpm
