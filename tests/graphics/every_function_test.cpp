// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// All graphics functions, one test of each name for each check.

#include "graphics/checks.h"
#include "graphics/reference.h"
#include "support/expect_sound.h"
#include "support/header_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lxpm::test {

namespace {

bool anyFunction(const GraphicsExport &) {
    return true;
}

/// The one that takes strides inside of its operands has tests of its own.
bool hasPlainOperands(const GraphicsExport &item) {
    return item.name != "lxpmAffineTransform3DH_mva_32f";
}

bool hasSharing(const GraphicsExport &item) {
    return hasPlainOperands(item) && item.sharing != Sharing::None;
}

std::vector<GraphicsExport> functionsThat(bool (*condition)(const GraphicsExport &)) {
    std::vector<GraphicsExport> list;
    std::copy_if(graphicsExports().begin(), graphicsExports().end(), std::back_inserter(list), condition);
    return list;
}

using Functions = testing::TestWithParam<GraphicsExport>;

std::string nameOf(const testing::TestParamInfo<GraphicsExport> &info) {
    return info.param.name;
}

class GraphicsValues : public Functions {};
TEST_P(GraphicsValues, AreThoseOfTheFormula) {
    expectSound(checkGraphicsValues(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, GraphicsValues, testing::ValuesIn(functionsThat(hasPlainOperands)), nameOf);

class GraphicsSpecialValues : public Functions {};
TEST_P(GraphicsSpecialValues, AreThoseOfTheFormula) {
    expectSound(checkGraphicsSpecialValues(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, GraphicsSpecialValues, testing::ValuesIn(functionsThat(hasPlainOperands)), nameOf);

class GraphicsRounding : public Functions {};
TEST_P(GraphicsRounding, IsTheCallers) {
    expectSound(checkGraphicsRounding(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, GraphicsRounding, testing::ValuesIn(functionsThat(hasPlainOperands)), nameOf);

class GraphicsSharing : public Functions {};
TEST_P(GraphicsSharing, GivesWhatTheOrderOfStoresGives) {
    expectSound(checkGraphicsSharing(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, GraphicsSharing, testing::ValuesIn(functionsThat(hasSharing)), nameOf);

class GraphicsHeader : public Functions {};
TEST_P(GraphicsHeader, DeclaresTheParameters) {
    const auto declared = declarations().find(GetParam().name);
    ASSERT_NE(declared, declarations().end());
    std::vector<std::string> expected;
    for (const GraphicsParameter &parameter : GetParam().parameters) {
        expected.push_back(parameter.text);
    }
    EXPECT_EQ(splitParameters(declared->second), expected);
}
INSTANTIATE_TEST_SUITE_P(Every, GraphicsHeader, testing::ValuesIn(functionsThat(anyFunction)), nameOf);

// --- Nothing is left out ---

TEST(GraphicsCoverage, EverySuiteRunsEveryFunction) {
    EXPECT_EQ(graphicsExports().size(), 87u);
    EXPECT_EQ(functionsThat(hasPlainOperands).size(), 86u);
    EXPECT_EQ(functionsThat(hasSharing).size(), 60u); // vectors, products and inverse, equal lengths
}

// --- The checks find what is wrong ---

/// Adds as if the elements could be taken in any order.
LxpStatus addBackwards(const float *src1, const float *src2, float *dst) {
    for (int i = 2; i >= 0; --i) {
        dst[i] = src1[i] + src2[i];
    }
    return lxpStatusOk;
}

/// Writes -0 where a subtraction from 0 gives +0.
LxpStatus rotateWithNegation(float angle, float *dst) {
    const LxpStatus status = reference::lxpmRotationX_m4_32f(angle, dst);
    dst[9] = -dst[6];
    return status;
}

/// Reads a fourth element.
[[maybe_unused]] LxpStatus addWhole(const float *src1, const float *src2, float *dst) {
    volatile float beyond = src1[3];
    (void)beyond;
    return reference::lxpmAdd_v3_32f(src1, src2, dst);
}

/// Writes between vectors.
LxpStatus transformIntoGaps(const float *src, const float *srcVecs, int srcObjStride, float *dst, int dstObjStride,
                            int count) {
    const LxpStatus status =
        reference::lxpmAffineTransformNormal_m4v3a_32f(src, srcVecs, srcObjStride, dst, dstObjStride, count);
    if (count > 1 && dstObjStride == 16) {
        dst[3] = 0;
    }
    return status;
}

/// Forgets the last vector of a whole group.
LxpStatus transformTooFew(const float *src, const float *srcVecs, int srcObjStride, float *dst, int dstObjStride,
                          int count) {
    return reference::lxpmAffineTransformCoord_m4v3a_32f(src, srcVecs, srcObjStride, dst, dstObjStride,
                                                         count % 8 == 0 ? count - 1 : count);
}

template <class Function>
GraphicsExport brokenBy(const std::string &name, Function function) {
    GraphicsExport item = findGraphicsExport(name);
    item.function = Callable(function);
    return item;
}

TEST(GraphicsSelfTest, BrokenFunctionsAreReported) {
    EXPECT_FALSE(checkGraphicsSharing(brokenBy("lxpmAdd_v3_32f", &addBackwards)).complaints().empty());
    EXPECT_FALSE(
        checkGraphicsSpecialValues(brokenBy("lxpmRotationX_m4_32f", &rotateWithNegation)).complaints().empty());
    EXPECT_FALSE(
        checkGraphicsValues(brokenBy("lxpmAffineTransformNormal_m4v3a_32f", &transformIntoGaps)).complaints().empty());
    EXPECT_FALSE(
        checkGraphicsValues(brokenBy("lxpmAffineTransformCoord_m4v3a_32f", &transformTooFew)).complaints().empty());
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(GraphicsSelfTest, ReadingTooMuchIsFatal) {
    EXPECT_DEATH(checkGraphicsValues(brokenBy("lxpmAdd_v3_32f", &addWhole)), "");
}
#endif

} // namespace

} // namespace lxpm::test
