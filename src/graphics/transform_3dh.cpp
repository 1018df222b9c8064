// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The homogeneous transform of an array of vectors with strides of their own: matrix times column vector, as with all
// strided operands. It checks its arguments, and it stops at a vector whose divisor is next to nothing.

#include "graphics/formulas.h"
#include "graphics/graphics.h"
#include "graphics/transform_arrays.h"
#include "runtime/operand.h"

#include <cmath>

namespace lxpm {

namespace {

constexpr float smallestDivisor = 1.1920929e-7F;

using Arguments3DH = Arguments<Operand<Kind{Shape::Matrix}, const float, Layout::Strided>,
                               Operand<Kind{Shape::Vector, true}, const float, Layout::Strided>,
                               Operand<Kind{Shape::Vector, true}, float, Layout::Strided>, Count>;

constexpr InOrder order = {Check::Pointers, Check::Count, Check::Strides};

// The columns of the matrix play the part of rows.
class Homogeneous {
public:
    static constexpr int from = 3;
    static constexpr int to = 3;

    Homogeneous(const Addresses<const float> &matrix, std::ptrdiff_t srcElemStride, std::ptrdiff_t dstElemStride)
        : srcElemStride_(srcElemStride), dstElemStride_(dstElemStride) {
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                columns_[4 * column + row] = *matrix.at(0, row, column);
            }
        }
    }

    bool single(const float *src, float *dst) const {
        const std::array<Row, 3> v = {Row::splat(*src), Row::splat(*shifted(src, srcElemStride_)),
                                      Row::splat(*shifted(src, 2 * srcElemStride_))};
        const Row sum = timesRows<LeftToRightPoint3>(v, columns_);
        if (std::abs(sum.vector[3]) < smallestDivisor) {
            return false;
        }
        const Row quotient = sum / spread<3>(sum);
        for (int i = 0; i < to; ++i) {
            *shifted(dst, i * dstElemStride_) = quotient.vector[i];
        }
        return true;
    }

    auto lanes() const {
        return [matrix = MatrixInLanes(columns_)](const Vectors<from> &v, Vectors<to> &result) {
            const Group<float> w = matrix.times<LeftToRightPoint3>(v, 3);
            const __m256 magnitude = _mm256_andnot_ps(_mm256_set1_ps(-0.0F), w.vector);
            const __m256 isSmall = _mm256_cmp_ps(magnitude, _mm256_set1_ps(smallestDivisor), _CMP_LT_OS);
            if (_mm256_movemask_ps(isSmall) != 0) {
                return false;
            }
            for (int i = 0; i < to; ++i) {
                result[i] = matrix.times<LeftToRightPoint3>(v, i) / w;
            }
            return true;
        };
    }

private:
    float columns_[16];
    std::ptrdiff_t srcElemStride_;
    std::ptrdiff_t dstElemStride_;
};

} // namespace

namespace implementation {

LxpStatus lxpmAffineTransform3DH_mva_32f(const float *src1, int src1RowStride, int src1ElemStride, const float *src2,
                                         int src2ObjStride, int src2ElemStride, float *dst, int dstObjStride,
                                         int dstElemStride, int count) {
    const Arguments3DH arguments(src1, src1RowStride, src1ElemStride, src2, src2ObjStride, src2ElemStride, dst,
                                 dstObjStride, dstElemStride, count);
    if (const LxpStatus status = firstFailure<order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[matrix, source, destination, number] = arguments.parts;
    const Homogeneous transform(matrix.addresses(4, 4), src2ElemStride, dstElemStride);
    const int done = source.isContiguous() && destination.isContiguous()
                         ? transformArray(transform, src2, src2ObjStride, dst, dstObjStride, count)
                         : transformOneByOne(transform, src2, src2ObjStride, dst, dstObjStride, count);
    return done == count ? lxpStatusOk : lxpStatusDivByZeroErr;
}

} // namespace implementation

} // namespace lxpm
