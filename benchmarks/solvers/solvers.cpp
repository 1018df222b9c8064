// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "solvers/systems.h"

#include "case.h"
#include "orders.h"

#include <algorithm>
#include <functional>
#include <lxpm/solvers.h>
#include <memory>
#include <utility>

namespace lxpm::bench {

namespace {

// What the calls of a case work on, dense.
template <class T>
struct Work {
    int width;
    int height;
    int count;
    int matrixCount;
    std::vector<T> matrices;
    std::vector<T> factors;
    std::vector<int> index;
    std::vector<T> buffer;
    const T *numbers; // matrices as good as random
    const T *right;
    T *dst;

    static constexpr int size = sizeof(T);
    int row() const { return width * size; }
    int object() const { return height * row(); }
    int rightRow() const { return height * size; }

    // Of object k.
    const T *matrix(const T *first, std::ptrdiff_t k) const { return first + k * width * height; }
    T *matrix(T *first, std::ptrdiff_t k) const { return first + k * width * height; }
};

template <class T>
using Function = std::function<LxpStatus(Work<T> &)>;

// One function for each type. k: the object, where a call is of one.
#define LXPM_BENCH_CALL(name, ...)                                                                                     \
    [](Work<T> &w, [[maybe_unused]] std::ptrdiff_t k = 0) {                                                            \
        constexpr int size = sizeof(T);                                                                                \
        if constexpr (size == sizeof(float)) {                                                                         \
            return name##_32f(__VA_ARGS__);                                                                            \
        } else {                                                                                                       \
            return name##_64f(__VA_ARGS__);                                                                            \
        }                                                                                                              \
    }

// A call of each object k.
template <class T, class Call>
Function<T> ofEach(const Call &call) {
    return [call](Work<T> &w) {
        LxpStatus status = lxpStatusOk;
        for (std::ptrdiff_t k = 0; k < w.count && status == lxpStatusOk; ++k) {
            status = call(w, k);
        }
        return status;
    };
}

template <class T>
Function<T> factorLU() {
    return LXPM_BENCH_CALL(lxpmLUDecomp_ma, w.matrices.data(), w.object(), w.row(), size, w.index.data(),
                           w.factors.data(), w.object(), w.row(), size, w.width, w.matrixCount);
}

template <class T>
Function<T> factorCholesky() {
    return LXPM_BENCH_CALL(lxpmCholeskyDecomp_ma, w.matrices.data(), w.object(), w.row(), size, w.factors.data(),
                           w.object(), w.row(), size, w.width, w.matrixCount);
}

template <class T>
Function<T> factorQR() {
    return LXPM_BENCH_CALL(lxpmQRDecomp_ma, w.matrices.data(), w.object(), w.row(), size, w.buffer.data(),
                           w.factors.data(), w.object(), w.row(), size, w.width, w.height, w.matrixCount);
}

enum class Results { Compared, OfAnotherForm };

// The first function prepares, the second one is measured.
template <class T>
void append(std::vector<Case> &cases, const std::string &name, int height, int width, std::size_t read,
            std::size_t written, Results results, Function<T> before, Function<T> measured) {
    const Setting &setting = cacheSetting();
    // Each operand has half of the memory to stand in.
    const auto count =
        static_cast<int>(std::max<std::size_t>(8, setting.bytes / 2 / (std::max(read, written) * sizeof(T))));
    const int matrixCount = name.ends_with("_mva") ? 1 : count;
    const auto prepare = [=](const Memory &memory) -> Call {
        const std::size_t elements = std::size_t(height) * width * matrixCount;
        auto work = std::make_shared<Work<T>>(
            Work<T>{width, height, count, matrixCount, goodMatrices<T>(memory.source1(), height, width, matrixCount),
                    std::vector<T>(elements), std::vector<int>(std::size_t(width) * matrixCount),
                    std::vector<T>(height), static_cast<const T *>(memory.source1()),
                    static_cast<const T *>(memory.source2()), static_cast<T *>(memory.result())});
        if (before) {
            before(*work);
        }
        return [=] { return measured(*work); };
    };
    const bool isFloat = sizeof(T) == sizeof(float);
    const std::size_t slash = name.rfind('_');
    cases.push_back(
        {.group = setting.name + "-" + name.substr(slash + 1),
         .name = name + (isFloat ? "_32f/" : "_64f/") + std::to_string(height) + "x" + std::to_string(width),
         .dense = true,
         .setting = setting,
         .objects = count,
         .bytesRead = count * read * sizeof(T),
         .bytesWritten = count * written * sizeof(T),
         .prepare = prepare,
         .roundedElementSize = sizeof(T),
         .comparesResults = results == Results::Compared});
}

template <class T>
void appendOrder(std::vector<Case> &cases, int n) {
    const int area = n * n;
    append<T>(cases, "LUDecomp_ma", n, n, area, area, Results::OfAnotherForm, nullptr,
              LXPM_BENCH_CALL(lxpmLUDecomp_ma, w.numbers, w.object(), w.row(), size, w.index.data(), w.dst, w.object(),
                              w.row(), size, w.width, w.count));
    append<T>(cases, "CholeskyDecomp_ma", n, n, area, area, Results::OfAnotherForm, nullptr,
              LXPM_BENCH_CALL(lxpmCholeskyDecomp_ma, w.matrices.data(), w.object(), w.row(), size, w.dst, w.object(),
                              w.row(), size, w.width, w.count));
    append<T>(cases, "LUBackSubst_mava", n, n, area + n, n, Results::Compared, factorLU<T>(),
              LXPM_BENCH_CALL(lxpmLUBackSubst_mava, w.factors.data(), w.object(), w.row(), size, w.index.data(),
                              w.right, w.row(), size, w.dst, w.row(), size, w.width, w.count));
    append<T>(cases, "LUBackSubst_mva", n, n, n, n, Results::Compared, factorLU<T>(),
              LXPM_BENCH_CALL(lxpmLUBackSubst_mva, w.factors.data(), w.row(), size, w.index.data(), w.right, w.row(),
                              size, w.dst, w.row(), size, w.width, w.count));
    append<T>(cases, "CholeskyBackSubst_mava", n, n, area + n, n, Results::Compared, factorCholesky<T>(),
              LXPM_BENCH_CALL(lxpmCholeskyBackSubst_mava, w.factors.data(), w.object(), w.row(), size, w.right, w.row(),
                              size, w.dst, w.row(), size, w.width, w.count));
    append<T>(cases, "CholeskyBackSubst_mva", n, n, n, n, Results::Compared, factorCholesky<T>(),
              LXPM_BENCH_CALL(lxpmCholeskyBackSubst_mva, w.factors.data(), w.row(), size, w.right, w.row(), size, w.dst,
                              w.row(), size, w.width, w.count));
    append<T>(cases, "Det_ma", n, n, area, 1, Results::Compared, nullptr,
              LXPM_BENCH_CALL(lxpmDet_ma, w.matrices.data(), w.object(), w.row(), size, w.width, w.dst, w.count));
    append<T>(cases, "Invert_ma", n, n, area, area, Results::Compared, nullptr,
              LXPM_BENCH_CALL(lxpmInvert_ma, w.matrices.data(), w.object(), w.row(), size, w.dst, w.object(), w.row(),
                              size, w.width, w.count));

    append<T>(cases, "LUDecomp_m", n, n, area, area, Results::OfAnotherForm, nullptr,
              ofEach<T>(LXPM_BENCH_CALL(lxpmLUDecomp_m, w.matrix(w.numbers, k), w.row(), size, &w.index[k * w.width],
                                        w.matrix(w.dst, k), w.row(), size, w.width)));
    append<T>(cases, "CholeskyDecomp_m", n, n, area, area, Results::OfAnotherForm, nullptr,
              ofEach<T>(LXPM_BENCH_CALL(lxpmCholeskyDecomp_m, w.matrix(w.matrices.data(), k), w.row(), size,
                                        w.matrix(w.dst, k), w.row(), size, w.width)));
    append<T>(cases, "LUBackSubst_mv", n, n, area + n, n, Results::Compared, factorLU<T>(),
              ofEach<T>(LXPM_BENCH_CALL(lxpmLUBackSubst_mv, w.matrix(w.factors.data(), k), w.row(), size,
                                        &w.index[k * w.width], w.right + k * w.width, size, w.dst + k * w.width, size,
                                        w.width)));
    append<T>(cases, "CholeskyBackSubst_mv", n, n, area + n, n, Results::Compared, factorCholesky<T>(),
              ofEach<T>(LXPM_BENCH_CALL(lxpmCholeskyBackSubst_mv, w.matrix(w.factors.data(), k), w.row(), size,
                                        w.right + k * w.width, size, w.dst + k * w.width, size, w.width)));
    append<T>(cases, "Det_m", n, n, area, 1, Results::Compared, nullptr,
              ofEach<T>(LXPM_BENCH_CALL(lxpmDet_m, w.matrix(w.matrices.data(), k), w.row(), size, w.width, w.dst + k)));
    append<T>(cases, "Invert_m", n, n, area, area, Results::Compared, nullptr,
              ofEach<T>(LXPM_BENCH_CALL(lxpmInvert_m, w.matrix(w.matrices.data(), k), w.row(), size, w.matrix(w.dst, k),
                                        w.row(), size, w.width)));
}

template <class T>
void appendQR(std::vector<Case> &cases, int height, int width) {
    const int area = height * width;
    append<T>(cases, "QRDecomp_ma", height, width, area, area, Results::OfAnotherForm, nullptr,
              LXPM_BENCH_CALL(lxpmQRDecomp_ma, w.numbers, w.object(), w.row(), size, w.buffer.data(), w.dst, w.object(),
                              w.row(), size, w.width, w.height, w.count));
    append<T>(cases, "QRBackSubst_mava", height, width, area + height, width, Results::Compared, factorQR<T>(),
              LXPM_BENCH_CALL(lxpmQRBackSubst_mava, w.factors.data(), w.object(), w.row(), size, w.buffer.data(),
                              w.right, w.rightRow(), size, w.dst, w.row(), size, w.width, w.height, w.count));
    append<T>(cases, "QRBackSubst_mva", height, width, height, width, Results::Compared, factorQR<T>(),
              LXPM_BENCH_CALL(lxpmQRBackSubst_mva, w.factors.data(), w.row(), size, w.buffer.data(), w.right,
                              w.rightRow(), size, w.dst, w.row(), size, w.width, w.height, w.count));
    append<T>(cases, "QRDecomp_m", height, width, area, area, Results::OfAnotherForm, nullptr,
              ofEach<T>(LXPM_BENCH_CALL(lxpmQRDecomp_m, w.matrix(w.numbers, k), w.row(), size, w.buffer.data(),
                                        w.matrix(w.dst, k), w.row(), size, w.width, w.height)));
    append<T>(
        cases, "QRBackSubst_mv", height, width, area + height, width, Results::Compared, factorQR<T>(),
        ofEach<T>(LXPM_BENCH_CALL(lxpmQRBackSubst_mv, w.matrix(w.factors.data(), k), w.row(), size, w.buffer.data(),
                                  w.right + k * w.height, size, w.dst + k * w.width, size, w.width, w.height)));
}

template <class T>
void appendType(std::vector<Case> &cases) {
    for (const int n : solverOrders) {
        appendOrder<T>(cases, n);
        appendQR<T>(cases, n, n);
    }
    appendQR<T>(cases, 6, 4);
    appendQR<T>(cases, 16, 8);
}

} // namespace

void appendSolvers(std::vector<Case> &cases) {
    appendType<float>(cases);
    appendType<double>(cases);
}

} // namespace lxpm::bench
