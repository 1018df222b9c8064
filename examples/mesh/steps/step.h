// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "deviation.h"

#include <functional>
#include <lxpm.h>
#include <string_view>

namespace lxpm::mesh {

// One thing that somebody with a mesh wants computed: calls of the library, and a plain loop to hold them against.
// Whatever has to be prepared is prepared by the function that makes the step.
struct Step {
    std::string_view name;
    std::string_view function;
    std::size_t objects; // computed by one compute()

    // Calls of the library and nothing else. May be repeated: no result is a source.
    std::function<LxpStatus()> compute;

    // By how many roundings the results may deviate, and by how many they do.
    double limit;
    std::function<Deviation()> deviation;
};

} // namespace lxpm::mesh
