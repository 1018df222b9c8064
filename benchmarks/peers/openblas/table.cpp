// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "peers/openblas/families.h"

#include <cblas.h>

extern "C" const lxpm::bench::PeerTable *LXPM_PEER_TABLE() {
    static const lxpm::bench::PeerTable all = [] {
        openblas_set_num_threads(1); // the threads are the benchmark's own
        lxpm::bench::PeerTable table;
        lxpm::bench::openblas::addProducts(table);
        lxpm::bench::openblas::addReductions(table);
        lxpm::bench::openblas::addSolvers(table);
        lxpm::bench::openblas::addEigenproblems(table);
        return table;
    }();
    return &all;
}
