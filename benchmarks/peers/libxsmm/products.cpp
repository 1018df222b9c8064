// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// libxsmm writes a kernel for the order at run time, with all that the processor has. Its matrices stand by columns, so
// the operands are exchanged.

#include "blocks.h"
#include "orders.h"
#include "peers/peer.h"

#include <libxsmm.h>

namespace lxpm::bench {

namespace {

template <class T, int n>
auto kernel() {
    const T one = 1;
    const T zero = 0;
    const int order = n;
    if constexpr (sizeof(T) == sizeof(float)) {
        return libxsmm_smmdispatch(n, n, n, &order, &order, &order, &one, &zero, nullptr, nullptr);
    } else {
        return libxsmm_dmmdispatch(n, n, n, &order, &order, &order, &one, &zero, nullptr, nullptr);
    }
}

template <class T, int n, int aMoves, int bMoves>
void run(const PeerOperands &operands) {
    static const auto multiply = kernel<T, n>();
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        for (long k = begin; k < end; ++k) {
            multiply(static_cast<const T *>(operands.src2) + bMoves * k * n * n,
                     static_cast<const T *>(operands.src1) + aMoves * k * n * n,
                     static_cast<T *>(operands.dst) + k * n * n);
        }
    });
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"Mul_mama" + size, run<T, n, 1, 1>});
    table.push_back({"Mul_mm" + size, run<T, n, 1, 1>});
    table.push_back({"Mul_mam" + size, run<T, n, 1, 0>});
    table.push_back({"Mul_mma" + size, run<T, n, 0, 1>});
}

} // namespace

} // namespace lxpm::bench

extern "C" const lxpm::bench::PeerTable *LXPM_PEER_TABLE() {
    using namespace lxpm::bench;
    static const PeerTable all = [] {
        libxsmm_init();
        PeerTable table;
        forEach<productOrders>([&](auto n) {
            addOrder<float, n>(table, "32f");
            addOrder<double, n>(table, "64f");
        });
        return table;
    }();
    return &all;
}
