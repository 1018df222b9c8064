// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Products of any size and layout. The result is made in blocks of a few rows by two registers, which hold the sums of
// a block while the inner dimension runs. What a block cannot read as it stands is copied to memory that it can.
//
// Longer sums pass through the destination: where a stretch of the inner dimension ends, the sums are stored, and the
// next stretch goes on from them. The bits are those of one long sum.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lxpm {

template <class T>
class PanelProduct {
    static constexpr int width = 2 * fullLanes<T>; // of a block, in elements
    static constexpr int blockRows = 4;
    static constexpr std::ptrdiff_t depth = 1024 / width; // of the inner dimension at a time

    using L = Lanes<T, fullLanes<T>>;
    using Block = std::array<std::array<L, 2>, blockRows>;

    static constexpr std::ptrdiff_t bytes(std::ptrdiff_t elements) {
        return elements * static_cast<std::ptrdiff_t>(sizeof(T));
    }

public:
    static void run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        PanelProduct<T> product(p);
        for (std::ptrdiff_t column = 0; column < p.columns; column += width) {
            product.columns(column, std::min<std::ptrdiff_t>(width, p.columns - column), count);
        }
    }

private:
    explicit PanelProduct(const MatrixProduct<T> &product) : p(product) {}

    // Columns of all results.
    void columns(std::ptrdiff_t first, std::ptrdiff_t number, std::ptrdiff_t count) {
        column = first;
        columnsUsed = number;
        const bool copies = !p.b.rowsTouch() || columnsUsed < width;
        const bool isPlain =
            p.inner <= depth && columnsUsed == width && p.a.movesByBytes() && p.dst.rowsTouch() && !p.addend;
        for (inner = 0; inner < p.inner; inner += depth) {
            length = std::min(depth, p.inner - inner);
            for (object = 0; object < count; ++object) {
                if (!copies) {
                    panel = p.b.at(object, inner, column);
                    panelStep = p.b.step[1];
                } else if (object == 0 || !p.b.isSingle()) {
                    copyPanel();
                }
                if (isPlain) {
                    overPlainRows();
                } else {
                    overRows();
                }
            }
        }
    }

    // The columns behind the last one repeat it, so that they can raise no flag of their own.
    void copyPanel() {
        panel = copiedPanel;
        panelStep = bytes(width);
        const bool isTurned = columnsUsed == width && p.b.transposed().rowsTouch() && p.b.movesByBytes();
        const std::ptrdiff_t turned = isTurned ? turnIntoPanel() : 0;
        for (std::ptrdiff_t j = 0; j < width; ++j) {
            const std::ptrdiff_t from = column + std::min(j, columnsUsed - 1);
            if (p.b.movesByBytes()) {
                const T *element = p.b.at(object, inner, from);
                const std::ptrdiff_t step = p.b.step[1];
                for (std::ptrdiff_t k = turned; k < length; ++k) {
                    copiedPanel[k * width + j] = *shifted(element, k * step);
                }
            } else {
                for (std::ptrdiff_t k = 0; k < length; ++k) {
                    copiedPanel[k * width + j] = *p.b.at(object, inner + k, from);
                }
            }
        }
    }

    // Columns that touch, four elements of each at a time. Returns how many of the elements there were.
    std::ptrdiff_t turnIntoPanel() {
        const T *first = p.b.at(object, inner, column);
        const std::ptrdiff_t columnStep = p.b.step[2];
        const std::ptrdiff_t whole = length / 4 * 4;
        for (std::ptrdiff_t k = 0; k < whole; k += 4) {
#pragma GCC unroll 2
            for (std::ptrdiff_t j = 0; j < width; j += fullLanes<T>) {
                std::array<const T *, fullLanes<T>> from;
#pragma GCC unroll 8
                for (int lane = 0; lane < fullLanes<T>; ++lane) {
                    from[lane] = shifted(first, (j + lane) * columnStep) + k;
                }
                const GroupColumns<T> rows = columnsOf<4, true>(from);
#pragma GCC unroll 4
                for (int i = 0; i < 4; ++i) {
                    rows[i].store(copiedPanel + (k + i) * width + j);
                }
            }
        }
        return whole;
    }

    // Where sums neither go on nor pass through copies they never leave their registers.
    void overPlainRows() const {
        const T *a = p.a.at(object, 0, 0);
        T *dst = p.dst.at(object, 0, column);
        std::ptrdiff_t row = 0;
        for (; row + blockRows <= p.rows; row += blockRows) {
            plainRows<blockRows>(shifted(a, row * p.a.step[1]), shifted(dst, row * p.dst.step[1]));
        }
        for (; row < p.rows; ++row) {
            plainRows<1>(shifted(a, row * p.a.step[1]), shifted(dst, row * p.dst.step[1]));
        }
    }

    template <int Rows>
    [[gnu::always_inline]] void plainRows(const T *a, T *dst) const {
        const std::ptrdiff_t aRow = p.a.step[1];
        const std::ptrdiff_t aElement = p.a.step[2];
        const std::ptrdiff_t bStep = panelStep;
        const std::ptrdiff_t dstRow = p.dst.step[1];
        const T *b = panel;
        L low[Rows] = {};
        L high[Rows] = {};
        for (std::ptrdiff_t k = length; k > 0; --k) {
            const L b0 = L::load(b);
            const L b1 = L::load(b + fullLanes<T>);
#pragma GCC unroll 4
            for (int i = 0; i < Rows; ++i) {
                const L factor = broadcast(shifted(a, i * aRow));
                low[i] = low[i] + factor * b0;
                high[i] = high[i] + factor * b1;
            }
            a = shifted(a, aElement);
            b = shifted(b, bStep);
        }
#pragma GCC unroll 4
        for (int i = 0; i < Rows; ++i) {
            low[i].store(shifted(dst, i * dstRow));
            high[i].store(shifted(dst, i * dstRow) + fullLanes<T>);
        }
    }

    void overRows() {
        std::ptrdiff_t row = 0;
        for (; row + blockRows <= p.rows; row += blockRows) {
            block<4>(row);
        }
        switch (p.rows - row) {
        case 3:
            return block<3>(row);
        case 2:
            return block<2>(row);
        case 1:
            return block<1>(row);
        default:
            return;
        }
    }

    // Some rows of the panel's columns.
    template <int Rows>
    void block(std::ptrdiff_t row) {
        Block sums = {};
        if (inner != 0) {
            forEachRegister<Rows>(
                p.dst,
                row, [&](int i, int r, auto *place) __attribute__((always_inline)) { sums[i][r] = L::load(place); });
        }
        if (p.a.movesByBytes()) {
            sum<Rows>(sums, p.a.at(object, row, inner), p.a.step[1], p.a.step[2]);
        } else {
            T copied[blockRows * depth];
            for (std::ptrdiff_t i = 0; i < Rows; ++i) {
                for (std::ptrdiff_t k = 0; k < length; ++k) {
                    copied[k * blockRows + i] = *p.a.at(object, row + i, inner + k);
                }
            }
            sum<Rows>(sums, copied, sizeof(T), bytes(blockRows));
        }
        if (p.addend && inner + length == p.inner) {
            forEachRegister<Rows>(
                *p.addend, row, [&](int i, int r, auto *place) __attribute__((always_inline)) {
                    sums[i][r] = sums[i][r] + L::load(place);
                });
        }
        store<Rows>(sums, row);
    }

    template <int Rows>
    [[gnu::always_inline]] void sum(Block &sums, const T *a, std::ptrdiff_t aRow, std::ptrdiff_t aElement) const {
        const T *b = panel;
        const std::ptrdiff_t bStep = panelStep;
        const std::ptrdiff_t n = length;
        Block local = sums;
        for (std::ptrdiff_t k = 0; k < n; ++k) {
            const L b0 = L::load(b);
            const L b1 = L::load(b + fullLanes<T>);
            const T *element = a;
#pragma GCC unroll 4
            for (int i = 0; i < Rows; ++i) {
                const L factor = L::splat(*element);
                local[i][0] = local[i][0] + factor * b0;
                local[i][1] = local[i][1] + factor * b1;
                element = shifted(element, aRow);
            }
            a = shifted(a, aElement);
            b = shifted(b, bStep);
        }
        sums = local;
    }

    // Calls f(row, register, address) with the memory of the block's elements in an operand, or with a copy of them
    // where the elements of a row do not fill two registers.
    template <int Rows, class Element, class F>
    [[gnu::always_inline]] void forEachRegister(const Addresses<Element> &operand, std::ptrdiff_t row,
                                                const F &f) const {
        for (int i = 0; i < Rows; ++i) {
            if (operand.rowsTouch() && columnsUsed == width) {
                const T *place = operand.at(object, row + i, column);
                f(i, 0, place);
                f(i, 1, place + fullLanes<T>);
            } else {
                T copied[width];
                for (std::ptrdiff_t j = 0; j < width; ++j) {
                    copied[j] = *operand.at(object, row + i, column + std::min(j, columnsUsed - 1));
                }
                f(i, 0, copied);
                f(i, 1, copied + fullLanes<T>);
            }
        }
    }

    template <int Rows>
    [[gnu::always_inline]] void store(const Block &sums, std::ptrdiff_t row) const {
        for (int i = 0; i < Rows; ++i) {
            if (p.dst.rowsTouch() && columnsUsed == width) {
                T *place = p.dst.at(object, row + i, column);
                sums[i][0].store(place);
                sums[i][1].store(place + fullLanes<T>);
            } else {
                T copied[width];
                sums[i][0].store(copied);
                sums[i][1].store(copied + fullLanes<T>);
                for (std::ptrdiff_t j = 0; j < columnsUsed; ++j) {
                    *p.dst.at(object, row + i, column + j) = copied[j];
                }
            }
        }
    }

    const MatrixProduct<T> p;
    std::ptrdiff_t object = 0;
    std::ptrdiff_t column = 0;
    std::ptrdiff_t columnsUsed = 0;
    std::ptrdiff_t inner = 0;
    std::ptrdiff_t length = 0;
    const T *panel = nullptr;
    std::ptrdiff_t panelStep = 0;
    T copiedPanel[width * depth];
};

} // namespace lxpm
