// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// For the sources of families, which instantiate the entries of their members.

#include "runtime/entry.h"

namespace lxpm {

template <class Member, class... Parameters>
LxpStatus Entry<Member, LxpStatus(Parameters...)>::call(Parameters... parameters) {
    return Member::run(typename Member::Arguments(parameters...));
}

} // namespace lxpm
