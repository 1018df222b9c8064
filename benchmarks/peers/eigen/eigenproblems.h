// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"

#include <Eigen/Eigenvalues>

namespace lxpm::bench::eigen {

namespace {

// The solver reads the triangle below the diagonal, the library the one above it.
template <class T, int n, bool hasVectors, bool isDirect>
void runSymmetric(const PeerOperands &operands) {
    using M = Decomposed<T, n, n>;
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const TransposedArray<M> source(operands.src1);
        auto *values = static_cast<T *>(operands.dst);
        T *vectors = values + operands.count * n;
        Eigen::SelfAdjointEigenSolver<Decomposed<T, n, n, Eigen::ColMajor>> solver;
        for (long k = begin; k < end; ++k) {
            const int options = hasVectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
            if constexpr (isDirect) {
                solver.computeDirect(source.at(k), options);
            } else {
                solver.compute(source.at(k), options);
            }
            Eigen::Map<Vector<T, n>>(values + k * n) = solver.eigenvalues().reverse();
            if constexpr (hasVectors) {
                Eigen::Map<M>(vectors + k * n * n, n, n) = solver.eigenvectors().rowwise().reverse();
            }
        }
    });
}

// Eigenvectors as they are found, a pair's in its two columns.
template <class T, int n, bool hasVectors>
void runGeneral(const PeerOperands &operands) {
    using M = Decomposed<T, n, n>;
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const Array<M> source(operands.src1);
        auto *re = static_cast<T *>(operands.dst);
        T *im = re + operands.count * n;
        T *vectors = im + operands.count * n;
        Eigen::EigenSolver<Decomposed<T, n, n, Eigen::ColMajor>> solver;
        for (long k = begin; k < end; ++k) {
            solver.compute(source.at(k), hasVectors);
            Eigen::Map<Vector<T, n>>(re + k * n) = solver.eigenvalues().real();
            Eigen::Map<Vector<T, n>>(im + k * n) = solver.eigenvalues().imag();
            if constexpr (hasVectors) {
                Eigen::Map<M>(vectors + k * n * n, n, n) = solver.pseudoEigenvectors();
            }
        }
    });
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"EigenValuesSym_ma" + size, runSymmetric<T, n, false, false>});
    table.push_back({"EigenValuesSym_m" + size, runSymmetric<T, n, false, false>});
    table.push_back({"EigenValuesVectorsSym_ma" + size, runSymmetric<T, n, true, false>});
    table.push_back({"EigenValuesVectorsSym_m" + size, runSymmetric<T, n, true, false>});
    table.push_back({"EigenValues_ma" + size, runGeneral<T, n, false>});
    table.push_back({"EigenValues_m" + size, runGeneral<T, n, false>});
    table.push_back({"EigenValuesVectorsRight_ma" + size, runGeneral<T, n, true>});
    table.push_back({"EigenValuesVectorsRight_m" + size, runGeneral<T, n, true>});
}

} // namespace

template <class T>
void addEigenproblems(PeerTable &table, const std::string &type) {
    forEach<eigenproblemOrders>([&](auto n) { addOrder<T, n>(table, type); });
    table.push_back({"EigenValuesSym_ma_" + type + "/3x3-direct", runSymmetric<T, 3, false, true>});
    table.push_back({"EigenValuesVectorsSym_ma_" + type + "/3x3-direct", runSymmetric<T, 3, true, true>});
}

} // namespace lxpm::bench::eigen
