// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// What a peer's shared object and the benchmark program agree on.

namespace lxpm::bench {

// Dense operands: the objects of an array stand one behind the other, matrices by rows.
struct PeerOperands {
    const void *src1;
    const void *src2;
    void *dst;
    long count;
    int threads;
};

// Does what one call of the library does.
struct PeerKernel {
    std::string name; // of the case: "Add_mama_32f/4x4"
    void (*run)(const PeerOperands &);
};

using PeerTable = std::vector<PeerKernel>;

} // namespace lxpm::bench
