// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"
#include "progress.h"

#include <stdexcept>
#include <string>

namespace lxpm::mesh {

// The file cannot be read, or is not a mesh. The text says why, and where.
class ReadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Reads the vertices, normals and faces of a Wavefront OBJ file; everything else that the format knows is passed over.
// Polygons become fans of triangles. A vertex's normal is the mean of the normals that its corners have in the file, or
// that of the triangles around it, weighted with their areas, if the file does not give one for every corner.
Mesh readMesh(const std::string &path, Progress &progress);

} // namespace lxpm::mesh
