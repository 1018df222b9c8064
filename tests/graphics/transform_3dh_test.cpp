// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The homogeneous transform with strides: the one graphics function that checks its arguments and can stop on its way.

#include "graphics/reference.h"
#include "support/arena.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace lxpm::test {

namespace {

struct Strides3DH {
    int srcRow;
    int srcElem;
    int vecObj;
    int vecElem;
    int dstObj;
    int dstElem;
};

constexpr Strides3DH allStrides[] = {
    {16, 4, 12, 4, 12, 4},   // dense
    {16, 4, 16, 4, 12, 4},   // one padded, the other not
    {20, 4, 12, 4, 24, 4},   //
    {16, 4, 28, 4, 16, 4},   //
    {4, 16, 12, 4, 12, 4},   // a transposed matrix
    {36, 8, 24, 8, 12, 4},   // gaps between elements
    {16, 4, 12, 4, 24, 8},   //
    {4, 16, 4, 80, 4, 80},   // all first elements one behind the other
    {40, 8, 44, 12, 52, 16}, //
};

std::ptrdiff_t extentOf(int rowStride, int rows, int elemStride, int elements) {
    return static_cast<std::ptrdiff_t>(rowStride) * (rows - 1) +
           static_cast<std::ptrdiff_t>(elemStride) * (elements - 1) + 4;
}

/// Operands at the ends of their pages.
class Operand3DH {
public:
    Operand3DH(int rowStride, int rows, int elemStride, int elements, bool isAtEnd)
        : arena_(Arena::acquire(static_cast<std::size_t>(extentOf(rowStride, rows, elemStride, elements)))),
          rowStride_(rowStride), elemStride_(elemStride) {
        arena_->fillWithCanaries(ElementType::Float32);
        begin_ = isAtEnd ? arena_->end() - extentOf(rowStride, rows, elemStride, elements) : arena_->begin();
    }

    float *data() const { return reinterpret_cast<float *>(begin_); }
    float &at(int row, int element) const {
        return *reinterpret_cast<float *>(begin_ + static_cast<std::ptrdiff_t>(row) * rowStride_ +
                                          static_cast<std::ptrdiff_t>(element) * elemStride_);
    }
    Arena &arena() const { return *arena_; }

private:
    std::shared_ptr<Arena> arena_;
    std::byte *begin_;
    std::ptrdiff_t rowStride_;
    std::ptrdiff_t elemStride_;
};

void compare(const Strides3DH &s, int count, bool isAtEnd, bool isInPlace, int failing) {
    std::mt19937 random(static_cast<unsigned>(count));
    std::uniform_real_distribution<float> uniform(0.5F, 2);
    const Operand3DH matrix(s.srcRow, 4, s.srcElem, 4, isAtEnd);
    const Operand3DH source(s.vecObj, count, s.vecElem, 3, isAtEnd);
    const Operand3DH separate(s.dstObj, count, s.dstElem, 3, isAtEnd);
    const Operand3DH &destination = isInPlace ? source : separate;
    const int dstObj = isInPlace ? s.vecObj : s.dstObj;
    const int dstElem = isInPlace ? s.vecElem : s.dstElem;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            matrix.at(i, j) = uniform(random);
        }
    }
    matrix.at(3, 3) = 0; // so that a vector of zeros has no divisor
    for (int k = 0; k < count; ++k) {
        for (int i = 0; i < 3; ++i) {
            source.at(k, i) = k == failing ? 0 : uniform(random);
        }
    }
    const auto call = [&](auto *function) {
        return function(matrix.data(), s.srcRow, s.srcElem, source.data(), s.vecObj, s.vecElem, destination.data(),
                        dstObj, dstElem, count);
    };
    Arena *const arenas[] = {&matrix.arena(), &source.arena(), &separate.arena()};
    std::vector<std::byte> before[3];
    for (int i = 0; i < 3; ++i) {
        before[i].assign(arenas[i]->begin(), arenas[i]->end());
    }
    const LxpStatus expected = call(reference::lxpmAffineTransform3DH_mva_32f);
    EXPECT_EQ(expected, failing >= 0 && failing < count ? lxpStatusDivByZeroErr : lxpStatusOk);
    for (int i = 0; i < 3; ++i) {
        arenas[i]->expectUnchanged();
        std::memcpy(arenas[i]->begin(), before[i].data(), before[i].size());
    }
    EXPECT_EQ(call(lxpmAffineTransform3DH_mva_32f), expected);
    for (Arena *const arena : arenas) {
        EXPECT_TRUE(arena->isAsExpected())
            << "count " << count << " failing " << failing << " strides " << s.srcRow << " " << s.srcElem << " "
            << s.vecObj << " " << s.vecElem << " " << dstObj << " " << dstElem << (isAtEnd ? " at the end" : "");
    }
}

TEST(Graphics3DH, BitsAreThoseOfTheFormula) {
    for (const Strides3DH &strides : allStrides) {
        for (int count = 1; count <= 20; ++count) {
            for (const bool isAtEnd : {false, true}) {
                compare(strides, count, isAtEnd, false, -1);
                compare(strides, count, isAtEnd, true, -1);
            }
        }
    }
}

TEST(Graphics3DH, StopsAtTheFirstVectorWithoutADivisor) {
    for (const Strides3DH &strides : allStrides) {
        for (int count = 1; count <= 20; ++count) {
            for (int failing = 0; failing < count; ++failing) {
                compare(strides, count, true, false, failing);
                compare(strides, count, true, true, failing);
            }
        }
    }
}

TEST(Graphics3DH, LimitIsExclusive) {
    const std::array<float, 16> identityButW = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0};
    const float limit = 1.1920929e-7F;
    for (const float w : {limit, -limit, std::numeric_limits<float>::quiet_NaN()}) {
        for (const int count : {1, 8}) {
            std::array<float, 24> v;
            v.fill(w);
            EXPECT_EQ(
                lxpmAffineTransform3DH_mva_32f(identityButW.data(), 16, 4, v.data(), 12, 4, v.data(), 12, 4, count),
                lxpStatusOk);
            v.fill(std::nextafter(w, 0.0F));
            EXPECT_EQ(
                lxpmAffineTransform3DH_mva_32f(identityButW.data(), 16, 4, v.data(), 12, 4, v.data(), 12, 4, count),
                std::isnan(w) ? lxpStatusOk : lxpStatusDivByZeroErr);
        }
    }
}

// Each fault, and each pair of them: the one that is checked first decides.
TEST(Graphics3DH, StatusIsThatOfTheFirstFault) {
    float memory[64] = {};
    struct Arguments3DH {
        const float *src1;
        const float *src2;
        float *dst;
        int stride[6];
        int count;
    };
    struct Fault {
        LxpStatus status;
        std::function<void(Arguments3DH &)> apply;
    };
    std::vector<Fault> faults = {
        {lxpStatusNullPtrErr, [](Arguments3DH &a) { a.src1 = nullptr; }},
        {lxpStatusNullPtrErr, [](Arguments3DH &a) { a.src2 = nullptr; }},
        {lxpStatusNullPtrErr, [](Arguments3DH &a) { a.dst = nullptr; }},
        {lxpStatusCountErr, [](Arguments3DH &a) { a.count = 0; }},
        {lxpStatusCountErr, [](Arguments3DH &a) { a.count = std::numeric_limits<int>::min(); }},
    };
    for (int index = 0; index < 6; ++index) {
        for (const int wrong : {0, -4, 2, 6, std::numeric_limits<int>::max()}) {
            faults.push_back({lxpStatusStrideErr, [index, wrong](Arguments3DH &a) { a.stride[index] = wrong; }});
        }
    }
    for (std::size_t first = 0; first < faults.size(); ++first) {
        for (std::size_t second = first; second < faults.size(); ++second) {
            Arguments3DH a = {memory, memory + 16, memory + 32, {16, 4, 12, 4, 12, 4}, 2};
            faults[second].apply(a);
            faults[first].apply(a);
            EXPECT_EQ(lxpmAffineTransform3DH_mva_32f(a.src1, a.stride[0], a.stride[1], a.src2, a.stride[2], a.stride[3],
                                                     a.dst, a.stride[4], a.stride[5], a.count),
                      faults[first].status)
                << first << " before " << second;
        }
    }
    for (const float element : memory) {
        EXPECT_EQ(element, 0);
    }
}

} // namespace

} // namespace lxpm::test
