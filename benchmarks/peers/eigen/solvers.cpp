// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"
#include "solvers/systems.h"

#include <Eigen/Dense>

#include <vector>

namespace lxpm::bench::eigen {

namespace {

template <class T, int height, int width>
using Tall = Eigen::Matrix<T, height, width, width == 1 ? Eigen::ColMajor : Eigen::RowMajor>;

// Matrices and their decompositions are prepared by a kernel's first run, which is not measured.
template <class Decomposition, class M>
struct Prepared {
    const void *source = nullptr;
    long count = 0;
    std::vector<typename M::Scalar> matrices;
    std::vector<Decomposition> decompositions;

    void prepare(const PeerOperands &operands) {
        if (source == operands.src1 && count == operands.count) {
            return;
        }
        source = operands.src1;
        count = operands.count;
        matrices = goodMatrices<typename M::Scalar>(source, M::RowsAtCompileTime, M::ColsAtCompileTime, count);
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
    prepared.prepare(operands);
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
    prepared.prepare(operands);
    using T = typename M::Scalar;
    const Array<Vector<T, M::RowsAtCompileTime>> right(operands.src2);
    for (long k = 0; k < operands.count; ++k) {
        Eigen::Map<Vector<T, M::ColsAtCompileTime>>(static_cast<T *>(operands.dst) + k * M::ColsAtCompileTime) =
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
    prepared.prepare(operands);
    for (long k = 0; k < operands.count; ++k) {
        static_cast<typename M::Scalar *>(operands.dst)[k] = prepared.matrix(k).determinant();
    }
}

template <class M>
void runInvert(const PeerOperands &operands) {
    static Prepared<NoDecomposition, M> prepared;
    prepared.prepare(operands);
    for (long k = 0; k < operands.count; ++k) {
        Eigen::Map<M>(static_cast<typename M::Scalar *>(operands.dst) + k * M::SizeAtCompileTime) =
            prepared.matrix(k).inverse();
    }
}

template <class M, class Decomposition, bool good>
void addDecomposition(PeerTable &table, const std::string &name, const std::string &size) {
    table.push_back({name + "Decomp_ma" + size, runFactor<Decomposition, M, good>});
    table.push_back({name + "BackSubst_mava" + size, runSolve<Decomposition, M, false>});
    table.push_back({name + "BackSubst_mva" + size, runSolve<Decomposition, M, true>});
}

template <class T, int height, int width>
void addQR(PeerTable &table, const std::string &type) {
    using M = Tall<T, height, width>;
    const std::string size = "_" + type + "/" + std::to_string(height) + "x" + std::to_string(width);
    addDecomposition<M, Eigen::HouseholderQR<M>, false>(table, "QR", size);
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    using M = Matrix<T, n>;
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    addDecomposition<M, Eigen::PartialPivLU<M>, false>(table, "LU", size);
    addDecomposition<M, Eigen::LLT<M>, true>(table, "Cholesky", size);
    table.push_back({"Det_ma" + size, runDet<M>});
    table.push_back({"Invert_ma" + size, runInvert<M>});
    addQR<T, n, n>(table, type);
}

// Matrices of known order 16 take the compiler many minutes and gigabytes: these sizes have no peer.
template <class T, int... n>
void addType(PeerTable &table, const std::string &type) {
    (addOrder<T, n>(table, type), ...);
    addQR<T, 6, 4>(table, type);
}

} // namespace

void addSolvers(PeerTable &table) {
    addType<float, 3, 4, 5, 6, 8>(table, "32f");
    addType<double, 3, 4, 5, 6, 8>(table, "64f");
}

} // namespace lxpm::bench::eigen
