// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "neighbourhoods.h"
#include "strides.h"

namespace lxpm::mesh {

namespace {

Real3 wayBetween(const Surface &surface, int from, int to) {
    const Real3 a = real(surface.vertices[from].position), b = real(surface.vertices[to].position);
    return {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
}

} // namespace

double unitAround(const Surface &surface, int vertex) {
    double sum = 0;
    for (const int other : surface.neighbours[vertex]) {
        sum += length(wayBetween(surface, vertex, other));
    }
    return sum > 0 ? sum / static_cast<double>(surface.neighbours[vertex].size()) : 1;
}

std::vector<Real3> waysToNeighbours(const Surface &surface, int vertex) {
    const double unit = unitAround(surface, vertex);
    std::vector<Real3> ways;
    for (const int other : surface.neighbours[vertex]) {
        Real3 way = wayBetween(surface, vertex, other);
        for (double &element : way) {
            element /= unit;
        }
        ways.push_back(way);
    }
    return ways;
}

Step productsOfColumns(std::string_view name, const NeighbourRows &rows, std::vector<Matrix3> &products) {
    return {
        .name = name,
        .function = "lxpmMul_tama_32f",
        .objects = products.size(),
        .compute =
            [&rows, &products] {
                return lxpmMul_tama_32f(rows.data(), rows.stride(), pointStride, floatStride, 3, rows.height(), //
                                        rows.data(), rows.stride(), pointStride, floatStride, 3, rows.height(), //
                                        products[0][0].data(), matrixStride, pointStride, floatStride,
                                        countOf(products));
            },
        .limit = static_cast<double>(rows.height()),
        .deviation =
            [&rows, &products] {
                Deviation deviation;
                for (std::size_t k = 0; k < products.size(); ++k) {
                    const Point *row = rows.matrix(k);
                    for (int i = 0; i < 3; ++i) {
                        for (int j = 0; j < 3; ++j) {
                            double exact = 0, magnitude = 0;
                            for (int l = 0; l < rows.height(); ++l) {
                                const double term = double(row[l][i]) * row[l][j];
                                exact += term;
                                magnitude += std::abs(term);
                            }
                            deviation.add(products[k][i][j], exact, magnitude);
                        }
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
