// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "peers/eigen/solvers.h"

namespace lxpm::bench::eigen {

template void addSolvers<float>(PeerTable &table, const std::string &type);

} // namespace lxpm::bench::eigen
