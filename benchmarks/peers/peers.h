// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "peers/peer.h"

namespace lxpm::bench {

struct Peer {
    std::string name; // and build
    PeerTable kernels;

    // The kernel for a case, or null if the peer does not offer it.
    const PeerKernel *find(const std::string &caseName) const;
};

const std::vector<Peer> &peers();

} // namespace lxpm::bench
