// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "peers/peers.h"

#include <algorithm>

extern "C" {
const lxpm::bench::PeerTable *lxpmPeer_eigen_avx();
const lxpm::bench::PeerTable *lxpmPeer_eigen_native();
const lxpm::bench::PeerTable *lxpmPeer_libxsmm();
const lxpm::bench::PeerTable *lxpmPeer_openblas();
const lxpm::bench::PeerTable *lxpmPeer_glm();
const lxpm::bench::PeerTable *lxpmPeer_cglm();
}

namespace lxpm::bench {

const PeerKernel *Peer::find(const std::string &caseName) const {
    const auto found =
        std::find_if(kernels.begin(), kernels.end(), [&](const PeerKernel &kernel) { return kernel.name == caseName; });
    return found == kernels.end() ? nullptr : &*found;
}

const std::vector<Peer> &peers() {
    static const std::vector<Peer> all = {
        {"Eigen-avx", *lxpmPeer_eigen_avx()},
        {"Eigen-native", *lxpmPeer_eigen_native()},
        {"libxsmm", *lxpmPeer_libxsmm()},
        {"OpenBLAS", *lxpmPeer_openblas()},
        {"GLM", *lxpmPeer_glm()},
        {"cglm", *lxpmPeer_cglm()},
    };
    return all;
}

} // namespace lxpm::bench
