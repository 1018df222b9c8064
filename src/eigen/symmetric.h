// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The symmetric eigenproblem over a number: Householder reduction to tridiagonal form, then the implicitly shifted QL
// iteration. See runtime/numbers.h for what a number may be.
//
// Methods: B. N. Parlett, The Symmetric Eigenvalue Problem; the iteration is the implicit form of A. Dubrulle,
// R. S. Martin and J. H. Wilkinson (Numer. Math. 12, 1968).
//
// Order: an int, or an std::integral_constant where it is known beforehand. The matrix is dense, row by row; nothing
// below its diagonal is read.

#include "eigen/step_masks.h"
#include "runtime/numbers.h"
#include "runtime/twice.h"

#include <limits>
#include <utility>

namespace lxpm::symmetric {

// Below this everything is negligible, whatever the scale of the matrix.
template <class T>
inline constexpr T epsilon = std::numeric_limits<T>::epsilon();

// Sums of squares up to this are no longer accurate to all bits. Elements that small are far below epsilon.
template <class T>
inline constexpr T tiniestSquares = sizeof(T) == sizeof(float) ? T(0x1p-100) : T(0x1p-1000L);

inline constexpr int mostSweeps = 30; // for one eigenvalue

// The tridiagonal form of `a`: its diagonal in d, what stands beside it in e, which has a last element without meaning.
// The reflectors stay in a: the vector of reflector k in row k behind the diagonal, its scale on it.
template <class Order, class V, class Line>
[[gnu::always_inline]] inline void reduce(Order order, V *a, V *d, Line &&e) {
    using T = ElementOf<V>;
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    for (int k = 0; k + 2 < order; ++k) {
        V *v = a + k * order;
        V tail = zero;
        for (int j = k + 2; j < order; ++j) {
            tail = tail + v[j] * v[j];
        }
        const V first = v[k + 1];
        const auto isReduced = isLessEqual(tail, constant<V>(tiniestSquares<T>));
        const V norm = root(first * first + tail);
        const V reduced = choose(isLess(first, zero), norm, negated(norm));
        e[k] = choose(isReduced, first, reduced);
        d[k] = v[k];
        // A reflector of zeros changes nothing.
        v[k + 1] = choose(isReduced, zero, first - reduced);
        for (int j = k + 2; j < order; ++j) {
            v[j] = choose(isReduced, zero, v[j]);
        }
        const V scale = one / divisorUnless(isReduced, norm * (norm + magnitude(first)));
        v[k] = scale;

        // a - v q' - q v' with q = p - (scale (v p) / 2) v, p = scale a v. It is kept where d is not known yet.
        V product = zero;
        for (int i = k + 1; i < order; ++i) {
            V sum = zero;
            for (int j = k + 1; j < i; ++j) {
                sum = sum + a[j * order + i] * v[j];
            }
            for (int j = i; j < order; ++j) {
                sum = sum + a[i * order + j] * v[j];
            }
            d[i] = sum * scale;
            product = product + v[i] * d[i];
        }
        const V half = constant<V>(0.5) * scale * product;
        for (int i = k + 1; i < order; ++i) {
            d[i] = d[i] - half * v[i];
        }
        for (int i = k + 1; i < order; ++i) {
            for (int j = i; j < order; ++j) {
                a[i * order + j] = a[i * order + j] - (v[i] * d[j] + d[i] * v[j]);
            }
        }
    }
    if (order > 1) {
        d[order - 2] = a[(order - 2) * order + order - 2];
        e[order - 2] = a[(order - 2) * order + order - 1];
    }
    d[order - 1] = a[order * order - 1];
    e[order - 1] = zero;
}

// The product of the reflectors in their place, transposed: row j becomes the vector of eigenvalue j.
template <class Order, class V>
[[gnu::always_inline]] inline void accumulate(Order order, V *a) {
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    a[order * order - 1] = one;
    for (int k = order - 3; k >= 0; --k) {
        const V *v = a + k * order;
        const V scale = v[k];
        for (int i = k + 1; i < order; ++i) {
            V *row = a + i * order;
            // In front of the reflector the product is the identity in row and column k + 1.
            V factor;
            if (i == k + 1) {
                factor = v[k + 1] * scale;
                row[k + 1] = one - factor * v[k + 1];
                for (int j = k + 2; j < order; ++j) {
                    row[j] = zero - factor * v[j];
                }
                continue;
            }
            V sum = zero;
            for (int j = k + 2; j < order; ++j) {
                sum = sum + row[j] * v[j];
            }
            factor = sum * scale;
            row[k + 1] = zero - factor * v[k + 1];
            for (int j = k + 2; j < order; ++j) {
                row[j] = row[j] - factor * v[j];
            }
        }
    }
    for (int j = 0; j < order; ++j) {
        a[j] = j == 0 ? one : zero;
        if (j > 0) {
            a[j * order] = zero;
        }
    }
}

// Turns d and e, and the rows of z unless it is null, the other way round where `mask` holds.
template <class Order, class V, class Line>
[[gnu::always_inline]] inline void mirror(MaskOf<V> mask, Order order, V *d, Line &&e, V *z) {
    if (none(mask)) {
        return;
    }
    for (int i = 0; i < order / 2; ++i) {
        exchange(mask, d[i], d[order - 1 - i]);
        if (z != nullptr) {
            for (int j = 0; j < order; ++j) {
                exchange(mask, z[i * order + j], z[(order - 1 - i) * order + j]);
            }
        }
    }
    for (int i = 0; i < (order - 1) / 2; ++i) {
        exchange(mask, e[i], e[order - 2 - i]);
    }
}

// Whether an eigenvalue has been given all the sweeps that there are for one.
//
// A lane that stays at its place for half as many is stopped already, and with it the group: one by one the exact
// number is counted. Looking at the lanes once in a while takes much less than counting for each.
template <class V>
class SweepLimit {
public:
    template <class PlaceOf>
    MaskOf<V> isReached(int, const PlaceOf &placeOf) {
        if (++sweeps_ % (mostSweeps / 2) != 0) {
            return everywhere<V>(false);
        }
        const V place = placeOf();
        const auto stays = isEqual(place, before_);
        before_ = place;
        return stays;
    }

private:
    int sweeps_ = 0;
    V before_ = constant<V>(-1);
};

template <class V>
requires isSingle<V>
class SweepLimit<V> {
public:
    template <class PlaceOf>
    bool isReached(int place, const PlaceOf &) {
        if (place != place_) {
            place_ = place;
            sweeps_ = 0;
        }
        return sweeps_++ == mostSweeps;
    }

private:
    int place_ = 0;
    int sweeps_ = 0;
};

// The eigenvalues of the tridiagonal matrix d, e, found in ascending order of their place in d; rows of z are rotated
// with them unless it is null. Returns where the iteration did not converge. Such a lane of several, or one that takes
// long, ends the iteration for all.
//
// Each lane is at an eigenvalue of its own. What is in front of it is negligible and stays so: the first element that
// is not says where a lane is.
template <int most, class Order, class V, class Line>
[[gnu::always_inline]] inline MaskOf<V> iterate(Order order, V *d, Line &&e, V *z) {
    using T = ElementOf<V>;
    const V zero = constant<V>(0);
    const V one = constant<V>(1);
    const V eps = constant<V>(epsilon<T>);
    SweepLimit<V> limit;
    int lowest = 0; // of the places of all lanes
    for (;;) {
        // A lane's block ends in front of the first negligible element behind its place.
        StepMasks<V, most> block;
        auto inBlock = everywhere<V>(false);
        auto active = everywhere<V>(false);
        V first = zero;
        V second = zero;
        V beside = one;
        V last = zero;
        int end = lowest;
        for (int i = lowest; i < order - 1; ++i) {
            const auto counts = without(everywhere<V>(true), isLessEqual(magnitude(constant<V>(0.5) * e[i]), eps));
            const auto starts = without(counts, active);
            inBlock = both(counts, either(inBlock, starts));
            if (any(inBlock)) {
                end = i + 1;
            } else if (i == lowest) {
                ++lowest;
                continue;
            } else if (all(active)) {
                break;
            }
            active = either(active, starts);
            block.set(i, inBlock);
            first = choose(starts, d[i], first);
            second = choose(starts, d[i + 1], second);
            beside = choose(starts, e[i], beside);
            last = choose(inBlock, d[i + 1], last);
        }
        if (none(active)) {
            break;
        }
        const auto startsAt = [&](int i) { return i == lowest ? block.at(i) : without(block.at(i), block.at(i - 1)); };
        const auto placeOf = [&] {
            V place = zero;
            for (int i = lowest; i < end; ++i) {
                place = choose(startsAt(i), constant<V>(i), place);
            }
            return place;
        };
        const auto unconverged = both(active, limit.isReached(lowest, placeOf));
        if (any(unconverged)) {
            return unconverged;
        }

        V g = (second - first) / divisorWhere(active, beside + beside);
        V r = root(one + g * g);
        const V divisor = choose(isLess(eps, g), g + r, g - r);
        g = last - first + beside / divisorWhere(active, divisor);
        V s = one;
        V c = one;
        V p = zero;
        auto running = active;
        for (int i = end - 1; i >= lowest; --i) {
            MaskOf<V> rotating = both(block.at(i), running);
            const V f = s * e[i];
            const V b = c * e[i];
            r = root(f * f + g * g);
            const MaskOf<V> stops = both(rotating, isLessEqual(r, eps));
            if (i + 1 < end) {
                // At the end of its block a lane stores a zero.
                e[i + 1] = choose(rotating, only(block.at(i + 1), r), e[i + 1]);
            } else {
                e[i + 1] = choose(rotating, zero, e[i + 1]);
            }
            if (any(stops)) {
                d[i + 1] = choose(stops, d[i + 1] - p, d[i + 1]);
                e[i] = choose(stops, b, e[i]);
                running = without(running, stops);
                if (none(running)) {
                    break;
                }
                rotating = without(rotating, stops);
            }
            const V length = divisorWhere(rotating, r);
            const V sine = f / length;
            const V cosine = g / length;
            const V h = d[i + 1] - p;
            const V t = (d[i] - h) * sine + (cosine + cosine) * b;
            s = choose(rotating, sine, s);
            c = choose(rotating, cosine, c);
            p = choose(rotating, sine * t, p);
            d[i + 1] = choose(rotating, h + p, d[i + 1]);
            g = choose(rotating, cosine * t - b, g);
            if (z != nullptr) {
                V *lower = z + i * order;
                V *upper = lower + order;
                if (all(rotating)) {
                    for (int j = 0; j < order; ++j) {
                        const V x = upper[j];
                        upper[j] = s * lower[j] + c * x;
                        lower[j] = c * lower[j] - s * x;
                    }
                } else if (any(rotating)) {
                    for (int j = 0; j < order; ++j) {
                        const V x = upper[j];
                        upper[j] = choose(rotating, s * lower[j] + c * x, x);
                        lower[j] = choose(rotating, c * lower[j] - s * x, lower[j]);
                    }
                }
            }
            const auto finishes = both(startsAt(i), rotating);
            d[i] = choose(finishes, d[i] - p, d[i]);
            e[i] = choose(finishes, g, e[i]);
        }
    }
    return everywhere<V>(false);
}

// Descending order by selection: of the values behind each place the largest comes to it, the first of equals, NaN
// never. Rows of z, unless it is null, follow their values.
template <class Order, class V>
[[gnu::always_inline]] inline void sort(Order order, V *d, V *z) {
    for (int i = 0; i + 1 < order; ++i) {
        V largest = d[i];
        V place = constant<V>(i);
        for (int j = i + 1; j < order; ++j) {
            const auto isLarger = isLess(largest, d[j]);
            largest = choose(isLarger, d[j], largest);
            place = choose(isLarger, constant<V>(j), place);
        }
        for (int j = i + 1; j < order; ++j) {
            const auto isHere = isEqual(place, constant<V>(j));
            d[j] = choose(isHere, d[i], d[j]);
            if (z != nullptr && any(isHere)) {
                for (int k = 0; k < order; ++k) {
                    exchange(isHere, z[i * order + k], z[j * order + k]);
                }
            }
        }
        d[i] = largest;
    }
}

// Where a computation failed, and how.
template <class V>
struct Failures {
    MaskOf<V> unconverged;
    MaskOf<V> singular;
};

// From a matrix to eigenvalues, in d, and eigenvectors, in the rows of a, if they are wanted. Values alone stay in the
// order in which they stand where the matrix is singular.
template <int most, bool wantsVectors, class Order, class V, class Line>
[[gnu::always_inline]] inline Failures<V> solve(Order order, V *a, V *d, Line &&e) {
    using T = ElementOf<V>;
    reduce(order, a, d, e);
    if constexpr (wantsVectors) {
        accumulate(order, a);
    }
    V *z = wantsVectors ? a : nullptr;
    // The larger end of the diagonal comes first.
    const auto isMirrored = isLess(magnitude(d[0]), magnitude(d[order - 1]));
    mirror(isMirrored, order, d, e, z);
    const auto unconverged = iterate<most>(order, d, e, z);
    V product = constant<V>(1);
    for (int i = 0; i < order && none(unconverged); ++i) {
        product = product * d[i];
    }
    mirror(isMirrored, order, d, e, z);
    const auto singular = isLessEqual(magnitude(product), constant<V>(epsilon<T>));
    return {unconverged, singular};
}

} // namespace lxpm::symmetric
