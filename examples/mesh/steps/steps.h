// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "boxes.h"
#include "covariances.h"
#include "curvature.h"
#include "fits.h"
#include "placement.h"
#include "quadrics.h"
#include "skin.h"
#include "sums_around_vertices.h"
#include "triangles.h"
#include "vertex_normals.h"

namespace lxpm::mesh {

// In the order in which they are made and run: each may use what the surface has from those before it. A further step
// is a function, a line here, and the member of Surface that it fills.
constexpr Step (*surfaceSteps[])(Surface &) = {
    meanOfVertices,
    centre,
    distancesFromMean,
    scaleToUnitSphere,

    sidesOfTriangles,
    normalsOfTriangles,
    areasOfTriangles,
    unitNormalsOfTriangles,
    packNormals,

    normalsAroundVertices,
    lengthsOfNormalSums,
    unitNormalsOfVertices,

    crossMatrices,
    areaGradients,
    gradientsAroundVertices,
    areasAroundVertices,
    bendingAtVertices,
    meanCurvatures,

    factorsOfFits,
    quadraticFits,
    normalMatrices,
    normalRightSides,
    factorsOfNormalMatrices,
    fitsByNormalEquations,

    covariances,
    principalDirections,
    agreements,
    orientedNormals,

    outerSkin,
    boxesAroundVertices,
    edgeQuadrics,
};

} // namespace lxpm::mesh
