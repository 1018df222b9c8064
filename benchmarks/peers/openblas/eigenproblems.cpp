// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// OpenBLAS' eigensolvers, through LAPACKE: one call for each object, with scratch of the caller's.

#include "orders.h"
#include "peers/openblas/families.h"

#include <lapacke.h>

#include <algorithm>

namespace lxpm::bench::openblas {

namespace {

constexpr int scratch = 2048; // elements: more than order 16 can use

// What LAPACK takes for the upper triangle, by columns, is the lower one by rows; the library reads the other one.
template <class T, int n, bool hasVectors>
void runSymmetric(const PeerOperands &operands) {
    const T *src = static_cast<const T *>(operands.src1);
    T *values = static_cast<T *>(operands.dst);
    T *vectors = values + operands.count * n;
    T work[scratch];
    const char job = hasVectors ? 'V' : 'N';
    for (long k = 0; k < operands.count; ++k) {
        T a[n * n];
        T *const matrix = hasVectors ? vectors + k * n * n : a;
        T *const w = values + k * n;
        std::copy_n(src + k * n * n, n * n, matrix);
        if constexpr (sizeof(T) == sizeof(float)) {
            LAPACKE_ssyev_work(LAPACK_COL_MAJOR, job, 'L', n, matrix, n, w, work, scratch);
        } else {
            LAPACKE_dsyev_work(LAPACK_COL_MAJOR, job, 'L', n, matrix, n, w, work, scratch);
        }
        std::reverse(w, w + n); // they ascend
    }
}

// The transpose, by columns, whose left eigenvectors are the right ones.
template <class T, int n, bool hasVectors>
void runGeneral(const PeerOperands &operands) {
    const T *src = static_cast<const T *>(operands.src1);
    T *re = static_cast<T *>(operands.dst);
    T *im = re + operands.count * n;
    T *vectors = im + operands.count * n;
    T work[scratch];
    const char job = hasVectors ? 'V' : 'N';
    for (long k = 0; k < operands.count; ++k) {
        T a[n * n];
        std::copy_n(src + k * n * n, n * n, a);
        T *const left = hasVectors ? vectors + k * n * n : a;
        if constexpr (sizeof(T) == sizeof(float)) {
            LAPACKE_sgeev_work(LAPACK_COL_MAJOR, job, 'N', n, a, n, re + k * n, im + k * n, left, n, nullptr, n, work,
                               scratch);
        } else {
            LAPACKE_dgeev_work(LAPACK_COL_MAJOR, job, 'N', n, a, n, re + k * n, im + k * n, left, n, nullptr, n, work,
                               scratch);
        }
    }
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"EigenValuesSym_ma" + size, runSymmetric<T, n, false>});
    table.push_back({"EigenValuesSym_m" + size, runSymmetric<T, n, false>});
    table.push_back({"EigenValuesVectorsSym_ma" + size, runSymmetric<T, n, true>});
    table.push_back({"EigenValuesVectorsSym_m" + size, runSymmetric<T, n, true>});
    table.push_back({"EigenValues_ma" + size, runGeneral<T, n, false>});
    table.push_back({"EigenValues_m" + size, runGeneral<T, n, false>});
    table.push_back({"EigenValuesVectorsRight_ma" + size, runGeneral<T, n, true>});
    table.push_back({"EigenValuesVectorsRight_m" + size, runGeneral<T, n, true>});
}

} // namespace

void addEigenproblems(PeerTable &table) {
    forEach<eigenproblemOrders>([&](auto n) {
        addOrder<float, n>(table, "32f");
        addOrder<double, n>(table, "64f");
    });
}

} // namespace lxpm::bench::openblas
