// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "peers/cglm/graphics.h"
#include "peers/peer.h"

namespace lxpm::bench {

namespace {

template <auto function>
void runMatrices(const PeerOperands &operands) {
    function(static_cast<const float *>(operands.src1), static_cast<const float *>(operands.src2),
             static_cast<float *>(operands.dst), operands.count);
}

template <auto function, int stride>
void runVectors(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        function(static_cast<const float *>(operands.src1) + begin * stride,
                 static_cast<float *>(operands.dst) + begin * stride, stride, end - begin);
    });
}

} // namespace

} // namespace lxpm::bench

extern "C" const lxpm::bench::PeerTable *LXPM_PEER_TABLE() {
    using namespace lxpm::bench;
    static const PeerTable all = {
        {"Mul_mm4x4_32f/single", runMatrices<cglmMul>},
        {"Transpose_m4_32f/single", runMatrices<cglmTranspose>},
        {"Det_m4_32f/single", runMatrices<cglmDet>},
        {"Invert_m4_32f/single", runMatrices<cglmInvert>},
        {"Translation_m4_32f/single", runMatrices<cglmTranslation>},
        {"RotationAxis_v3m4_32f/single", runMatrices<cglmRotationAxis>},
        {"AffineTransformCoord_m4v3a_32f/packed", runVectors<cglmCoord, 3>},
        {"AffineTransformCoord_m4v3a_32f/padded", runVectors<cglmCoord, 4>},
        {"AffineTransformNormal_m4v3a_32f/packed", runVectors<cglmNormal, 3>},
        {"AffineTransformNormal_m4v3a_32f/padded", runVectors<cglmNormal, 4>},
    };
    return &all;
}
