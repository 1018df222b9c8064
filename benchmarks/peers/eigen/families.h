// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "peers/peer.h"

namespace lxpm::bench::eigen {

// Each appends the kernels of a family.
void addAddSub(PeerTable &table);
void addMoving(PeerTable &table);
void addProducts(PeerTable &table);
void addReductions(PeerTable &table);
void addGraphics(PeerTable &table);
void addSolvers(PeerTable &table);
void addEigenproblems(PeerTable &table);

} // namespace lxpm::bench::eigen
