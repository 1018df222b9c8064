/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

/* The matrices that all contestants transform vectors by. As C, since one of the peers is. All operands are numbers
 * from 1 to 2: the projection keeps its pole away from depths like these. */

#ifndef LXPM_BENCHMARKS_SCENE_H
#define LXPM_BENCHMARKS_SCENE_H

static const float sceneWorld[16] = {0.8f, 0.6f, 0, 0, -0.6f, 0.8f, 0, 0, 0, 0, 1, 0, 0.5f, -0.25f, 0.125f, 1};
static const float sceneView[16] = {1, 0, 0, 0, 0, 0.8f, -0.6f, 0, 0, 0.6f, 0.8f, 0, -1, -2, -9, 1};
static const float sceneProjection[16] = {1.5f, 0, 0, 0, 0, 2, 0, 0, 0, 0, -2.5f, -1, 0, 0, -0.505f, 0};
static const float sceneWidth = 640;
static const float sceneHeight = 480;

#endif
