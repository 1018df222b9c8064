// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Vectors of three or four elements that follow one another, with a constant for each of them. One vector is too short
// for a register, so a group of them goes in as many registers as a vector has elements, and each of a group of
// constants is put beside the elements of its vector.

#include "runtime/lanes.h"
#include "runtime/loops.h"
#include "runtime/nest.h"
#include "runtime/vector_groups.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lxpm {

template <class T, class F, std::size_t sources>
class Spreading {
public:
    using Nest = lxpm::Nest<T, sources>;

    static bool accepts(const Nest &nest) {
        const std::ptrdiff_t length = nest.extent[2];
        bool isAnyConstant = false;
        bool isAnyElse = !runsTouch(nest.operand.dst, length);
        for (const auto &source : nest.operand.src) {
            isAnyConstant |= isConstants(source);
            isAnyElse |= !isConstants(source) && !runsTouch(source, length);
        }
        return isAnyConstant && !isAnyElse && nest.extent[0] == 1 && nest.extent[1] >= groupSize<T> &&
               (length == 3 || length == 4) && !nest.operand.movesThroughPointers(1) &&
               !nest.operand.movesThroughPointers(2);
    }

    static void map(const F &f, Nest nest) {
        const std::ptrdiff_t done = (nest.extent[2] == 3 ? choose<3>(nest) : choose<4>(nest))(f, nest);
        nest.advance(1, done);
        nest.extent[1] -= done;
        Loops<T, F, sources>::choose(nest)(f, nest);
    }

private:
    // Goes over all whole groups. Returns how many vectors they have.
    using Loop = std::ptrdiff_t (*)(const F &, const Nest &);

    static bool isConstants(const Addresses<const T> &source) {
        return source.step[2] == 0 && source.step[1] == sizeof(T);
    }

    // Chosen: of each source, whether it is constants.
    template <int length, bool... chosen>
    static Loop choose(const Nest &nest) {
        constexpr std::size_t source = sizeof...(chosen);
        if constexpr (source == sources) {
            return overGroups<length, chosen...>;
        } else {
            return isConstants(nest.operand.src[source]) ? choose<length, chosen..., true>(nest)
                                                         : choose<length, chosen..., false>(nest);
        }
    }

    template <int length, bool... areConstants>
    static std::ptrdiff_t overGroups(const F &function, const Nest &nest) {
        const F f = function;
        const std::ptrdiff_t vectors = nest.extent[1];
        return [&]<std::size_t... s>(std::index_sequence<s...>) {
            T *dst = nest.operand.dst.at(0, 0, 0);
            std::array<const T *, sources> src = {nest.operand.src[s].at(0, 0, 0)...};
            std::ptrdiff_t done = 0;
            for (; done + groupSize<T> <= vectors; done += groupSize<T>) {
                store<length>(f, dst, load<length, areConstants>(src[s])...);
                dst += length * groupSize<T>;
                ((src[s] += (areConstants ? 1 : length) * groupSize<T>), ...);
            }
            return done;
        }
        (std::make_index_sequence<sources>());
    }

    template <int length, bool areConstants>
    [[gnu::always_inline]] static std::array<Group<T>, length> load(const T *from) {
        if constexpr (areConstants) {
            return repeated<length>(from);
        } else {
            std::array<Group<T>, length> vectors;
#pragma GCC unroll 4
            for (int r = 0; r < length; ++r) {
                vectors[r] = Group<T>::load(from + r * groupSize<T>);
            }
            return vectors;
        }
    }

    template <int length, class... Source>
    [[gnu::always_inline]] static void store(const F &f, T *dst, const Source &...source) {
#pragma GCC unroll 4
        for (int r = 0; r < length; ++r) {
            f(source[r]...).store(dst + r * groupSize<T>);
        }
    }
};

} // namespace lxpm
