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

// What takes the compiler long, each type in a file of its own.
template <class T>
void addSolvers(PeerTable &table, const std::string &type);
template <class T>
void addEigenproblems(PeerTable &table, const std::string &type);

} // namespace lxpm::bench::eigen
