// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Products of any size and layout. The result is made in blocks of a few rows by one or two registers, which hold the
// sums of a block while the inner dimension runs. Where the columns are no multiple of the lanes, the last register
// overlaps the one before it. What a block cannot read as it stands is copied to memory that it can.
//
// Longer sums pass through the destination: where a stretch of the inner dimension ends, the sums are stored, and the
// next stretch goes on from them. The bits are those of one long sum.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace lxpm {

template <class T>
class PanelProduct {
    static constexpr std::ptrdiff_t lanes = fullLanes<T>;
    static constexpr std::ptrdiff_t width = 2 * lanes; // of the widest block, in elements
    static constexpr int blockRows = 6; // at most: the sums of twelve registers leave four for what is multiplied
    static constexpr std::ptrdiff_t depth = 1024 / width; // of the inner dimension at a time

    using L = Lanes<T, fullLanes<T>>;

    template <std::size_t Rows, std::size_t Registers>
    using Block = std::array<std::array<L, Registers>, Rows>;

    static constexpr std::ptrdiff_t bytes(std::ptrdiff_t elements) {
        return elements * static_cast<std::ptrdiff_t>(sizeof(T));
    }

public:
    static void run(const MatrixProduct<T> &p, std::ptrdiff_t count) {
        PanelProduct<T> product(p);
        std::ptrdiff_t column = 0;
        for (; p.columns - column > lanes; column += width) {
            product.template columns<2>(column, std::min(width, p.columns - column), count);
        }
        if (column < p.columns) {
            const std::ptrdiff_t first = std::clamp<std::ptrdiff_t>(p.columns - lanes, 0, column);
            product.template columns<1>(first, p.columns - first, count);
        }
    }

private:
    // Rows of b, or a copy of them, that the registers of a block are loaded from.
    struct Panel {
        const T *first;
        std::ptrdiff_t rows;
        std::ptrdiff_t rowStep; // in bytes
        std::ptrdiff_t second;  // where the second register starts, in elements
    };

    using OverRows = void (PanelProduct::*)(); // of an object

    explicit PanelProduct(const MatrixProduct<T> &product) : p(product) {
        const std::ptrdiff_t blocks = (p.rows + blockRows - 1) / blockRows;
        rowsOfBlock = p.rows / blocks;
        rowsOfLarger = p.rows % blocks * (rowsOfBlock + 1);
    }

    // Columns of all results: up to as many as the registers have lanes; with two registers more than one of them has.
    template <int Registers>
    void columns(std::ptrdiff_t first, std::ptrdiff_t number, std::ptrdiff_t count) {
        column = first;
        columnsUsed = number;
        second = Registers == 2 ? number - lanes : 0;
        const bool copies = !holdsRegisters(p.b);
        const bool isPlain = p.inner <= depth && p.a.movesByBytes() && p.writesRows();
        const OverRows overTheirRows = isPlain ? choosePlainRows<Registers>() : &PanelProduct::overRows<Registers>;
        for (inner = 0; inner < p.inner; inner += depth) {
            length = std::min(depth, p.inner - inner);
            for (object = 0; object < count; ++object) {
                if (!copies) {
                    panel = {p.b.at(object, inner, column), length, p.b.step[1], second};
                } else if (object == 0 || !p.b.isSingle()) {
                    copyPanel<Registers>();
                }
                (this->*overTheirRows)();
            }
        }
    }

    // Whether the block's elements of a row can be loaded and stored as registers.
    template <class Element>
    bool holdsRegisters(const Addresses<Element> &operand) const {
        return operand.rowsTouch() && columnsUsed >= lanes;
    }

    // The column of a lane. The lanes behind the last column repeat it, so that they can raise no flag of their own.
    std::ptrdiff_t columnOf(std::ptrdiff_t lane) const {
        return column + (lane < lanes ? std::min(lane, columnsUsed - 1) : second + lane - lanes);
    }

    template <int Registers>
    void copyPanel() {
        panel = {copiedPanel, length, bytes(width), lanes};
        const bool isTurned = holdsRegisters(p.b.transposed()) && p.b.movesByBytes();
        const std::ptrdiff_t turned = isTurned ? turnIntoPanel<Registers>() : 0;
        for (std::ptrdiff_t lane = 0; lane < Registers * lanes; ++lane) {
            if (p.b.movesByBytes()) {
                const T *element = p.b.at(object, inner, columnOf(lane));
                const std::ptrdiff_t step = p.b.step[1];
                for (std::ptrdiff_t k = turned; k < length; ++k) {
                    copiedPanel[k * width + lane] = *shifted(element, k * step);
                }
            } else {
                for (std::ptrdiff_t k = 0; k < length; ++k) {
                    copiedPanel[k * width + lane] = *p.b.at(object, inner + k, columnOf(lane));
                }
            }
        }
    }

    // Columns that touch, four elements of each at a time. Returns how many of the elements there were.
    template <int Registers>
    std::ptrdiff_t turnIntoPanel() {
        const std::ptrdiff_t whole = length / 4 * 4;
        TouchingColumns<T, Registers> columns(p.b.at(object, inner, column), p.b.step[2], second);
        for (std::ptrdiff_t k = 0; k < whole; k += 4) {
            const auto rows = columns.template next<4>();
#pragma GCC unroll 2
            for (std::size_t r = 0; r < Registers; ++r) {
#pragma GCC unroll 4
                for (std::ptrdiff_t i = 0; i < 4; ++i) {
                    rows[r][i].store(copiedPanel + (k + i) * width + std::ptrdiff_t(r) * lanes);
                }
            }
        }
        return whole;
    }

    // Calls f(row, number of rows) with as many rows at a time as a block has: as few blocks as can be, of which none
    // has more than one row less than another. Those with one more come first.
    template <class F>
    [[gnu::always_inline]] void forEachBlock(const F &f) const {
        forEachBlock(f, Range<1, blockRows>());
    }

    template <class F, int... known>
    [[gnu::always_inline]] void forEachBlock(const F &f, std::integer_sequence<int, known...>) const {
        std::ptrdiff_t row = 0;
        const auto blocksUpTo = [&](std::ptrdiff_t end, auto number) __attribute__((always_inline)) {
            for (; row < end; row += number) {
                f(row, number);
            }
        };
        const std::ptrdiff_t number = rowsOfBlock;
        const std::ptrdiff_t rows = p.rows;
        ((known == number + 1 ? blocksUpTo(rowsOfLarger, std::integral_constant<int, known>()) : void()), ...);
        ((known == number ? blocksUpTo(rows, std::integral_constant<int, known>()) : void()), ...);
    }

    // Where sums neither go on nor pass through copies they never leave their registers.

    template <int Registers>
    OverRows choosePlainRows() const {
        if constexpr (Registers == 1) {
            return withOrder<1, lanes - 1>(static_cast<int>(columnsUsed), [&](auto fewer) -> OverRows {
                constexpr int used = fewer != 0 ? fewer : lanes;
                return p.addend ? &PanelProduct::overPlainRows<1, used, true>
                                : &PanelProduct::overPlainRows<1, used, false>;
            });
        } else {
            return p.addend ? &PanelProduct::overPlainRows<Registers, lanes, true>
                            : &PanelProduct::overPlainRows<Registers, lanes, false>;
        }
    }

    // With lanes that are not used: opaque, since Clang would leave these to chance, and with them what they raise.
    template <int Used>
    [[gnu::always_inline]] static L spared(L lanesOfRow) {
        return Used < lanes ? opaque(lanesOfRow) : lanesOfRow;
    }

    // Used: the columns of a register that are read and written.
    template <int Registers, int Used, bool hasAddend>
    void overPlainRows() {
        const T *a = p.a.at(object, 0, 0);
        const T *addend = hasAddend ? p.addend->at(object, 0, column) : nullptr;
        T *dst = p.dst.at(object, 0, column);
        const std::ptrdiff_t aRow = p.a.step[1];
        const std::ptrdiff_t aElement = p.a.step[2];
        const std::ptrdiff_t addendRow = hasAddend ? p.addend->step[1] : 0;
        const std::ptrdiff_t dstRow = p.dst.step[1];
        const std::ptrdiff_t toSecond = second;
        const Panel b = panel;
        forEachBlock([&](std::ptrdiff_t row, auto rows) __attribute__((always_inline)) {
            Block<rows, Registers> sums = {};
            sum(sums, shifted(a, row * aRow), aRow, aElement, b);
            if constexpr (hasAddend) {
                const T *from = shifted(addend, row * addendRow);
#pragma GCC unroll 6
                for (auto &ofRow : sums) {
#pragma GCC unroll 2
                    for (std::size_t r = 0; r < Registers; ++r) {
                        ofRow[r] = ofRow[r] + spared<Used>(loadFirstOf<Used>(from + std::ptrdiff_t(r) * toSecond));
                    }
                    from = shifted(from, addendRow);
                }
            }
            T *to = shifted(dst, row * dstRow);
#pragma GCC unroll 6
            for (const auto &ofRow : sums) {
#pragma GCC unroll 2
                for (std::size_t r = 0; r < Registers; ++r) {
                    storeFirstOf<Used>(to + std::ptrdiff_t(r) * toSecond, spared<Used>(ofRow[r]));
                }
                to = shifted(to, dstRow);
            }
        });
    }

    template <int Registers>
    void overRows() {
        forEachBlock([&](std::ptrdiff_t row, auto rows) { block<rows, Registers>(row); });
    }

    // Some rows of the panel's columns.
    template <int Rows, int Registers>
    void block(std::ptrdiff_t row) {
        Block<Rows, Registers> sums = {};
        if (inner != 0) {
            forEachRegister<Rows, Registers>(
                p.dst,
                row, [&](int i, int r, auto *place) __attribute__((always_inline)) { sums[i][r] = L::load(place); });
        }
        if (p.a.movesByBytes()) {
            sum(sums, p.a.at(object, row, inner), p.a.step[1], p.a.step[2], panel);
        } else {
            T copied[blockRows * depth];
            for (std::ptrdiff_t i = 0; i < Rows; ++i) {
                for (std::ptrdiff_t k = 0; k < length; ++k) {
                    copied[k * blockRows + i] = *p.a.at(object, row + i, inner + k);
                }
            }
            sum(sums, copied, sizeof(T), bytes(blockRows), panel);
        }
        if (p.addend && inner + length == p.inner) {
            forEachRegister<Rows, Registers>(
                *p.addend, row, [&](int i, int r, auto *place) __attribute__((always_inline)) {
                    sums[i][r] = sums[i][r] + L::load(place);
                });
        }
        store(sums, row);
    }

    // A function of what it is given alone: members would be read again after everything that is stored.
    template <std::size_t Rows, std::size_t Registers>
    [[gnu::always_inline]] static void sum(Block<Rows, Registers> &sums, const T *a, std::ptrdiff_t aRow,
                                           std::ptrdiff_t aElement, Panel b) {
        auto local = sums; // GCC does better by it
        for (; b.rows > 0; --b.rows) {
            std::array<L, Registers> columns;
#pragma GCC unroll 2
            for (std::size_t r = 0; r < Registers; ++r) {
                columns[r] = L::load(b.first + std::ptrdiff_t(r) * b.second);
            }
#pragma GCC unroll 6
            for (std::size_t i = 0; i < Rows; ++i) {
                const L factor = broadcast(shifted(a, std::ptrdiff_t(i) * aRow));
#pragma GCC unroll 2
                for (std::size_t r = 0; r < Registers; ++r) {
                    local[i][r] = local[i][r] + factor * columns[r];
                }
            }
            a = shifted(a, aElement);
            b.first = shifted(b.first, b.rowStep);
        }
        sums = local;
    }

    // Calls f(row, register, address) with the memory of the block's elements in an operand, or with a copy of them
    // where registers cannot be loaded from it.
    template <int Rows, int Registers, class Element, class F>
    [[gnu::always_inline]] void forEachRegister(const Addresses<Element> &operand, std::ptrdiff_t row,
                                                const F &f) const {
        for (int i = 0; i < Rows; ++i) {
            T copied[width];
            const T *place = copied;
            if (holdsRegisters(operand)) {
                place = operand.at(object, row + i, column);
            } else {
                for (std::ptrdiff_t j = 0; j < std::max(lanes, columnsUsed); ++j) {
                    copied[j] = *operand.at(object, row + i, column + std::min(j, columnsUsed - 1));
                }
            }
            for (int r = 0; r < Registers; ++r) {
                f(i, r, place + r * second);
            }
        }
    }

    template <std::size_t Rows, std::size_t Registers>
    [[gnu::always_inline]] void store(const Block<Rows, Registers> &sums, std::ptrdiff_t row) const {
        const bool isDirect = holdsRegisters(p.dst);
        for (const auto &ofRow : sums) {
            const auto storeTo = [&](T * place) __attribute__((always_inline)) {
                for (std::size_t r = 0; r < Registers; ++r) {
                    ofRow[r].store(place + std::ptrdiff_t(r) * second);
                }
            };
            if (isDirect) {
                storeTo(p.dst.at(object, row, column));
            } else {
                T copied[width] = {};
                storeTo(copied);
                for (std::ptrdiff_t j = 0; j < columnsUsed; ++j) {
                    *p.dst.at(object, row, column + j) = copied[j];
                }
            }
            ++row;
        }
    }

    const MatrixProduct<T> p;
    std::ptrdiff_t rowsOfBlock;  // or one more
    std::ptrdiff_t rowsOfLarger; // in all the blocks that have one more
    std::ptrdiff_t object = 0;
    std::ptrdiff_t column = 0;
    std::ptrdiff_t columnsUsed = 0;
    std::ptrdiff_t second = 0; // the first column of the second register, counted from `column`
    std::ptrdiff_t inner = 0;
    std::ptrdiff_t length = 0;
    Panel panel = {};
    T copiedPanel[width * depth];
};

} // namespace lxpm
