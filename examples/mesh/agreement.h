// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "surface.h"

#include <optional>

namespace lxpm::mesh {

// How far what different steps say of the same thing goes together, over all vertices that have both.

struct NormalAgreement {
    double medianDegrees;
    double percentWithin30Degrees;
};

NormalAgreement agreementOfNormals(const Surface &surface);

// Of the mean curvature that the paraboloids have with the one by area gradients; nothing if one of them is the same
// everywhere.
std::optional<double> correlationOfCurvatures(const Surface &surface);

} // namespace lxpm::mesh
