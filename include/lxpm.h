/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_H
#define LXPM_H

/*
 * lxpm: arithmetic of small matrices and vectors, one object or a whole array of them in a single call.
 *
 * Every function is named lxpm<Operation>_<operands>_<type>, with a suffix for the layout:
 *
 *   operands   m matrix, t matrix that is read transposed, v vector, c constant; an a behind it makes it an array of
 *              `count` such objects: mam is an array of matrices with one matrix. A single object beside an array is
 *              used with every object of the array.
 *   type       32f (float) or 64f (double). All arithmetic is done in that type.
 *   layout     none  strided: one pointer for each operand; objects, rows and elements are found by strides
 *              _L    object pointers: an array operand is an array of pointers, one for each object
 *              _P    element pointers: an operand is an array of pointers, one for each element of an object, in
 *                    row-major order; the objects of an array are found by adding the object stride to each of them
 *
 * The address of element (i, j) of object k (of element j of a vector: without the row; of a constant: without both):
 *
 *   strided   x + k * xObjStride + i * xRowStride + j * xElemStride
 *   _L        xPtrs[k] + xPtrOffset + i * xRowStride + j * xElemStride
 *   _P        xPtrs[i * width + j] + xPtrOffset + k * xObjStride
 *
 * Strides and offsets are counted in BYTES. Strides are positive multiples of the element size, offsets are
 * multiples of it and not negative. Memory needs the alignment of its element type and nothing more. A function reads
 * nothing behind the last element of an operand and writes nothing between the elements of its destination.
 *
 * Every function returns an LxpStatus: lxpStatusOk, or the first failing check of the family's documented order, made
 * before anything is read or written. The pointers inside of a pointer array are not checked. Functions keep no state,
 * so any number of threads may call them at once as long as their destinations do not overlap.
 */

#include <lxpm/eigen.h>
#include <lxpm/elementwise.h>
#include <lxpm/graphics.h>
#include <lxpm/products.h>
#include <lxpm/reductions.h>
#include <lxpm/solvers.h>
#include <lxpm/types.h>
#include <lxpm/version.h>

#endif
