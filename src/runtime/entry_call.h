// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// For the sources of families, which instantiate the entries of their members.

#include "runtime/entry.h"

namespace lxpm {

namespace detail {

template <class Member, class... Parameters>
[[gnu::noinline]] LxpStatus longCall(Parameters... parameters) {
    return Member::run(typename Member::Arguments(parameters...));
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
template <class Member, class... Parameters>
LxpStatus Entry<Member, LxpStatus(Parameters...)>::call(Parameters... parameters) {
    if constexpr (requires { requires Member::hasShortWay; }) {
        const typename Member::Arguments arguments(parameters...);
        if (Member::isShort(arguments)) [[likely]] {
            Member::runShort(arguments);
            return lxpStatusOk;
        }
    }
    return detail::longCall<Member>(parameters...);
}

} // namespace lxpm
