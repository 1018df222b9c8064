// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// For the sources of families, which instantiate the entries of their members.

#include "runtime/entry.h"

namespace lxpm {

namespace detail {

// A short way needs few of the registers if the compiler leaves the parameters where they are until it needs them. It
// does so where the other way is next to never taken and no call is a tail call, which would use their memory again.

[[gnu::always_inline]] constexpr bool likely(bool isShort) {
    return __builtin_expect_with_probability(isShort, true, 0.9999) != 0;
}

[[gnu::always_inline]] inline LxpStatus notLast(LxpStatus status) {
    asm("" : "+r"(status));
    return status;
}

template <class Member, class... Parameters>
[[gnu::noinline]] LxpStatus longCall(Parameters... parameters) {
    return Member::run(typename Member::Arguments(parameters...));
}

template <class Member, class... Parameters>
[[gnu::always_inline]] inline LxpStatus shortCall(Parameters... parameters) {
    if constexpr (requires { requires Member::hasShortWay; }) {
        const typename Member::Arguments arguments(parameters...);
        if (likely(Member::isShort(arguments))) {
            Member::runShort(arguments);
            return lxpStatusOk;
        }
        return notLast(longCall<Member>(parameters...));
    } else {
        return longCall<Member>(parameters...);
    }
}

template <class Member, class... Parameters>
[[gnu::noinline]] LxpStatus callWithGaps(Parameters... parameters) {
    return shortCall<Member>(parameters...);
}

} // namespace detail

// A member may have a short way for small objects beside run():
//
//     static constexpr bool hasShortWay = true;
//     static bool isShort(const Arguments &);          whether a call takes it; a call that fails does not
//     static void runShort(const Arguments &);
//
// The rest stands in a function of its own, which gets the parameters as they came: a short call neither makes room for
// what the others need nor writes its arguments to memory.
//
// And it may have an even shorter one for small objects without gaps, of which a single comparison of all strides shows
// that they pass the checks. It ends in a kernel of its own, so that the entry needs no registers but for the checks:
//
//     static constexpr bool hasDenseWay = true;
//     static bool isDense(const Arguments &);
//     static LxpStatus runDense(const Arguments &);
template <class Member, class... Parameters>
LxpStatus Entry<Member, LxpStatus(Parameters...)>::call(Parameters... parameters) {
    if constexpr (requires { requires Member::hasDenseWay; }) {
        const typename Member::Arguments arguments(parameters...);
        if (detail::likely(Member::isDense(arguments))) {
            return detail::notLast(Member::runDense(arguments));
        }
        return detail::notLast(detail::callWithGaps<Member>(parameters...));
    } else {
        return detail::shortCall<Member>(parameters...);
    }
}

} // namespace lxpm
