// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"
#include "solvers/systems.h"

#include <Eigen/Dense>

#include <vector>

namespace lxpm::bench::eigen {

namespace {

// Matrices and their decompositions are prepared by a kernel's first run, which is not measured.
template <class Decomposition, class M>
struct Prepared {
    const void *source = nullptr;
    long count = 0;
    std::vector<typename M::Scalar> matrices;
    std::vector<Decomposition> decompositions;

    void prepare(const PeerOperands &operands, long matrixCount) {
        if (source == operands.src1 && count == matrixCount) {
            return;
        }
        source = operands.src1;
        count = matrixCount;
        matrices = goodMatrices<typename M::Scalar>(source, M::MaxRowsAtCompileTime, M::MaxColsAtCompileTime, count);
        decompositions.clear();
        for (long k = 0; k < count; ++k) {
            decompositions.emplace_back(matrix(k));
        }
    }

    auto matrix(long k) const { return Array<M>(matrices.data()).at(k); }
};

// A decomposition keeps its results itself, as any user of it would keep them.
template <class Decomposition, class M, bool good>
void runFactor(const PeerOperands &operands) {
    static Prepared<Decomposition, M> prepared;
    prepared.prepare(operands, operands.count);
    const Array<M> numbers(operands.src1);
    for (long k = 0; k < operands.count; ++k) {
        if constexpr (good) {
            prepared.decompositions[k].compute(prepared.matrix(k));
        } else {
            prepared.decompositions[k].compute(numbers.at(k));
        }
    }
}

template <class Decomposition, class M, bool single>
void runSolve(const PeerOperands &operands) {
    static Prepared<Decomposition, M> prepared;
    prepared.prepare(operands, single ? 1 : operands.count);
    using T = typename M::Scalar;
    const Array<Vector<T, M::MaxRowsAtCompileTime>> right(operands.src2);
    for (long k = 0; k < operands.count; ++k) {
        Eigen::Map<Vector<T, M::MaxColsAtCompileTime>>(static_cast<T *>(operands.dst) + k * M::MaxColsAtCompileTime) =
            prepared.decompositions[single ? 0 : k].solve(right.at(k));
    }
}

// Nothing is kept.
struct NoDecomposition {
    template <class M>
    explicit NoDecomposition(const M &) {}
};

template <class M>
void runDet(const PeerOperands &operands) {
    static Prepared<NoDecomposition, M> prepared;
    prepared.prepare(operands, operands.count);
    for (long k = 0; k < operands.count; ++k) {
        static_cast<typename M::Scalar *>(operands.dst)[k] = prepared.matrix(k).determinant();
    }
}

template <class M>
void runInvert(const PeerOperands &operands) {
    static Prepared<NoDecomposition, M> prepared;
    prepared.prepare(operands, operands.count);
    for (long k = 0; k < operands.count; ++k) {
        Eigen::Map<M>(static_cast<typename M::Scalar *>(operands.dst) + k * M::MaxSizeAtCompileTime,
                      M::MaxRowsAtCompileTime, M::MaxColsAtCompileTime) = prepared.matrix(k).inverse();
    }
}

template <class M, class Decomposition, bool good>
void addDecomposition(PeerTable &table, const std::string &name, const std::string &size) {
    for (const char *operands : {"_ma", "_m"}) {
        table.push_back({name + "Decomp" + operands + size, runFactor<Decomposition, M, good>});
    }
    for (const char *operands : {"_mava", "_mv"}) {
        table.push_back({name + "BackSubst" + operands + size, runSolve<Decomposition, M, false>});
    }
    table.push_back({name + "BackSubst_mva" + size, runSolve<Decomposition, M, true>});
}

template <class T, int height, int width>
void addQR(PeerTable &table, const std::string &type) {
    using M = Decomposed<T, height, width>;
    const std::string size = "_" + type + "/" + std::to_string(height) + "x" + std::to_string(width);
    addDecomposition<M, Eigen::HouseholderQR<M>, false>(table, "QR", size);
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    using M = Decomposed<T, n, n>;
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    addDecomposition<M, Eigen::PartialPivLU<M>, false>(table, "LU", size);
    addDecomposition<M, Eigen::LLT<M>, true>(table, "Cholesky", size);
    for (const std::string operands : {"_ma", "_m"}) {
        table.push_back({"Det" + operands + size, runDet<M>});
        table.push_back({"Invert" + operands + size, runInvert<M>});
    }
    addQR<T, n, n>(table, type);
}

} // namespace

template <class T>
void addSolvers(PeerTable &table, const std::string &type) {
    forEach<solverOrders>([&](auto n) { addOrder<T, n>(table, type); });
    addQR<T, 6, 4>(table, type);
    addQR<T, 16, 8>(table, type);
}

} // namespace lxpm::bench::eigen
