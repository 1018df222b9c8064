// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Cameras, projections and viewports against two libraries that many renderers use. They order their operations in
// other ways, so results differ in the last bits; signs, handedness and conventions must not.

#include "graphics/cglm_peer.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#define GLM_FORCE_DEPTH_ZERO_TO_ONE
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/type_ptr.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace lxpm::test {

namespace {

using Matrix = std::array<float, 16>;
using Point = std::array<float, 3>;

/// GLM's matrices have the same 16 numbers in memory: columns there, rows here.
Matrix fromGlm(const glm::mat4 &m) {
    Matrix result;
    std::copy_n(glm::value_ptr(m), 16, result.begin());
    return result;
}

/// So many roundings, of numbers of the size of the largest one.
template <std::size_t N>
void expectClose(const std::array<float, N> &actual, const std::array<float, N> &expected, float roundings,
                 float scale = 0) {
    for (const float element : expected) {
        scale = std::max(scale, std::abs(element));
    }
    for (std::size_t i = 0; i < N; ++i) {
        const float difference = std::abs(actual[i] - expected[i]);
        EXPECT_TRUE(difference <= roundings * std::numeric_limits<float>::epsilon() * scale)
            << "element " << i << " is " << actual[i] << ", expected " << expected[i];
    }
}

/// Element by element, each by its own size.
void expectEqualUpTo(float roundings, const Matrix &actual, const Matrix &expected) {
    for (int i = 0; i < 16; ++i) {
        const float difference = std::abs(actual[i] - expected[i]);
        EXPECT_TRUE(difference <= roundings * std::numeric_limits<float>::epsilon() * std::abs(expected[i]))
            << "element " << i << " is " << actual[i] << ", expected " << expected[i];
    }
}

class Random {
public:
    float between(float low, float high) { return std::uniform_real_distribution<float>(low, high)(engine_); }
    Point point(float reach) { return {between(-reach, reach), between(-reach, reach), between(-reach, reach)}; }

private:
    std::mt19937 engine_{17};
};

struct Camera {
    Point eye;
    Point at;
    Point up;
    float fovY;
    float aspect;
    float zNear;
    float zFar;

    explicit Camera(Random &random)
        : eye(random.point(10)), at(random.point(10)), up{random.between(-0.2F, 0.2F), 1, random.between(-0.2F, 0.2F)},
          fovY(random.between(0.3F, 2)), aspect(random.between(0.5F, 2)), zNear(random.between(0.1F, 1)),
          zFar(random.between(30, 200)) {
        // Well ahead, and not along the way up.
        at[0] = eye[0] + std::copysign(2 + std::abs(at[0]), at[0]);
    }
};

constexpr int cameras = 200;

TEST(GraphicsPeers, Views) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const Camera c(random);
        const glm::vec3 eye = glm::make_vec3(c.eye.data());
        const glm::vec3 at = glm::make_vec3(c.at.data());
        const glm::vec3 up = glm::make_vec3(c.up.data());
        Matrix m;
        Matrix peer;
        lxpmLookAtLH_m4_32f(c.eye.data(), c.at.data(), c.up.data(), m.data());
        expectClose(m, fromGlm(glm::lookAtLH(eye, at, up)), 8, 17);
        cglmLookAtLH(c.eye.data(), c.at.data(), c.up.data(), peer.data());
        expectClose(m, peer, 8, 17);
        lxpmLookAtRH_m4_32f(c.eye.data(), c.at.data(), c.up.data(), m.data());
        expectClose(m, fromGlm(glm::lookAtRH(eye, at, up)), 8, 17);
        cglmLookAtRH(c.eye.data(), c.at.data(), c.up.data(), peer.data());
        expectClose(m, peer, 8, 17);
    }
}

TEST(GraphicsPeers, Perspectives) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const Camera c(random);
        Matrix m;
        Matrix peer;
        lxpmPerspectiveFovLH_m4_32f(c.fovY, c.aspect, c.zNear, c.zFar, m.data());
        expectEqualUpTo(6, m, fromGlm(glm::perspectiveLH_ZO(c.fovY, c.aspect, c.zNear, c.zFar)));
        cglmPerspectiveFovLH(c.fovY, c.aspect, c.zNear, c.zFar, peer.data());
        expectEqualUpTo(6, m, peer);
        lxpmPerspectiveFovRH_m4_32f(c.fovY, c.aspect, c.zNear, c.zFar, m.data());
        expectEqualUpTo(6, m, fromGlm(glm::perspectiveRH_ZO(c.fovY, c.aspect, c.zNear, c.zFar)));
        cglmPerspectiveFovRH(c.fovY, c.aspect, c.zNear, c.zFar, peer.data());
        expectEqualUpTo(6, m, peer);
    }
}

TEST(GraphicsPeers, Boxes) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const float left = random.between(-4, -1);
        const float right = random.between(2, 5);
        const float bottom = random.between(-4, -1);
        const float top = random.between(2, 5);
        const float n = random.between(0.1F, 1);
        const float f = random.between(5, 50);
        Matrix m;
        Matrix peer;
        lxpmOrthoOffCenterLH_m4_32f(left, right, bottom, top, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::orthoLH_ZO(left, right, bottom, top, n, f)));
        cglmOrthoOffCenterLH(left, right, bottom, top, n, f, peer.data());
        expectEqualUpTo(4, m, peer);
        lxpmOrthoOffCenterRH_m4_32f(left, right, bottom, top, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::orthoRH_ZO(left, right, bottom, top, n, f)));
        cglmOrthoOffCenterRH(left, right, bottom, top, n, f, peer.data());
        expectEqualUpTo(4, m, peer);
        lxpmPerspectiveOffCenterRH_m4_32f(left, right, bottom, top, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::frustumRH_ZO(left, right, bottom, top, n, f)));
        cglmPerspectiveOffCenterRH(left, right, bottom, top, n, f, peer.data());
        expectEqualUpTo(4, m, peer);
    }
}

// For views along positive z that are off the centre the peers keep the sign of the other handedness, so what counts is
// where the corners of the view go.
TEST(GraphicsPeers, CornersOfAViewOffTheCentre) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const float left = random.between(-4, -1);
        const float right = random.between(2, 5);
        const float bottom = random.between(-4, -1);
        const float top = random.between(2, 5);
        const float n = random.between(0.1F, 1);
        const float f = random.between(5, 50);
        const auto expectCorners = [&](const auto &build, float ahead) {
            Matrix m;
            build(left, right, bottom, top, n, f, m.data());
            const Point nearest = {left, bottom, ahead * n};
            const Point farthest = {right * (f / n), top * (f / n), ahead * f};
            Point seen;
            lxpmAffineTransformCoord_m4v3_32f(m.data(), nearest.data(), seen.data());
            expectClose(seen, Point{-1, -1, 0}, 8);
            lxpmAffineTransformCoord_m4v3_32f(m.data(), farthest.data(), seen.data());
            expectClose(seen, Point{1, 1, 1}, 8);
        };
        expectCorners(lxpmPerspectiveOffCenterLH_m4_32f, 1);
        expectCorners(lxpmPerspectiveOffCenterRH_m4_32f, -1);
    }
}

// A box in the middle has two forms of its own.
TEST(GraphicsPeers, CentredBoxes) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const float w = random.between(1, 5);
        const float h = random.between(1, 5);
        const float n = random.between(0.1F, 1);
        const float f = random.between(5, 50);
        Matrix m;
        lxpmOrthoLH_m4_32f(w, h, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::orthoLH_ZO(-w / 2, w / 2, -h / 2, h / 2, n, f)));
        lxpmOrthoRH_m4_32f(w, h, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::orthoRH_ZO(-w / 2, w / 2, -h / 2, h / 2, n, f)));
        lxpmPerspectiveRH_m4_32f(w, h, n, f, m.data());
        expectEqualUpTo(4, m, fromGlm(glm::frustumRH_ZO(-w / 2, w / 2, -h / 2, h / 2, n, f)));
        Matrix peer;
        lxpmPerspectiveLH_m4_32f(w, h, n, f, m.data());
        cglmPerspectiveOffCenterLH(-w / 2, w / 2, -h / 2, h / 2, n, f, peer.data());
        expectEqualUpTo(4, m, peer);
    }
}

TEST(GraphicsPeers, RotationsAboutAnAxis) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const Point axis = {random.between(1, 2), random.between(-2, 2), random.between(-2, 2)};
        const float angle = random.between(-4, 4);
        Matrix m;
        Matrix peer;
        lxpmRotationAxis_v3m4_32f(axis.data(), angle, m.data());
        expectClose(m, fromGlm(glm::rotate(glm::mat4(1), angle, glm::make_vec3(axis.data()))), 6);
        cglmRotationAxis(axis.data(), angle, peer.data());
        expectClose(m, peer, 6);
    }
}

TEST(GraphicsPeers, ProductsInversesAndDeterminants) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        Matrix a;
        Matrix b;
        for (int i = 0; i < 16; ++i) {
            a[i] = random.between(-1, 1) + (i % 5 == 0 ? 3.0F : 0.0F); // far from singular
            b[i] = random.between(-1, 1);
        }
        Matrix m;
        Matrix peer;
        lxpmMul_mm4x4_32f(a.data(), b.data(), m.data());
        expectClose(m, fromGlm(glm::make_mat4(b.data()) * glm::make_mat4(a.data())), 4);
        cglmProduct(a.data(), b.data(), peer.data());
        expectClose(m, peer, 4);

        float det;
        EXPECT_EQ(lxpmInvert_m4_32f(a.data(), &det, m.data()), lxpStatusOk);
        expectClose(m, fromGlm(glm::inverse(glm::make_mat4(a.data()))), 16);
        cglmInverse(a.data(), peer.data());
        expectClose(m, peer, 16);
        expectClose(std::array{det}, std::array{glm::determinant(glm::make_mat4(a.data()))}, 16);
        expectClose(std::array{det}, std::array{cglmDeterminant(a.data())}, 16);
    }
}

/// A camera's three matrices.
struct Scene {
    Matrix world;
    Matrix view;
    Matrix projection;

    explicit Scene(Random &random) {
        const Camera c(random);
        Matrix rotation;
        Matrix translation;
        lxpmRotationYawPitchRoll_m4_32f(random.between(-3, 3), random.between(-1, 1), random.between(-3, 3),
                                        rotation.data());
        lxpmTranslation_m4_32f(random.between(-1, 1), random.between(-1, 1), random.between(-1, 1), translation.data());
        lxpmMul_mm4x4_32f(rotation.data(), translation.data(), world.data());
        lxpmLookAtRH_m4_32f(c.eye.data(), c.at.data(), c.up.data(), view.data());
        lxpmPerspectiveFovRH_m4_32f(c.fovY, c.aspect, c.zNear, c.zFar, projection.data());
        // Somewhere in sight.
        const float ahead = random.between(2, 20);
        const Point inView = {random.between(-0.1F, 0.1F) * ahead, random.between(-0.1F, 0.1F) * ahead, -ahead};
        Matrix back;
        Matrix worldView;
        lxpmMul_mm4x4_32f(world.data(), view.data(), worldView.data());
        lxpmInvert_m4_32f(worldView.data(), nullptr, back.data());
        lxpmAffineTransformCoord_m4v3_32f(back.data(), inView.data(), point.data());
    }

    Point point;
};

TEST(GraphicsPeers, Viewports) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const Scene s(random);
        Point screen;
        lxpmProject_m4v3_32f(s.projection.data(), s.view.data(), s.world.data(), s.point.data(), 800, 600, 0, 1,
                             screen.data());
        const glm::vec3 peer = glm::projectZO(glm::make_vec3(s.point.data()),
                                              glm::make_mat4(s.view.data()) * glm::make_mat4(s.world.data()),
                                              glm::make_mat4(s.projection.data()), glm::vec4(0, 0, 800, 600));
        EXPECT_NEAR(screen[0], peer.x, 0.02);
        EXPECT_NEAR(screen[1], 600 - peer.y, 0.02); // its y runs from bottom to top
        EXPECT_NEAR(screen[2], peer.z, 2e-6);
    }
}

TEST(GraphicsPeers, UnprojectUndoesProject) {
    Random random;
    for (int turn = 0; turn < cameras; ++turn) {
        const Scene s(random);
        Point screen;
        Point back;
        lxpmProject_m4v3_32f(s.projection.data(), s.view.data(), s.world.data(), s.point.data(), 800, 600, 0, 1,
                             screen.data());
        EXPECT_EQ(lxpmUnproject_m4v3_32f(s.projection.data(), s.view.data(), s.world.data(), screen.data(), 800, 600, 0,
                                         1, back.data()),
                  lxpStatusOk);
        // One rounding of the depth is zNear * depth^2 of it, a hundredth at most.
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(back[i], s.point[i], 0.05) << turn;
        }
    }
}

} // namespace

} // namespace lxpm::test
