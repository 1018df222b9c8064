// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "peers/eigen/families.h"

extern "C" const lxpm::bench::PeerTable *LXPM_PEER_TABLE() {
    static const lxpm::bench::PeerTable all = [] {
        lxpm::bench::PeerTable table;
        lxpm::bench::eigen::addAddSub(table);
        lxpm::bench::eigen::addMoving(table);
        lxpm::bench::eigen::addProducts(table);
        lxpm::bench::eigen::addReductions(table);
        lxpm::bench::eigen::addGraphics(table);
        lxpm::bench::eigen::addSolvers<float>(table, "32f");
        lxpm::bench::eigen::addSolvers<double>(table, "64f");
        lxpm::bench::eigen::addEigenproblems<float>(table, "32f");
        lxpm::bench::eigen::addEigenproblems<double>(table, "64f");
        return table;
    }();
    return &all;
}
