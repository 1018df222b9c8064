// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "peers/peer.h"

namespace lxpm::bench::openblas {

// Each appends the kernels of a family.
void addProducts(PeerTable &table);
void addReductions(PeerTable &table);
void addSolvers(PeerTable &table);
void addEigenproblems(PeerTable &table);

} // namespace lxpm::bench::openblas
