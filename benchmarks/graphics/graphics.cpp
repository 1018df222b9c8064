// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Single 4x4 operations, called for one matrix after the other, and arrays of vectors of three elements.

#include "case.h"
#include "peers/scene.h"

#include <lxpm/graphics.h>

namespace lxpm::bench {

namespace {

// The orders of the peers' sums differ, and some of the inverses are nearly singular.
constexpr double tolerance = 0.01;

struct Spacing {
    const char *name;
    int stride;
};
constexpr Spacing spacings[] = {{"packed", 12}, {"padded", 16}};

// One matrix after the other: function(src1, src2, dst), `written` elements of which are a result.
template <class Function>
void appendMatrices(std::vector<Case> &cases, const std::string &name, int sources, int written, Function function) {
    const Setting &setting = cacheSetting();
    const long count = 128; // in the first-level cache, where the operations themselves are seen
    const auto prepare = [=](const Memory &memory) -> Call {
        const auto *src1 = static_cast<const float *>(memory.source1());
        const auto *src2 = static_cast<const float *>(memory.source2());
        auto *dst = static_cast<float *>(memory.result());
        return [=] {
            LxpStatus status = lxpStatusOk;
            for (long k = 0; k < count; ++k) {
                if (const LxpStatus one = function(src1 + 16 * k, src2 + 16 * k, dst + written * k);
                    one != lxpStatusOk) {
                    status = one;
                }
            }
            return status;
        };
    };
    cases.push_back({.group = setting.name + "-m4",
                     .name = name + "/single",
                     .dense = true,
                     .setting = setting,
                     .objects = count,
                     .bytesRead = 64U * static_cast<std::size_t>(sources * count),
                     .bytesWritten = 4U * static_cast<std::size_t>(written * count),
                     .prepare = prepare,
                     .roundedElementSize = sizeof(float),
                     .tolerance = tolerance});
}

// function(src, srcStride, dst, dstStride, count)
template <class Function>
void appendArray(std::vector<Case> &cases, const std::string &name, Function function) {
    for (const Setting *setting : {&cacheSetting(), &memorySetting()}) {
        for (const Spacing &spacing : spacings) {
            const int stride = spacing.stride;
            const int count = static_cast<int>(setting->bytes / 2 / stride);
            const auto prepare = [=](const Memory &memory) -> Call {
                const auto *src = static_cast<const float *>(memory.source1());
                auto *dst = static_cast<float *>(memory.result());
                return [=] { return function(src, stride, dst, stride, count); };
            };
            const auto bytes = static_cast<std::size_t>(stride) * count;
            cases.push_back({.group = setting->name + "-m4v3a",
                             .name = name + "/" + spacing.name,
                             .dense = true,
                             .setting = *setting,
                             .objects = count,
                             .bytesRead = bytes,
                             .bytesWritten = bytes,
                             .prepare = prepare,
                             .roundedElementSize = sizeof(float),
                             .tolerance = tolerance});
        }
    }
}

} // namespace

void appendGraphics(std::vector<Case> &cases) {
    using In = const float *;
    using Out = float *;
    appendMatrices(cases, "Mul_mm4x4_32f", 2, 16, [](In a, In b, Out d) { return lxpmMul_mm4x4_32f(a, b, d); });
    appendMatrices(cases, "Transpose_m4_32f", 1, 16, [](In a, In, Out d) { return lxpmTranspose_m4_32f(a, d); });
    appendMatrices(cases, "Det_m4_32f", 1, 1, [](In a, In, Out d) { return lxpmDet_m4_32f(a, d); });
    appendMatrices(cases, "Invert_m4_32f", 1, 16, [](In a, In, Out d) { return lxpmInvert_m4_32f(a, nullptr, d); });
    appendMatrices(cases, "Translation_m4_32f", 1, 16,
                   [](In a, In, Out d) { return lxpmTranslation_m4_32f(a[0], a[1], a[2], d); });
    appendMatrices(cases, "RotationAxis_v3m4_32f", 1, 16,
                   [](In a, In, Out d) { return lxpmRotationAxis_v3m4_32f(a, a[3], d); });
    appendMatrices(cases, "LookAtRH_m4_32f", 2, 16,
                   [](In a, In b, Out d) { return lxpmLookAtRH_m4_32f(a, b, a + 4, d); });
    appendMatrices(cases, "PerspectiveFovRH_m4_32f", 1, 16,
                   [](In a, In, Out d) { return lxpmPerspectiveFovRH_m4_32f(a[0], a[1], a[2], a[3] + 2, d); });

    appendArray(cases, "AffineTransformCoord_m4v3a_32f", [](In src, int srcStride, Out dst, int dstStride, int count) {
        return lxpmAffineTransformCoord_m4v3a_32f(sceneWorld, src, srcStride, dst, dstStride, count);
    });
    appendArray(cases, "AffineTransformNormal_m4v3a_32f", [](In src, int srcStride, Out dst, int dstStride, int count) {
        return lxpmAffineTransformNormal_m4v3a_32f(sceneWorld, src, srcStride, dst, dstStride, count);
    });
    appendArray(cases, "Project_m4v3a_32f", [](In src, int srcStride, Out dst, int dstStride, int count) {
        return lxpmProject_m4v3a_32f(sceneProjection, sceneView, sceneWorld, src, srcStride, sceneWidth, sceneHeight, 0,
                                     1, dst, dstStride, count);
    });
    appendArray(cases, "Unproject_m4v3a_32f", [](In src, int srcStride, Out dst, int dstStride, int count) {
        return lxpmUnproject_m4v3a_32f(sceneProjection, sceneView, sceneWorld, src, srcStride, sceneWidth, sceneHeight,
                                       0, 1, dst, dstStride, count);
    });
}

} // namespace lxpm::bench
