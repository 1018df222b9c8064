// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/axes.h"

#include <initializer_list>

namespace lxpm::test {

namespace {

std::vector<Shape> join(std::initializer_list<std::vector<Shape>> groups) {
    std::vector<Shape> all;
    for (const std::vector<Shape> &group : groups) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

std::vector<Shape> lengths(int first, int last) {
    std::vector<Shape> all;
    for (int length = first; length <= last; ++length) {
        all.push_back({length});
    }
    return all;
}

std::vector<Shape> squares(int first, int last) {
    std::vector<Shape> all;
    for (int order = first; order <= last; ++order) {
        all.push_back({order, order});
    }
    return all;
}

std::vector<Shape> cubes(int first, int last) {
    std::vector<Shape> all;
    for (int order = first; order <= last; ++order) {
        all.push_back({order, order, order});
    }
    return all;
}

// Products of three sizes, each of them 1 or another, and each of the unrolled orders with one size that does not fit.
const std::vector<Shape> flatProducts = {{1, 5, 1}, {5, 1, 5}, {1, 1, 7}, {7, 1, 1}, {1, 4, 4}, {4, 4, 1}, {1, 8, 8},
                                         {3, 4, 5}, {5, 4, 3}, {2, 7, 6}, {3, 3, 4}, {4, 3, 3}, {3, 4, 3}, {6, 6, 5},
                                         {5, 6, 6}, {6, 5, 6}, {8, 7, 8}, {2, 2, 9}, {9, 2, 2}};

// Blocks of four rows by one or two registers, stretches of the inner dimension, with every kind of remainder.
const std::vector<Shape> aroundBlocks = {{4, 9, 16}, {5, 2, 17},  {6, 3, 15},   {7, 10, 8},   {8, 16, 24}, {3, 31, 9},
                                         {2, 70, 5}, {1, 130, 3}, {5, 129, 17}, {3, 130, 12}, {2, 129, 20}};

// Right-hand sides with four groups of lanes at once, with one, and with none.
const std::vector<Shape> aroundRightSides = {{64, 2}, {65, 3}, {256, 2}, {257, 2}};

// One row and one column: loops that run once, and remainders without a whole register.
const std::vector<Shape> rowsAndColumns = {{2, 1}, {5, 1}, {8, 1}, {9, 1}, {17, 1}, {31, 1},
                                           {1, 2}, {1, 5}, {1, 8}, {1, 9}, {1, 17}};

// Transposed reading mixes up width and height unless it is right.
const std::vector<Shape> rectangles = {{3, 4}, {4, 3}, {5, 2}, {2, 5}, {7, 3},  {3, 7},  {6, 4},   {4, 6},
                                       {8, 3}, {3, 8}, {9, 4}, {4, 9}, {2, 16}, {16, 2}, {13, 11}, {11, 13}};

// Rows of one, two and four registers, without and with a remainder.
const std::vector<Shape> wideSquares = {{12, 12}, {16, 16}, {17, 17}, {31, 31}, {33, 33}};

// Orders 3 to 6 have unrolled code; their neighbours must not take it, nor a matrix of which one side fits.
const std::vector<Shape> aroundUnrolled = join({squares(1, 7), {{3, 4}, {4, 3}, {6, 5}}});

} // namespace

const SizeAxes matrixSizes = {
    .all = join({squares(1, 9), rowsAndColumns, rectangles, wideSquares}),
    .small = aroundUnrolled,
    // Every remainder of a row, every number of rows that a block could have.
    .tight = join({squares(1, 9), rowsAndColumns, rectangles, {{12, 12}, {17, 17}, {15, 3}, {23, 2}, {3, 23}}}),
    // The unrolled orders, and rows with a remainder.
    .special = {{3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 2}},
};

const SizeAxes vectorSizes = {
    // Up to four registers of either type with every remainder; then lengths around larger blocks.
    .all = join({lengths(1, 33), {{63}, {64}, {65}, {100}, {129}}}),
    .small = join({lengths(1, 9), {{16}, {17}}}),
    .tight = join({lengths(1, 40), {{63}, {64}, {65}}}),
    // Every remainder of a register of either type.
    .special = {{1}, {3}, {5}, {7}, {9}, {15}, {31}},
};

const SizeAxes summedMatrixSizes = {
    .all = join({matrixSizes.all, {{64, 2}, {47, 3}, {15, 9}, {7, 8}, {8, 8}, {9, 7}, {12, 5}, {12, 12}}}),
    .small = join({aroundUnrolled, {{8, 3}, {16, 2}, {17, 3}}}),
    .tight = matrixSizes.tight,
    .special = matrixSizes.special,
};

const SizeAxes orders = {
    .all = join({lengths(1, 20), {{33}}}),
    .small = lengths(1, 7),
    .tight = lengths(1, 9),
    .special = {{1}, {3}, {4}, {5}, {6}, {7}},
};

const SizeAxes eigenOrders = {
    .all = join({lengths(1, 10), {{15}, {16}, {17}, {33}, {66}}}),
    .small = lengths(1, 7),
    .tight = join({lengths(1, 9), {{17}}}),
    .special = {{1}, {2}, {3}, {4}, {5}, {6}, {9}},
};

const SizeAxes tallSizes = {
    .all = join({squares(1, 9),
                 {{2, 1},
                  {5, 1},
                  {9, 1},
                  {17, 1},
                  {4, 3},
                  {5, 3},
                  {6, 4},
                  {7, 2},
                  {8, 7},
                  {9, 4},
                  {16, 8},
                  {12, 12},
                  {16, 16},
                  {17, 17},
                  {20, 13},
                  {33, 9},
                  {40, 2},
                  {33, 33},
                  {300, 2}},
                 aroundRightSides}),
    .small = join({squares(1, 6), {{2, 1}, {5, 3}, {6, 4}}}),
    .tight = join({squares(1, 9), {{2, 1}, {5, 1}, {9, 1}, {4, 3}, {5, 3}, {6, 4}, {7, 2}, {16, 8}, {20, 13}}}),
    .special = {{1, 1}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {5, 3}},
};

const SizeAxes noSizes = {.all = {{}}, .small = {{}}, .tight = {{}}, .special = {{}}};

const SizeAxes productSizes = {
    .all = join({cubes(1, 9), flatProducts, aroundBlocks, {{12, 12, 12}, {16, 16, 16}, {17, 17, 17}, {33, 33, 33}}}),
    .small = join({cubes(1, 9), {{3, 4, 4}, {4, 3, 3}, {4, 4, 3}, {2, 5, 3}}}),
    .tight = join({cubes(1, 9), flatProducts, aroundBlocks}),
    .special = {{3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}, {5, 9, 17}},
};

const SizeAxes matrixVectorSizes = {
    .all =
        join({squares(1, 9),
              rowsAndColumns,
              rectangles,
              wideSquares,
              {{3, 70}, {5, 130}, {2, 300}, {70, 3}, {19, 6}, {27, 3}, {44, 3}, {52, 3}, {61, 2}, {127, 5}, {9, 130}}}),
    .small = join({squares(1, 9), {{3, 4}, {4, 3}, {6, 5}}}),
    .tight = join({squares(1, 9),
                   rowsAndColumns,
                   rectangles,
                   {{12, 12}, {17, 17}, {15, 3}, {23, 2}, {3, 70}, {19, 6}, {127, 5}}}),
    .special = matrixSizes.special,
};

std::span<const int> countsOf(const Model &model) {
    // One object; fewer than the lanes of a register of either type; exactly as many; one more; two registers of
    // lanes and a remainder; many, with every number of registers that go side by side at the end, of either type.
    static constexpr int ofArrays[] = {1, 2, 3, 7, 8, 9, 17, 125};
    static constexpr int ofSingles[] = {1};
    return model.hasCount ? std::span<const int>(ofArrays) : std::span<const int>(ofSingles);
}

} // namespace lxpm::test
