// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Graphics functions where the outcome is known without a reference.

#include <lxpm.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <numbers>

#include <sys/mman.h>
#include <unistd.h>

namespace lxpm::test {

namespace {

constexpr float quietNan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float pi = std::numbers::pi_v<float>;
constexpr float untouched = 77;

using Matrix = std::array<float, 16>;

constexpr Matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

Matrix filledWith(float value) {
    Matrix m;
    m.fill(value);
    return m;
}

bool isPositiveZero(float value) {
    return value == 0 && !std::signbit(value);
}

bool isNegativeZero(float value) {
    return value == 0 && std::signbit(value);
}

int isIdentity(const Matrix &m) {
    int result = -1;
    EXPECT_EQ(lxpmIsIdentity_m4_32f(m.data(), &result), lxpStatusOk);
    return result;
}

// --- Small vectors ---

TEST(GraphicsVectors, NormalizeOfNothingIsNan) {
    const float src[3] = {0, 0, 0};
    float dst[3] = {};
    EXPECT_EQ(lxpmNormalize_v3_32f(src, dst), lxpStatusOk);
    for (const float element : dst) {
        EXPECT_TRUE(std::isnan(element));
    }
}

TEST(GraphicsVectors, ThreeFourFive) {
    const float src[2] = {3, 4};
    float dst[2];
    EXPECT_EQ(lxpmLen_v2_32f(src, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 5);
    EXPECT_EQ(lxpmLenSqr_v2_32f(src, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 25);
    EXPECT_EQ(lxpmNormalize_v2_32f(src, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 0.6F);
    EXPECT_EQ(dst[1], 0.8F);
}

TEST(GraphicsVectors, CrossProductsOfUnitVectors) {
    const float x[4] = {1, 0, 0, 0};
    const float y[4] = {0, 1, 0, 0};
    const float z[4] = {0, 0, 1, 0};
    float dst[4];
    EXPECT_EQ(lxpmCrossProduct_v2_32f(x, y, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 1);
    EXPECT_EQ(lxpmCrossProduct_v3_32f(x, y, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 0);
    EXPECT_EQ(dst[1], 0);
    EXPECT_EQ(dst[2], 1);
    EXPECT_EQ(lxpmCrossProduct_v4_32f(x, y, z, dst), lxpStatusOk);
    EXPECT_TRUE(isPositiveZero(dst[0]));
    EXPECT_TRUE(isPositiveZero(dst[1]));
    EXPECT_TRUE(isPositiveZero(dst[2]));
    EXPECT_EQ(dst[3], -1);
}

TEST(GraphicsVectors, CrossProductInPlaceSeesItsOwnResults) {
    float v[3] = {1, 2, 3};
    const float other[3] = {4, 5, 7};
    EXPECT_EQ(lxpmCrossProduct_v3_32f(v, other, v), lxpStatusOk);
    EXPECT_EQ(v[0], 2 * 7 - 3 * 5);     // -1
    EXPECT_EQ(v[1], 3 * 4 - (-1) * 7);  // 19
    EXPECT_EQ(v[2], (-1) * 5 - 19 * 4); // from both
}

TEST(GraphicsVectors, MinAndMaxTakeTheSecondUnlessTheFirstIsBeyond) {
    const float src1[4] = {+0.0F, quietNan, 1, -0.0F};
    const float src2[4] = {-0.0F, 1, quietNan, +0.0F};
    float dst[4];
    EXPECT_EQ(lxpmMin_v4_32f(src1, src2, dst), lxpStatusOk);
    EXPECT_TRUE(isNegativeZero(dst[0]));
    EXPECT_EQ(dst[1], 1);
    EXPECT_TRUE(std::isnan(dst[2]));
    EXPECT_TRUE(isPositiveZero(dst[3]));
    EXPECT_EQ(lxpmMax_v4_32f(src1, src2, dst), lxpStatusOk);
    EXPECT_TRUE(isNegativeZero(dst[0]));
    EXPECT_EQ(dst[1], 1);
    EXPECT_TRUE(std::isnan(dst[2]));
    EXPECT_TRUE(isPositiveZero(dst[3]));
}

TEST(GraphicsVectors, CurvesGoThroughTheirPoints) {
    const float a[3] = {1, 2, 3};
    const float b[3] = {-2, 5, 0.5F};
    const float c[3] = {4, 4, -4};
    const float d[3] = {9, -1, 2};
    float dst[3];
    EXPECT_EQ(lxpmHermite_v3_32f(a, b, c, d, 0, dst), lxpStatusOk);
    EXPECT_EQ(std::memcmp(dst, a, sizeof dst), 0);
    EXPECT_EQ(lxpmHermite_v3_32f(a, b, c, d, 1, dst), lxpStatusOk);
    EXPECT_EQ(std::memcmp(dst, c, sizeof dst), 0);
    EXPECT_EQ(lxpmInterpolationCatmullRom_v3_32f(a, b, c, d, 0, dst), lxpStatusOk);
    EXPECT_EQ(std::memcmp(dst, b, sizeof dst), 0);
    EXPECT_EQ(lxpmInterpolationCatmullRom_v3_32f(a, b, c, d, 1, dst), lxpStatusOk);
    EXPECT_EQ(std::memcmp(dst, c, sizeof dst), 0);
}

TEST(GraphicsVectors, LinearInterpolationExtrapolates) {
    const float src1[2] = {1, -1};
    const float src2[2] = {2, -3};
    float dst[2];
    EXPECT_EQ(lxpmInterpolationLinear_v2_32f(src1, src2, 2, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], 3);
    EXPECT_EQ(dst[1], -5);
}

// --- Builders ---

TEST(GraphicsBuilders, IdentityIsTheIdentity) {
    Matrix m = filledWith(untouched);
    EXPECT_EQ(lxpmIdentity_m4_32f(m.data()), lxpStatusOk);
    EXPECT_EQ(m, identity);
    EXPECT_EQ(isIdentity(m), 1);
}

TEST(GraphicsBuilders, IsIdentityWantsTheFirstElementAndOneColumn) {
    Matrix m = identity;
    m[0] = 2;
    EXPECT_EQ(isIdentity(m), 0);
    m[0] = quietNan;
    EXPECT_EQ(isIdentity(m), 0);

    m = identity;
    m[4 * 1 + 2] = 5;
    EXPECT_EQ(isIdentity(m), 1);

    Matrix translation;
    EXPECT_EQ(lxpmTranslation_m4_32f(1, 2, 3, translation.data()), lxpStatusOk);
    EXPECT_EQ(isIdentity(translation), 1);

    m = identity;
    for (float &element : m) {
        element = element == 0 ? -0.0F : element;
    }
    EXPECT_EQ(isIdentity(m), 1);
}

TEST(GraphicsBuilders, IsIdentityForEveryChoiceOfBrokenColumns) {
    for (int broken = 0; broken < 16; ++broken) {
        for (int row = 0; row < 4; ++row) {
            Matrix m = identity;
            for (int column = 0; column < 4; ++column) {
                if ((broken >> column & 1) != 0) {
                    m[4 * row + column] += 0.25F;
                }
            }
            const bool isFirstBroken = row == 0 && (broken & 1) != 0;
            EXPECT_EQ(isIdentity(m), static_cast<int>(!isFirstBroken && broken != 15)) << broken << " in row " << row;
        }
    }
}

TEST(GraphicsBuilders, TranslationStandsInTheLastRow) {
    Matrix m = filledWith(untouched);
    EXPECT_EQ(lxpmTranslation_m4_32f(1, 2, 3, m.data()), lxpStatusOk);
    EXPECT_EQ(m, (Matrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 2, 3, 1}));
}

TEST(GraphicsBuilders, RotationZTurnsXIntoY) {
    Matrix m;
    EXPECT_EQ(lxpmRotationZ_m4_32f(pi / 2, m.data()), lxpStatusOk);
    EXPECT_EQ(m[1], 1);
    EXPECT_EQ(m[4], -1);
    const float x[3] = {1, 0, 0};
    float turned[3];
    EXPECT_EQ(lxpmAffineTransformNormal_m4v3_32f(m.data(), x, turned), lxpStatusOk);
    EXPECT_NEAR(turned[0], 0, 1e-7);
    EXPECT_EQ(turned[1], 1);
    EXPECT_EQ(turned[2], 0);
}

TEST(GraphicsBuilders, RotationsByNothingHaveNoNegativeZeros) {
    const float axis[3] = {0, 0, 2};
    Matrix m;
    EXPECT_EQ(lxpmRotationX_m4_32f(0, m.data()), lxpStatusOk);
    EXPECT_EQ(std::memcmp(m.data(), identity.data(), sizeof m), 0);
    EXPECT_EQ(lxpmRotationY_m4_32f(0, m.data()), lxpStatusOk);
    EXPECT_EQ(std::memcmp(m.data(), identity.data(), sizeof m), 0);
    EXPECT_EQ(lxpmRotationZ_m4_32f(0, m.data()), lxpStatusOk);
    EXPECT_EQ(std::memcmp(m.data(), identity.data(), sizeof m), 0);
    EXPECT_EQ(lxpmRotationYawPitchRoll_m4_32f(0, 0, 0, m.data()), lxpStatusOk);
    EXPECT_EQ(std::memcmp(m.data(), identity.data(), sizeof m), 0);
    EXPECT_EQ(lxpmRotationAxis_v3m4_32f(axis, 0, m.data()), lxpStatusOk);
    EXPECT_EQ(std::memcmp(m.data(), identity.data(), sizeof m), 0);
}

TEST(GraphicsBuilders, YawPitchRollIsRollThenPitchThenYaw) {
    Matrix yaw;
    Matrix pitch;
    Matrix roll;
    Matrix all;
    lxpmRotationY_m4_32f(0.7F, yaw.data());
    lxpmRotationX_m4_32f(-0.4F, pitch.data());
    lxpmRotationZ_m4_32f(1.9F, roll.data());
    lxpmMul_mm4x4_32f(roll.data(), pitch.data(), all.data());
    lxpmMul_mm4x4_32f(all.data(), yaw.data(), all.data());
    Matrix m;
    EXPECT_EQ(lxpmRotationYawPitchRoll_m4_32f(0.7F, -0.4F, 1.9F, m.data()), lxpStatusOk);
    for (int i = 0; i < 16; ++i) {
        EXPECT_NEAR(m[i], all[i], 2e-7) << i;
    }
}

TEST(GraphicsBuilders, RotationAboutAnAxisIsThatOfTheAxis) {
    const float axes[3][3] = {{3, 0, 0}, {0, 0.5F, 0}, {0, 0, 7}};
    LxpStatus (*const builders[])(float, float *) = {lxpmRotationX_m4_32f, lxpmRotationY_m4_32f, lxpmRotationZ_m4_32f};
    for (int axis = 0; axis < 3; ++axis) {
        Matrix expected;
        Matrix m;
        builders[axis](0.9F, expected.data());
        EXPECT_EQ(lxpmRotationAxis_v3m4_32f(axes[axis], 0.9F, m.data()), lxpStatusOk);
        for (int i = 0; i < 16; ++i) {
            EXPECT_NEAR(m[i], expected[i], 2e-7) << axis << " " << i;
        }
    }
}

TEST(GraphicsBuilders, RightAngleOfViewScalesByOne) {
    Matrix m;
    EXPECT_EQ(lxpmPerspectiveFovLH_m4_32f(pi / 2, 1, 0.5F, 10, m.data()), lxpStatusOk);
    EXPECT_NEAR(m[0], 1, 2e-7);
    EXPECT_NEAR(m[5], 1, 2e-7);
    EXPECT_EQ(m[11], 1);
    EXPECT_EQ(m[15], 0);
}

TEST(GraphicsBuilders, OrthoLeftHandedFromZeroHasANegativeZero) {
    Matrix m;
    EXPECT_EQ(lxpmOrthoLH_m4_32f(2, 2, 0, 10, m.data()), lxpStatusOk);
    EXPECT_TRUE(isNegativeZero(m[14]));
}

TEST(GraphicsBuilders, LookingAtOneselfIsNan) {
    const float eye[3] = {1, 2, 3};
    const float up[3] = {0, 1, 0};
    for (const auto build : {lxpmLookAtLH_m4_32f, lxpmLookAtRH_m4_32f}) {
        Matrix m;
        EXPECT_EQ(build(eye, eye, up, m.data()), lxpStatusOk);
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 3; ++column) {
                EXPECT_TRUE(std::isnan(m[4 * row + column])) << row << " " << column;
            }
            EXPECT_EQ(m[4 * row + 3], row == 3 ? 1 : 0);
        }
    }
}

TEST(GraphicsBuilders, ViewsPutTheTargetAheadAndTheEyeAtTheOrigin) {
    const float eye[3] = {1, 2, 3};
    const float at[3] = {4, 6, 3};
    const float up[3] = {0, 0, 1};
    Matrix m;
    float seen[3];
    EXPECT_EQ(lxpmLookAtLH_m4_32f(eye, at, up, m.data()), lxpStatusOk);
    lxpmAffineTransformCoord_m4v3_32f(m.data(), at, seen);
    EXPECT_NEAR(seen[0], 0, 1e-6);
    EXPECT_NEAR(seen[1], 0, 1e-6);
    EXPECT_NEAR(seen[2], 5, 1e-6);
    EXPECT_EQ(lxpmLookAtRH_m4_32f(eye, at, up, m.data()), lxpStatusOk);
    lxpmAffineTransformCoord_m4v3_32f(m.data(), at, seen);
    EXPECT_NEAR(seen[2], -5, 1e-6);
    lxpmAffineTransformCoord_m4v3_32f(m.data(), eye, seen);
    for (const float element : seen) {
        EXPECT_NEAR(element, 0, 1e-6);
    }
}

TEST(GraphicsBuilders, NothingIsValidated) {
    Matrix m;
    EXPECT_EQ(lxpmPerspectiveLH_m4_32f(0, 1, 1, 1, m.data()), lxpStatusOk);
    EXPECT_EQ(m[0], infinity);
    EXPECT_EQ(m[10], infinity);
    EXPECT_EQ(lxpmOrthoOffCenterLH_m4_32f(1, 1, 0, 1, 0, 1, m.data()), lxpStatusOk);
    EXPECT_EQ(m[0], infinity);
}

// --- 4x4 operations ---

TEST(GraphicsMatrices, ProductRefusesNullAndWritesNothing) {
    Matrix dst = filledWith(untouched);
    EXPECT_EQ(lxpmMul_mm4x4_32f(nullptr, identity.data(), dst.data()), lxpStatusNullPtrErr);
    EXPECT_EQ(lxpmMul_mm4x4_32f(identity.data(), nullptr, dst.data()), lxpStatusNullPtrErr);
    EXPECT_EQ(lxpmMul_mm4x4_32f(identity.data(), identity.data(), nullptr), lxpStatusNullPtrErr);
    EXPECT_EQ(dst, filledWith(untouched));
}

TEST(GraphicsMatrices, DeterminantsThatAreKnown) {
    float det;
    EXPECT_EQ(lxpmDet_m4_32f(identity.data(), &det), lxpStatusOk);
    EXPECT_EQ(det, 1);
    const Matrix equalRows = {1, 2, 3, 5, 7, 1, 4, 2, 1, 2, 3, 5, 6, 8, 9, 1};
    EXPECT_EQ(lxpmDet_m4_32f(equalRows.data(), &det), lxpStatusOk);
    EXPECT_EQ(det, 0);
    const Matrix exchanged = {0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0, 5};
    EXPECT_EQ(lxpmDet_m4_32f(exchanged.data(), &det), lxpStatusOk);
    EXPECT_EQ(det, -15);
}

TEST(GraphicsMatrices, InverseOfTheIdentityHasNoNegativeZeros) {
    float det;
    Matrix inverse;
    EXPECT_EQ(lxpmInvert_m4_32f(identity.data(), &det, inverse.data()), lxpStatusOk);
    EXPECT_EQ(det, 1);
    for (int i = 0; i < 16; ++i) {
        if (i % 5 == 0) {
            EXPECT_NEAR(inverse[i], 1, 3e-7);
        } else {
            EXPECT_TRUE(isPositiveZero(inverse[i])) << i;
        }
    }
}

TEST(GraphicsMatrices, InverseTimesMatrixIsTheIdentity) {
    const Matrix m = {4, 1, -2, 0.5F, 0.25F, 3, 1, -1, 1, -1, 5, 2, -3, 0.5F, 1, 6};
    Matrix inverse;
    EXPECT_EQ(lxpmInvert_m4_32f(m.data(), nullptr, inverse.data()), lxpStatusOk);
    Matrix product;
    EXPECT_EQ(lxpmMul_mm4x4_32f(m.data(), inverse.data(), product.data()), lxpStatusOk);
    for (int i = 0; i < 16; ++i) {
        EXPECT_NEAR(product[i], identity[i], 1e-6) << i;
    }
}

TEST(GraphicsMatrices, SingularMeansBelowTheLimit) {
    const auto scaled = [](float first) { return Matrix{first, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}; };
    const float limit = 0x1p-119F;
    for (const float sign : {1.0F, -1.0F}) {
        float det = untouched;
        Matrix dst = filledWith(untouched);
        EXPECT_EQ(lxpmInvert_m4_32f(scaled(sign * std::nextafter(limit, 0.0F)).data(), &det, dst.data()),
                  lxpStatusSingularErr);
        EXPECT_EQ(det, 0);
        EXPECT_EQ(dst, filledWith(untouched));
        EXPECT_EQ(lxpmInvert_m4_32f(scaled(0).data(), nullptr, dst.data()), lxpStatusSingularErr);
        EXPECT_EQ(dst, filledWith(untouched));
        EXPECT_EQ(lxpmInvert_m4_32f(scaled(sign * limit).data(), &det, dst.data()), lxpStatusOk);
        EXPECT_EQ(det, sign * limit);
    }
    float det = untouched;
    Matrix dst = filledWith(untouched);
    EXPECT_EQ(lxpmInvert_m4_32f(scaled(quietNan).data(), &det, dst.data()), lxpStatusOk);
    EXPECT_TRUE(std::isnan(det));
}

TEST(GraphicsMatrices, TinyDeterminantsAreInvertedUntilTheSquareOfTheReciprocalOverflows) {
    const auto inverseOf = [](float first) {
        const Matrix m = {first, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
        Matrix inverse;
        EXPECT_EQ(lxpmInvert_m4_32f(m.data(), nullptr, inverse.data()), lxpStatusOk);
        return inverse[0];
    };
    EXPECT_NEAR(inverseOf(0x1p-60F) * 0x1p-60F, 1, 3e-7);
    EXPECT_FALSE(std::isfinite(inverseOf(0x1p-70F)));
}

// --- Vectors by matrices ---

TEST(GraphicsTransforms, CoordinatesWithoutWAreNotGuarded) {
    Matrix m = identity;
    m[15] = 0;
    const float v[3] = {1, 0, -2};
    float dst[3];
    EXPECT_EQ(lxpmAffineTransformCoord_m4v3_32f(m.data(), v, dst), lxpStatusOk);
    EXPECT_EQ(dst[0], infinity);
    EXPECT_TRUE(std::isnan(dst[1]));
    EXPECT_EQ(dst[2], -infinity);
}

TEST(GraphicsTransforms, PointsAreTranslatedAndNormalsAreNot) {
    Matrix m;
    lxpmTranslation_m4_32f(10, 20, 30, m.data());
    const float v[3] = {1, 2, 3};
    float dst[4];
    lxpmAffineTransform_m4v3_32f(m.data(), v, dst);
    EXPECT_EQ((std::array{dst[0], dst[1], dst[2], dst[3]}), (std::array{11.0F, 22.0F, 33.0F, 1.0F}));
    lxpmAffineTransformNormal_m4v3_32f(m.data(), v, dst);
    EXPECT_EQ((std::array{dst[0], dst[1], dst[2]}), (std::array{1.0F, 2.0F, 3.0F}));
    lxpmAffineTransformCoord_m4v2_32f(m.data(), v, dst);
    EXPECT_EQ((std::array{dst[0], dst[1]}), (std::array{11.0F, 22.0F}));
}

TEST(GraphicsTransforms, OriginIsInTheMiddleOfTheViewport) {
    const float *const m = identity.data();
    const float origin[3] = {0, 0, 0};
    float screen[3];
    EXPECT_EQ(lxpmProject_m4v3_32f(m, m, m, origin, 640, 480, 0, 1, screen), lxpStatusOk);
    EXPECT_EQ((std::array{screen[0], screen[1], screen[2]}), (std::array{320.0F, 240.0F, 0.0F}));
    float back[3] = {untouched, untouched, untouched};
    EXPECT_EQ(lxpmUnproject_m4v3_32f(m, m, m, screen, 640, 480, 0, 1, back), lxpStatusOk);
    EXPECT_EQ((std::array{back[0], back[1], back[2]}), (std::array{0.0F, 0.0F, 0.0F}));
}

TEST(GraphicsTransforms, ViewportRunsFromTopLeft) {
    const float *const m = identity.data();
    const float corner[3] = {-1, 1, 0.5F};
    float screen[3];
    EXPECT_EQ(lxpmProject_m4v3_32f(m, m, m, corner, 640, 480, 2, 4, screen), lxpStatusOk);
    EXPECT_EQ((std::array{screen[0], screen[1], screen[2]}), (std::array{0.0F, 0.0F, 3.0F}));
}

TEST(GraphicsTransforms, UnprojectingThroughNothingLeavesNormalisedCoordinates) {
    const Matrix zero = {};
    const float screen[3] = {320, 240, 0};
    float dst[3] = {untouched, untouched, untouched};
    EXPECT_EQ(lxpmUnproject_m4v3_32f(zero.data(), identity.data(), identity.data(), screen, 640, 480, 0, 1, dst),
              lxpStatusSingularErr);
    EXPECT_EQ((std::array{dst[0], dst[1], dst[2]}), (std::array{0.0F, 0.0F, 0.0F}));
}

TEST(GraphicsTransforms, UnprojectingAnArrayThroughNothingNormalisesEveryVector) {
    const Matrix zero = {};
    for (int count = 0; count <= 17; ++count) {
        std::array<float, 3 * 18> screen;
        for (int i = 0; i < 3 * 18; ++i) {
            screen[i] = static_cast<float>(i);
        }
        std::array<float, 3 * 18> dst;
        dst.fill(untouched);
        EXPECT_EQ(lxpmUnproject_m4v3a_32f(identity.data(), zero.data(), identity.data(), screen.data(), 12, 64, 32, 0,
                                          2, dst.data(), 12, count),
                  count > 0 ? lxpStatusSingularErr : lxpStatusOk);
        for (int k = 0; k < 18; ++k) {
            const float x = static_cast<float>(3 * k);
            EXPECT_EQ(dst[3 * k], k < count ? 2 * x / 64 - 1 : untouched);
            EXPECT_EQ(dst[3 * k + 1], k < count ? 1 - 2 * (x + 1) / 32 : untouched);
            EXPECT_EQ(dst[3 * k + 2], k < count ? (x + 2) / 2 : untouched);
        }
    }
}

TEST(GraphicsTransforms, NothingIsTouchedForNoVectors) {
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(lxpmAffineTransform_m4v3a_32f(nullptr, nullptr, 12, nullptr, 16, count), lxpStatusOk);
        EXPECT_EQ(lxpmProject_m4v3a_32f(nullptr, nullptr, nullptr, nullptr, 12, 1, 1, 0, 1, nullptr, 12, count),
                  lxpStatusOk);
        EXPECT_EQ(lxpmUnproject_m4v3a_32f(nullptr, nullptr, nullptr, nullptr, 12, 1, 1, 0, 1, nullptr, 12, count),
                  lxpStatusOk);
    }
}

// Vectors at the very ends of pages, with pages between them that nobody may touch.
TEST(GraphicsTransforms, VectorsMayStandOnPagesFarApart) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    constexpr int count = 20;
    void *const mapping = mmap(nullptr, 2 * page * count, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(mapping, MAP_FAILED);
    auto *const base = static_cast<char *>(mapping);
    for (std::size_t k = 0; k < count; ++k) {
        ASSERT_EQ(mprotect(base + 2 * page * k, page, PROT_READ | PROT_WRITE), 0);
    }
    auto *const first = reinterpret_cast<float *>(base + page - 12);
    const auto stride = static_cast<int>(2 * page);
    float packed[3 * count];
    for (int k = 0; k < count; ++k) {
        float *const v = first + k * (stride / 4);
        v[0] = 1;
        v[1] = 2;
        v[2] = static_cast<float>(k);
    }
    EXPECT_EQ(lxpmAffineTransformCoord_m4v3a_32f(identity.data(), first, stride, packed, 12, count), lxpStatusOk);
    EXPECT_EQ(lxpmAffineTransformCoord_m4v3a_32f(identity.data(), first, stride, first, stride, count), lxpStatusOk);
    for (int k = 0; k < count; ++k) {
        EXPECT_EQ(packed[3 * k + 2], static_cast<float>(k));
        EXPECT_EQ(first[k * (stride / 4) + 2], static_cast<float>(k));
    }
    munmap(mapping, 2 * page * count);
}

} // namespace

} // namespace lxpm::test
