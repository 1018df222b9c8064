// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The documented methods as plain loops over one matrix, operation by operation.

#ifndef LXPM_TESTS_EIGEN_NAIVE_H
#define LXPM_TESTS_EIGEN_NAIVE_H

#include <lxp/status.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace lxpm::test {

template <class T>
class SquareMatrix {
public:
    explicit SquareMatrix(int order) : order_(order), elements_(static_cast<std::size_t>(order) * order) {}

    static SquareMatrix identity(int order) {
        SquareMatrix result(order);
        for (int i = 0; i < order; ++i) {
            result(i, i) = 1;
        }
        return result;
    }

    int order() const { return order_; }
    T &operator()(int i, int j) { return elements_[static_cast<std::size_t>(i) * order_ + j]; }
    T operator()(int i, int j) const { return elements_[static_cast<std::size_t>(i) * order_ + j]; }

private:
    int order_;
    std::vector<T> elements_;
};

/// Bounds that depend on the type.
template <class T>
struct Limits {
    static constexpr bool isSingle = sizeof(T) == 4;
    static constexpr T epsilon = std::numeric_limits<T>::epsilon();
    static constexpr T lostSquares = isSingle ? T(0x1p-100) : T(0x1p-1000L);
    static constexpr T safeMinimum = isSingle ? T(0x1p-125) : T(0x1p-1021L);
    static constexpr T smallMatrix = isSingle ? T(0x1p-10) : T(0x1p-200L);
    static constexpr T largeMatrix = isSingle ? T(0x1p20) : T(0x1p200L);
};

/// I - scale v v', which takes a vector to a multiple of its first element's unit vector. Where the elements behind
/// the first one are lost it is the identity.
template <class T>
struct Reflector {
    std::vector<T> v;
    T scale = 1;
    T reduced = 0; // what the first element becomes

    explicit Reflector(const std::vector<T> &x) : v(x.size(), T(0)) {
        T tail = 0;
        for (std::size_t i = 1; i < x.size(); ++i) {
            tail = tail + x[i] * x[i];
        }
        const T norm = std::sqrt(x[0] * x[0] + tail);
        reduced = x[0];
        if (!(tail <= Limits<T>::lostSquares)) {
            reduced = x[0] < 0 ? norm : -norm;
            v = x;
            v[0] = x[0] - reduced;
            scale = 1 / (norm * (norm + std::fabs(x[0])));
        }
    }
};

/// What a solution gave; `isFound` for each eigenvalue.
template <class T>
struct SymmetricSolution {
    LxpStatus status = lxpStatusOk;
    bool isWritten = true;
    std::vector<T> values;
    std::vector<bool> isFound;
    SquareMatrix<T> vectors; // in columns

    explicit SymmetricSolution(int order)
        : values(order), isFound(order, false), vectors(SquareMatrix<T>::identity(order)) {}
};

template <class T>
class NaiveSymmetric {
public:
    static SymmetricSolution<T> solve(const SquareMatrix<T> &matrix, bool wantsVectors) {
        if (!wantsVectors && matrix.order() < 3) {
            return closedForm(matrix);
        }
        NaiveSymmetric problem(matrix);
        problem.reduce();
        problem.iterate();
        problem.finish(wantsVectors);
        return problem.solution;
    }

private:
    explicit NaiveSymmetric(const SquareMatrix<T> &matrix)
        : n(matrix.order()), a(matrix), e(n), solution(n), d(solution.values) {}

    static SymmetricSolution<T> closedForm(const SquareMatrix<T> &matrix) {
        SymmetricSolution<T> result(matrix.order());
        result.isFound.assign(matrix.order(), true);
        if (matrix.order() == 1) {
            result.values = {matrix(0, 0)};
            return result;
        }
        const T eps = Limits<T>::epsilon;
        const T a = matrix(0, 0);
        const T b = matrix(0, 1);
        const T d = matrix(1, 1);
        const T det = a * d - b * b;
        if (std::fabs(det) <= eps) {
            result.status = lxpStatusSingularErr;
            result.isWritten = false;
            return result;
        }
        const T trace = a + d;
        const T r = std::sqrt((a - d) * (a - d) + (b + b) * (b + b));
        if (trace > eps) {
            result.values[0] = T(0.5) * (trace + r);
            result.values[1] = det / result.values[0];
        } else if (trace < -eps) {
            result.values[0] = T(0.5) * (trace - r);
            result.values[1] = det / result.values[0];
        } else {
            result.values = {T(0.5) * r, T(-0.5) * r};
        }
        return result;
    }

    T symmetric(int i, int j) const { return i <= j ? a(i, j) : a(j, i); }

    void reduce() {
        std::vector<Reflector<T>> reflectors;
        for (int k = 0; k + 2 < n; ++k) {
            std::vector<T> row;
            for (int j = k + 1; j < n; ++j) {
                row.push_back(a(k, j));
            }
            const Reflector<T> reflector(row);
            const std::vector<T> &v = reflector.v;
            const int size = n - k - 1;
            d[k] = a(k, k);
            e[k] = reflector.reduced;
            std::vector<T> p(size);
            T projection = 0;
            for (int i = 0; i < size; ++i) {
                T sum = 0;
                for (int j = 0; j < size; ++j) {
                    sum = sum + symmetric(k + 1 + i, k + 1 + j) * v[j];
                }
                p[i] = sum * reflector.scale;
                projection = projection + v[i] * p[i];
            }
            const T half = T(0.5) * reflector.scale * projection;
            for (int i = 0; i < size; ++i) {
                p[i] = p[i] - half * v[i];
            }
            for (int i = 0; i < size; ++i) {
                for (int j = i; j < size; ++j) {
                    T &element = a(k + 1 + i, k + 1 + j);
                    element = element - (v[i] * p[j] + p[i] * v[j]);
                }
            }
            reflectors.push_back(reflector);
        }
        if (n > 1) {
            d[n - 2] = a(n - 2, n - 2);
            e[n - 2] = a(n - 2, n - 1);
        }
        d[n - 1] = a(n - 1, n - 1);

        // The product of the reflectors; the last one is the first that is applied, to the identity.
        SquareMatrix<T> &q = solution.vectors;
        for (int k = n - 3; k >= 0; --k) {
            const Reflector<T> &reflector = reflectors[k];
            for (int column = k + 1; column < n; ++column) {
                T sum = column == k + 1 ? reflector.v[0] : T(0);
                for (int i = k + 2; column != k + 1 && i < n; ++i) {
                    sum = sum + q(i, column) * reflector.v[i - k - 1];
                }
                const T factor = sum * reflector.scale;
                for (int i = k + 1; i < n; ++i) {
                    q(i, column) = q(i, column) - factor * reflector.v[i - k - 1];
                }
            }
        }
    }

    void reverse() {
        for (int i = 0; i < n / 2; ++i) {
            std::swap(d[i], d[n - 1 - i]);
            const bool found = solution.isFound[i];
            solution.isFound[i] = solution.isFound[n - 1 - i];
            solution.isFound[n - 1 - i] = found;
            for (int row = 0; row < n; ++row) {
                std::swap(solution.vectors(row, i), solution.vectors(row, n - 1 - i));
            }
        }
        for (int i = 0; i < (n - 1) / 2; ++i) {
            std::swap(e[i], e[n - 2 - i]);
        }
    }

    /// One of the two mirror images of the iteration; the other one sees the matrix reversed.
    void iterate() {
        const bool isMirrored = std::fabs(d[n - 1]) > std::fabs(d[0]);
        if (isMirrored) {
            reverse();
        }
        for (int l = 0; l < n && solution.status == lxpStatusOk; ++l) {
            findValue(l);
        }
        if (isMirrored) {
            reverse();
        }
    }

    void findValue(int l) {
        const T eps = Limits<T>::epsilon;
        for (int iteration = 0;; ++iteration) {
            int m = l;
            while (m < n - 1 && !(std::fabs(T(0.5) * e[m]) <= eps)) {
                ++m;
            }
            if (m == l) {
                product = product * d[l];
                solution.isFound[l] = true;
                return;
            }
            if (iteration == 30) {
                solution.status = lxpStatusConvergeErr;
                return;
            }
            T g = (d[l + 1] - d[l]) / (2 * e[l]);
            T r = std::sqrt(1 + g * g);
            g = d[m] - d[l] + e[l] / (g > eps ? g + r : g - r);
            T s = 1;
            T c = 1;
            T p = 0;
            bool isBrokenOff = false;
            for (int i = m - 1; i >= l; --i) {
                const T f = s * e[i];
                const T b = c * e[i];
                r = std::sqrt(f * f + g * g);
                e[i + 1] = r;
                if (r <= eps) {
                    d[i + 1] = d[i + 1] - p;
                    e[i] = b;
                    isBrokenOff = true;
                    break;
                }
                s = f / r;
                c = g / r;
                g = d[i + 1] - p;
                r = (d[i] - g) * s + 2 * c * b;
                p = s * r;
                d[i + 1] = g + p;
                g = c * r - b;
                SquareMatrix<T> &z = solution.vectors;
                for (int k = 0; k < n; ++k) {
                    const T x = z(k, i + 1);
                    z(k, i + 1) = s * z(k, i) + c * x;
                    z(k, i) = c * z(k, i) - s * x;
                }
            }
            if (!isBrokenOff) {
                d[l] = d[l] - p;
                e[l] = g;
            }
            e[m] = 0;
        }
    }

    void finish(bool wantsVectors) {
        if (solution.status != lxpStatusOk) {
            return;
        }
        if (std::fabs(product) <= Limits<T>::epsilon) {
            solution.status = lxpStatusSingularErr;
            if (!wantsVectors) {
                return;
            }
        }
        for (int i = 0; i < n - 1; ++i) {
            int largest = i;
            for (int j = i + 1; j < n; ++j) {
                if (d[j] > d[largest]) {
                    largest = j;
                }
            }
            if (largest != i) {
                std::swap(d[i], d[largest]);
                for (int row = 0; row < n; ++row) {
                    std::swap(solution.vectors(row, i), solution.vectors(row, largest));
                }
            }
        }
    }

    int n;
    SquareMatrix<T> a;
    std::vector<T> e;
    SymmetricSolution<T> solution;
    std::vector<T> &d;
    T product = 1;
};

template <class T>
struct GeneralSolution {
    LxpStatus status = lxpStatusOk;
    int firstFound = 0; // eigenvalues in front of it were not found
    std::vector<T> re;
    std::vector<T> im;
    SquareMatrix<T> right;
    SquareMatrix<T> left;

    explicit GeneralSolution(int order) : re(order), im(order), right(order), left(order) {}
};

template <class T>
class NaiveGeneral {
public:
    static GeneralSolution<T> solve(const SquareMatrix<T> &matrix, bool wantsVectors) {
        NaiveGeneral problem(matrix, wantsVectors);
        problem.scaleDown();
        problem.reduce();
        problem.iterate();
        GeneralSolution<T> &result = problem.solution;
        if (wantsVectors && result.status == lxpStatusOk) {
            result.right = vectorsOf(problem.h, problem.z, result.re, result.im);
            result.left = problem.leftVectors();
        }
        for (int i = result.firstFound; i < problem.n; ++i) {
            result.re[i] = result.re[i] * problem.scale;
            result.im[i] = result.im[i] * problem.scale;
        }
        return result;
    }

private:
    using L = Limits<T>;

    NaiveGeneral(const SquareMatrix<T> &matrix, bool wantsVectors)
        : n(matrix.order()), vectors(wantsVectors), h(matrix), z(SquareMatrix<T>::identity(n)), solution(n) {}

    void scaleDown() {
        T largest = 0;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                if (std::fabs(h(i, j)) > largest) {
                    largest = std::fabs(h(i, j));
                }
            }
        }
        if (!(largest > 0 && largest < L::smallMatrix) && !(largest > L::largeMatrix && std::isfinite(largest))) {
            return;
        }
        scale = std::fmax(largest, std::numeric_limits<T>::min());
        scale = std::ldexp(T(1), std::ilogb(scale));
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                h(i, j) = h(i, j) * (1 / scale);
            }
        }
    }

    void reduce() {
        std::vector<Reflector<T>> reflectors;
        for (int k = 0; k + 2 < n; ++k) {
            std::vector<T> column;
            for (int i = k + 1; i < n; ++i) {
                column.push_back(h(i, k));
            }
            const Reflector<T> reflector(column);
            const std::vector<T> &v = reflector.v;
            h(k + 1, k) = reflector.reduced;
            for (int i = k + 2; i < n; ++i) {
                h(i, k) = 0;
            }
            for (int j = k + 1; j < n; ++j) {
                T sum = 0;
                for (int i = k + 1; i < n; ++i) {
                    sum = sum + v[i - k - 1] * h(i, j);
                }
                for (int i = k + 1; i < n; ++i) {
                    h(i, j) = h(i, j) - sum * reflector.scale * v[i - k - 1];
                }
            }
            for (int i = 0; i < n; ++i) {
                T sum = 0;
                for (int j = k + 1; j < n; ++j) {
                    sum = sum + h(i, j) * v[j - k - 1];
                }
                for (int j = k + 1; j < n; ++j) {
                    h(i, j) = h(i, j) - sum * reflector.scale * v[j - k - 1];
                }
            }
            reflectors.push_back(reflector);
        }
        for (int k = n - 3; k >= 0; --k) {
            const std::vector<T> &v = reflectors[k].v;
            for (int column = k + 1; column < n; ++column) {
                T sum = z(k + 1, column) * v[0];
                for (int i = k + 2; i < n; ++i) {
                    sum = sum + z(i, column) * v[i - k - 1];
                }
                for (int i = k + 1; i < n; ++i) {
                    z(i, column) = z(i, column) - sum * reflectors[k].scale * v[i - k - 1];
                }
            }
        }
    }

    bool isNegligible(int k) const {
        const T size = std::fabs(h(k, k - 1));
        return size <= L::epsilon * (std::fabs(h(k - 1, k - 1)) + std::fabs(h(k, k))) || size <= L::safeMinimum;
    }

    void iterate() {
        int spent = 0;
        int end = n - 1;
        while (end >= 0) {
            int first = end;
            for (int iteration = 1;; ++iteration) {
                first = end;
                while (first > 0 && !isNegligible(first)) {
                    --first;
                }
                if (first > 0) {
                    h(first, first - 1) = 0;
                }
                if (first >= end - 1) {
                    break;
                }
                if (spent++ == 30 * n) {
                    solution.status = lxpStatusConvergeErr;
                    solution.firstFound = end + 1;
                    return;
                }
                sweep(first, end, iteration);
            }
            if (first == end) {
                solution.re[end] = h(end, end);
                solution.im[end] = 0;
                end -= 1;
            } else {
                solvePair(end);
                end -= 2;
            }
        }
    }

    void sweep(int first, int end, int iteration) {
        T x = h(end, end);
        T y = h(end - 1, end - 1);
        T w = h(end, end - 1) * h(end - 1, end);
        if (iteration == 10 || iteration == 20) {
            const T s = std::fabs(h(end, end - 1)) + std::fabs(h(end - 1, end - 2));
            x = T(0.75) * s + x;
            y = x;
            w = T(-0.4375) * s * s;
        }
        for (int k = first; k < end; ++k) {
            const int rows = k + 2 <= end ? 3 : 2;
            T p;
            T q;
            T r = 0;
            if (k == first) {
                const T below = h(k + 1, k);
                p = ((h(k, k) - x) * (h(k, k) - y) - w) + h(k, k + 1) * below;
                q = below * (((h(k, k) + h(k + 1, k + 1)) - x) - y);
                r = below * h(k + 2, k + 1);
                const T size = (std::fabs(p) + std::fabs(q)) + std::fabs(r);
                const bool isUsable = !(size <= L::lostSquares);
                p = isUsable ? p * (1 / size) : T(1);
                q = isUsable ? q * (1 / size) : T(0);
                r = isUsable ? r * (1 / size) : T(0);
            } else {
                p = h(k, k - 1);
                q = h(k + 1, k - 1);
                r = rows == 3 ? h(k + 2, k - 1) : T(0);
            }
            const T squares = (p * p + q * q) + r * r;
            const bool reflects = !(squares <= L::lostSquares);
            const T s = p < 0 ? -std::sqrt(squares) : std::sqrt(squares);
            if (k > first) {
                h(k, k - 1) = reflects ? -s : T(0);
                for (int i = 1; i < rows; ++i) {
                    h(k + i, k - 1) = 0;
                }
            }
            if (!reflects) {
                continue;
            }
            const T head = p + s;
            const T scaled[] = {head * (1 / s), q * (1 / s), r * (1 / s)};
            const T v[] = {1, q * (1 / head), r * (1 / head)};
            for (int j = k; j <= (vectors ? n - 1 : end); ++j) {
                T t = h(k, j);
                for (int i = 1; i < rows; ++i) {
                    t = t + v[i] * h(k + i, j);
                }
                for (int i = 0; i < rows; ++i) {
                    h(k + i, j) = h(k + i, j) - t * scaled[i];
                }
            }
            const auto onRow = [&](SquareMatrix<T> &m, int i) {
                T t = scaled[0] * m(i, k);
                for (int j = 1; j < rows; ++j) {
                    t = t + scaled[j] * m(i, k + j);
                }
                for (int j = 0; j < rows; ++j) {
                    m(i, k + j) = m(i, k + j) - t * v[j];
                }
            };
            for (int i = vectors ? 0 : first; i <= std::min(end, k + 3); ++i) {
                onRow(h, i);
            }
            for (int i = 0; i < n; ++i) {
                onRow(z, i);
            }
        }
    }

    void solvePair(int end) {
        const int one = end - 1;
        const T x = h(end, end);
        const T below = h(end, one);
        const T w = below * h(one, end);
        const T p = T(0.5) * (h(one, one) - x);
        const T q = p * p + w;
        const T distance = std::sqrt(std::fabs(q));
        if (!(q >= 0)) {
            solution.re[one] = solution.re[end] = x + p;
            solution.im[one] = distance;
            solution.im[end] = -distance;
            return;
        }
        const T shift = p < 0 ? p - distance : p + distance;
        solution.re[one] = solution.re[end] = x + shift;
        if (shift != 0) {
            solution.re[end] = x - w / shift;
        }
        solution.im[one] = solution.im[end] = 0;
        const T size = std::fabs(below) + std::fabs(shift);
        const T length = std::sqrt(below / size * (below / size) + shift / size * (shift / size));
        const T sine = below / size / length;
        const T cosine = shift / size / length;
        const auto turn = [&](T &a, T &b) {
            const T t = a;
            a = cosine * t + sine * b;
            b = cosine * b - sine * t;
        };
        for (int j = one; j < n; ++j) {
            turn(h(one, j), h(end, j));
        }
        for (int i = 0; i <= end; ++i) {
            turn(h(i, one), h(i, end));
        }
        for (int i = 0; i < n; ++i) {
            turn(z(i, one), z(i, end));
        }
        h(end, one) = 0;
    }

    // --- Eigenvectors ---

    struct Complex {
        T re;
        T im;
    };

    static Complex quotient(Complex a, Complex b) {
        const T factor = 1 / (std::fabs(b.re) + std::fabs(b.im));
        const Complex c = {b.re * factor, b.im * factor};
        const Complex d = {a.re * factor, a.im * factor};
        const T inverse = 1 / (c.re * c.re + c.im * c.im);
        return {(d.re * c.re + d.im * c.im) * inverse, (d.im * c.re - d.re * c.im) * inverse};
    }

    static T larger(T a, T b) { return a < b ? b : a; }

    static void limit(std::vector<Complex> &x, T size) {
        if (L::epsilon * size * size > 1) {
            const T factor = 1 / size;
            for (Complex &element : x) {
                element = {element.re * factor, element.im * factor};
            }
        }
    }

    static SquareMatrix<T> vectorsOf(const SquareMatrix<T> &t, const SquareMatrix<T> &z, const std::vector<T> &re,
                                     const std::vector<T> &im) {
        const int n = t.order();
        T norm = 0;
        for (int i = 0; i < n; ++i) {
            for (int j = std::max(i - 1, 0); j < n; ++j) {
                norm = norm + std::fabs(t(i, j));
            }
        }
        const T smallest = larger(L::epsilon * norm, 2 * L::safeMinimum);
        SquareMatrix<T> result(n);
        for (int column = n - 1; column >= 0; --column) {
            if (im[column] > 0) {
                continue;
            }
            const bool isComplex = im[column] < 0;
            const std::vector<Complex> x =
                isComplex ? complexVector(t, re, im, column, smallest) : realVector(t, re, im, column, smallest);
            std::vector<Complex> out(n);
            T squares = 0;
            for (int i = 0; i < n; ++i) {
                Complex sum = {0, 0};
                for (int k = 0; k <= column; ++k) {
                    sum.re = sum.re + z(i, k) * x[k].re;
                    sum.im = sum.im + z(i, k) * x[k].im;
                }
                out[i] = sum;
                squares = squares + sum.re * sum.re;
                if (isComplex) {
                    squares = squares + sum.im * sum.im;
                }
            }
            const T factor = 1 / std::sqrt(squares);
            for (int i = 0; i < n; ++i) {
                result(i, isComplex ? column - 1 : column) = out[i].re * factor;
                if (isComplex) {
                    result(i, column) = out[i].im * factor;
                }
            }
        }
        return result;
    }

    static std::vector<Complex> realVector(const SquareMatrix<T> &t, const std::vector<T> &re, const std::vector<T> &im,
                                           int last, T smallest) {
        std::vector<Complex> x(t.order(), Complex{0, 0});
        x[last].re = 1;
        T lowerPivot = 0;
        T lowerSum = 0;
        for (int i = last - 1; i >= 0; --i) {
            const T w = t(i, i) - re[last];
            T r = 0;
            for (int j = i + 1; j <= last; ++j) {
                r = r + t(i, j) * x[j].re;
            }
            T size = 0;
            if (im[i] == 0) {
                x[i].re = -r / (std::fabs(w) < smallest ? smallest : w);
            } else if (im[i] > 0) {
                const T a = t(i, i + 1);
                const T b = t(i + 1, i);
                const T apart = re[i] - re[last];
                const T determinant = larger(apart * apart + im[i] * im[i], smallest * smallest);
                x[i].re = (a * lowerSum - lowerPivot * r) / determinant;
                x[i + 1].re = std::fabs(a) > std::fabs(lowerPivot) ? (-r - w * x[i].re) / a
                                                                   : (-lowerSum - b * x[i].re) / lowerPivot;
                size = std::fabs(x[i + 1].re);
            }
            lowerPivot = w;
            lowerSum = r;
            limit(x, larger(size, std::fabs(x[i].re)));
        }
        return x;
    }

    static std::vector<Complex> complexVector(const SquareMatrix<T> &t, const std::vector<T> &re,
                                              const std::vector<T> &im, int last, T smallest) {
        std::vector<Complex> x(t.order(), Complex{0, 0});
        const T p = re[last];
        const T q = im[last];
        x[last] = {0, 1};
        if (std::fabs(t(last, last - 1)) > std::fabs(t(last - 1, last))) {
            const T factor = 1 / t(last, last - 1);
            x[last - 1] = {q * factor, -((t(last, last) - p) * factor)};
        } else {
            x[last - 1] = quotient({0, -t(last - 1, last)}, {t(last - 1, last - 1) - p, q});
        }
        T lowerPivot = 0;
        Complex lowerSum = {0, 0};
        for (int i = last - 2; i >= 0; --i) {
            const T w = t(i, i) - p;
            Complex sum = {0, 0};
            for (int j = i + 1; j <= last; ++j) {
                sum.re = sum.re + t(i, j) * x[j].re;
                sum.im = sum.im + t(i, j) * x[j].im;
            }
            T size = 0;
            if (im[i] == 0) {
                const bool isSmall = std::fabs(w) + std::fabs(q) < smallest;
                x[i] = quotient({-sum.re, -sum.im}, {isSmall ? smallest : w, q});
            } else if (im[i] > 0) {
                const T a = t(i, i + 1);
                const T b = t(i + 1, i);
                const T apart = re[i] - p;
                Complex divisor = {(apart * apart + im[i] * im[i]) - q * q, apart * (q + q)};
                const T around = std::fabs(w) + std::fabs(q) + std::fabs(a) + std::fabs(b) + std::fabs(lowerPivot);
                if (std::fabs(divisor.re) + std::fabs(divisor.im) < smallest * around) {
                    divisor.re = smallest * around;
                }
                x[i] = quotient({a * lowerSum.re - lowerPivot * sum.re + q * sum.im,
                                 a * lowerSum.im - lowerPivot * sum.im - q * sum.re},
                                divisor);
                if (std::fabs(a) > std::fabs(lowerPivot) + std::fabs(q)) {
                    const T factor = 1 / a;
                    x[i + 1] = {(-sum.re - w * x[i].re + q * x[i].im) * factor,
                                (-sum.im - w * x[i].im - q * x[i].re) * factor};
                } else {
                    x[i + 1] = quotient({-lowerSum.re - b * x[i].re, -lowerSum.im - b * x[i].im}, {lowerPivot, q});
                }
                size = larger(std::fabs(x[i + 1].re), std::fabs(x[i + 1].im));
            }
            lowerPivot = w;
            lowerSum = sum;
            limit(x, larger(size, larger(std::fabs(x[i].re), std::fabs(x[i].im))));
        }
        return x;
    }

    /// By way of the transpose, whose form is triangular again once both its rows and columns are reversed.
    SquareMatrix<T> leftVectors() const {
        SquareMatrix<T> t(n);
        SquareMatrix<T> basis(n);
        std::vector<T> re(n);
        std::vector<T> im(n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                t(i, j) = h(n - 1 - j, n - 1 - i);
                basis(i, j) = z(i, n - 1 - j);
            }
            re[i] = solution.re[n - 1 - i];
            im[i] = -solution.im[n - 1 - i];
        }
        const SquareMatrix<T> reversed = vectorsOf(t, basis, re, im);
        SquareMatrix<T> result(n);
        for (int column = 0; column < n; ++column) {
            for (int i = 0; i < n; ++i) {
                const T im0 = solution.im[column];
                // A pair's columns stand in the same order in both; of the conjugate the imaginary part is negated.
                const int from = n - 1 - column + (im0 > 0 ? -1 : im0 < 0 ? 1 : 0);
                result(i, column) = im0 < 0 ? -reversed(i, from) : reversed(i, from);
            }
        }
        return result;
    }

    int n;
    bool vectors;
    SquareMatrix<T> h;
    SquareMatrix<T> z;
    GeneralSolution<T> solution;
    T scale = 1;
};

} // namespace lxpm::test

#endif
