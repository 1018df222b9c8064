// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// OpenBLAS' sums over vectors and its transposed copies, one call for each object.

#include "blocks.h"
#include "orders.h"
#include "peers/openblas/families.h"

#include <cblas.h>

namespace lxpm::bench::openblas {

namespace {

template <class T, int n>
T dot(const T *a, const T *b) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return cblas_sdot(n, a, 1, b, 1);
    } else {
        return cblas_ddot(n, a, 1, b, 1);
    }
}

template <class T, int n>
T norm(const T *a) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return cblas_snrm2(n, a, 1);
    } else {
        return cblas_dnrm2(n, a, 1);
    }
}

// The second operand is an array where it moves from object to object: 1, else 0.
template <class T, int n, int secondMoves>
void runDots(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const auto *a = static_cast<const T *>(operands.src1);
        const auto *b = static_cast<const T *>(operands.src2);
        for (long k = begin; k < end; ++k) {
            static_cast<T *>(operands.dst)[k] = dot<T, n>(a + k * n, b + secondMoves * k * n);
        }
    });
}

template <class T, int n>
void runNorms(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        for (long k = begin; k < end; ++k) {
            static_cast<T *>(operands.dst)[k] = norm<T, n>(static_cast<const T *>(operands.src1) + k * n);
        }
    });
}

template <class T, int n>
void runTransposes(const PeerOperands &operands) {
    constexpr long area = long{n} * n;
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        for (long k = begin; k < end; ++k) {
            const T *from = static_cast<const T *>(operands.src1) + k * area;
            T *to = static_cast<T *>(operands.dst) + k * area;
            if constexpr (sizeof(T) == sizeof(float)) {
                cblas_somatcopy(CblasRowMajor, CblasTrans, n, n, 1, from, n, to, n);
            } else {
                cblas_domatcopy(CblasRowMajor, CblasTrans, n, n, 1, from, n, to, n);
            }
        }
    });
}

template <class T, int length>
void addVectors(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(length);
    table.push_back({"DotProduct_vava" + size, runDots<T, length, 1>});
    table.push_back({"DotProduct_vav" + size, runDots<T, length, 0>});
    table.push_back({"L2Norm_va" + size, runNorms<T, length>});
}

template <class T, int n>
void addMatrices(PeerTable &table, const std::string &name, const std::string &type) {
    table.push_back({name + "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n), runTransposes<T, n>});
}

template <class T>
void addType(PeerTable &table, const std::string &type) {
    forEach<vectorLengths>([&](auto n) { addVectors<T, n>(table, type); });
    forEach<reductionOrders>([&](auto n) { addMatrices<T, n>(table, "Transpose_ma", type); });
    addMatrices<T, 1000>(table, "Transpose_m", type);
    addMatrices<T, 2048>(table, "Transpose_m", type);
}

} // namespace

void addReductions(PeerTable &table) {
    addType<float>(table, "32f");
    addType<double>(table, "64f");
}

} // namespace lxpm::bench::openblas
