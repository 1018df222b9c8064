// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Transforms of arrays of vectors of 2 to 4 elements, eight vectors at a time. Vectors may be any number of bytes
// apart.

#include "runtime/vector_groups.h"

#include <cstddef>

namespace lxpm {

// A transform is a class with
//
//   from, to             the elements of a vector, before and after
//   single(src, dst)     transforms one vector; false, with nothing written, if that cannot be done
//   lanes()              a function that transforms eight vectors; false unless all of them can be done
//
// Both are one text over two number types and give the same bits. An array is transformed up to the first vector that
// cannot be done; the number of those in front of it is returned. A vector is written when all of its group was read.

template <class Transform>
int transformOneByOne(const Transform &transform, const float *src, std::ptrdiff_t srcStride, float *dst,
                      std::ptrdiff_t dstStride, int count) {
    int done = 0;
    while (done < count && transform.single(shifted(src, done * srcStride), shifted(dst, done * dstStride))) {
        ++done;
    }
    return done;
}

template <Spacing spacing, bool isPacked, class Transform>
int transformGroups(const Transform &transform, const float *src, std::ptrdiff_t srcStride, float *dst,
                    std::ptrdiff_t dstStride, int count) {
    const auto inLanes = transform.lanes();
    int done = 0;
    for (; count - done >= groupSize<float>; done += groupSize<float>) {
        Vectors<Transform::to> result;
        if (!inLanes(readVectors<Transform::from, spacing>(src, srcStride), result)) {
            break;
        }
        writeVectors<Transform::to, isPacked>(dst, dstStride, result);
        src = shifted(src, groupSize<float> * srcStride);
        dst = shifted(dst, groupSize<float> * dstStride);
    }
    return done;
}

template <Spacing spacing, class Transform>
int transformGroups(const Transform &transform, const float *src, std::ptrdiff_t srcStride, float *dst,
                    std::ptrdiff_t dstStride, int count) {
    return dstStride == 4 * Transform::to
               ? transformGroups<spacing, true>(transform, src, srcStride, dst, dstStride, count)
               : transformGroups<spacing, false>(transform, src, srcStride, dst, dstStride, count);
}

template <class Transform>
int transformGroups(const Transform &transform, const float *src, std::ptrdiff_t srcStride, float *dst,
                    std::ptrdiff_t dstStride, int count) {
    switch (spacingOf<Transform::from>(srcStride)) {
    case Spacing::Packed:
        return transformGroups<Spacing::Packed>(transform, src, srcStride, dst, dstStride, count);
    case Spacing::Wide: // the last vector has nothing behind it
        return transformGroups<Spacing::Wide>(transform, src, srcStride, dst, dstStride, count - 1);
    default:
        return transformGroups<Spacing::Any>(transform, src, srcStride, dst, dstStride, count);
    }
}

template <class Transform>
int transformArray(const Transform &transform, const float *src, std::ptrdiff_t srcStride, float *dst,
                   std::ptrdiff_t dstStride, int count) {
    const int done = count < groupSize<float> ? 0 : transformGroups(transform, src, srcStride, dst, dstStride, count);
    return done + transformOneByOne(transform, shifted(src, done * srcStride), srcStride,
                                    shifted(dst, done * dstStride), dstStride, count - done);
}

} // namespace lxpm
