// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A paraboloid through each vertex, w = a u^2 + b u v + c v^2 above the plane of its normal, as close to its neighbours
// as it can be: least squares by QR, and once more by way of the normal equations, which square the condition of the
// matrix and are held against the first ones. A little weight pulls towards the plane, so that a vertex with few
// neighbours, or with all of them in one direction, has a fit, too.

#include "fits.h"
#include "neighbourhoods.h"
#include "real.h"
#include "strides.h"

#include <algorithm>

namespace lxpm::mesh {

namespace {

// Two directions that make a right-handed frame with the normal.
std::array<Real3, 2> tangentsOf(const Real3 &normal) {
    const int least = std::abs(normal[0]) < std::abs(normal[1]) ? 0 : 1;
    Real3 first = {};
    first[least] = 1;
    for (int j = 0; j < 3; ++j) {
        first[j] -= normal[least] * normal[j];
    }
    first = normalised(first);
    return {first, cross(normal, first)};
}

void fillFits(Surface &surface) {
    Fits &fits = surface.fits;
    for (std::size_t k = 0; k < surface.vertices.size(); ++k) {
        const Real3 given = real(surface.vertices[k].normal);
        const Real3 normal = length(given) > 0 ? given : Real3{0, 0, 1};
        const auto [first, second] = tangentsOf(normal);
        Point *row = fits.matrices.matrix(k);
        float *height = fits.rightSide(k);
        for (const Real3 &way : waysToNeighbours(surface, static_cast<int>(k))) {
            const double u = dot(way, first), v = dot(way, second);
            *row++ = {float(u * u), float(u * v), float(v * v)};
            *height++ = float(dot(way, normal));
        }
    }
}

// The plain computation: what the exact fit is, and how far roundings move it.

struct NormalEquations {
    Real3x3 matrix{};               // transposed(A) * A
    Real3 side{}, sideMagnitudes{}; // transposed(A) * b, and the same sums over magnitudes
};

NormalEquations normalEquations(const Fits &fits, std::size_t vertex) {
    const Point *rows = fits.matrices.matrix(vertex);
    const float *right = fits.rightSide(vertex);
    NormalEquations equations;
    for (int i = 0; i < fits.matrices.height(); ++i) {
        const Real3 row = real(rows[i]);
        for (int j = 0; j < 3; ++j) {
            for (int l = 0; l < 3; ++l) {
                equations.matrix[j][l] += row[j] * row[l];
            }
            equations.side[j] += row[j] * right[i];
            equations.sideMagnitudes[j] += std::abs(row[j] * right[i]);
        }
    }
    return equations;
}

struct ExactFit {
    Real3 solution{};
    double sensitivityOfQr = 0;     // the way of the solution for a relative change of 1 of matrix and right side
    double sensitivityOfNormal = 0; // the same for the matrix of the normal equations and their right side
};

Real3x3 inverseOf(const Real3x3 &m) {
    Real3x3 inverse;
    const auto minor = [&](int i, int j) {
        const int r = (i + 1) % 3, s = (i + 2) % 3, p = (j + 1) % 3, q = (j + 2) % 3;
        return m[r][p] * m[s][q] - m[r][q] * m[s][p];
    };
    const double determinant = m[0][0] * minor(0, 0) + m[0][1] * minor(0, 1) + m[0][2] * minor(0, 2);
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            inverse[i][j] = minor(j, i) / determinant;
        }
    }
    return inverse;
}

ExactFit exactFit(const Fits &fits, std::size_t vertex) {
    const NormalEquations equations = normalEquations(fits, vertex);
    const Real3x3 inverse = inverseOf(equations.matrix);
    ExactFit fit;
    for (int j = 0; j < 3; ++j) {
        fit.solution[j] = dot(inverse[j], equations.side);
    }
    const Point *rows = fits.matrices.matrix(vertex);
    const float *right = fits.rightSide(vertex);
    double squares = 0, rightSquares = 0, residual = 0;
    for (int i = 0; i < fits.matrices.height(); ++i) {
        const Real3 row = real(rows[i]);
        const double r = right[i] - dot(row, fit.solution);
        squares += dot(row, row);
        rightSquares += double(right[i]) * right[i];
        residual += r * r;
    }
    const double a = std::sqrt(squares), x = length(fit.solution), b = std::sqrt(rightSquares);
    const double inverseNorm = norm(inverse);
    fit.sensitivityOfQr = std::sqrt(inverseNorm) * (a * x + b) + inverseNorm * a * std::sqrt(residual);
    fit.sensitivityOfNormal = inverseNorm * (squares * x + a * b);
    return fit;
}

// Roundings on the way through a Householder reduction and its substitution: each element meets three reflectors, each
// of them a sum over the column and some more.
double roundingsOfQr(const Fits &fits) {
    return 3.0 * (fits.matrices.height() + 10);
}

// 1 / sqrt has two more than other operations: the estimate is refined by one step only.
constexpr double roundingsOfCholesky = 3 * (3 + 4);

} // namespace

Step factorsOfFits(Surface &surface) {
    Fits &fits = surface.fits;
    fillFits(surface);
    return {
        .name = "factors of neighbourhoods",
        .function = "lxpmQRDecomp_ma_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&fits, count = countOf(surface.vertices)] {
                return lxpmQRDecomp_ma_32f(fits.matrices.data(), fits.matrices.stride(), pointStride, floatStride,
                                           fits.buffer.data(), //
                                           fits.factors.data(), fits.factors.stride(), pointStride, floatStride, 3,
                                           fits.matrices.height(), count);
            },
        .limit = roundingsOfQr(fits),
        .deviation =
            [&fits, count = surface.vertices.size()] {
                // Reflections leave lengths and angles as they are: transposed(R) * R = transposed(A) * A.
                Deviation deviation;
                for (std::size_t k = 0; k < count; ++k) {
                    const Real3x3 exact = normalEquations(fits, k).matrix;
                    const Point *factor = fits.factors.matrix(k);
                    for (int i = 0; i < 3; ++i) {
                        for (int j = i; j < 3; ++j) {
                            double sum = 0;
                            for (int l = 0; l <= i; ++l) {
                                sum += double(factor[l][i]) * factor[l][j];
                            }
                            deviation.add(sum, exact[i][j], std::sqrt(exact[i][i] * exact[j][j]));
                        }
                    }
                }
                return deviation;
            },
    };
}

Step quadraticFits(Surface &surface) {
    Fits &fits = surface.fits;
    return {
        .name = "paraboloids fitted",
        .function = "lxpmQRBackSubst_mava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&fits] {
                const int height = fits.matrices.height();
                return lxpmQRBackSubst_mava_32f(fits.factors.data(), fits.factors.stride(), pointStride, floatStride,
                                                fits.buffer.data(), //
                                                fits.rightSides.data(), height * floatStride, floatStride,
                                                fits.paraboloids[0].data(), pointStride, floatStride, 3, height,
                                                countOf(fits.paraboloids));
            },
        .limit = roundingsOfQr(fits),
        .deviation =
            [&fits] {
                Deviation deviation;
                for (std::size_t k = 0; k < fits.paraboloids.size(); ++k) {
                    const ExactFit fit = exactFit(fits, k);
                    for (int j = 0; j < 3; ++j) {
                        deviation.add(fits.paraboloids[k][j], fit.solution[j], fit.sensitivityOfQr);
                    }
                }
                return deviation;
            },
    };
}

Step normalMatrices(Surface &surface) {
    return productsOfColumns("normal equations' matrices", surface.fits.matrices, surface.fits.normalMatrices);
}

Step normalRightSides(Surface &surface) {
    Fits &fits = surface.fits;
    return {
        .name = "their right-hand sides",
        .function = "lxpmMul_tava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&fits] {
                const int height = fits.matrices.height();
                return lxpmMul_tava_32f(fits.matrices.data(), fits.matrices.stride(), pointStride, floatStride, 3,
                                        height,                                                            //
                                        fits.rightSides.data(), height * floatStride, floatStride, height, //
                                        fits.normalSides[0].data(), pointStride, floatStride,
                                        countOf(fits.normalSides));
            },
        .limit = static_cast<double>(fits.matrices.height()),
        .deviation =
            [&fits] {
                Deviation deviation;
                for (std::size_t k = 0; k < fits.normalSides.size(); ++k) {
                    const NormalEquations exact = normalEquations(fits, k);
                    for (int j = 0; j < 3; ++j) {
                        deviation.add(fits.normalSides[k][j], exact.side[j], exact.sideMagnitudes[j]);
                    }
                }
                return deviation;
            },
    };
}

Step factorsOfNormalMatrices(Surface &surface) {
    Fits &fits = surface.fits;
    return {
        .name = "their factors",
        .function = "lxpmCholeskyDecomp_ma_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&fits] {
                return lxpmCholeskyDecomp_ma_32f(fits.normalMatrices[0][0].data(), matrixStride, pointStride,
                                                 floatStride, //
                                                 fits.normalFactors[0][0].data(), matrixStride, pointStride,
                                                 floatStride, 3, countOf(fits.normalMatrices));
            },
        .limit = roundingsOfCholesky,
        .deviation =
            [&fits] {
                Deviation deviation;
                for (std::size_t k = 0; k < fits.normalFactors.size(); ++k) {
                    const Matrix3 &a = fits.normalMatrices[k], &factor = fits.normalFactors[k];
                    // The diagonal holds reciprocals.
                    const auto l = [&](int i, int j) { return i == j ? 1 / double(factor[i][j]) : factor[i][j]; };
                    for (int i = 0; i < 3; ++i) {
                        for (int j = 0; j <= i; ++j) {
                            double sum = 0;
                            for (int m = 0; m <= j; ++m) {
                                sum += l(i, m) * l(j, m);
                            }
                            deviation.add(sum, a[i][j], std::sqrt(double(a[i][i]) * a[j][j]));
                        }
                    }
                }
                return deviation;
            },
    };
}

// Held against the fits by QR.
Step fitsByNormalEquations(Surface &surface) {
    Fits &fits = surface.fits;
    return {
        .name = "the same paraboloids",
        .function = "lxpmCholeskyBackSubst_mava_32f",
        .objects = surface.vertices.size(),
        .compute =
            [&fits] {
                return lxpmCholeskyBackSubst_mava_32f(fits.normalFactors[0][0].data(), matrixStride, pointStride,
                                                      floatStride,                                          //
                                                      fits.normalSides[0].data(), pointStride, floatStride, //
                                                      fits.sameParaboloids[0].data(), pointStride, floatStride, 3,
                                                      countOf(fits.sameParaboloids));
            },
        .limit = roundingsOfQr(fits) + fits.matrices.height() + 2 * roundingsOfCholesky,
        .deviation =
            [&fits] {
                Deviation deviation;
                for (std::size_t k = 0; k < fits.sameParaboloids.size(); ++k) {
                    const ExactFit fit = exactFit(fits, k);
                    for (int j = 0; j < 3; ++j) {
                        deviation.add(fits.sameParaboloids[k][j], fits.paraboloids[k][j],
                                      std::max(fit.sensitivityOfQr, fit.sensitivityOfNormal));
                    }
                }
                return deviation;
            },
    };
}

} // namespace lxpm::mesh
