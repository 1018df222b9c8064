// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/exports.h"

#include "graphics/reference.h"
#include "support/header_text.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace lxpm::test {

namespace {

/// "const float *srcVecs:3a": a pointer to vectors of three elements. A question mark: the pointer may be null.
GraphicsParameter parseParameter(const std::string &text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) {
        return {text, 0, false, false};
    }
    const std::string rest = text.substr(colon + 1);
    return {text.substr(0, colon), std::atoi(rest.c_str()), rest.ends_with('a'), rest.ends_with('?')};
}

std::vector<GraphicsParameter> parseParameters(const std::string &list) {
    std::vector<GraphicsParameter> parameters;
    for (const std::string &parameter : splitParameters(list)) {
        parameters.push_back(parseParameter(parameter));
    }
    return parameters;
}

/// K becomes the number of elements.
std::string withSize(std::string list, char size) {
    std::replace(list.begin(), list.end(), 'K', size);
    return list;
}

std::vector<GraphicsExport> describe() {
    std::vector<GraphicsExport> list;

#define FUNCTION(operation, sharing, parameters)                                                                       \
    list.push_back({"lxpm" #operation "_32f", parseParameters(parameters), Sharing::sharing,                           \
                    Callable(&::lxpm##operation##_32f), Callable(&reference::lxpm##operation##_32f)});
#define VECTORS(operation, parameters)                                                                                 \
    FUNCTION(operation##_v2, Overlap, withSize(parameters, '2'))                                                       \
    FUNCTION(operation##_v3, Overlap, withSize(parameters, '3'))                                                       \
    FUNCTION(operation##_v4, Overlap, withSize(parameters, '4'))

    const std::string src = "const float *src:K, ";
    const std::string src1 = "const float *src1:K, ";
    const std::string src12 = src1 + "const float *src2:K, ";
    const std::string src123 = src12 + "const float *src3:K, ";
    const std::string src1234 = src123 + "const float *src4:K, ";
    VECTORS(Add, src12 + "float *dst:K")
    VECTORS(Sub, src12 + "float *dst:K")
    VECTORS(DotProduct, src12 + "float *dst:1")
    VECTORS(LenSqr, src + "float *dst:1")
    VECTORS(Len, src + "float *dst:1")
    VECTORS(Normalize, src + "float *dst:K")
    VECTORS(Min, src12 + "float *dst:K")
    VECTORS(Max, src12 + "float *dst:K")
    VECTORS(MulC, src + "float val, float *dst:K")
    FUNCTION(CrossProduct_v2, Overlap, withSize(src12, '2') + "float *dst:1")
    FUNCTION(CrossProduct_v3, Overlap, withSize(src12, '3') + "float *dst:3")
    FUNCTION(CrossProduct_v4, Overlap, withSize(src123, '4') + "float *dst:4")
    VECTORS(InterpolationLinear, src12 + "float s, float *dst:K")
    VECTORS(BaryCentric, src123 + "float f, float g, float *dst:K")
    VECTORS(Hermite, src1234 + "float s, float *dst:K")
    VECTORS(InterpolationCatmullRom, src1234 + "float s, float *dst:K")

    const std::string dst = "float *dst:16";
    const std::string box = "float width, float height, float zNear, float zFar, " + dst;
    const std::string sides = "float left, float right, float bottom, float top, float zNear, float zFar, " + dst;
    const std::string field = "float fovY, float aspect, float zNear, float zFar, " + dst;
    const std::string camera = "const float *eye:3, const float *at:3, const float *up:3, " + dst;
    FUNCTION(Identity_m4, None, dst)
    FUNCTION(IsIdentity_m4, None, "const float *src:16, int *result:1")
    FUNCTION(Translation_m4, None, "float x, float y, float z, " + dst)
    FUNCTION(Scaling_m4, None, "float x, float y, float z, " + dst)
    FUNCTION(RotationX_m4, None, "float angle, " + dst)
    FUNCTION(RotationY_m4, None, "float angle, " + dst)
    FUNCTION(RotationZ_m4, None, "float angle, " + dst)
    FUNCTION(RotationYawPitchRoll_m4, None, "float yaw, float pitch, float roll, " + dst)
    FUNCTION(RotationAxis_v3m4, None, "const float *axis:3, float angle, " + dst)
    FUNCTION(LookAtLH_m4, None, camera)
    FUNCTION(LookAtRH_m4, None, camera)
    FUNCTION(OrthoLH_m4, None, box)
    FUNCTION(OrthoRH_m4, None, box)
    FUNCTION(OrthoOffCenterLH_m4, None, sides)
    FUNCTION(OrthoOffCenterRH_m4, None, sides)
    FUNCTION(PerspectiveLH_m4, None, box)
    FUNCTION(PerspectiveRH_m4, None, box)
    FUNCTION(PerspectiveFovLH_m4, None, field)
    FUNCTION(PerspectiveFovRH_m4, None, field)
    FUNCTION(PerspectiveOffCenterLH_m4, None, sides)
    FUNCTION(PerspectiveOffCenterRH_m4, None, sides)

    FUNCTION(Mul_mm4x4, Exact, "const float *src1:16, const float *src2:16, " + dst)
    FUNCTION(MulTranspose_m4, Exact, "const float *src1:16, const float *src2:16, " + dst)
    FUNCTION(Transpose_m4, Exact, "const float *src:16, " + dst)
    FUNCTION(Det_m4, None, "const float *src:16, float *dst:1")
    FUNCTION(Invert_m4, Exact, "const float *src:16, float *det:1?, " + dst)

    const std::string matrix = "const float *src:16, ";
    const auto one = [](const std::string &from, const std::string &to) {
        return "const float *srcVec:" + from + ", float *dst:" + to;
    };
    const auto array = [](const std::string &from, const std::string &to) {
        return "const float *srcVecs:" + from + "a, int srcObjStride, float *dst:" + to +
               "a, int dstObjStride, int count";
    };
    FUNCTION(AffineTransform_m4v2, None, matrix + one("2", "4"))
    FUNCTION(AffineTransform_m4v2a, None, matrix + array("2", "4"))
    FUNCTION(AffineTransform_m4v3, None, matrix + one("3", "4"))
    FUNCTION(AffineTransform_m4v3a, None, matrix + array("3", "4"))
    FUNCTION(AffineTransform_m4v4, Exact, matrix + one("4", "4"))
    FUNCTION(AffineTransform_m4v4a, Exact, matrix + array("4", "4"))
    FUNCTION(AffineTransformCoord_m4v2, Exact, matrix + one("2", "2"))
    FUNCTION(AffineTransformCoord_m4v2a, Exact, matrix + array("2", "2"))
    FUNCTION(AffineTransformCoord_m4v3, Exact, matrix + one("3", "3"))
    FUNCTION(AffineTransformCoord_m4v3a, Exact, matrix + array("3", "3"))
    FUNCTION(AffineTransformNormal_m4v2, Exact, matrix + one("2", "2"))
    FUNCTION(AffineTransformNormal_m4v2a, Exact, matrix + array("2", "2"))
    FUNCTION(AffineTransformNormal_m4v3, Exact, matrix + one("3", "3"))
    FUNCTION(AffineTransformNormal_m4v3a, Exact, matrix + array("3", "3"))

    const std::string matrices = "const float *projection:16, const float *view:16, const float *world:16, ";
    const std::string viewport = "float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, ";
    const std::string point = matrices + "const float *srcVec:3, " + viewport + "float *dst:3";
    const std::string points = matrices + "const float *srcVecs:3a, int srcObjStride, " + viewport +
                               "float *dst:3a, int dstObjStride, int count";
    FUNCTION(Project_m4v3, Exact, point)
    FUNCTION(Project_m4v3a, Exact, points)
    FUNCTION(Unproject_m4v3, Exact, point)
    FUNCTION(Unproject_m4v3a, Exact, points)

    // Its strides are checked, and its matrix has some: transform_3dh_test.cpp.
    FUNCTION(AffineTransform3DH_mva, Exact,
             "const float *src1:16, int src1RowStride, int src1ElemStride, const float *src2:3a, int src2ObjStride, "
             "int src2ElemStride, float *dst:3a, int dstObjStride, int dstElemStride, int count")

#undef FUNCTION
#undef VECTORS
    return list;
}

} // namespace

bool GraphicsExport::hasArrays() const {
    return std::any_of(parameters.begin(), parameters.end(),
                       [](const GraphicsParameter &parameter) { return parameter.isArray; });
}

const std::vector<GraphicsExport> &graphicsExports() {
    static const std::vector<GraphicsExport> exports = describe();
    return exports;
}

const GraphicsExport &findGraphicsExport(const std::string &name) {
    for (const GraphicsExport &item : graphicsExports()) {
        if (item.name == name) {
            return item;
        }
    }
    throw std::logic_error("no graphics function is called " + name);
}

void PrintTo(const GraphicsExport &item, std::ostream *stream) {
    *stream << item.name;
}

} // namespace lxpm::test
