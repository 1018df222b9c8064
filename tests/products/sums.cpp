// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/sums.h"

#include "support/elements.h"

#include <cmath>

namespace lxpm::test {

namespace {

/// Which of several NaN payloads survives is left to the processor.
template <class T>
void expectSum(const Elements<T> &result, int row, int column, T sum) {
    if (std::isnan(sum)) {
        result.expectNan(row, column);
    } else {
        result.expect(row, column, sum);
    }
}

} // namespace

Formula sumsOfProducts() {
    return formula([](auto operands) {
        const auto &first = operands[0];
        const auto &second = operands[1];
        const auto &result = operands.back();
        for (int row = 0; row < result.rows(); ++row) {
            for (int column = 0; column < result.columns(); ++column) {
                decltype(first(0, 0)) sum = 0;
                for (int k = 0; k < first.columns(); ++k) {
                    sum = sum + first(row, k) * second(k, column);
                }
                expectSum(result, row, column, sum);
            }
        }
    });
}

Formula sumsWithVector() {
    return formula([](auto operands) {
        const auto &matrix = operands[0];
        const auto &vector = operands[1];
        const auto &result = operands.back();
        for (int row = 0; row < matrix.rows(); ++row) {
            decltype(matrix(0, 0)) sum = 0;
            for (int k = 0; k < matrix.columns(); ++k) {
                sum = sum + matrix(row, k) * vector(0, k);
            }
            if (operands.size() == 4) {
                sum = sum + operands[2](0, row);
            }
            expectSum(result, 0, row, sum);
        }
    });
}

} // namespace lxpm::test
