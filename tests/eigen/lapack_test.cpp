// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Beside LAPACK, in double precision, on the kinds of matrices with which LAPACK's own testers try their eigensolvers
// (programs dchkst and dchkhs: Demmel and McKenney, "A test matrix generation suite", LAPACK Working Note 9, 1989), and
// on the named ones.

#include "eigen/calls.h"
#include "eigen/named_matrices.h"
#include "support/thread_count.h"

#include <gtest/gtest.h>

#include <lapacke.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace lxpm::test {

namespace {

using Value = std::complex<double>;

constexpr int orders[] = {1, 2, 3, 5, 10, 20};

double normOf(const Matrix &matrix) {
    double squares = 0;
    for (const double element : matrix) {
        squares += element * element;
    }
    return std::sqrt(squares);
}

class Generator {
public:
    Generator(int order, double ulp, unsigned seed) : order_(order), ulp_(ulp), random_(seed) {}

    enum class Spacing { Evenly, Geometrically, Clustered, Randomly };

    /// From 1 down to the unit of the last place.
    std::vector<double> values(Spacing spacing, bool hasSigns) {
        std::vector<double> list(order_);
        for (int i = 0; i < order_; ++i) {
            const double place = order_ > 1 ? double(i) / (order_ - 1) : 0;
            switch (spacing) {
            case Spacing::Evenly:
                list[i] = 1 - place * (1 - ulp_);
                break;
            case Spacing::Geometrically:
                list[i] = std::pow(ulp_, place);
                break;
            case Spacing::Clustered:
                list[i] = i == 0 ? 1 : ulp_;
                break;
            case Spacing::Randomly:
                list[i] = std::exp(std::log(ulp_) * uniform(0, 1));
                break;
            }
            if (hasSigns && uniform(0, 1) < 0.5) {
                list[i] = -list[i];
            }
        }
        return list;
    }

    Matrix diagonal(const std::vector<double> &list) const {
        Matrix matrix(order_ * order_);
        for (int i = 0; i < order_; ++i) {
            matrix[i * order_ + i] = list[i];
        }
        return matrix;
    }

    /// With random numbers above the diagonal; some neighbours become complex pairs.
    Matrix quasiTriangular(const std::vector<double> &list, bool hasPairs) {
        Matrix matrix = diagonal(list);
        for (int i = 0; i < order_; ++i) {
            for (int j = i + 1; j < order_; ++j) {
                matrix[i * order_ + j] = uniform(-1, 1);
            }
        }
        for (int i = 0; hasPairs && i + 1 < order_; i += 2) {
            if (uniform(0, 1) < 0.5) {
                matrix[(i + 1) * order_ + i + 1] = matrix[i * order_ + i];
                matrix[(i + 1) * order_ + i] = -list[i + 1];
                matrix[i * order_ + i + 1] = list[i + 1];
            }
        }
        return matrix;
    }

    Matrix random(bool isSymmetric) {
        Matrix matrix(order_ * order_);
        for (int i = 0; i < order_; ++i) {
            for (int j = 0; j < order_; ++j) {
                matrix[i * order_ + j] = isSymmetric && j < i ? matrix[j * order_ + i] : uniform(-1, 1);
            }
        }
        return matrix;
    }

    /// U' M U with a random orthogonal U, a product of reflections.
    Matrix turned(Matrix matrix) {
        for (int k = 0; k < order_; ++k) {
            std::normal_distribution<double> normal;
            std::vector<double> v(order_);
            double squares = 0;
            for (double &element : v) {
                element = normal(random_);
                squares += element * element;
            }
            for (const int step : {order_, 1}) { // columns, then rows
                for (int line = 0; line < order_; ++line) {
                    double *first = &matrix[line * (step == 1 ? order_ : 1)];
                    double product = 0;
                    for (int i = 0; i < order_; ++i) {
                        product += v[i] * first[i * step];
                    }
                    for (int i = 0; i < order_; ++i) {
                        first[i * step] -= 2 * product / squares * v[i];
                    }
                }
            }
        }
        return matrix;
    }

    /// X^-1 M X, where X has singular values from 1 to its condition, geometrically spaced.
    Matrix skewed(const Matrix &matrix, double condition) {
        Matrix result = turned(matrix);
        for (int i = 0; i < order_; ++i) {
            for (int j = 0; j < order_; ++j) {
                result[i * order_ + j] *= std::pow(condition, order_ > 1 ? double(j - i) / (order_ - 1) : 0);
            }
        }
        return turned(std::move(result));
    }

private:
    double uniform(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random_); }

    int order_;
    double ulp_;
    std::mt19937 random_;
};

constexpr int generalKinds = 21;

/// The numbering is LAPACK's.
Matrix generalMatrix(int kind, int order, double ulp, double largest, double smallest) {
    using Spacing = Generator::Spacing;
    constexpr Spacing spacings[] = {Spacing::Evenly, Spacing::Geometrically, Spacing::Clustered, Spacing::Randomly};
    Generator generator(order, ulp, static_cast<unsigned>(kind));
    const auto scaled = [](Matrix matrix, double factor) {
        for (double &element : matrix) {
            element *= factor;
        }
        return matrix;
    };
    switch (kind) {
    case 1:
        return Matrix(order * order);
    case 2:
        return generator.diagonal(std::vector<double>(order, 1));
    case 3: {
        Matrix matrix = generator.diagonal(std::vector<double>(order, 1));
        for (int i = 1; i < order; ++i) {
            matrix[i * order + i - 1] = 1;
        }
        return matrix;
    }
    case 4:
    case 5:
    case 6:
        return generator.diagonal(generator.values(spacings[kind - 4], true));
    case 7:
        return scaled(generalMatrix(4, order, ulp, largest, smallest), largest);
    case 8:
        return scaled(generalMatrix(4, order, ulp, largest, smallest), smallest);
    case 9:
    case 10:
    case 11:
    case 12: {
        const std::vector<double> values = generator.values(spacings[kind - 9], true);
        return generator.turned(generator.quasiTriangular(values, kind == 12));
    }
    case 13:
    case 14:
    case 15:
    case 16: {
        const std::vector<double> values = generator.values(spacings[kind - 13], true);
        return generator.skewed(generator.quasiTriangular(values, kind == 16), 1 / std::sqrt(ulp));
    }
    case 17:
        return scaled(generalMatrix(16, order, ulp, largest, smallest), largest);
    case 18:
        return scaled(generalMatrix(16, order, ulp, largest, smallest), smallest);
    case 19:
        return generator.random(false);
    case 20:
        return scaled(generalMatrix(19, order, ulp, largest, smallest), largest);
    default:
        return scaled(generalMatrix(19, order, ulp, largest, smallest), smallest);
    }
}

/// As the library sees it.
template <class T>
Matrix rounded(const Matrix &matrix) {
    Matrix result;
    for (const double element : matrix) {
        result.push_back(static_cast<T>(element));
    }
    return result;
}

template <class T>
class BesideLapack : public testing::Test {
protected:
    static constexpr double eps = std::numeric_limits<T>::epsilon();

    static void solveSymmetric(const Matrix &given, int order) {
        const Matrix matrix = rounded<T>(given);
        const std::vector<T> source(matrix.begin(), matrix.end());
        std::vector<T> buffer(order * order), vectors(order * order), values(order);
        const LxpStatus status = callSymmetric(source.data(), buffer.data(), vectors.data(), values.data(), order);
        EXPECT_TRUE(status == lxpStatusOk || status == lxpStatusSingularErr) << status;

        Matrix theirs = matrix;
        std::vector<double> expected(order);
        ASSERT_EQ(LAPACKE_dsyev(LAPACK_ROW_MAJOR, 'N', 'U', order, theirs.data(), order, expected.data()), 0);
        const double bound = (10 * normOf(matrix) + 4) * eps * order; // tolerances are absolute, too
        for (int i = 0; i < order; ++i) {
            EXPECT_NEAR(values[i], expected[order - 1 - i], bound) << "value " << i;
        }
    }

    static void solveGeneral(const Matrix &given, int order) {
        const Matrix matrix = rounded<T>(given);
        const GeneralResult<T> result = callGeneral(std::vector<T>(matrix.begin(), matrix.end()), order);

        // Values and how well they are conditioned.
        const double scale = normOf(matrix) > 0 ? normOf(matrix) : 1;
        Matrix theirs = matrix;
        for (double &element : theirs) {
            element /= scale;
        }
        std::vector<double> re(order), im(order), left(order * order), right(order * order), scales(order);
        std::vector<double> conditions(order), conditionsOfVectors(order);
        lapack_int low, high;
        double norm;
        ASSERT_EQ(LAPACKE_dgeevx(LAPACK_ROW_MAJOR, 'N', 'V', 'V', 'E', order, theirs.data(), order, re.data(),
                                 im.data(), left.data(), order, right.data(), order, &low, &high, scales.data(), &norm,
                                 conditions.data(), conditionsOfVectors.data()),
                  0);
        std::vector<bool> isTaken(order);
        for (int i = 0; i < order; ++i) {
            const Value value = Value(result.re[i], result.im[i]) / scale;
            int nearest = -1;
            for (int j = 0; j < order; ++j) {
                if (!isTaken[j] && (nearest < 0 || std::abs(Value(re[j], im[j]) - value) <
                                                       std::abs(Value(re[nearest], im[nearest]) - value))) {
                    nearest = j;
                }
            }
            isTaken[nearest] = true;
            EXPECT_LE(std::abs(Value(re[nearest], im[nearest]) - value), bound(conditions[nearest], order))
                << "value " << i;
        }
    }

private:
    /// How far an eigenvalue of a matrix of norm 1 moves: in proportion to its condition, as long as that means
    /// something; never by more than the n-th root (Elsner, Linear Algebra and its Applications 71, 1985).
    static double bound(double condition, int order) {
        const double change = 20 * order * eps;
        const double most = 2 * std::pow(change, 1.0 / order);
        return condition * condition > 1e4 * change ? std::min(10 * change / condition, most) : most;
    }
};

using ElementTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(BesideLapack, ElementTypes);

TYPED_TEST(BesideLapack, SymmetricKinds) {
    using Spacing = Generator::Spacing;
    const double ulp = std::numeric_limits<TypeParam>::epsilon();
    setThreadCount(1);
    for (const int order : orders) {
        Generator generator(order, ulp, 1);
        this->solveSymmetric(Matrix(order * order), order);
        this->solveSymmetric(generator.diagonal(std::vector<double>(order, 1)), order);
        for (const Spacing spacing : {Spacing::Evenly, Spacing::Geometrically, Spacing::Clustered, Spacing::Randomly}) {
            for (const bool hasSigns : {true, false}) {
                SCOPED_TRACE("order " + std::to_string(order) + ", spacing " +
                             std::to_string(static_cast<int>(spacing)));
                const Matrix diagonal = generator.diagonal(generator.values(spacing, hasSigns));
                this->solveSymmetric(diagonal, order);
                this->solveSymmetric(generator.turned(diagonal), order);
            }
        }
        for (int repetition = 0; repetition < 10; ++repetition) {
            this->solveSymmetric(generator.random(true), order);
        }
    }
}

TYPED_TEST(BesideLapack, GeneralKinds) {
    using Limits = std::numeric_limits<TypeParam>;
    setThreadCount(1);
    for (const int order : orders) {
        for (int kind = 1; kind <= generalKinds; ++kind) {
            SCOPED_TRACE("kind " + std::to_string(kind) + ", order " + std::to_string(order));
            this->solveGeneral(generalMatrix(kind, order, Limits::epsilon(), std::sqrt(double(Limits::max())),
                                             std::sqrt(double(Limits::min()))),
                               order);
        }
    }
}

TYPED_TEST(BesideLapack, NamedMatrices) {
    setThreadCount(1);
    for (const int order : testedOrders) {
        for (const Named &named : symmetricMatrices) {
            SCOPED_TRACE(std::string(named.name) + " of order " + std::to_string(order));
            this->solveSymmetric(make(order, named.element), order);
        }
        for (const Named &named : generalMatrices) {
            SCOPED_TRACE(std::string(named.name) + " of order " + std::to_string(order));
            this->solveGeneral(make(order, named.element), order);
        }
    }
}

} // namespace

} // namespace lxpm::test
