// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The general eigenproblem over a number: reduction to Hessenberg form by reflectors, the double-shift QR iteration to
// real Schur form, eigenvectors by back-substitution. See runtime/numbers.h for what a number may be.
//
// Methods: J. G. F. Francis, The QR Transformation (Computer Journal 4, 1961-62); the forms of the steps, of the shifts
// and of the back-substitution are those of J. H. Wilkinson and C. Reinsch, Handbook for Automatic Computation II
// (contributions II/14 and II/15).
//
// Order: an int, or an std::integral_constant where it is known beforehand. Matrices are dense, row by row. The
// orthogonal matrix z of a Schur form a = z t z' is kept transposed, column by column.

#include "eigen/step_masks.h"
#include "runtime/numbers.h"
#include "runtime/twice.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

namespace lxpm::general {

// Elements of the sub-diagonal are negligible beside their neighbours on the diagonal, or below a bound of their own.
template <class T>
inline constexpr T roundoff = std::numeric_limits<T>::epsilon();
template <class T>
inline constexpr T safeMinimum = 2 * std::numeric_limits<T>::min();

// Sums of squares up to this are no longer accurate to all bits.
template <class T>
inline constexpr T tiniestSquares = sizeof(T) == sizeof(float) ? T(0x1p-100) : T(0x1p-1000L);

// Between these bounds for a matrix's largest element, elements whose squares are lost do not matter, and no fourth
// power overflows.
template <class T>
inline constexpr T smallestScale = sizeof(T) == sizeof(float) ? T(0x1p-10) : T(0x1p-200L);
template <class T>
inline constexpr T largestScale = sizeof(T) == sizeof(float) ? T(0x1p20) : T(0x1p200L);

inline constexpr int sweepsPerRow = 30;
inline constexpr int exceptionalSweeps[] = {10, 20}; // counted from 1
inline constexpr double exceptionalDiagonal = 0.75;
inline constexpr double exceptionalWeight = -0.4375;

// What stands in the places that a mask leaves out stays.
template <bool isMasked, class Mask, class V>
inline void assign(Mask mask, V &to, V value) {
    if constexpr (isMasked) {
        to = choose(mask, value, to);
    } else {
        to = value;
    }
}

// Calls f with whether there is anything that a mask leaves out.
template <class Mask, class F>
[[gnu::always_inline]] inline void underMask(Mask mask, const F &f) {
    if (all(mask)) {
        f(std::false_type());
    } else if (any(mask)) {
        f(std::true_type());
    }
}

// --- Scale ---

inline float powerOfTwoIn(float x) {
    return std::bit_cast<float>(std::bit_cast<std::uint32_t>(x) & 0x7f800000U);
}
inline double powerOfTwoIn(double x) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & 0x7ff0000000000000U);
}
inline Lanes32 powerOfTwoIn(Lanes32 x) {
    return {_mm256_and_ps(x.vector, constant<Lanes32>(std::numeric_limits<float>::infinity()).vector)};
}
inline Lanes64 powerOfTwoIn(Lanes64 x) {
    return {_mm256_and_pd(x.vector, constant<Lanes64>(std::numeric_limits<double>::infinity()).vector)};
}

template <class L>
inline Twice<L> powerOfTwoIn(Twice<L> x) {
    return {powerOfTwoIn(x.low), powerOfTwoIn(x.high)};
}

// Brings a matrix whose largest element is out of bounds to a magnitude around 1. Returns the power of two by which
// its eigenvalues have to be multiplied.
template <class Order, class V>
[[gnu::always_inline]] inline V scaleDown(Order order, V *a) {
    using T = ElementOf<V>;
    V largest = constant<V>(0);
    for (int i = 0; i < order * order; ++i) {
        const V size = magnitude(a[i]);
        largest = choose(isLess(largest, size), size, largest);
    }
    const V one = constant<V>(1);
    // Zeros stay what they are, and so does what is not finite.
    const MaskOf<V> isSmall = both(isLess(largest, constant<V>(smallestScale<T>)), isLess(constant<V>(0), largest));
    const MaskOf<V> isLarge = both(isLess(constant<V>(largestScale<T>), largest),
                                   isLessEqual(largest, constant<V>(std::numeric_limits<T>::max())));
    const MaskOf<V> isOut = either(isSmall, isLarge);
    if (none(isOut)) {
        return one;
    }
    // The reciprocal of the smallest power is a number; that of a denormal would be none.
    const V smallest = constant<V>(std::numeric_limits<T>::min());
    const V power = powerOfTwoIn(largest);
    const V scale = choose(isOut, choose(isLess(power, smallest), smallest, power), one);
    const V factor = one / scale;
    for (int i = 0; i < order * order; ++i) {
        a[i] = a[i] * factor;
    }
    return scale;
}

// --- Hessenberg form ---

// Reflector k acts on the rows and columns behind k. Its vector stays below the sub-diagonal in column k, its first
// element in `head`, its scale in `scales`, where the product of the reflectors finds them; without vectors zeros take
// its place. `vector` is room for a vector.
template <bool wantsVectors, class Order, class V>
[[gnu::always_inline]] inline void reduce(Order order, V *h, V *head, V *scales, V *vector) {
    using T = ElementOf<V>;
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    for (int k = 0; k + 2 < order; ++k) {
        V tail = zero;
        for (int i = k + 2; i < order; ++i) {
            tail = tail + h[i * order + k] * h[i * order + k];
        }
        const V first = h[(k + 1) * order + k];
        const auto isReduced = isLessEqual(tail, constant<V>(tiniestSquares<T>));
        const V norm = root(first * first + tail);
        const V reduced = choose(isLess(first, zero), norm, negated(norm));
        vector[k + 1] = choose(isReduced, zero, first - reduced);
        for (int i = k + 2; i < order; ++i) {
            vector[i] = choose(isReduced, zero, h[i * order + k]);
            h[i * order + k] = wantsVectors ? vector[i] : zero;
        }
        h[(k + 1) * order + k] = choose(isReduced, first, reduced);
        const V scale = one / divisorUnless(isReduced, norm * (norm + magnitude(first)));
        if constexpr (wantsVectors) {
            head[k] = vector[k + 1];
            scales[k] = scale;
        }
        for (int j = k + 1; j < order; ++j) {
            V sum = zero;
            for (int i = k + 1; i < order; ++i) {
                sum = sum + vector[i] * h[i * order + j];
            }
            const V factor = sum * scale;
            for (int i = k + 1; i < order; ++i) {
                h[i * order + j] = h[i * order + j] - factor * vector[i];
            }
        }
        for (int i = 0; i < order; ++i) {
            V *row = h + i * order;
            V sum = zero;
            for (int j = k + 1; j < order; ++j) {
                sum = sum + row[j] * vector[j];
            }
            const V factor = sum * scale;
            for (int j = k + 1; j < order; ++j) {
                row[j] = row[j] - factor * vector[j];
            }
        }
    }
}

// The product of the reflectors, transposed, in z; zeros take their place in h.
template <class Order, class V>
[[gnu::always_inline]] inline void accumulate(Order order, V *h, V *z, const V *head, const V *scales) {
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    for (int i = 0; i < order; ++i) {
        for (int j = 0; j < order; ++j) {
            z[i * order + j] = i == j ? one : zero;
        }
    }
    for (int k = order - 3; k >= 0; --k) {
        // Each row of the product's transpose, times the reflector.
        for (int i = k + 1; i < order; ++i) {
            V *row = z + i * order;
            V sum = row[k + 1] * head[k];
            for (int j = k + 2; j < order; ++j) {
                sum = sum + row[j] * h[j * order + k];
            }
            const V factor = sum * scales[k];
            row[k + 1] = row[k + 1] - factor * head[k];
            for (int j = k + 2; j < order; ++j) {
                row[j] = row[j] - factor * h[j * order + k];
            }
        }
        for (int i = k + 2; i < order; ++i) {
            h[i * order + k] = zero;
        }
    }
}

// --- Schur form ---

// One reflector of a sweep: of three rows and columns from k on, or of two.
template <bool isMasked, bool hasThird, class Mask, class V>
struct Reflection {
    Mask mask;
    V x, y, z; // the scaled vector
    V q, r;    // the vector, its first element 1

    void onColumn(V &a, V &b, V &c) const {
        if constexpr (hasThird) {
            const V t = (a + q * b) + r * c;
            assign<isMasked>(mask, c, c - t * z);
            apply(a, b, t);
        } else {
            apply(a, b, a + q * b);
        }
    }

    void onRow(V &a, V &b, V &c) const {
        V t = x * a + y * b;
        if constexpr (hasThird) {
            t = t + z * c;
            assign<isMasked>(mask, c, c - t * r);
        }
        assign<isMasked>(mask, b, b - t * q);
        assign<isMasked>(mask, a, a - t);
    }

private:
    void apply(V &a, V &b, V t) const {
        assign<isMasked>(mask, b, b - t * y);
        assign<isMasked>(mask, a, a - t * x);
    }
};

// The sub-diagonal of the block that ends with row `end`, from below up to the first negligible element, which becomes
// zero. Leaves for each row of the block where it is one; returns the first one that is one anywhere.
template <int most, class Order, class V>
[[gnu::always_inline]] inline int findBlock(Order order, V *h, int end, MaskOf<V> pending, StepMasks<V, most> &block) {
    using T = ElementOf<V>;
    int first = end;
    MaskOf<V> inBlock = pending;
    block.set(end, inBlock);
    for (; first > 0; --first) {
        V &element = h[first * order + first - 1];
        const V size = magnitude(element);
        const V neighbours = magnitude(h[(first - 1) * order + first - 1]) + magnitude(h[first * order + first]);
        const auto isNegligible = both(inBlock, either(isLessEqual(size, constant<V>(roundoff<T>) * neighbours),
                                                       isLessEqual(size, constant<V>(safeMinimum<T>))));
        element = choose(isNegligible, constant<V>(0), element);
        inBlock = without(inBlock, isNegligible);
        if (none(inBlock)) {
            break;
        }
        block.set(first - 1, inBlock);
    }
    return first;
}

// A block of two rows, where `mask` holds: two real eigenvalues, then the block is made triangular if there is a z, or
// a complex pair.
template <bool wantsVectors, class Order, class V>
[[gnu::always_inline]] inline void solvePair(MaskOf<V> mask, Order order, V *h, V *z, int end, V *re, V *im) {
    const V zero = constant<V>(0);
    V *upper = h + (end - 1) * order;
    V *lower = h + end * order;
    const V below = lower[end - 1];
    const V x = lower[end];
    const V w = below * upper[end];
    const V p = constant<V>(0.5) * (upper[end - 1] - x);
    const V q = p * p + w;
    const V distance = root(magnitude(q));
    const auto isReal = isLessEqual(zero, q);
    const V shift = choose(isLess(p, zero), p - distance, p + distance);
    const MaskOf<V> isApart = without(both(mask, isReal), isEqual(shift, zero));
    const V larger = x + choose(isReal, shift, p);
    const V other = choose(isApart, x - w / divisorWhere(isApart, shift), larger);
    re[end - 1] = choose(mask, larger, re[end - 1]);
    re[end] = choose(mask, other, re[end]);
    im[end - 1] = choose(mask, choose(isReal, zero, distance), im[end - 1]);
    im[end] = choose(mask, choose(isReal, zero, negated(distance)), im[end]);
    if constexpr (wantsVectors) {
        const MaskOf<V> turns = both(mask, isReal);
        const V size = divisorWhere(turns, magnitude(below) + magnitude(shift));
        const V s = below / size;
        const V c = shift / size;
        const V length = divisorWhere(turns, root(s * s + c * c));
        const V sine = s / length;
        const V cosine = c / length;
        underMask(turns, [&](auto isMasked) {
            const auto turn = [&](V &a, V &b) {
                const V t = a;
                assign<isMasked()>(turns, a, cosine * t + sine * b);
                assign<isMasked()>(turns, b, cosine * b - sine * t);
            };
            for (int j = end - 1; j < order; ++j) {
                turn(upper[j], lower[j]);
            }
            for (int i = 0; i <= end; ++i) {
                turn(h[i * order + end - 1], h[i * order + end]);
            }
            for (int j = 0; j < order; ++j) {
                turn(z[(end - 1) * order + j], z[end * order + j]);
            }
            assign<isMasked()>(turns, lower[end - 1], zero);
        });
    }
}

// One sweep over the rows first, ..., end of the block, where `mask` holds, with the shifts that x, y and w stand for:
// the diagonal, and the product beside it, of the matrix whose eigenvalues they are.
template <bool wantsVectors, int most, class Order, class V>
[[gnu::always_inline]] inline void sweep(MaskOf<V> mask, Order order, V *h, V *z, int first, int end,
                                         const StepMasks<V, most> &block, V x, V y, V w) {
    using T = ElementOf<V>;
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    const V tiniest = constant<V>(tiniestSquares<T>);
    for (int k = first; k < end; ++k) {
        const bool hasThird = k + 2 <= end;
        const MaskOf<V> isInside = k > first ? both(mask, block.at(k - 1)) : everywhere<V>(false);
        const MaskOf<V> active = both(mask, block.at(k));
        const MaskOf<V> starts = without(active, isInside);
        V *row0 = h + k * order;
        V *row1 = row0 + order;
        V *row2 = hasThird ? row1 + order : row1;
        V p = zero;
        V q = zero;
        V r = zero;
        if (k > first) {
            p = row0[k - 1];
            q = row1[k - 1];
            r = hasThird ? row2[k - 1] : zero;
        }
        if (any(starts)) {
            // The first column of (h - s1)(h - s2). Blocks that start have three rows or more.
            const V corner = row0[k];
            const V below = row1[k];
            const V a = ((corner - x) * (corner - y) - w) + row0[k + 1] * below;
            const V b = below * (((corner + row1[k + 1]) - x) - y);
            const V c = below * row2[k + 1];
            const V size = (magnitude(a) + magnitude(b)) + magnitude(c);
            const MaskOf<V> isUsable = without(starts, isLessEqual(size, tiniest));
            const V factor = one / divisorWhere(isUsable, size);
            p = choose(starts, choose(isUsable, a * factor, one), p);
            q = choose(starts, choose(isUsable, b * factor, zero), q);
            r = choose(starts, choose(isUsable, c * factor, zero), r);
        }
        const V squares = (p * p + q * q) + r * r;
        const MaskOf<V> reflects = without(active, isLessEqual(squares, tiniest)); // with NaN too
        const V norm = root(squares);
        const V s = choose(isLess(p, zero), negated(norm), norm);
        if (k > first && any(isInside)) {
            row0[k - 1] = choose(isInside, choose(reflects, negated(s), zero), row0[k - 1]);
            row1[k - 1] = choose(isInside, zero, row1[k - 1]);
            if (hasThird) {
                row2[k - 1] = choose(isInside, zero, row2[k - 1]);
            }
        }
        const V head = p + s;
        const V overNorm = one / divisorWhere(reflects, s);
        const V overHead = one / divisorWhere(reflects, head);
        const V scaledHead = head * overNorm;
        const V scaledQ = q * overNorm;
        const V scaledR = r * overNorm;
        q = q * overHead;
        r = r * overHead;
        const int lastColumn = wantsVectors ? order - 1 : end;
        const int firstRow = wantsVectors ? 0 : first;
        const int lastRow = k + 3 <= end ? k + 3 : end;
        const auto reflect = [&](auto isMasked, auto isOfThree) {
            const Reflection<isMasked(), isOfThree(), MaskOf<V>, V> reflection = {reflects, scaledHead, scaledQ,
                                                                                  scaledR,  q,          r};
            for (int j = k; j <= lastColumn; ++j) {
                reflection.onColumn(row0[j], row1[j], row2[j]);
            }
            const int third = k + 1 + isOfThree();
            for (int i = firstRow; i <= lastRow; ++i) {
                V *row = h + i * order;
                reflection.onRow(row[k], row[k + 1], row[third]);
            }
            if constexpr (wantsVectors) {
                for (int j = 0; j < order; ++j) {
                    reflection.onRow(z[k * order + j], z[(k + 1) * order + j], z[third * order + j]);
                }
            }
        };
        underMask(reflects, [&](auto isMasked) {
            if (hasThird) {
                reflect(isMasked, std::true_type());
            } else {
                reflect(isMasked, std::false_type());
            }
        });
    }
}

// The eigenvalues of the Hessenberg matrix h, in the order of deflation, from the last row up; if vectors are wanted,
// h becomes the Schur form and z is multiplied by what brought it there. Returns where the budget did not last; such a
// lane of several ends the iteration for all, with the eigenvalues from `found` on.
template <bool wantsVectors, int most, class Order, class V>
[[gnu::always_inline]] inline MaskOf<V> iterate(Order order, V *h, V *z, V *re, V *im, int &found) {
    const V one = constant<V>(1);
    const V zero = constant<V>(0);
    const V budget = constant<V>(double(sweepsPerRow) * order);
    V spent = zero;
    auto isDone = everywhere<V>(false); // with the row that comes next, as the first one of a pair
    for (int end = order - 1; end >= 0; --end) {
        found = end + 1;
        auto pending = without(everywhere<V>(true), isDone);
        isDone = everywhere<V>(false);
        if (none(pending)) {
            continue;
        }
        for (int sweeps = 1;; ++sweeps) {
            StepMasks<V, most> block;
            const int first = findBlock<most>(order, h, end, pending, block);
            const auto isNotOne = first < end ? block.at(end - 1) : everywhere<V>(false);
            const auto isOne = without(pending, isNotOne);
            re[end] = choose(isOne, h[end * order + end], re[end]);
            im[end] = choose(isOne, zero, im[end]);
            const auto isLonger = first + 1 < end ? block.at(end - 2) : everywhere<V>(false);
            const auto isPair = without(isNotOne, isLonger);
            if (any(isPair)) {
                solvePair<wantsVectors>(isPair, order, h, z, end, re, im);
                isDone = either(isDone, isPair);
            }
            pending = isLonger;
            if (none(pending)) {
                break;
            }
            const auto isExhausted = without(pending, isLess(spent, budget));
            if (any(isExhausted)) {
                return isExhausted;
            }
            spent = choose(pending, spent + one, spent);
            const V *row = h + end * order;
            V x = row[end];
            V y = (row - order)[end - 1];
            V w = row[end - 1] * (row - order)[end];
            if (sweeps == exceptionalSweeps[0] || sweeps == exceptionalSweeps[1]) {
                const V s = magnitude(row[end - 1]) + magnitude((row - order)[end - 2]);
                x = constant<V>(exceptionalDiagonal) * s + x;
                y = x;
                w = constant<V>(exceptionalWeight) * s * s;
            }
            sweep<wantsVectors, most>(pending, order, h, z, first, end, block, x, y, w);
        }
    }
    found = 0;
    return everywhere<V>(false);
}

// --- Eigenvectors ---

template <class V>
struct Complex {
    V re;
    V im;
};

// Where the mask does not hold the divisor may be anything.
template <class V>
inline Complex<V> quotient(MaskOf<V> mask, Complex<V> a, Complex<V> b) {
    const V one = constant<V>(1);
    const V factor = one / divisorWhere(mask, magnitude(b.re) + magnitude(b.im));
    const V re = b.re * factor;
    const V im = b.im * factor;
    const V inverse = one / divisorWhere(mask, re * re + im * im);
    const V aRe = a.re * factor;
    const V aIm = a.im * factor;
    return {(aRe * re + aIm * im) * inverse, (aIm * re - aRe * im) * inverse};
}

// Eigenvectors by way of the Schur form t, real ones in the columns of real eigenvalues, a pair's in its two columns:
// of the matrix, or, from a form that was turned over (below), the left ones.
template <bool isLeft, class Order, class V>
class BackSubstitution {
    using T = ElementOf<V>;
    using Mask = MaskOf<V>;

public:
    // work: room for four vectors.
    BackSubstitution(Order order, const V *t, const V *z, const V *re, const V *im, V *work)
        : order_(order), t_(t), z_(z), re_(re), im_(im), xRe_(work), xIm_(work + order), outRe_(work + 2 * order),
          outIm_(work + 3 * order) {
        V norm = constant<V>(0);
        for (int i = 0; i < order; ++i) {
            for (int j = i > 0 ? i - 1 : 0; j < order; ++j) {
                norm = norm + magnitude(t[i * order + j]);
            }
        }
        const V least = constant<V>(2 * safeMinimum<T>);
        const V relative = constant<V>(roundoff<T>) * norm;
        smallest_ = choose(isLess(relative, least), least, relative);
    }

    // Calls store(mask, column, elements) for each column, where the mask holds.
    template <class Store>
    [[gnu::always_inline]] void run(const Store &store) {
        const V zero = constant<V>(0);
        for (int column = order_ - 1; column >= 0; --column) {
            const Mask isSecond = isLess(im_[column], zero);
            const Mask isReal = without(everywhere<V>(true), either(isSecond, isLess(zero, im_[column])));
            if (any(isReal)) {
                solveReal(isReal, column);
                transformBack<false>(isReal, column);
                store(isReal, isLeft ? order_ - 1 - column : column, outRe_);
            }
            if (column > 0 && any(isSecond)) {
                solveComplex(isSecond, column);
                transformBack<true>(isSecond, column);
                const int first = isLeft ? order_ - 1 - column : column - 1;
                store(isSecond, first, outRe_);
                store(isSecond, first + 1, outIm_);
            }
        }
    }

private:
    const V &t(int i, int j) const { return t_[i * order_ + j]; }

    V sumOf(int row, int last, const V *x) const {
        V sum = constant<V>(0);
        for (int j = row + 1; j <= last; ++j) {
            sum = sum + t(row, j) * x[j];
        }
        return sum;
    }

    static V larger(V a, V b) { return choose(isLess(a, b), b, a); }

    // A vector that grows would overflow; its length does not matter.
    template <bool isComplex>
    void limit(Mask mask, V size, int from, int last) {
        const MaskOf<V> isLarge = both(mask, isLess(constant<V>(1), constant<V>(roundoff<T>) * size * size));
        if (any(isLarge)) {
            const V factor = choose(isLarge, constant<V>(1) / divisorWhere(isLarge, size), constant<V>(1));
            for (int j = from; j <= last; ++j) {
                xRe_[j] = xRe_[j] * factor;
                if constexpr (isComplex) {
                    xIm_[j] = xIm_[j] * factor;
                }
            }
        }
    }

    [[gnu::always_inline]] void solveReal(Mask mask, int last) {
        const V zero = constant<V>(0);
        const V p = re_[last];
        xRe_[last] = constant<V>(1);
        V lowerPivot = zero; // of the second row of a pair, which waits for the first one
        V lowerSum = zero;
        for (int i = last - 1; i >= 0; --i) {
            const V w = t(i, i) - p;
            const V r = sumOf(i, last, xRe_);
            const Mask isOne = both(mask, isEqual(im_[i], zero));
            const Mask isFirst = both(mask, isLess(zero, im_[i]));
            V x = zero;
            V size = zero;
            if (any(isOne)) {
                const V pivot = choose(isLess(magnitude(w), smallest_), smallest_, w);
                x = choose(isOne, negated(r) / divisorWhere(isOne, pivot), x);
            }
            if (i + 1 < last && any(isFirst)) {
                const V a = t(i, i + 1);
                const V b = t(i + 1, i);
                const V apart = re_[i] - p;
                V determinant = apart * apart + im_[i] * im_[i];
                determinant = larger(determinant, smallest_ * smallest_);
                const V first = (a * lowerSum - lowerPivot * r) / divisorWhere(isFirst, determinant);
                const auto isByUpper = isLess(magnitude(lowerPivot), magnitude(a));
                const V second = choose(isByUpper, negated(r) - w * first, negated(lowerSum) - b * first) /
                                 divisorWhere(isFirst, choose(isByUpper, a, lowerPivot));
                x = choose(isFirst, first, x);
                xRe_[i + 1] = choose(isFirst, second, xRe_[i + 1]);
                size = choose(isFirst, magnitude(second), size);
            }
            xRe_[i] = x;
            lowerPivot = w;
            lowerSum = r;
            limit<false>(mask, larger(size, magnitude(x)), i, last);
        }
    }

    [[gnu::always_inline]] void solveComplex(Mask mask, int last) {
        const V zero = constant<V>(0);
        const V one = constant<V>(1);
        const V p = re_[last];
        const V q = im_[last]; // of the conjugate, so that (t - value) has p and q taken off with these signs
        // The last element is i, so that the rest of the pair's equations is triangular.
        xRe_[last] = zero;
        xIm_[last] = one;
        const V beside = t(last - 1, last);
        const V below = t(last, last - 1);
        const auto isByLower = isLess(magnitude(beside), magnitude(below));
        const V overBelow = one / divisorWhere(both(mask, isByLower), below);
        const Mask isByUpper = without(mask, isByLower);
        const Complex<V> upper = quotient<V>(isByUpper, {zero, negated(beside)}, {t(last - 1, last - 1) - p, q});
        xRe_[last - 1] = choose(isByLower, q * overBelow, upper.re);
        xIm_[last - 1] = choose(isByLower, negated((t(last, last) - p) * overBelow), upper.im);
        V lowerPivot = zero;
        Complex<V> lowerSum = {zero, zero};
        for (int i = last - 2; i >= 0; --i) {
            const V w = t(i, i) - p;
            const Complex<V> sum = {sumOf(i, last, xRe_), sumOf(i, last, xIm_)};
            const Mask isOne = both(mask, isEqual(im_[i], zero));
            const Mask isFirst = both(mask, isLess(zero, im_[i]));
            Complex<V> x = {zero, zero};
            V size = zero;
            if (any(isOne)) {
                const MaskOf<V> isSmall = isLess(magnitude(w) + magnitude(q), smallest_);
                const Complex<V> only =
                    quotient<V>(isOne, {negated(sum.re), negated(sum.im)}, {choose(isSmall, smallest_, w), q});
                x = {choose(isOne, only.re, x.re), choose(isOne, only.im, x.im)};
            }
            if (i + 2 < last && any(isFirst)) {
                const V a = t(i, i + 1);
                const V b = t(i + 1, i);
                const V apart = re_[i] - p;
                V vr = (apart * apart + im_[i] * im_[i]) - q * q;
                const V vi = apart * (q + q);
                const V around =
                    (((magnitude(w) + magnitude(q)) + magnitude(a)) + magnitude(b)) + magnitude(lowerPivot);
                const MaskOf<V> isSmall = isLess(magnitude(vr) + magnitude(vi), smallest_ * around);
                vr = choose(isSmall, smallest_ * around, vr);
                const Complex<V> first = quotient<V>(isFirst,
                                                     {((a * lowerSum.re) - lowerPivot * sum.re) + q * sum.im,
                                                      ((a * lowerSum.im) - lowerPivot * sum.im) - q * sum.re},
                                                     {vr, vi});
                const Mask isByA = isLess(magnitude(lowerPivot) + magnitude(q), magnitude(a));
                const V overA = one / divisorWhere(both(isFirst, isByA), a);
                const Complex<V> byA = {((negated(sum.re) - w * first.re) + q * first.im) * overA,
                                        ((negated(sum.im) - w * first.im) - q * first.re) * overA};
                const Complex<V> byPivot = quotient<V>(
                    without(isFirst, isByA), {negated(lowerSum.re) - b * first.re, negated(lowerSum.im) - b * first.im},
                    {lowerPivot, q});
                x = {choose(isFirst, first.re, x.re), choose(isFirst, first.im, x.im)};
                const Complex<V> second = {choose(isByA, byA.re, byPivot.re), choose(isByA, byA.im, byPivot.im)};
                xRe_[i + 1] = choose(isFirst, second.re, xRe_[i + 1]);
                xIm_[i + 1] = choose(isFirst, second.im, xIm_[i + 1]);
                size = choose(isFirst, larger(magnitude(second.re), magnitude(second.im)), size);
            }
            xRe_[i] = x.re;
            xIm_[i] = x.im;
            lowerPivot = w;
            lowerSum = sum;
            size = larger(size, larger(magnitude(x.re), magnitude(x.im)));
            limit<true>(mask, size, i, last);
        }
    }

    // Through z, and to unit length.
    template <bool isComplex>
    [[gnu::always_inline]] void transformBack(Mask mask, int last) {
        V squares = constant<V>(0);
        for (int i = 0; i < order_; ++i) {
            V re = constant<V>(0);
            V im = constant<V>(0);
            for (int k = 0; k <= last; ++k) {
                re = re + z_[k * order_ + i] * xRe_[k];
                if constexpr (isComplex) {
                    im = im + z_[k * order_ + i] * xIm_[k];
                }
            }
            outRe_[i] = re;
            squares = squares + re * re;
            if constexpr (isComplex) {
                outIm_[i] = im;
                squares = squares + im * im;
            }
        }
        const V factor = constant<V>(1) / divisorWhere(mask, root(squares));
        for (int i = 0; i < order_; ++i) {
            outRe_[i] = outRe_[i] * factor;
            if constexpr (isComplex) {
                const V im = outIm_[i] * factor;
                outIm_[i] = isLeft ? negated(im) : im;
            }
        }
    }

    Order order_;
    const V *t_;
    const V *z_;
    const V *re_;
    const V *im_;
    V *xRe_;
    V *xIm_;
    V *outRe_;
    V *outIm_;
    V smallest_;
};

// The right eigenvectors of the transpose are the conjugates of the left ones. Turned over its other diagonal, the
// transpose of a Schur form is one too, with the eigenvalues in the opposite order, so that a pair's signs change.
template <class Order, class V>
[[gnu::always_inline]] inline void turnOver(Order order, V *t, V *z, V *re, V *im) {
    for (int i = 0; i < order; ++i) {
        for (int j = 0; i + j < order - 1; ++j) {
            std::swap(t[i * order + j], t[(order - 1 - j) * order + order - 1 - i]);
        }
    }
    for (int i = 0; i < order / 2; ++i) {
        for (int j = 0; j < order; ++j) {
            std::swap(z[i * order + j], z[(order - 1 - i) * order + j]);
        }
        std::swap(re[i], re[order - 1 - i]);
        std::swap(im[i], im[order - 1 - i]);
    }
    for (int i = 0; i < order; ++i) {
        im[i] = negated(im[i]);
    }
}

} // namespace lxpm::general
