// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// GLM's matrices have the library's 16 numbers in memory, as columns of column vectors.

#include "blocks.h"
#include "peers/peer.h"
#include "peers/scene.h"

#define GLM_FORCE_DEPTH_ZERO_TO_ONE
#define GLM_FORCE_INTRINSICS
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/type_ptr.hpp>

namespace lxpm::bench {

namespace {

// function(src1, src2), stored as it is.
template <class Function>
void onMatrices(const PeerOperands &operands, Function function) {
    const auto *src1 = static_cast<const float *>(operands.src1);
    const auto *src2 = static_cast<const float *>(operands.src2);
    using Result = decltype(function(src1, src2));
    auto *dst = static_cast<Result *>(operands.dst);
    for (long k = 0; k < operands.count; ++k) {
        dst[k] = function(src1 + 16 * k, src2 + 16 * k);
    }
}

template <int stride, class Function>
void onVectors(const PeerOperands &operands, Function function) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const auto *src = static_cast<const float *>(operands.src1);
        auto *dst = static_cast<float *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            *reinterpret_cast<glm::vec3 *>(dst + k * stride) = function(glm::make_vec3(src + k * stride));
        }
    });
}

const glm::mat4 &matrixAt(const float *matrix) {
    return *reinterpret_cast<const glm::mat4 *>(matrix);
}

template <int stride>
void addArrays(PeerTable &table, const std::string &spacing) {
    table.push_back({"AffineTransformCoord_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
                         onVectors<stride>(operands, [m = glm::make_mat4(sceneWorld)](const glm::vec3 &v) {
                             const glm::vec4 t = m * glm::vec4(v, 1);
                             return glm::vec3(t) / t.w;
                         });
                     }});
    table.push_back({"AffineTransformNormal_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
                         onVectors<stride>(operands, [m = glm::mat3(glm::make_mat4(sceneWorld))](const glm::vec3 &v) {
                             return m * v;
                         });
                     }});
    // A viewport whose y runs downwards.
    table.push_back(
        {"Project_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
             const glm::mat4 model = glm::make_mat4(sceneView) * glm::make_mat4(sceneWorld);
             onVectors<stride>(operands, [model, projection = glm::make_mat4(sceneProjection)](const glm::vec3 &v) {
                 return glm::projectZO(v, model, projection, glm::vec4(0, sceneHeight, sceneWidth, -sceneHeight));
             });
         }});
    table.push_back(
        {"Unproject_m4v3a_32f/" + spacing, [](const PeerOperands &operands) {
             const glm::mat4 model = glm::make_mat4(sceneView) * glm::make_mat4(sceneWorld);
             onVectors<stride>(operands, [model, projection = glm::make_mat4(sceneProjection)](const glm::vec3 &v) {
                 return glm::unProjectZO(v, model, projection, glm::vec4(0, sceneHeight, sceneWidth, -sceneHeight));
             });
         }});
}

PeerTable allKernels() {
    PeerTable table = {
        {"Mul_mm4x4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *b) { return matrixAt(b) * matrixAt(a); });
         }},
        {"Transpose_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *) { return glm::transpose(matrixAt(a)); });
         }},
        {"Det_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *) { return glm::determinant(matrixAt(a)); });
         }},
        {"Invert_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *) { return glm::inverse(matrixAt(a)); });
         }},
        {"Translation_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands,
                        [](const float *a, const float *) { return glm::translate(glm::mat4(1), glm::make_vec3(a)); });
         }},
        {"RotationAxis_v3m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *) {
                 return glm::rotate(glm::mat4(1), a[3], glm::make_vec3(a));
             });
         }},
        {"LookAtRH_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *b) {
                 return glm::lookAtRH(glm::make_vec3(a), glm::make_vec3(b), glm::make_vec3(a + 4));
             });
         }},
        {"PerspectiveFovRH_m4_32f/single",
         [](const PeerOperands &operands) {
             onMatrices(operands, [](const float *a, const float *) {
                 return glm::perspectiveRH_ZO(a[0], a[1], a[2], a[3] + 2);
             });
         }},
    };
    addArrays<3>(table, "packed");
    addArrays<4>(table, "padded");
    return table;
}

} // namespace

} // namespace lxpm::bench

extern "C" const lxpm::bench::PeerTable *LXPM_PEER_TABLE() {
    static const lxpm::bench::PeerTable all = lxpm::bench::allKernels();
    return &all;
}
