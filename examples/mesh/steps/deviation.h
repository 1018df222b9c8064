// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace lxpm::mesh {

// How far results in single precision are from those of a plain computation in double precision.
//
// It is counted in roundings. One rounding moves a number by at most 2^-24 of its magnitude, so a result that takes k
// roundings on its way is at most k of them away from the exact one; first order suffices, since the squares of 2^-24
// do not show. For a sum the magnitude is that of its terms, not of what is left when they cancel. This makes k a limit
// that correct arithmetic cannot exceed, whatever the mesh, and that one wrong bit further up does.
class Deviation {
public:
    void add(double computed, double exact, double magnitude) {
        const double oneRounding = 0x1p-24 * std::abs(magnitude) + smallestStep;
        const double roundings = computed == exact ? 0 : std::abs(computed - exact) / oneRounding;
        largest_ = std::isnan(roundings) ? std::numeric_limits<double>::infinity() : std::max(largest_, roundings);
    }

    double largest() const { return largest_; }

private:
    static constexpr double smallestStep = 0x1p-150; // half the distance between numbers next to zero

    double largest_ = 0;
};

// The roundings of the library's operations on vectors of three elements: a product and two sums (the first addend of
// a sum meets a zero); a difference of products; the root of a sum of squares, which halves what comes before it.
constexpr double roundingsOfDot = 3;
constexpr double roundingsOfCross = 2;
constexpr double roundingsOfNorm = roundingsOfDot / 2 + 1;
// 1 / norm, then the product with it
constexpr double roundingsOfNormalising = roundingsOfNorm + 2;

// The magnitude to judge a length by: squares below it are lost to zero, as the norms do not scale.
inline double magnitudeOfLength(double length) {
    return std::max(length, 0x1p-50);
}

} // namespace lxpm::mesh
