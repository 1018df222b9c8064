// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "peers/eigen/eigenproblems.h"

namespace lxpm::bench::eigen {

template void addEigenproblems<double>(PeerTable &table, const std::string &type);

} // namespace lxpm::bench::eigen
