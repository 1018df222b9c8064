// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "peers/eigen/families.h"
#include "peers/scene.h"

#include <Eigen/Core>
#include <Eigen/LU>

namespace lxpm::bench::eigen {

namespace {

using Matrix4 = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;
using Row3 = Eigen::RowVector3f;
using Row4 = Eigen::RowVector4f;
using Source = Eigen::Map<const Matrix4>;
using Destination = Eigen::Map<Matrix4>;

template <class Function>
void onMatrices(const PeerOperands &operands, int written, Function function) {
    const auto *src1 = static_cast<const float *>(operands.src1);
    const auto *src2 = static_cast<const float *>(operands.src2);
    auto *dst = static_cast<float *>(operands.dst);
    for (long k = 0; k < operands.count; ++k) {
        function(Source(src1 + 16 * k), Source(src2 + 16 * k), dst + written * k);
    }
}

template <int stride, class Function>
void onVectors(const PeerOperands &operands, Function function) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const auto *src = static_cast<const float *>(operands.src1);
        auto *dst = static_cast<float *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Row3>(dst + k * stride) = function(Eigen::Map<const Row3>(src + k * stride));
        }
    });
}

template <int stride>
void addArrays(PeerTable &table, const std::string &spacing) {
    table.push_back({"AffineTransformCoord_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
                         onVectors<stride>(operands, [m = Matrix4(Source(sceneWorld))](const auto &v) -> Row3 {
                             const Row4 t = Row4(v[0], v[1], v[2], 1) * m;
                             return t.head<3>() / t[3];
                         });
                     }});
    table.push_back({"AffineTransformNormal_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
                         onVectors<stride>(operands, [m = Matrix4(Source(sceneWorld))](const auto &v) -> Row3 {
                             return v * m.topLeftCorner<3, 3>();
                         });
                     }});
}

} // namespace

void addGraphics(PeerTable &table) {
    table.push_back({"Mul_mm4x4_32f/single", [](const PeerOperands &operands) {
                         onMatrices(operands, 16, [](const Source &a, const Source &b, float *dst) {
                             Destination{dst}.noalias() = a * b;
                         });
                     }});
    table.push_back({"Transpose_m4_32f/single", [](const PeerOperands &operands) {
                         onMatrices(operands, 16, [](const Source &a, const Source &, float *dst) {
                             Destination{dst} = a.transpose();
                         });
                     }});
    table.push_back({"Det_m4_32f/single", [](const PeerOperands &operands) {
                         onMatrices(operands, 1,
                                    [](const Source &a, const Source &, float *dst) { *dst = a.determinant(); });
                     }});
    table.push_back({"Invert_m4_32f/single", [](const PeerOperands &operands) {
                         onMatrices(operands, 16, [](const Source &a, const Source &, float *dst) {
                             Destination{dst} = a.inverse();
                         });
                     }});
    addArrays<3>(table, "packed");
    addArrays<4>(table, "padded");
}

} // namespace lxpm::bench::eigen
