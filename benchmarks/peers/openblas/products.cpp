// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// OpenBLAS, one call for each object, or one for all vectors of an array.

#include "blocks.h"
#include "orders.h"
#include "peers/openblas/families.h"

#include <cblas.h>

namespace lxpm::bench::openblas {

namespace {

template <class T>
void multiply(CBLAS_TRANSPOSE transA, CBLAS_TRANSPOSE transB, int rows, int columns, int inner, const T *a, int aRow,
              const T *b, int bRow, T *dst) {
    if constexpr (sizeof(T) == sizeof(float)) {
        cblas_sgemm(CblasRowMajor, transA, transB, rows, columns, inner, 1, a, aRow, b, bRow, 0, dst, columns);
    } else {
        cblas_dgemm(CblasRowMajor, transA, transB, rows, columns, inner, 1, a, aRow, b, bRow, 0, dst, columns);
    }
}

// Of arrays and single objects: 1 where an operand moves from object to object.
template <class T, int n, CBLAS_TRANSPOSE transA, CBLAS_TRANSPOSE transB, int aMoves, int bMoves>
void runMatrices(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        for (long k = begin; k < end; ++k) {
            multiply(transA, transB, n, n, n, static_cast<const T *>(operands.src1) + aMoves * k * n * n, n,
                     static_cast<const T *>(operands.src2) + bMoves * k * n * n, n,
                     static_cast<T *>(operands.dst) + k * n * n);
        }
    });
}

// The vectors of an array are the rows of one matrix.
template <class T, int n>
void runVectors(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        multiply(CblasNoTrans, CblasTrans, static_cast<int>(end - begin), n, n,
                 static_cast<const T *>(operands.src2) + begin * n, n, static_cast<const T *>(operands.src1), n,
                 static_cast<T *>(operands.dst) + begin * n);
    });
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"Mul_mama" + size, runMatrices<T, n, CblasNoTrans, CblasNoTrans, 1, 1>});
    table.push_back({"Mul_mm" + size, runMatrices<T, n, CblasNoTrans, CblasNoTrans, 1, 1>});
    table.push_back({"Mul_mam" + size, runMatrices<T, n, CblasNoTrans, CblasNoTrans, 1, 0>});
    table.push_back({"Mul_mma" + size, runMatrices<T, n, CblasNoTrans, CblasNoTrans, 0, 1>});
    table.push_back({"Mul_mat" + size, runMatrices<T, n, CblasNoTrans, CblasTrans, 1, 0>});
    table.push_back({"Mul_tam" + size, runMatrices<T, n, CblasTrans, CblasNoTrans, 1, 0>});
    table.push_back({"Mul_mva" + size, runVectors<T, n>});
}

} // namespace

void addProducts(PeerTable &table) {
    forEach<productOrders>([&](auto n) {
        addOrder<float, n>(table, "32f");
        addOrder<double, n>(table, "64f");
    });
}

} // namespace lxpm::bench::openblas
