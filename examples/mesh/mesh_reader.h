// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"
#include "progress.h"

#include <string>

namespace lxpm::mesh {

// Reads the vertices and faces of a Wavefront OBJ file; everything else that the format knows is passed over. Polygons
// become fans of triangles; those that have a corner twice are left out. Throws FileError.
Mesh readMesh(const std::string &path, Progress &progress);

} // namespace lxpm::mesh
