// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Which kernel computes a product. For the sources that instantiate them, one for each type.

#include "products/column_product.h"
#include "products/group_product.h"
#include "products/panel_product.h"
#include "products/product.h"
#include "products/readers.h"
#include "products/row_product.h"
#include "products/staging.h"
#include "products/unrolled_product.h"
#include "products/vector_product.h"
#include "runtime/parallel.h"
#include "runtime/straight.h"
#include "runtime/with_order.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

// The unrolled kernel that fits what is given.

template <class T, int Order>
inline constexpr std::ptrdiff_t bytesOfRow = Order * sizeof(T);

template <Walking walking, class T, int Order, Moves a>
void multiplyRowVectors(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    const bool singleB = p.b.isSingle();
    if constexpr (walking == Walking::ByBytes) {
        if (singleB && p.dst.step[0] == bytesOfRow<T, Order>) {
            return p.addend ? multiplyUnrolled<walking, T, Order, 1, Given{a, true, true, true}>(p, count)
                            : multiplyUnrolled<walking, T, Order, 1, Given{a, true, true, false}>(p, count);
        }
    }
    if constexpr (a == Moves::Along && ElementRow<T, Order>::mayReadOn) {
        if (!singleB && !p.addend && mayReadOn(p.b.step[1], bytesOfRow<T, Order>)) {
            return multiplyUnrolled<walking, T, Order, 1, Given{a, false, false, false, true}>(p, count);
        }
    }
    if (p.addend) {
        return singleB ? multiplyUnrolled<walking, T, Order, 1, Given{a, true, false, true}>(p, count)
                       : multiplyUnrolled<walking, T, Order, 1, Given{a, false, false, true}>(p, count);
    }
    return singleB ? multiplyUnrolled<walking, T, Order, 1, Given{a, true, false, false}>(p, count)
                   : multiplyUnrolled<walking, T, Order, 1, Given{a, false, false, false}>(p, count);
}

template <Walking walking, class T, int Order, Moves a>
void multiplySquares(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    const bool singleB = p.b.isSingle();
    if constexpr (a != Moves::Any) {
        if (p.dst.step[1] == bytesOfRow<T, Order>) {
            if constexpr (ElementRow<T, Order>::mayReadOn) {
                if (!singleB && mayReadOn(p.b.step[1], bytesOfRow<T, Order>)) {
                    return multiplyUnrolled<walking, T, Order, Order, Given{a, false, true, false, true}>(p, count);
                }
            }
            return singleB ? multiplyUnrolled<walking, T, Order, Order, Given{a, true, true, false}>(p, count)
                           : multiplyUnrolled<walking, T, Order, Order, Given{a, false, true, false}>(p, count);
        }
    }
    return singleB ? multiplyUnrolled<walking, T, Order, Order, Given{a, true, false, false}>(p, count)
                   : multiplyUnrolled<walking, T, Order, Order, Given{a, false, false, false}>(p, count);
}

template <Walking walking, class T, int Order>
void chooseUnrolledWalking(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    const bool along = p.a.rowsTouch();
    if (p.rows == 1) {
        return along ? multiplyRowVectors<walking, T, Order, Moves::Along>(p, count)
                     : multiplyRowVectors<walking, T, Order, Moves::Any>(p, count);
    }
    if constexpr (std::is_same_v<T, float> && Order == 4) {
        if (along) {
            return p.b.isSingle() ? multiplyOrder4<walking, true>(p, count) : multiplyOrder4<walking, false>(p, count);
        }
    }
    if constexpr (std::is_same_v<T, float> && Order == 3) {
        constexpr std::ptrdiff_t touching = bytesOfRow<T, Order>;
        const bool singleB = p.b.isSingle();
        const bool denseRows = p.dst.step[1] == touching;
        const bool isDense = along && p.a.step[1] == touching && (singleB || p.b.step[1] == touching);
        if (isDense && count > 1) {
            denseRows ? singleB ? multiplyPairsOfOrder3<walking, true, true>(p, count)
                                : multiplyPairsOfOrder3<walking, false, true>(p, count)
            : singleB ? multiplyPairsOfOrder3<walking, true, false>(p, count)
                      : multiplyPairsOfOrder3<walking, false, false>(p, count);
            if (count % 2 != 0) {
                multiplySquares<walking, T, Order, Moves::Along>(p.from(count - 1), 1);
            }
            return;
        }
    }
    return along                          ? multiplySquares<walking, T, Order, Moves::Along>(p, count)
           : p.a.transposed().rowsTouch() ? multiplySquares<walking, T, Order, Moves::Across>(p, count)
                                          : multiplySquares<walking, T, Order, Moves::Any>(p, count);
}

template <class T, int Order>
void chooseUnrolled(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    return p.walksByBytes() ? chooseUnrolledWalking<Walking::ByBytes, T, Order>(p, count)
                            : chooseUnrolledWalking<Walking::ThroughPointers, T, Order>(p, count);
}

// Objects of an unrolled order in any layout: a few at a time, copied where the kernel cannot read or write them.
// Copies stand by bytes; so if some operands are copied, none of the others moves through pointers.
template <class T, int Order>
[[gnu::noinline]] void multiplyStaged(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    constexpr std::ptrdiff_t capacity = 512;
    constexpr std::ptrdiff_t area = Order * Order;
    const bool copiesArray = !p.a.movesByBytes() || (!p.b.rowsTouch() && !p.b.isSingle()) || !p.writesRows();
    const bool copiesAll = copiesArray && !p.walksByBytes();
    StagedSource<T, capacity> a(p.a, copiesAll || !p.a.movesByBytes(), p.rows, Order);
    StagedSource<T, capacity> b(p.b, copiesAll || !p.b.rowsTouch(), Order, Order);
    StagedSource<T, capacity> addend(p.addend.value_or(p.b), p.addend && (copiesAll || !p.addend->rowsTouch()), p.rows,
                                     Order);
    StagedDestination<T, capacity> dst(p.dst, copiesAll || !p.dst.rowsTouch(), p.rows, Order);
    const std::ptrdiff_t piece = copiesArray ? capacity / area : count;
    for (std::ptrdiff_t first = 0; first < count; first += piece) {
        const std::ptrdiff_t objects = std::min(piece, count - first);
        MatrixProduct<T> dense = {p.rows,
                                  Order,
                                  Order,
                                  a.objects(first, objects),
                                  b.objects(first, objects),
                                  std::nullopt,
                                  dst.objects(first)};
        if (p.addend) {
            dense.addend = addend.objects(first, objects);
        }
        chooseUnrolled<T, Order>(dense, objects);
        dst.finish(first, objects);
    }
}

// Whether the objects are rows that are multiplied with the same matrix: those of one product.
template <class T>
bool areRows(const MatrixProduct<T> &p) {
    return p.rows == 1 && p.b.isSingle() && p.walksByBytes();
}

// Whether they are enough of them for it to pay to prepare the matrix, and can be read and written as they stand.
template <class T>
bool isOneProduct(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    const std::ptrdiff_t enough = p.columns >= groupSize<T> ? 4 : 24; // measured in both types
    return areRows(p) && count >= enough && p.a.movesByBytes() && p.writesRows();
}

template <class T>
void multiplyByPanels(MatrixProduct<T> p, std::ptrdiff_t count) {
    if (areRows(p)) {
        const auto asRows = [](auto &operand) {
            operand.step[1] = operand.step[0];
            operand.pointerStep[1] = 0;
        };
        asRows(p.a);
        asRows(p.dst);
        if (p.addend) {
            asRows(*p.addend);
        }
        p.rows = count;
        count = 1;
    }
    PanelProduct<T>::run(p, count);
}

template <class T, int Order>
void multiplySmall(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    std::ptrdiff_t done = 0;
    if (VectorsOf<T, Order>::accepts(p)) {
        done = VectorsOf<T, Order>::run(p, count);
    } else if (ColumnProduct<T, Order>::accepts(p)) {
        done = ColumnProduct<T, Order>::run(p, count);
    } else if (GroupProduct<T>::loadsLanes(p, count)) {
        done = GroupProduct<T>::run(p, count);
    } else if (isOneProduct(p, count)) {
        return multiplyByPanels(p, count);
    }
    if (done == count) {
        return;
    }
    const bool isUsable = p.a.movesByBytes() && p.b.rowsTouch() && p.writesRows();
    withFrom(p, done, [&](const MatrixProduct<T> &rest) {
        isUsable ? chooseUnrolled<T, Order>(rest, count - done) : multiplyStaged<T, Order>(rest, count - done);
    });
}

// Objects whose rows are written, if anything in them touches.
template <class T>
LxpStatus multiplyAsTheyStand(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    const bool isUnrolled = p.inner == p.columns && (p.rows == 1 || p.rows == p.inner);
    return withOrder<3, 8>(isUnrolled ? static_cast<int>(p.inner) : 0, [&](auto order) {
        if constexpr (order != 0) {
            multiplySmall<T, order>(p, count);
        } else {
            // Long columns that fill registers are faster one matrix after the other than in groups of matrices.
            constexpr std::ptrdiff_t leastInner = 8; // measured in both types
            const bool goesAsOne = isOneProduct(p, count);
            const bool goesByRows = !goesAsOne && RowProduct<T>::accepts(p, count);
            const bool isBetterByRows = goesByRows && p.columns % groupSize<T> == 0 && p.inner >= leastInner;
            const bool goesByGroups = GroupProduct<T>::loadsLanes(p, count) ||
                                      (!goesAsOne && !isBetterByRows && GroupProduct<T>::isBetter(p, count));
            const std::ptrdiff_t done = goesByGroups ? GroupProduct<T>::run(p, count) : 0;
            if (done == count) {
                return lxpStatusOk;
            }
            withFrom(p, done, [&](const MatrixProduct<T> &rest) {
                goesByRows ? RowProduct<T>::run(rest, count - done) : multiplyByPanels(rest, count - done);
            });
        }
        return lxpStatusOk;
    });
}

// Rows behind pointers are those of one product, too, if they stand evenly apart. Only larger matrices repay the look
// at the pointers.
template <class T>
LxpStatus multiplyRows(MatrixProduct<T> p, std::ptrdiff_t count) {
    const auto straighten = [count](auto &operand, std::ptrdiff_t columns) {
        operand = straightened(operand, {count, 1, columns});
    };
    straighten(p.a, p.inner);
    straighten(p.dst, p.columns);
    if (p.addend) {
        straighten(*p.addend, p.columns);
    }
    return multiplyAsTheyStand(p, count);
}

// The objects of one thread. The kernels write rows: a transposed result is the product of the transposed operands,
// exchanged.
template <class T>
LxpStatus multiplyObjects(const MatrixProduct<T> &p, std::ptrdiff_t count) {
    constexpr std::ptrdiff_t smaller = 8 * 8; // elements, measured in both types
    if (p.rows == 1 && p.b.isSingle() && p.inner * p.columns > smaller && !p.walksByBytes()) {
        return multiplyRows(p, count);
    }
    return p.dst.rowsTouch() || !p.dst.transposed().rowsTouch() ? multiplyAsTheyStand(p, count)
                                                                : multiplyAsTheyStand(p.transposed(), count);
}

template <class T>
MatrixProduct<T> withoutElementPointers(const MatrixProduct<T> &p) {
    MatrixProduct<T> straight = {p.rows,
                                 p.inner,
                                 p.columns,
                                 withoutElementPointers(p.a, p.rows, p.inner),
                                 withoutElementPointers(p.b, p.inner, p.columns),
                                 std::nullopt,
                                 withoutElementPointers(p.dst, p.rows, p.columns)};
    if (p.addend) {
        straight.addend = withoutElementPointers(*p.addend, p.rows, p.columns);
    }
    return straight;
}

template <class T>
LxpStatus multiply(bool parallel, int count, const MatrixProduct<T> &product) {
    return withStraight(
        product, product.dst, [&] { return withoutElementPointers(product); },
        [&](const MatrixProduct<T> &p) {
            return overObjects(parallel, count, [&](int first, int objects) {
                return withFrom(p, first,
                                [&](const MatrixProduct<T> &later) { return multiplyObjects(later, objects); });
            });
        });
}

} // namespace lxpm
