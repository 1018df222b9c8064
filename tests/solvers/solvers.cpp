// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "solvers/solvers.h"

#include "support/axes.h"
#include "support/elements.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <stdexcept>
#include <utility>
#include <vector>

#include <xmmintrin.h>

namespace lxpm::test {

namespace {

using enum Layout;
using enum ElementType;

// --- Operands ---

Operand matrixOf(std::string role, bool isArray, int rows, int columns, bool isWritten = false) {
    return {std::move(role), Kind::Matrix, isArray, isWritten, rows, columns};
}

Operand vectorOf(std::string role, bool isArray, int length, bool isWritten = false) {
    return {std::move(role), Kind::Vector, isArray, isWritten, Operand::one, length};
}

Operand indicesOf(std::string role, bool isArray, bool isWritten) {
    return {std::move(role), Kind::Indices, isArray, isWritten, Operand::one, 0};
}

Operand scratchOf(int length) {
    return {"buffer", Kind::Scratch, false, true, Operand::one, length};
}

/// Shapes of square matrices are {widthHeight}, of others {height, width}.
Model modelOf(const ExportName &name, const SizeAxes &axes) {
    using enum Check;
    Model model = {name, {}, {}, name.code.find('a') != std::string::npos, {}, {}, {}, &axes};
    model.order = {Pointers, Count, Sizes, Strides, Offsets};
    model.destinationRowsMayOverlap = false;
    model.isExactForWholeNumbers = false;
    model.takesWholeNumbers = false;
    model.failingObjectEndsCall = true;
    return model;
}

void addSizes(Model &model) {
    const int last = static_cast<int>(model.operands.size()) - 1;
    if (model.axes == &tallSizes) {
        model.sizes = {{"width", 1, last}, {"height", 0, last}};
        model.notLarger = std::pair(1, 0);
        model.order.push_back(Check::SizeMatch);
    } else {
        model.sizes = {{"widthHeight", 0, last}};
    }
}

bool isMatrixArray(const Model &model) {
    return model.code.starts_with("ma");
}

// --- Serial or parallel ---

using Measure = std::function<std::uint32_t(std::uint32_t rows, std::uint32_t columns, std::uint32_t count)>;

/// The largest measures that are serial.
ParallelRule ruleOf(Measure measure, int contiguous, int strided) {
    return {[=](const Shape &shape, int count) {
                return static_cast<int>(measure(static_cast<std::uint32_t>(shape.front()),
                                                static_cast<std::uint32_t>(shape.back()),
                                                static_cast<std::uint32_t>(count)));
            },
            contiguous + 1, strided + 1};
}

std::uint32_t squares(std::uint32_t order, std::uint32_t, std::uint32_t count) {
    return order * order * count;
}

std::uint32_t oneMatrixWithVectors(std::uint32_t order, std::uint32_t, std::uint32_t count) {
    return (order + 2 * count) * order;
}

std::uint32_t matricesWithVectors(std::uint32_t order, std::uint32_t, std::uint32_t count) {
    return (order + 2) * order * count;
}

struct Limits {
    const char *code;
    ElementType type;
    Layout layout;
    int contiguous;
    int strided;
};

constexpr Limits choleskyLimits[] = {
    {"ma", Float32, Strided, 7500, 7500},           {"ma", Float32, ObjectPointers, 2000, 2000},
    {"ma", Float32, ElementPointers, 2000, 2000},   {"ma", Float64, Strided, 2000, 2000},
    {"ma", Float64, ObjectPointers, 720, 2000},     {"ma", Float64, ElementPointers, 2000, 2000},
    {"mva", Float32, Strided, 1200, 1200},          {"mva", Float32, ObjectPointers, 720, 720},
    {"mva", Float32, ElementPointers, 720, 720},    {"mva", Float64, Strided, 720, 720},
    {"mva", Float64, ObjectPointers, 720, 720},     {"mva", Float64, ElementPointers, 720, 720},
    {"mava", Float32, Strided, 2050, 1700},         {"mava", Float32, ObjectPointers, 1700, 1700},
    {"mava", Float32, ElementPointers, 1700, 1700}, {"mava", Float64, Strided, 1700, 1700},
    {"mava", Float64, ObjectPointers, 1700, 1700},  {"mava", Float64, ElementPointers, 2050, 2050},
};

const Limits &choleskyLimitsOf(const Model &model) {
    for (const Limits &limits : choleskyLimits) {
        if (limits.code == model.code && limits.type == model.type && limits.layout == model.layout) {
            return limits;
        }
    }
    throw std::logic_error("no limits for " + model.name);
}

// --- Good operands ---

/// A number of the same fraction, between 2^exponent and twice that.
std::uint64_t withMagnitude(ElementType type, std::uint64_t bits, int exponent, bool keepsSign) {
    const int width = type == Float32 ? 32 : 64;
    const int fraction = type == Float32 ? 23 : 52;
    const std::uint64_t bias = type == Float32 ? 127 : 1023;
    const std::uint64_t sign = keepsSign ? bits >> (width - 1) << (width - 1) : 0;
    return sign | (bias + exponent) << fraction | (bits & ((std::uint64_t(1) << fraction) - 1));
}

/// A number of the same magnitude, all else being as good as random: arbitrary values that follow from one another make
/// singular matrices now and then.
std::uint64_t scrambled(ElementType type, std::uint64_t bits, int scale) {
    const int fraction = type == Float32 ? 23 : 52;
    const std::uint64_t mask = (std::uint64_t(1) << fraction) - 1;
    std::uint64_t mixed = (bits ^ bits >> 17) * 0x9e3779b97f4a7c15u;
    mixed = (mixed ^ mixed >> 29) * 0xbf58476d1ce4e5b9u;
    mixed ^= mixed >> 32;
    const std::uint64_t sign = (mixed >> 60 & 1) << (type == Float32 ? 31 : 63);
    const std::uint64_t exponent = bits >> fraction & (type == Float32 ? 0xff : 0x7ff);
    return sign | (exponent + scale) << fraction | (mixed & mask);
}

/// Sources of functions that fail with singular matrices.
void makeRegular(Model &model, int scale = 0) {
    model.adjust = [type = model.type, scale](const ElementPlace &place, std::uint64_t bits) {
        return place.operand == 0 ? scrambled(type, bits, scale) : bits;
    };
}

// --- Results ---

template <class T>
using Matrix = std::vector<std::vector<T>>;

template <class T>
Matrix<T> read(const Elements<T> &source) {
    Matrix<T> elements(source.rows(), std::vector<T>(source.columns()));
    for (int row = 0; row < source.rows(); ++row) {
        for (int column = 0; column < source.columns(); ++column) {
            elements[row][column] = source(row, column);
        }
    }
    return elements;
}

/// Of two NaN, which payload survives is left to the processor.
template <class T>
void expectValue(const Elements<T> &result, int row, int column, T value) {
    if (std::isnan(value)) {
        result.expectNan(row, column);
    } else {
        result.expect(row, column, value);
    }
}

template <class T>
void expectAll(const Elements<T> &result, const Matrix<T> &values) {
    for (int row = 0; row < result.rows(); ++row) {
        for (int column = 0; column < result.columns(); ++column) {
            expectValue(result, row, column, values[row][column]);
        }
    }
}

bool hasRulesOfItsOwn(int order) {
    return order >= 3 && order <= 6;
}

template <class T>
struct Factors {
    Matrix<T> a;            // rows where they stood
    std::vector<int> index; // their order
    int finished = 0;       // columns before the first singular one
};

/// Elimination by the letter; both sets of rules.
template <class T>
Factors<T> factorsOf(Matrix<T> a) {
    const int n = static_cast<int>(a.size());
    Factors<T> factors = {std::move(a), std::vector<int>(n)};
    std::iota(factors.index.begin(), factors.index.end(), 0);
    std::vector<int> &idx = factors.index;
    Matrix<T> &f = factors.a;
    const bool own = hasRulesOfItsOwn(n);
    const T smallest = 2 * std::numeric_limits<T>::min();
    for (int k = 0; k < n; ++k) {
        int p = k;
        T m = std::fabs(f[idx[k]][k]);
        for (int i = k + 1; i < n; ++i) {
            if (std::fabs(f[idx[i]][k]) > m) {
                m = std::fabs(f[idx[i]][k]);
                p = i;
            }
        }
        if (own ? m < smallest : m <= std::numeric_limits<T>::epsilon()) {
            return factors;
        }
        std::swap(idx[p], idx[k]);
        const T pivot = f[idx[k]][k];
        for (int i = k + 1; i < n; ++i) {
            T &multiplier = f[idx[i]][k];
            if (own && k > 0) {
                multiplier = multiplier / pivot;
            } else {
                const T reciprocal = 1 / pivot;
                multiplier = multiplier * reciprocal;
            }
            for (int j = k + 1; j < n; ++j) {
                const T product = multiplier * f[idx[k]][j];
                f[idx[i]][j] = f[idx[i]][j] - product;
            }
        }
        ++factors.finished;
    }
    return factors;
}

struct LUDecomposition {
    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &index = operands[1];
        const Elements<T> &result = operands[2];
        const int n = result.rows();
        const Factors<T> factors = factorsOf(read(operands[0]));
        if (hasRulesOfItsOwn(n)) {
            for (int k = 0; k < factors.finished; ++k) {
                const int row = factors.index[k];
                index.expectIndex(k, row);
                for (int column = 0; column < n; ++column) {
                    expectValue(result, row, column, factors.a[row][column]);
                }
            }
        } else {
            for (int k = 0; k < n; ++k) {
                index.expectIndex(k, factors.index[k]);
            }
            expectAll(result, factors.a);
        }
        return factors.finished < n ? lxpStatusSingularErr : lxpStatusOk;
    }
};

template <class T>
std::vector<T> solve(const Matrix<T> &a, const std::vector<int> &idx, const std::vector<T> &b) {
    const int n = static_cast<int>(b.size());
    std::vector<T> x(n);
    const auto subtract = [&](T value, int row, int from, int to) {
        if (hasRulesOfItsOwn(n)) {
            for (int j = from; j < to; ++j) {
                const T product = a[row][j] * x[j];
                value = value - product;
            }
            return value;
        }
        T sum = 0;
        for (int j = from; j < to; ++j) {
            const T product = a[row][j] * x[j];
            sum = sum + product;
        }
        return value - sum;
    };
    x[0] = b[idx[0]];
    for (int i = 1; i < n; ++i) {
        x[i] = subtract(b[idx[i]], idx[i], 0, i);
    }
    x[n - 1] = x[n - 1] / a[idx[n - 1]][n - 1];
    for (int i = n - 2; i >= 0; --i) {
        x[i] = subtract(x[i], idx[i], i + 1, n) / a[idx[i]][i];
    }
    return x;
}

template <class T>
std::vector<T> readVector(const Elements<T> &source) {
    return read(source).front();
}

template <class T>
void expectVector(const Elements<T> &result, const std::vector<T> &values) {
    for (int column = 0; column < result.columns(); ++column) {
        expectValue(result, 0, column, values[column]);
    }
}

struct LUSubstitution {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        std::vector<int> index;
        for (int i = 0; i < operands[0].rows(); ++i) {
            index.push_back(operands[1].index(i));
        }
        expectVector(operands[3], solve(read(operands[0]), index, readVector(operands[2])));
    }
};

float reciprocalRoot(float d) {
    const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(d)));
    const float product = d * y;
    const float square = product * y;
    const float bracket = square - 3.0f;
    const float half = -0.5f * y;
    return half * bracket;
}

double reciprocalRoot(double d) {
    return 1.0 / std::sqrt(d);
}

struct CholeskyDecomposition {
    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &a = operands[0];
        const Elements<T> &result = operands[1];
        const int n = a.rows();
        Matrix<T> l(n, std::vector<T>(n));
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < i; ++j) {
                T value = a(i, j);
                for (int k = 0; k < j; ++k) {
                    const T product = l[i][k] * l[j][k];
                    value = value - product;
                }
                l[i][j] = value * l[j][j];
                expectValue(result, i, j, l[i][j]);
            }
            T d = a(i, i);
            for (int k = 0; k < i; ++k) {
                const T square = l[i][k] * l[i][k];
                d = d - square;
            }
            if (d <= 0) {
                return lxpStatusNotPosDefErr;
            }
            l[i][i] = reciprocalRoot(d);
            expectValue(result, i, i, l[i][i]);
        }
        return lxpStatusOk;
    }
};

struct CholeskySubstitution {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &l = operands[0];
        std::vector<T> x = readVector(operands[1]);
        const int n = static_cast<int>(x.size());
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < i; ++j) {
                const T product = l(i, j) * x[j];
                x[i] = x[i] - product;
            }
            x[i] = x[i] * l(i, i);
        }
        for (int i = n - 1; i >= 0; --i) {
            for (int j = i + 1; j < n; ++j) {
                const T product = l(j, i) * x[j];
                x[i] = x[i] - product;
            }
            x[i] = x[i] * l(i, i);
        }
        expectVector(operands[2], x);
    }
};

int reflectorsOf(int height, int width) {
    return height > width ? width : width - 1;
}

template <class T>
constexpr T shortestSquare = T(1.1920929e-7f);
template <>
constexpr double shortestSquare<double> = 2.220446049250313e-16;

struct QRDecomposition {
    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        Matrix<T> a = read(operands[0]);
        const LxpStatus status = decompose(a);
        expectAll(operands[2], a);
        return status;
    }

    template <class T>
    static LxpStatus decompose(Matrix<T> &a) {
        const int height = static_cast<int>(a.size());
        const int width = static_cast<int>(a.front().size());
        std::vector<T> buffer(height);
        for (int k = 0; k < reflectorsOf(height, width); ++k) {
            T sigma = 0;
            for (int i = k; i < height; ++i) {
                const T square = a[i][k] * a[i][k];
                sigma = sigma + square;
            }
            if (std::fabs(sigma) < shortestSquare<T>) {
                return lxpStatusDivByZeroErr;
            }
            const T s = a[k][k] > 0 ? std::sqrt(sigma) : -std::sqrt(sigma);
            const T sum = a[k][k] + s;
            const T f = 1 / sum;
            buffer[k] = 1;
            T q = 1;
            for (int i = k + 1; i < height; ++i) {
                buffer[i] = a[i][k] * f;
                const T square = buffer[i] * buffer[i];
                q = q + square;
            }
            const T tau = -2 / q;
            for (int j = k; j < width; ++j) {
                T t = 0;
                for (int i = k; i < height; ++i) {
                    const T product = buffer[i] * a[i][j];
                    t = t + product;
                }
                t = tau * t;
                for (int i = k; i < height; ++i) {
                    const T product = t * buffer[i];
                    a[i][j] = a[i][j] + product;
                }
            }
            for (int i = k + 1; i < height; ++i) {
                a[i][k] = buffer[i];
            }
        }
        return lxpStatusOk;
    }
};

struct QRSubstitution {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &a = operands[0];
        std::vector<T> buffer = readVector(operands[2]);
        const int height = a.rows();
        const int width = a.columns();
        for (int k = 0; k < reflectorsOf(height, width); ++k) {
            T q = 1;
            T t = buffer[k];
            for (int i = k + 1; i < height; ++i) {
                const T square = a(i, k) * a(i, k);
                q = q + square;
                const T product = a(i, k) * buffer[i];
                t = t + product;
            }
            const T tau = -2 / q;
            t = tau * t;
            buffer[k] = buffer[k] + t;
            for (int i = k + 1; i < height; ++i) {
                const T product = t * a(i, k);
                buffer[i] = buffer[i] + product;
            }
        }
        std::vector<T> x(width);
        for (int i = width - 1; i >= 0; --i) {
            T value = buffer[i];
            for (int j = i + 1; j < width; ++j) {
                const T product = a(i, j) * x[j];
                value = value - product;
            }
            x[i] = value / a(i, i);
        }
        expectVector(operands[3], x);
    }
};

/// r[i] * s[j] - r[j] * s[i]
template <class T>
T minorOf(const std::vector<T> &r, const std::vector<T> &s, int i, int j) {
    const T first = r[i] * s[j];
    const T second = r[j] * s[i];
    return first - second;
}

template <class T>
T minorOf(const std::vector<T> &q, const std::vector<T> &r, const std::vector<T> &s, int i, int j, int k) {
    const T first = q[i] * minorOf(r, s, j, k);
    const T second = q[j] * minorOf(r, s, i, k);
    const T third = q[k] * minorOf(r, s, i, j);
    const T difference = first - second;
    return difference + third;
}

template <class T>
T determinantOf(Matrix<T> a) {
    const int n = static_cast<int>(a.size());
    if (n == 1) {
        return a[0][0];
    }
    if (n == 2) {
        return minorOf(a[0], a[1], 0, 1);
    }
    if (n == 3) {
        return minorOf(a[0], a[1], a[2], 0, 1, 2);
    }
    if (n == 4) {
        const T c0 = minorOf(a[1], a[2], a[3], 1, 2, 3) * a[0][0];
        const T c1 = minorOf(a[1], a[2], a[3], 0, 2, 3) * a[0][1];
        const T c2 = minorOf(a[1], a[2], a[3], 0, 1, 3) * a[0][2];
        const T c3 = minorOf(a[1], a[2], a[3], 0, 1, 2) * a[0][3];
        const T left = c0 - c1;
        const T right = c2 - c3;
        return left + right;
    }
    T sign = 1;
    for (int k = 0; k < n; ++k) {
        int p = k;
        for (int i = k + 1; i < n; ++i) {
            if (std::fabs(a[i][k]) > std::fabs(a[p][k])) {
                p = i;
            }
        }
        if (a[p][k] == 0) {
            return 0;
        }
        if (p != k) {
            std::swap(a[p], a[k]);
            sign = -sign;
        }
        for (int i = k + 1; i < n; ++i) {
            const T multiplier = a[i][k] / a[k][k];
            for (int j = k + 1; j < n; ++j) {
                const T product = multiplier * a[k][j];
                a[i][j] = a[i][j] - product;
            }
        }
    }
    T product = sign;
    for (int k = 0; k < n; ++k) {
        product = product * a[k][k];
    }
    return product;
}

struct Determinant {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        expectValue(operands[1], 0, 0, determinantOf(read(operands[0])));
    }
};

struct Inversion {
    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &result = operands[1];
        const int n = result.rows();
        const Factors<T> factors = factorsOf(read(operands[0]));
        if (factors.finished < n) {
            return lxpStatusSingularErr;
        }
        for (int column = 0; column < n; ++column) {
            std::vector<T> unit(n);
            unit[column] = 1;
            const std::vector<T> x = solve(factors.a, factors.index, unit);
            for (int row = 0; row < n; ++row) {
                expectValue(result, row, column, x[row]);
            }
        }
        return lxpStatusOk;
    }
};

/// Operands of a substitution: a matrix, then `middle`, the right-hand sides and the solutions.
void addSubstitution(Model &model, int rows, int columns, Operand middle) {
    model.operands = {matrixOf("src1", isMatrixArray(model), rows, columns)};
    if (!middle.role.empty()) {
        model.operands.push_back(std::move(middle));
    }
    model.operands.push_back(vectorOf("src2", model.hasCount, rows));
    model.operands.push_back(vectorOf("dst", model.hasCount, columns, true));
    model.destinationMayBeSource = false;
    addSizes(model);
}

Measure substitutionMeasure(const Model &model) {
    return isMatrixArray(model) ? matricesWithVectors : oneMatrixWithVectors;
}

} // namespace

Model describeLUDecomp(const ExportName &name) {
    Model model = modelOf(name, orders);
    model.operands = {matrixOf("src", model.hasCount, 0, 0), indicesOf("dstIndex", model.hasCount, true),
                      matrixOf("dst", model.hasCount, 0, 0, true)};
    addSizes(model);
    model.formula = formula(LUDecomposition());
    makeRegular(model);
    if (model.hasCount) {
        model.parallel = ruleOf(squares, 1000, 1000);
    }
    return model;
}

Model describeLUBackSubst(const ExportName &name) {
    Model model = modelOf(name, orders);
    addSubstitution(model, 0, 0, indicesOf("srcIndex", isMatrixArray(model), false));
    model.formula = formula(LUSubstitution());
    // A large diagonal of U, in the rows that the index says.
    model.adjust = [type = name.type, isArray = isMatrixArray(model)](const ElementPlace &place, std::uint64_t bits) {
        if (place.operand != 0) {
            return bits;
        }
        const int object = isArray ? place.object : 0;
        const bool isDiagonal = place.row == permuted(object, place.column, place.columns);
        return withMagnitude(type, bits, isDiagonal ? 1 : -6, true);
    };
    if (model.hasCount) {
        const int limit = isMatrixArray(model) ? 1200 : 700;
        model.parallel = ruleOf(substitutionMeasure(model), limit, limit);
    }
    return model;
}

Model describeCholeskyDecomp(const ExportName &name) {
    Model model = modelOf(name, orders);
    model.operands = {matrixOf("src", model.hasCount, 0, 0), matrixOf("dst", model.hasCount, 0, 0, true)};
    addSizes(model);
    model.formula = formula(CholeskyDecomposition());
    // The diagonal exceeds the sum of its row.
    model.adjust = [type = name.type](const ElementPlace &place, std::uint64_t bits) {
        return place.operand == 0 && place.row == place.column ? withMagnitude(type, bits, 12, false) : bits;
    };
    if (model.hasCount) {
        const Limits &limits = choleskyLimitsOf(model);
        model.parallel = ruleOf(squares, limits.contiguous, limits.strided);
    }
    return model;
}

Model describeCholeskyBackSubst(const ExportName &name) {
    Model model = modelOf(name, orders);
    addSubstitution(model, 0, 0, {});
    model.formula = formula(CholeskySubstitution());
    // Reciprocals of a large diagonal.
    model.adjust = [type = name.type](const ElementPlace &place, std::uint64_t bits) {
        return place.operand == 0 && place.row == place.column ? withMagnitude(type, bits, -9, false) : bits;
    };
    if (model.hasCount) {
        const Limits &limits = choleskyLimitsOf(model);
        model.parallel = ruleOf(substitutionMeasure(model), limits.contiguous, limits.strided);
    }
    return model;
}

Model describeQRDecomp(const ExportName &name) {
    Model model = modelOf(name, tallSizes);
    model.operands = {matrixOf("src", model.hasCount, 0, 1), scratchOf(0), matrixOf("dst", model.hasCount, 0, 1, true)};
    addSizes(model);
    model.formula = formula(QRDecomposition());
    makeRegular(model);
    if (model.hasCount) {
        const int limit = name.layout == Strided ? 2800 : 1800;
        model.parallel = ruleOf(
            [](std::uint32_t height, std::uint32_t width, std::uint32_t count) { return 2 * width * height * count; },
            limit, limit);
    }
    return model;
}

Model describeQRBackSubst(const ExportName &name) {
    Model model = modelOf(name, tallSizes);
    addSubstitution(model, 0, 1, scratchOf(0));
    model.formula = formula(QRSubstitution());
    // A large diagonal of R.
    model.adjust = [type = name.type](const ElementPlace &place, std::uint64_t bits) {
        return place.operand == 0 && place.row == place.column ? withMagnitude(type, bits, 7, true) : bits;
    };
    if (model.hasCount) {
        const int limit = name.layout == Strided ? 2800 : 1800;
        const bool hasMatrices = isMatrixArray(model);
        model.parallel = ruleOf(
            [=](std::uint32_t height, std::uint32_t width, std::uint32_t count) {
                return hasMatrices ? (width * (height + 1) + height) * count
                                   : width * height + (width + height) * count;
            },
            limit, limit);
    }
    return model;
}

Model describeDet(const ExportName &name) {
    Model model = modelOf(name, orders);
    model.operands = {matrixOf("src", model.hasCount, 0, 0),
                      {"dst", Kind::Results, model.hasCount, true, Operand::one, Operand::one}};
    model.sizes = {{"widthHeight", 0, 0}};
    model.formula = formula(Determinant());
    makeRegular(model, -4); // pivots around 1, so that their product stays in range
    if (model.hasCount) {
        model.parallel = ruleOf(squares, 8000, 8000);
    }
    return model;
}

Model describeInvert(const ExportName &name) {
    Model model = modelOf(name, orders);
    model.operands = {matrixOf("src", model.hasCount, 0, 0), matrixOf("dst", model.hasCount, 0, 0, true)};
    addSizes(model);
    model.formula = formula(Inversion());
    makeRegular(model);
    if (model.hasCount) {
        model.parallel = ruleOf(squares, 2000, 2000);
    }
    return model;
}

} // namespace lxpm::test
