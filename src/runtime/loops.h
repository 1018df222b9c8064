// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The loops over the elements of a nest: dst = f(src1, ...). Which one is taken depends on how the operands move in the
// innermost loop, the run:
//
//   in registers   the destination's elements touch, each source's touch or are all the same one. A run goes in whole
//                  registers and its end in ever smaller pieces.
//   streamed       as in registers, but past the caches, where these could not keep the results.
//   transposed     as in registers, but some sources' elements touch down the columns (the middle loop): blocks are
//                  turned in registers.
//   one by one     anything else that moves by bytes.
//   by pointers    each element of a run has a pointer of its own, in one operand or another.
//
// Nothing behind the last element of an operand is read or written.

#include "runtime/lanes.h"
#include "runtime/nest.h"
#include "runtime/object_walk.h"
#include "runtime/runs.h"
#include "runtime/streaming.h"
#include "runtime/turned_matrices.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace lxpm {

template <class T, class F, std::size_t sources>
class Loops {
public:
    using Loop = void (*)(const F &, const Nest<T, sources> &);

    [[gnu::noinline]] static Loop choose(const Nest<T, sources> &nest) {
        if (nest.operand.movesThroughPointers(2)) {
            return byPointers;
        }
        bool inRegisters = true;
        bool transposed = nest.isDisjoint && !nest.operand.movesThroughPointers(1);
        for (const auto &source : nest.operand.src) {
            const Moves moves = movesOf(source);
            inRegisters &= moves == Moves::Along || moves == Moves::Nowhere;
            transposed &= moves == Moves::Along || moves == Moves::Across;
        }
        const bool destinationTouches = nest.operand.dst.step[2] == sizeof(T);
        return destinationTouches && inRegisters  ? chooseInRegisters<>(nest)
               : destinationTouches && transposed ? chooseTransposed<>(nest)
                                                  : chooseOneByOne(nest);
    }

private:
    using Nest = lxpm::Nest<T, sources>;
    using Index = std::make_index_sequence<sources>;

    static Moves movesOf(const Addresses<const T> &source) {
        if (source.step[2] == sizeof(T) || source.step[2] == 0) {
            return source.step[2] == 0 ? Moves::Nowhere : Moves::Along;
        }
        return source.step[1] == sizeof(T) ? Moves::Across : Moves::Any;
    }

    enum class Way { InRegisters, Streamed, OneByOne };

    // All runs. Rows, Length: the runs of the middle loop and the elements of a run where their numbers are known
    // beforehand, else 0. What stands inside is forced inline: a call for each run would cost more than the run.
    template <Way way, int Rows, int Length, Moves... moves, std::size_t... s>
    [[gnu::always_inline]] static void overRuns(const F &function, const Nest &shared, std::index_sequence<s...>) {
        const Nest nest = shared; // copies that no store below can reach, so that they stay in registers
        const F f = function;
        const std::ptrdiff_t rows = Rows != 0 ? Rows : nest.extent[1];
        const std::ptrdiff_t n = Length != 0 ? Length : nest.extent[2];
        const auto &[dst, src] = nest.operand;
        for (std::ptrdiff_t i = 0; i < nest.extent[0]; ++i) {
            for (std::ptrdiff_t j = 0; j < rows; ++j) {
                if constexpr (way == Way::InRegisters) {
                    runInRegisters(f, n, dst.at(i, j, 0), Run<T, moves>{src[s].at(i, j, 0), src[s].step[2]}...);
                } else if constexpr (way == Way::Streamed) {
                    runStreamed(f, n, dst.at(i, j, 0), Run<T, moves>{src[s].at(i, j, 0), src[s].step[2]}...);
                } else {
                    runOneByOne(f, n, dst.at(i, j, 0), dst.step[2],
                                Run<T, moves>{src[s].at(i, j, 0), src[s].step[2]}...);
                }
            }
        }
    }

    // In registers.

    template <Moves... chosen>
    static Loop chooseInRegisters(const Nest &nest) {
        constexpr std::size_t source = sizeof...(chosen);
        if constexpr (source == sources) {
            return chooseLength<chosen...>(nest);
        } else if (nest.operand.src[source].step[2] == 0) {
            return chooseInRegisters<chosen..., Moves::Nowhere>(nest);
        } else {
            return chooseInRegisters<chosen..., Moves::Along>(nest);
        }
    }

    // Vectors and rows of orders 3 to 6 and 8, and whole matrices of these orders whose rows touch, are unrolled. (A
    // matrix has no constant beside it.)
    template <Moves... moves>
    static Loop chooseLength(const Nest &nest) {
        const std::ptrdiff_t n = nest.extent[2];
        if constexpr (std::is_same_v<F, Same> && ((moves == Moves::Along) && ...)) {
            if (n * std::ptrdiff_t(sizeof(T)) >= longRun) {
                return asBytes;
            }
        }
        if (isStreamed(nest)) {
            return streamed<moves...>;
        }
        switch (n) {
        case 3:
            return inRegisters<3, moves...>;
        case 4:
            return inRegisters<4, moves...>;
        case 5:
            return inRegisters<5, moves...>;
        case 6:
            return inRegisters<6, moves...>;
        case 8:
            return inRegisters<8, moves...>;
        }
        if constexpr (((moves == Moves::Along) && ...)) {
            switch (n) {
            case 9:
                return inRegisters<9, moves...>;
            case 16:
                return inRegisters<16, moves...>;
            case 25:
                return inRegisters<25, moves...>;
            case 36:
                return inRegisters<36, moves...>;
            }
        }
        return inRegisters<0, moves...>;
    }

    template <int Length, Moves... moves>
    static void inRegisters(const F &f, const Nest &nest) {
        overRuns<Way::InRegisters, 0, Length, moves...>(f, nest, Index());
    }

    static bool isStreamed(const Nest &nest) {
        const std::ptrdiff_t run = nest.extent[2] * static_cast<std::ptrdiff_t>(sizeof(T));
        return run >= shortestStream && nest.isDisjoint && outgrowsCaches(nest.extent[0] * nest.extent[1] * run);
    }

    template <Moves... moves>
    static void streamed(const F &f, const Nest &nest) {
        overRuns<Way::Streamed, 0, 0, moves...>(f, nest, Index());
        finishStreaming();
    }

    // Long runs are copied by the C library, which aligns its stores and streams them past the caches where they are
    // too many. The destination may be the source.
    static constexpr std::ptrdiff_t longRun = 256; // bytes

    static void asBytes(const F &, const Nest &shared) {
        const Nest nest = shared;
        const auto &[dst, src] = nest.operand;
        for (std::ptrdiff_t i = 0; i < nest.extent[0]; ++i) {
            for (std::ptrdiff_t j = 0; j < nest.extent[1]; ++j) {
                std::memmove(dst.at(i, j, 0), src[0].at(i, j, 0), nest.extent[2] * sizeof(T));
            }
        }
    }

    // Transposed.

    template <Moves... chosen>
    static Loop chooseTransposed(const Nest &nest) {
        constexpr std::size_t source = sizeof...(chosen);
        if constexpr (source < sources) {
            if (movesOf(nest.operand.src[source]) == Moves::Across) {
                return chooseTransposed<chosen..., Moves::Across>(nest);
            }
            return chooseTransposed<chosen..., Moves::Along>(nest);
        } else if constexpr (((chosen == Moves::Across) || ...)) {
            return chooseOrder<chosen...>(nest);
        } else {
            return chooseInRegisters<>(nest);
        }
    }

    template <Moves... moves>
    static Loop chooseOrder(const Nest &nest) {
        switch (nest.extent[1] == nest.extent[2] ? nest.extent[2] : 0) {
        case 3:
            return chooseTurned<3, moves...>(nest);
        case 4:
            return chooseTurned<4, moves...>(nest);
        case 5:
            return chooseTurned<5, moves...>(nest);
        case 6:
            return chooseTurned<6, moves...>(nest);
        case 8:
            return chooseTurned<8, moves...>(nest);
        default:
            return chooseTurned<0, moves...>(nest);
        }
    }

    template <int Order, Moves... moves>
    static Loop chooseTurned(const Nest &nest) {
        return TurnedMatrices<T, F, moves...>::template choose<Order>(
            areDense<moves...>(nest, Order, Index()), !nest.operand.movesThroughPointers(0),
            [](auto dense, auto walking) -> Loop { return transposed<Order, dense, walking, moves...>; });
    }

    // The loop that leads from run to run of touching elements.
    static constexpr int lineLoop(Moves moves) { return moves == Moves::Along ? 1 : 2; }

    // Whether nothing stands between the rows of square matrices, or between their columns.
    template <Moves... moves, std::size_t... s>
    static bool areDense(const Nest &nest, int order, std::index_sequence<s...>) {
        const std::ptrdiff_t line = order * std::ptrdiff_t(sizeof(T));
        const auto &[dst, src] = nest.operand;
        return dst.step[1] == line && ((src[s].step[lineLoop(moves)] == line) && ...);
    }

    template <int Order, bool isDense, Walking walking, Moves... moves>
    static void transposed(const F &f, const Nest &nest) {
        overMatrices<Order, isDense, walking, moves...>(f, nest, Index());
    }

    template <int Order, bool isDense, Walking walking, Moves... moves, std::size_t... s>
    [[gnu::always_inline]] static void overMatrices(const F &f, const Nest &nest, std::index_sequence<s...>) {
        const auto &[dst, src] = nest.operand;
        TurnedMatrices<T, F, moves...>::template run<Order, isDense, walking>(
            f, {nest.extent[0], nest.extent[1], nest.extent[2]}, {dst, dst.step[1]},
            {{{src[s], src[s].step[lineLoop(moves)]}...}});
    }

    // One by one.

    static Loop chooseOneByOne(const Nest &nest) {
        switch (nest.extent[2]) {
        case 3:
            return chooseSquare<3>(nest);
        case 4:
            return chooseSquare<4>(nest);
        case 5:
            return chooseSquare<5>(nest);
        case 6:
            return chooseSquare<6>(nest);
        default:
            return oneByOne<0, 0>;
        }
    }

    template <int N>
    static Loop chooseSquare(const Nest &nest) {
        return nest.extent[1] == N ? oneByOne<N, N> : oneByOne<0, N>;
    }

    template <int Rows, int Length>
    static void oneByOne(const F &f, const Nest &nest) {
        overAnyRuns<Rows, Length>(f, nest, Index());
    }

    template <int Rows, int Length, std::size_t... s>
    [[gnu::always_inline]] static void overAnyRuns(const F &f, const Nest &nest, std::index_sequence<s...>) {
        overRuns<Way::OneByOne, Rows, Length, anyMoves[s]...>(f, nest, Index());
    }

    static constexpr std::array<Moves, sources> anyMoves = [] {
        std::array<Moves, sources> all;
        all.fill(Moves::Any);
        return all;
    }();

    static void byPointers(const F &f, const Nest &nest) { overPointers(f, nest, Index()); }

    template <std::size_t... s>
    [[gnu::always_inline]] static void overPointers(const F &function, const Nest &nest, std::index_sequence<s...>) {
        const F f = function;
        const auto extent = nest.extent;
        for (std::ptrdiff_t i = 0; i < extent[0]; ++i) {
            for (std::ptrdiff_t j = 0; j < extent[1]; ++j) {
                const auto run = nest.operand.from(i, j);
                for (std::ptrdiff_t k = 0; k < extent[2]; ++k) {
                    *run.dst.at(0, 0, k) = f(*run.src[s].at(0, 0, k)...);
                }
            }
        }
    }

    template <class... S>
    [[gnu::always_inline]] static void runOneByOne(const F &f, std::ptrdiff_t n, T *dst, std::ptrdiff_t step,
                                                   const S &...src) {
#pragma GCC unroll 4
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            *shifted(dst, i * step) = f(src.template elements<1>(i)...);
        }
    }
};

} // namespace lxpm
