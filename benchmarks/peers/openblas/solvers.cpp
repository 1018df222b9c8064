// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// OpenBLAS as a solver, through LAPACKE: one call for each object. The forms that take their scratch from the caller,
// on columns, so that nothing is allocated or turned around.

#include "orders.h"
#include "peers/openblas/families.h"
#include "solvers/systems.h"

#include <lapacke.h>

#include <algorithm>

namespace lxpm::bench::openblas {

namespace {

template <class T>
lapack_int luFactor(int n, T *a, lapack_int *pivots) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, n, n, a, n, pivots);
    } else {
        return LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, n, n, a, n, pivots);
    }
}

template <class T>
lapack_int luSolve(int n, const T *a, const lapack_int *pivots, int count, T *b) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return LAPACKE_sgetrs_work(LAPACK_COL_MAJOR, 'N', n, count, a, n, pivots, b, n);
    } else {
        return LAPACKE_dgetrs_work(LAPACK_COL_MAJOR, 'N', n, count, a, n, pivots, b, n);
    }
}

template <class T>
lapack_int choleskyFactor(int n, T *a) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return LAPACKE_spotrf_work(LAPACK_COL_MAJOR, 'L', n, a, n);
    } else {
        return LAPACKE_dpotrf_work(LAPACK_COL_MAJOR, 'L', n, a, n);
    }
}

template <class T>
lapack_int choleskySolve(int n, const T *a, int count, T *b) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return LAPACKE_spotrs_work(LAPACK_COL_MAJOR, 'L', n, count, a, n, b, n);
    } else {
        return LAPACKE_dpotrs_work(LAPACK_COL_MAJOR, 'L', n, count, a, n, b, n);
    }
}

constexpr int blockOfColumns = 32; // of scratch for the blocked forms

template <class T>
lapack_int qrFactor(int height, int width, T *a, T *tau) {
    T work[blockOfColumns * 16];
    const lapack_int size = blockOfColumns * 16;
    if constexpr (sizeof(T) == sizeof(float)) {
        return LAPACKE_sgeqrf_work(LAPACK_COL_MAJOR, height, width, a, height, tau, work, size);
    } else {
        return LAPACKE_dgeqrf_work(LAPACK_COL_MAJOR, height, width, a, height, tau, work, size);
    }
}

template <class T>
lapack_int qrSolve(int height, int width, const T *a, const T *tau, int count, T *b) {
    static thread_local std::vector<T> work;
    work.resize(static_cast<std::size_t>(blockOfColumns + count) * 80);
    const auto size = static_cast<lapack_int>(work.size());
    if constexpr (sizeof(T) == sizeof(float)) {
        LAPACKE_sormqr_work(LAPACK_COL_MAJOR, 'L', 'T', height, count, width, a, height, tau, b, height, work.data(),
                            size);
        return LAPACKE_strtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', width, count, a, height, b, height);
    } else {
        LAPACKE_dormqr_work(LAPACK_COL_MAJOR, 'L', 'T', height, count, width, a, height, tau, b, height, work.data(),
                            size);
        return LAPACKE_dtrtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', width, count, a, height, b, height);
    }
}

enum class Method { LU, Cholesky, QR };

// Matrices by columns and their factors, prepared by a kernel's first run, which is not measured. They are the given
// numbers as they stand, or made fit to be solved with.
template <class T, Method method, int height, int width>
class Systems {
    static constexpr int area = height * width;

public:
    void prepare(const PeerOperands &operands, bool asTheyStand, long matrixCount) {
        if (source == operands.src1 && count == matrixCount) {
            return;
        }
        source = operands.src1;
        count = matrixCount;
        const auto *numbers = static_cast<const T *>(source);
        const std::vector<T> rows = asTheyStand ? std::vector<T>(numbers, numbers + count * area)
                                                : goodMatrices<T>(source, height, width, count);
        matrices.resize(rows.size());
        for (long k = 0; k < count; ++k) {
            for (int i = 0; i < height; ++i) {
                for (int j = 0; j < width; ++j) {
                    matrices[k * area + j * height + i] = rows[k * area + i * width + j];
                }
            }
        }
        factors.resize(rows.size());
        pivots.resize(count * width);
        scales.resize(count * width);
        factor();
    }

    void factor() {
        for (long k = 0; k < count; ++k) {
            T *a = &factors[k * area];
            std::copy_n(&matrices[k * area], area, a);
            if constexpr (method == Method::LU) {
                luFactor<T>(width, a, &pivots[k * width]);
            } else if constexpr (method == Method::Cholesky) {
                choleskyFactor<T>(width, a);
            } else {
                qrFactor<T>(height, width, a, &scales[k * width]);
            }
        }
    }

    // With the factors of matrix k, `vectors` right-hand sides in place, `height` elements each.
    void solve(long k, int vectors, T *b) const {
        const T *a = &factors[k * area];
        if constexpr (method == Method::LU) {
            luSolve<T>(width, a, &pivots[k * width], vectors, b);
        } else if constexpr (method == Method::Cholesky) {
            choleskySolve<T>(width, a, vectors, b);
        } else {
            qrSolve<T>(height, width, a, &scales[k * width], vectors, b);
        }
    }

private:
    const void *source = nullptr;
    long count = 0;
    std::vector<T> matrices;
    std::vector<T> factors;
    std::vector<lapack_int> pivots;
    std::vector<T> scales;
};

template <class T, Method method, int height, int width>
void runFactor(const PeerOperands &operands) {
    static Systems<T, method, height, width> systems;
    systems.prepare(operands, method != Method::Cholesky, operands.count);
    systems.factor();
}

template <class T, Method method, int height, int width>
void runSolve(const PeerOperands &operands) {
    static Systems<T, method, height, width> systems;
    systems.prepare(operands, false, operands.count);
    const T *right = static_cast<const T *>(operands.src2);
    T *dst = static_cast<T *>(operands.dst);
    for (long k = 0; k < operands.count; ++k) {
        T b[height];
        std::copy_n(right + k * height, height, b);
        systems.solve(k, 1, b);
        std::copy_n(b, width, dst + k * width);
    }
}

// All right-hand sides of one matrix in one call.
template <class T, Method method, int height, int width>
void runSolveAll(const PeerOperands &operands) {
    static Systems<T, method, height, width> systems;
    static std::vector<T> b;
    systems.prepare(operands, false, 1);
    const T *right = static_cast<const T *>(operands.src2);
    T *dst = static_cast<T *>(operands.dst);
    if constexpr (height == width) {
        std::copy_n(right, operands.count * height, dst);
        systems.solve(0, static_cast<int>(operands.count), dst);
    } else {
        b.assign(right, right + operands.count * height);
        systems.solve(0, static_cast<int>(operands.count), b.data());
        for (long k = 0; k < operands.count; ++k) {
            std::copy_n(&b[k * height], width, dst + k * width);
        }
    }
}

template <class T, Method method, int height, int width>
void addMethod(PeerTable &table, const std::string &name, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(height) + "x" + std::to_string(width);
    for (const char *operands : {"_ma", "_m"}) {
        table.push_back({name + "Decomp" + operands + size, runFactor<T, method, height, width>});
    }
    for (const char *operands : {"_mava", "_mv"}) {
        table.push_back({name + "BackSubst" + operands + size, runSolve<T, method, height, width>});
    }
    table.push_back({name + "BackSubst_mva" + size, runSolveAll<T, method, height, width>});
}

template <class T>
void addType(PeerTable &table, const std::string &type) {
    forEach<solverOrders>([&](auto n) {
        addMethod<T, Method::LU, n, n>(table, "LU", type);
        addMethod<T, Method::Cholesky, n, n>(table, "Cholesky", type);
        addMethod<T, Method::QR, n, n>(table, "QR", type);
    });
    addMethod<T, Method::QR, 6, 4>(table, "QR", type);
    addMethod<T, Method::QR, 16, 8>(table, "QR", type);
}

} // namespace

void addSolvers(PeerTable &table) {
    addType<float>(table, "32f");
    addType<double>(table, "64f");
}

} // namespace lxpm::bench::openblas
