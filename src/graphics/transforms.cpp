// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Vectors transformed by a 4x4 matrix: points, coordinates (points with the homogeneous divide) and normals, one or an
// array of them.

#include "graphics/formulas.h"
#include "graphics/graphics.h"
#include "graphics/transform_arrays.h"
#include "runtime/numbers.h"

namespace lxpm {

namespace {

// Sums alone: points to all four elements of the product, normals to as many as they have.
template <class Formula, int From, int To>
class Linear {
public:
    static constexpr int from = From;
    static constexpr int to = To;

    explicit Linear(const float *matrix) : matrix_(matrix) {}

    bool single(const float *src, float *dst) const {
        storeFirst<to>(dst, timesRows<Formula>(spreadElements<from>(src), matrix_));
        return true;
    }

    auto lanes() const {
        return [matrix = MatrixInLanes(matrix_)](const Vectors<from> &v, Vectors<to> &result) {
            for (int i = 0; i < to; ++i) {
                result[i] = matrix.times<Formula>(v, i);
            }
            return true;
        };
    }

private:
    const float *matrix_;
};

// Divided by the last element of the product, whatever it is.
template <class Formula, int Length>
class Coordinates {
public:
    static constexpr int from = Length;
    static constexpr int to = Length;

    explicit Coordinates(const float *matrix) : matrix_(matrix) {}

    bool single(const float *src, float *dst) const {
        const Row sum = timesRows<Formula>(spreadElements<from>(src), matrix_);
        storeFirst<to>(dst, sum / spread<3>(sum));
        return true;
    }

    auto lanes() const {
        return [matrix = MatrixInLanes(matrix_)](const Vectors<from> &v, Vectors<to> &result) {
            const Group<float> w = matrix.times<Formula>(v, 3);
            for (int i = 0; i < to; ++i) {
                result[i] = matrix.times<Formula>(v, i) / w;
            }
            return true;
        };
    }

private:
    const float *matrix_;
};

using Coordinates2 = Coordinates<Point2, 2>;
using Coordinates3 = Coordinates<PairedPoint3, 3>;

struct Viewport {
    float width;
    float height;
    float minZ;
    float maxZ;
};

// Through world, view and projection, divided, then moved to the viewport, whose y runs from top to bottom.
class Projection {
public:
    static constexpr int from = 3;
    static constexpr int to = 3;

    Projection(const float *projection, const float *view, const float *world, const Viewport &viewport)
        : projection_(projection), view_(view),
          world_(world), base_{0.5F * viewport.width, 0.5F * viewport.height, viewport.minZ},
          extent_{0.5F * viewport.width, 0 - 0.5F * viewport.height, viewport.maxZ - viewport.minZ} {}

    bool single(const float *src, float *dst) const {
        const Row inWorld = timesRows<ExchangedPoint3>(spreadElements<from>(src), world_);
        const Row inView = timesRows<Vector4>(spreadElements(inWorld), view_);
        const Row clip = timesRows<Vector4>(spreadElements(inView), projection_);
        const Row normalised = clip / spread<3>(clip);
        storeFirst<to>(dst, Row::load(base_) + Row::load(extent_) * normalised);
        return true;
    }

    auto lanes() const {
        return [this, world = MatrixInLanes(world_), view = MatrixInLanes(view_),
                projection = MatrixInLanes(projection_)](const Vectors<from> &v, Vectors<to> &result) {
            const Vectors<4> inWorld = world.times<ExchangedPoint3>(v);
            const Vectors<4> inView = view.times<Vector4>(inWorld);
            const Group<float> w = projection.times<Vector4>(inView, 3);
            for (int i = 0; i < to; ++i) {
                const Group<float> normalised = projection.times<Vector4>(inView, i) / w;
                result[i] = Group<float>::splat(base_[i]) + Group<float>::splat(extent_[i]) * normalised;
            }
            return true;
        };
    }

private:
    const float *projection_;
    const float *view_;
    const float *world_;
    float base_[4];
    float extent_[4];
};

// From the viewport back to coordinates as a projection leaves them.
class Normalisation {
public:
    static constexpr int from = 3;
    static constexpr int to = 3;

    explicit Normalisation(const Viewport &viewport)
        : width_(viewport.width), height_(viewport.height), minZ_(viewport.minZ),
          depth_(viewport.maxZ - viewport.minZ) {}

    bool single(const float *src, float *dst) const {
        const auto [x, y, z] = normalise<float>({src[0], src[1], src[2]});
        dst[0] = x;
        dst[1] = y;
        dst[2] = z;
        return true;
    }

    auto lanes() const {
        return [copy = *this](const Vectors<from> &v, Vectors<to> &result) {
            result = copy.normalise<Group<float>>(v);
            return true;
        };
    }

private:
    template <class V>
    std::array<V, 3> normalise(const std::array<V, 3> &v) const {
        return {(constant<V>(2) * v[0]) / number<V>(width_) - constant<V>(1),
                constant<V>(1) + (constant<V>(-2) * v[1]) / number<V>(height_),
                (v[2] - number<V>(minZ_)) / number<V>(depth_)};
    }

    float width_;
    float height_;
    float minZ_;
    float depth_;
};

// Normalised coordinates through the inverse of all three matrices.
class Unprojection {
public:
    static constexpr int from = 3;
    static constexpr int to = 3;

    Unprojection(const Normalisation &normalisation, const float *inverse)
        : normalisation_(normalisation), coordinates_(inverse) {}

    bool single(const float *src, float *dst) const {
        return normalisation_.single(src, dst) && coordinates_.single(dst, dst);
    }

    auto lanes() const {
        return [normalise = normalisation_.lanes(), transform = coordinates_.lanes()](const Vectors<from> &v,
                                                                                      Vectors<to> &result) {
            Vectors<3> coordinates;
            return normalise(v, coordinates) && transform(coordinates, result);
        };
    }

private:
    Normalisation normalisation_;
    Coordinates3 coordinates_;
};

// The inverse of world * view * projection.
LxpStatus invertProduct(const float *world, const float *view, const float *projection, float *inverse) {
    float worldView[16];
    float all[16];
    storeMatrix(product(world, view), worldView);
    storeMatrix(product(worldView, projection), all);
    return invert(all, nullptr, inverse);
}

LxpStatus unproject(const float *projection, const float *view, const float *world, const float *src, int srcStride,
                    const Viewport &viewport, float *dst, int dstStride, int count) {
    const Normalisation normalisation(viewport);
    float inverse[16];
    const LxpStatus status = invertProduct(world, view, projection, inverse);
    if (status == lxpStatusOk) {
        transformArray(Unprojection(normalisation, inverse), src, srcStride, dst, dstStride, count);
    } else {
        transformArray(normalisation, src, srcStride, dst, dstStride, count);
    }
    return status;
}

template <class Transform>
LxpStatus transformOne(const float *matrix, const float *src, float *dst) {
    Transform(matrix).single(src, dst);
    return lxpStatusOk;
}

template <class Transform>
LxpStatus transformAll(const float *matrix, const float *src, int srcStride, float *dst, int dstStride, int count) {
    transformArray(Transform(matrix), src, srcStride, dst, dstStride, count);
    return lxpStatusOk;
}

} // namespace

namespace implementation {

#define TRANSFORM(operation, code, transform)                                                                          \
    LxpStatus lxpm##operation##_##code##_32f(const float *src, const float *srcVec, float *dst) {                      \
        return transformOne<transform>(src, srcVec, dst);                                                              \
    }                                                                                                                  \
    LxpStatus lxpm##operation##_##code##a_32f(const float *src, const float *srcVecs, int srcObjStride, float *dst,    \
                                              int dstObjStride, int count) {                                           \
        return transformAll<transform>(src, srcVecs, srcObjStride, dst, dstObjStride, count);                          \
    }

using Affine2 = Linear<Point2, 2, 4>;
using Affine3 = Linear<Point3, 3, 4>;
using Affine4 = Linear<Vector4, 4, 4>;
using AffineNormal2 = Linear<Normal2, 2, 2>;
using AffineNormal3 = Linear<Normal3, 3, 3>;

TRANSFORM(AffineTransform, m4v2, Affine2)
TRANSFORM(AffineTransform, m4v3, Affine3)
TRANSFORM(AffineTransform, m4v4, Affine4)
TRANSFORM(AffineTransformCoord, m4v2, Coordinates2)
TRANSFORM(AffineTransformCoord, m4v3, Coordinates3)
TRANSFORM(AffineTransformNormal, m4v2, AffineNormal2)
TRANSFORM(AffineTransformNormal, m4v3, AffineNormal3)

LxpStatus lxpmProject_m4v3_32f(const float *projection, const float *view, const float *world, const float *srcVec,
                               float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst) {
    Projection(projection, view, world, {vpWidth, vpHeight, vpMinZ, vpMaxZ}).single(srcVec, dst);
    return lxpStatusOk;
}

LxpStatus lxpmProject_m4v3a_32f(const float *projection, const float *view, const float *world, const float *srcVecs,
                                int srcObjStride, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst,
                                int dstObjStride, int count) {
    transformArray(Projection(projection, view, world, {vpWidth, vpHeight, vpMinZ, vpMaxZ}), srcVecs, srcObjStride, dst,
                   dstObjStride, count);
    return lxpStatusOk;
}

LxpStatus lxpmUnproject_m4v3_32f(const float *projection, const float *view, const float *world, const float *srcVec,
                                 float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float *dst) {
    return unproject(projection, view, world, srcVec, 0, {vpWidth, vpHeight, vpMinZ, vpMaxZ}, dst, 0, 1);
}

LxpStatus lxpmUnproject_m4v3a_32f(const float *projection, const float *view, const float *world, const float *srcVecs,
                                  int srcObjStride, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ,
                                  float *dst, int dstObjStride, int count) {
    if (count < 1) {
        return lxpStatusOk;
    }
    return unproject(projection, view, world, srcVecs, srcObjStride, {vpWidth, vpHeight, vpMinZ, vpMaxZ}, dst,
                     dstObjStride, count);
}

} // namespace implementation

} // namespace lxpm
