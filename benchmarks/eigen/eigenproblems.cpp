// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "case.h"
#include "orders.h"

#include <algorithm>
#include <lxpm/eigen.h>
#include <memory>

namespace lxpm::bench {

namespace {

// A function on dense arrays: eigenvalues first, so that they can be compared; vectors, whose signs and lengths every
// solver chooses for itself, stand behind them.
template <class T>
using OnArrays = LxpStatus (*)(const T *src, T *values, T *vectors, T *buffer, int order, int count);

// Of real matrices two numbers make an eigenvalue, and their order is the solver's own as well.
enum class Values { Sorted, Pairs };

// Every matrix is solved, whatever becomes of the others; singular ones are no failure here.
LxpStatus solved(LxpStatus status) {
    return status == lxpStatusSingularErr ? lxpStatusOk : status;
}

template <class T>
void append(std::vector<Case> &cases, const std::string &name, const std::string &size, int order, Values values,
            bool hasVectors, OnArrays<T> function) {
    const Setting &setting = cacheSetting();
    const int area = order * order;
    const int perObject = order * (values == Values::Pairs ? 2 : 1);
    const std::size_t bytes = (area * (hasVectors ? 2 : 1) + perObject) * sizeof(T);
    const auto count = static_cast<int>(std::max<std::size_t>(1, setting.bytes / 2 / bytes));
    const auto prepare = [=](const Memory &memory) -> Call {
        const auto *src = static_cast<const T *>(memory.source1());
        auto *to = static_cast<T *>(memory.result());
        const auto buffer = std::make_shared<std::vector<T>>(order * (3 * order + 5));
        return [=] { return solved(function(src, to, to + count * perObject, buffer->data(), order, count)); };
    };
    cases.push_back({.group = setting.name + "-eigen",
                     .name = name + (sizeof(T) == sizeof(float) ? "_32f/" : "_64f/") + size,
                     .dense = true,
                     .setting = setting,
                     .objects = count,
                     .bytesRead = count * area * sizeof(T),
                     .bytesWritten = count * perObject * sizeof(T),
                     .prepare = prepare,
                     .roundedElementSize = sizeof(T),
                     .tolerance = values == Values::Sorted ? 1e-4 : 2});
}

// The export of type T.
template <class T>
auto exportOf(auto *in32f, auto *in64f) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return in32f;
    } else {
        return in64f;
    }
}

template <class T>
LxpStatus symmetricValues(const T *src, T *values, T *, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return exportOf<T>(lxpmEigenValuesSym_ma_32f, lxpmEigenValuesSym_ma_64f)(src, row * order, row, sizeof(T), buffer,
                                                                             values, order, count);
}

template <class T>
LxpStatus symmetricVectors(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return exportOf<T>(lxpmEigenValuesVectorsSym_ma_32f, lxpmEigenValuesVectorsSym_ma_64f)(
        src, row * order, row, sizeof(T), buffer, vectors, row * order, row, sizeof(T), values, order, count);
}

template <class T>
LxpStatus generalValues(const T *src, T *values, T *, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return exportOf<T>(lxpmEigenValues_ma_32f, lxpmEigenValues_ma_64f)(src, row * order, row, sizeof(T), values,
                                                                       values + count * order, order, count, buffer);
}

template <class T>
LxpStatus generalVectors(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return exportOf<T>(lxpmEigenValuesVectorsRight_ma_32f, lxpmEigenValuesVectorsRight_ma_64f)(
        src, row * order, row, sizeof(T), vectors, row * order, row, sizeof(T), values, values + count * order, order,
        count, buffer);
}

// One matrix in each call: one(matrix, its values, its vectors, what stands behind the values of all matrices).
template <class T, class One>
LxpStatus ofEach(const T *src, T *values, T *vectors, int order, int count, const One &one) {
    const std::ptrdiff_t area = std::ptrdiff_t(order) * order;
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        one(src + k * area, values + k * order, vectors + k * area, values + (count + k) * order);
    }
    return lxpStatusOk;
}

template <class T>
LxpStatus symmetricValuesOfEach(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return ofEach(src, values, vectors, order, count, [=](const T *matrix, T *valuesOfOne, T *, T *) {
        exportOf<T>(lxpmEigenValuesSym_m_32f, lxpmEigenValuesSym_m_64f)(matrix, row, sizeof(T), buffer, valuesOfOne,
                                                                        order);
    });
}

template <class T>
LxpStatus symmetricVectorsOfEach(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return ofEach(src, values, vectors, order, count, [=](const T *matrix, T *valuesOfOne, T *vectorsOfOne, T *) {
        exportOf<T>(lxpmEigenValuesVectorsSym_m_32f, lxpmEigenValuesVectorsSym_m_64f)(
            matrix, row, sizeof(T), buffer, vectorsOfOne, row, sizeof(T), valuesOfOne, order);
    });
}

template <class T>
LxpStatus generalValuesOfEach(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return ofEach(src, values, vectors, order, count, [=](const T *matrix, T *real, T *, T *imaginary) {
        exportOf<T>(lxpmEigenValues_m_32f, lxpmEigenValues_m_64f)(matrix, row, sizeof(T), real, imaginary, order,
                                                                  buffer);
    });
}

template <class T>
LxpStatus generalVectorsOfEach(const T *src, T *values, T *vectors, T *buffer, int order, int count) {
    const int row = order * static_cast<int>(sizeof(T));
    return ofEach(src, values, vectors, order, count, [=](const T *matrix, T *real, T *vectorsOfOne, T *imaginary) {
        exportOf<T>(lxpmEigenValuesVectorsRight_m_32f, lxpmEigenValuesVectorsRight_m_64f)(
            matrix, row, sizeof(T), vectorsOfOne, row, sizeof(T), real, imaginary, order, buffer);
    });
}

template <class T>
void appendType(std::vector<Case> &cases) {
    for (const int n : eigenproblemOrders) {
        const std::string size = std::to_string(n) + "x" + std::to_string(n);
        append<T>(cases, "EigenValuesSym_ma", size, n, Values::Sorted, false, symmetricValues<T>);
        append<T>(cases, "EigenValuesVectorsSym_ma", size, n, Values::Sorted, true, symmetricVectors<T>);
        append<T>(cases, "EigenValuesSym_m", size, n, Values::Sorted, false, symmetricValuesOfEach<T>);
        append<T>(cases, "EigenValuesVectorsSym_m", size, n, Values::Sorted, true, symmetricVectorsOfEach<T>);
        append<T>(cases, "EigenValues_ma", size, n, Values::Pairs, false, generalValues<T>);
        append<T>(cases, "EigenValuesVectorsRight_ma", size, n, Values::Pairs, true, generalVectors<T>);
        append<T>(cases, "EigenValues_m", size, n, Values::Pairs, false, generalValuesOfEach<T>);
        append<T>(cases, "EigenValuesVectorsRight_m", size, n, Values::Pairs, true, generalVectorsOfEach<T>);
    }
    // Beside a solution without iterations.
    append<T>(cases, "EigenValuesSym_ma", "3x3-direct", 3, Values::Sorted, false, symmetricValues<T>);
    append<T>(cases, "EigenValuesVectorsSym_ma", "3x3-direct", 3, Values::Sorted, true, symmetricVectors<T>);
}

} // namespace

void appendEigenproblems(std::vector<Case> &cases) {
    appendType<float>(cases);
    appendType<double>(cases);
}

} // namespace lxpm::bench
