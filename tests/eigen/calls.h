// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The eigen functions by type, for dense matrices.

#ifndef LXPM_TESTS_EIGEN_CALLS_H
#define LXPM_TESTS_EIGEN_CALLS_H

#include <lxpm.h>

#include <gtest/gtest.h>

#include <vector>

namespace lxpm::test {

template <class T>
LxpStatus callSymmetric(const T *source, T *buffer, T *values, int order, int count = 1) {
    const int row = order * static_cast<int>(sizeof(T));
    if constexpr (sizeof(T) == 4) {
        return count == 1 ? lxpmEigenValuesSym_m_32f(source, row, 4, buffer, values, order)
                          : lxpmEigenValuesSym_ma_32f(source, row * order, row, 4, buffer, values, order, count);
    } else {
        return count == 1 ? lxpmEigenValuesSym_m_64f(source, row, 8, buffer, values, order)
                          : lxpmEigenValuesSym_ma_64f(source, row * order, row, 8, buffer, values, order, count);
    }
}

template <class T>
LxpStatus callSymmetric(const T *source, T *buffer, T *vectors, T *values, int order, int count = 1) {
    const int row = order * static_cast<int>(sizeof(T));
    if constexpr (sizeof(T) == 4) {
        return count == 1 ? lxpmEigenValuesVectorsSym_m_32f(source, row, 4, buffer, vectors, row, 4, values, order)
                          : lxpmEigenValuesVectorsSym_ma_32f(source, row * order, row, 4, buffer, vectors, row * order,
                                                             row, 4, values, order, count);
    } else {
        return count == 1 ? lxpmEigenValuesVectorsSym_m_64f(source, row, 8, buffer, vectors, row, 8, values, order)
                          : lxpmEigenValuesVectorsSym_ma_64f(source, row * order, row, 8, buffer, vectors, row * order,
                                                             row, 8, values, order, count);
    }
}

template <class T>
LxpStatus callGeneralValues(const T *source, T *re, T *im, int order, int count, T *buffer) {
    const int row = order * static_cast<int>(sizeof(T));
    if constexpr (sizeof(T) == 4) {
        return count == 1 ? lxpmEigenValues_m_32f(source, row, 4, re, im, order, buffer)
                          : lxpmEigenValues_ma_32f(source, row * order, row, 4, re, im, order, count, buffer);
    } else {
        return count == 1 ? lxpmEigenValues_m_64f(source, row, 8, re, im, order, buffer)
                          : lxpmEigenValues_ma_64f(source, row * order, row, 8, re, im, order, count, buffer);
    }
}

template <class T>
struct GeneralResult {
    std::vector<T> re;
    std::vector<T> im;
    std::vector<T> right;
    std::vector<T> left;
};

/// Values and vectors of dense matrices.
template <class T>
GeneralResult<T> callGeneral(const std::vector<T> &matrices, int order, int count = 1,
                             LxpStatus expected = lxpStatusOk) {
    constexpr int element = sizeof(T);
    const int row = order * element;
    const int object = order * row;
    GeneralResult<T> result = {std::vector<T>(count * order), std::vector<T>(count * order),
                               std::vector<T>(count * order * order), std::vector<T>(count * order * order)};
    std::vector<T> buffer(order * (3 * order + 5));
    const T *source = matrices.data();
    T *right = result.right.data();
    T *left = result.left.data();
    T *re = result.re.data();
    T *im = result.im.data();
    LxpStatus status;
    if constexpr (sizeof(T) == 4) {
        status = count == 1
                     ? lxpmEigenValuesVectors_m_32f(source, row, element, right, row, element, left, row, element, re,
                                                    im, order, buffer.data())
                     : lxpmEigenValuesVectors_ma_32f(source, object, row, element, right, object, row, element, left,
                                                     object, row, element, re, im, order, count, buffer.data());
    } else {
        status = count == 1
                     ? lxpmEigenValuesVectors_m_64f(source, row, element, right, row, element, left, row, element, re,
                                                    im, order, buffer.data())
                     : lxpmEigenValuesVectors_ma_64f(source, object, row, element, right, object, row, element, left,
                                                     object, row, element, re, im, order, count, buffer.data());
    }
    EXPECT_EQ(status, expected);
    return result;
}

} // namespace lxpm::test

#endif
