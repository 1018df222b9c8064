// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"
#include "neighbour_rows.h"

namespace lxpm::mesh {

using Edge = std::array<int, 2>;
using Matrix3 = std::array<Point, 3>;   // by rows
using Quadric = std::array<double, 16>; // 4x4, by rows

// side[c] lies opposite of corner c and runs from corner c + 1 to corner c + 2, counted around.
using Sides = std::array<Point, 3>;

// One array for each coordinate.
struct Planes {
    explicit Planes(std::size_t size) : coordinates{{Plane(size), Plane(size), Plane(size)}} {}

    using Plane = std::vector<float>;
    std::array<Plane, 3> coordinates;
};

// A paraboloid a u^2 + b u v + c v^2 at each vertex, in the unit of length around it: by QR, and by Cholesky from the
// normal equations.
struct Fits {
    // A little weight, `pull`, draws them towards the plane.
    Fits(const Neighbours &neighbours, float pull);

    float *rightSide(std::size_t vertex) { return &rightSides[vertex * static_cast<std::size_t>(matrices.height())]; }
    const float *rightSide(std::size_t vertex) const {
        return &rightSides[vertex * static_cast<std::size_t>(matrices.height())];
    }

    NeighbourRows matrices;
    std::vector<float> rightSides;
    NeighbourRows factors;
    std::vector<float> buffer;
    std::vector<Point> paraboloids;

    std::vector<Matrix3> normalMatrices;
    std::vector<Point> normalSides;
    std::vector<Matrix3> normalFactors;
    std::vector<Point> sameParaboloids;
};

// The mesh, and what the steps compute for it: each fills what the later ones need.
struct Surface {
    explicit Surface(Mesh mesh);

    std::vector<Triangle> triangles;
    std::vector<Edge> edges;      // each edge once, the smaller index first
    Neighbours neighbours;        // of each vertex, in ascending order
    std::vector<Vertex> asRead;   // the positions of the file
    std::vector<Vertex> vertices; // centred on the mean and scaled into the unit sphere, with normals

    // the way there
    Point mean{};
    std::vector<Point> centred;
    std::vector<float> distances; // from the mean
    float scale = 0;

    // for each triangle
    std::vector<Sides> sides;
    Planes areaNormals; // outwards, of twice the triangle's area in length
    std::vector<float> areas;
    Planes unitNormals;                              // outwards, of length 1, or 0 for a triangle without area
    std::vector<Point> packedNormals;                // areaNormals again, x, y, z of a triangle side by side
    std::vector<Matrix3> crossMatrices;              // M with M * v = unit normal x v
    std::vector<std::array<Point, 3>> areaGradients; // twice the gradient of the area, by the place of each corner

    // for each vertex, summed over the triangles around it
    std::vector<Point> normalSums;
    std::vector<float> areaSums;
    std::vector<Point> gradientSums;

    // for each vertex
    std::vector<float> normalLengths;  // of the normals' sums
    std::vector<float> bendings;       // the gradients' sums along the normals
    std::vector<float> meanCurvatures; // of the scaled surface; positive where it is convex
    std::vector<Point> skin;           // a little outside of the surface
    std::vector<Bounds> boxes;         // around the vertex and its neighbours
    std::vector<Quadric> vertexQuadrics;

    Fits fits;

    // for each vertex, from the points of its neighbours alone
    NeighbourRows deviationsFromMean; // with the identity below them
    std::vector<Matrix3> covariances; // with the identity added
    std::vector<Matrix3> directions;  // by columns, of greatest variance first
    std::vector<Point> variances;     // along them, with 1 added
    std::vector<float> agreements;    // of the direction of least variance with the normal: the cosine
    std::vector<Point> pointNormals;  // that direction, outwards
    std::vector<float> variations;    // the least variance as a share of all

    // for each edge
    std::vector<Quadric> edgeQuadrics;
};

} // namespace lxpm::mesh
