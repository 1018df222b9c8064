// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Products of square matrices of small orders, and of rows with such matrices: the rows of the second operand stand in
// registers, and a row of the result is the sum of these rows, each times an element of the first operand.
//
// The elements of rows touch, in the second operand, the addend and the destination; the first operand moves by bytes.
// All of them are walked from row to row: products of row numbers with steps would need more registers than there are.

#include "products/product.h"
#include "products/readers.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/object_walk.h"
#include "runtime/one_object.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace lxpm {

// N numbers in as few registers as they take. The lanes behind the last one start as 0.
template <class T, int N>
class ElementRow {
    static constexpr int lanes = N <= 4 ? 4 : fullLanes<T>;
    static constexpr int registers = (N + lanes - 1) / lanes;
    static constexpr int last = N - (registers - 1) * lanes;

public:
    using Part = Lanes<T, lanes>;
    static constexpr bool isWide = lanes == fullLanes<T>; // it fills whole registers

    ElementRow() = default;
    explicit ElementRow(Lanes<T, lanes> only) requires(registers == 1) : part{only} {}

    static ElementRow zero() { return {}; }

    // One by one: element(i) is the i-th one.
    template <class F>
    [[gnu::always_inline]] static ElementRow of(const F &element) {
        ElementRow row;
        forEachOf<registers>([&](auto r) __attribute__((always_inline)) {
            row.part[r] = Lanes<T, lanes>::of([&](auto lane) __attribute__((always_inline))->T {
                constexpr int i = r * lanes + lane;
                return i < N ? element(i) : T(0);
            });
        });
        return row;
    }

    static ElementRow load(const T *from) {
        ElementRow row;
        for (int r = 0; r + 1 < registers; ++r) {
            row.part[r] = Lanes<T, lanes>::load(from + r * lanes);
        }
        const T *rest = from + (registers - 1) * lanes;
        if constexpr (lanes == 4) {
            row.part[registers - 1] = loadFirst<last>(rest);
        } else {
            row.part[registers - 1] = loadFirstOf<last>(rest);
        }
        return row;
    }

    // Whether a whole register holds more lanes than are loaded, in so many pieces that it pays to read on behind them.
    static constexpr bool mayReadOn = registers == 1 && lanes == 8 && N < 8;

    // The same where a whole register may be read. Opaque: Clang would leave the lanes behind the last one to chance.
    static ElementRow loadReadingOn(const T *from) requires mayReadOn {
        return ElementRow(opaque(firstLanesOf<N>(Part::load(from), Part{})));
    }

    void store(T *to) const {
        for (int r = 0; r + 1 < registers; ++r) {
            part[r].store(to + r * lanes);
        }
        T *rest = to + (registers - 1) * lanes;
        if constexpr (lanes == 4) {
            storeFirst<last>(rest, part[registers - 1]);
        } else {
            storeFirstOf<last>(rest, part[registers - 1]);
        }
    }

    // All lanes, those behind the last one too.
    void storeWhole(T *to) const {
        for (int r = 0; r < registers; ++r) {
            part[r].store(to + r * lanes);
        }
    }

    // Calls f(i, element) one by one.
    template <class F>
    [[gnu::always_inline]] void forEach(const F &f) const {
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) {
            f(i, part[i / lanes].vector[i % lanes]);
        }
    }

    // Adds factor times another row.
    [[gnu::always_inline]] void add(T factor, const ElementRow &row) {
        add(Part::splat(factor), row);
    }

    [[gnu::always_inline]] void add(Part factor, const ElementRow &row) {
        for (int r = 0; r < registers; ++r) {
            part[r] = part[r] + factor * row.part[r];
        }
    }

    [[gnu::always_inline]] void add(const ElementRow &row) {
        for (int r = 0; r < registers; ++r) {
            part[r] = part[r] + row.part[r];
        }
    }

private:
    std::array<Lanes<T, lanes>, registers> part = {};
};

// A row of an object as a register, and back: at once where its elements touch, else one by one.

template <int N, class Object>
[[gnu::always_inline]] inline auto loadRow(const Object &from, std::ptrdiff_t i) {
    using Row = ElementRow<std::remove_const_t<typename Object::Element>, N>;
    if constexpr (MovesByBytes<Object>) {
        if (from.rowsTouch()) {
            return Row::load(from.at(i, 0));
        }
    }
    return Row::of([&](int j) { return *from.at(i, j); });
}

template <class Row, class Object>
[[gnu::always_inline]] inline void storeRow(const Row &row, const Object &to, std::ptrdiff_t i) {
    if constexpr (MovesByBytes<Object>) {
        if (to.rowsTouch()) {
            return row.store(to.at(i, 0));
        }
    }
    row.forEach([&](int j, auto element) { *to.at(i, j) = element; });
}

// How far a kernel may count on what it is given.
struct Given {
    Moves a;        // along the rows of the first operand where their elements touch, across them where its columns' do
    bool singleB;   // the second operand is the same for all objects
    bool denseRows; // the destination's rows touch, those of vectors in the array, so that a row may be stored over the
                    // beginning of the next one
    bool addend;
    bool readsOn = false; // a whole register may be read from where each row of the second operand starts but the last
};

// Adds all rows, each times one element of a vector. The elements come several at a time, and are spread in registers,
// where each row is used once: a load for each would leave none for the rows.
template <class Row, class T, std::size_t Order>
[[gnu::always_inline]] inline void addTouching(Row &sum, const T *vector, const std::array<Row, Order> &rows) {
    constexpr int lanes = 16 / static_cast<int>(sizeof(T)); // of a half
    forEachOf<Order>([&](auto k) __attribute__((always_inline)) {
        // Those at the end together with some before them.
        constexpr int first = std::min(k / lanes * lanes, static_cast<int>(Order) - lanes);
        sum.add(spreadInHalves<k - first>(bothHalves(vector + first)), rows[k]);
    });
}

// The rows of one result. Addend: none or one. Whole: how many of the rows may be stored over what stands behind them.
// The elements of a row of the first operand are taken one by one, but where its type says that they touch.
template <int Rows, int whole, class Row, std::size_t Order, class A, class D, class... Addend>
[[gnu::always_inline]] inline void multiplyRows(A a, const std::array<Row, Order> &b, D dst, Addend... addend) {
#pragma GCC unroll 8
    for (int i = 0; i < Rows; ++i) {
        Row sum = Row::zero();
        if constexpr (std::is_same_v<A, TouchingObject<typename A::Element>>) {
            addTouching(sum, a.at(0, 0), b);
        } else {
#pragma GCC unroll 8
            for (std::size_t k = 0; k < Order; ++k) {
                sum.add(*a.at(0, static_cast<std::ptrdiff_t>(k)), b[k]);
            }
        }
        (sum.add(loadRow<static_cast<int>(Order)>(addend, 0)), ...);
        if (i < whole) {
            sum.storeWhole(dst.at(0, 0));
        } else {
            storeRow(sum, dst, 0);
        }
        if (i + 1 < Rows) {
            a = a.below();
            dst = dst.below();
            ((addend = addend.below()), ...);
        }
    }
}

// Rows that end in half a register, this half in both halves of it: the ends of two rows of the result share a register
// and its products.
template <class T, int N>
struct RowWithHalf {
    static_assert(N == fullLanes<T> + fullLanes<T> / 2);
    static constexpr bool isWide = true;
    using Register = Lanes<T, fullLanes<T>>;

    static RowWithHalf load(const T *from) { return {Register::load(from), bothHalves(from + fullLanes<T>)}; }

    Register whole;
    Register half;
};

template <int Rows, class T, std::size_t Order, class A, class D>
[[gnu::always_inline]] inline void multiplyRowsByTwo(A a, const std::array<RowWithHalf<T, int(Order)>, Order> &b,
                                                     D dst) {
    static_assert(Rows % 2 == 0);
    using Register = Lanes<T, fullLanes<T>>;
#pragma GCC unroll 8
    for (int i = 0; i < Rows; i += 2) {
        const A nextA = a.below();
        const D nextDst = dst.below();
        Register upper = {};
        Register lower = {};
        Register ends = {};
        // Opaque: GCC would form the products of all columns first, for which there are not enough registers.
#pragma GCC unroll 8
        for (std::size_t k = 0; k < Order; ++k) {
            const Register ofUpper = Register::splat(*a.at(0, static_cast<std::ptrdiff_t>(k)));
            const Register ofLower = Register::splat(*nextA.at(0, static_cast<std::ptrdiff_t>(k)));
            upper = opaque(upper + ofUpper * b[k].whole);
            lower = opaque(lower + ofLower * b[k].whole);
            ends = opaque(ends + halves<0, 3>(ofUpper, ofLower) * b[k].half);
        }
        upper.store(dst.at(0, 0));
        lower.store(nextDst.at(0, 0));
        storeHalves(ends, dst.at(0, fullLanes<T>), nextDst.at(0, fullLanes<T>));
        if (i + 2 < Rows) {
            a = nextA.below();
            dst = nextDst.below();
        }
    }
}

template <Walking walking, class T, int Order, int Rows, Given given>
void multiplyUnrolled(const MatrixProduct<T> &shared, std::ptrdiff_t count) {
    const MatrixProduct<T> p = shared; // a copy that no store below can reach
    constexpr std::ptrdiff_t size = sizeof(T);
    const std::ptrdiff_t aRow = given.a == Moves::Across ? size : p.a.step[1];
    const std::ptrdiff_t aElement = given.a == Moves::Along ? size : p.a.step[2];
    const std::ptrdiff_t bRow = p.b.step[1];
    const std::ptrdiff_t addendRow = p.addend ? p.addend->step[1] : 0;
    const std::ptrdiff_t dstRow = p.dst.step[1];

    constexpr bool byTwo = Order == 6 && Rows == 6 && fullLanes<T> == 4;
    static_assert(!byTwo || !given.addend);
    using Row = std::conditional_t<byTwo, RowWithHalf<T, 6>, ElementRow<T, Order>>;
    std::array<Row, Order> b;
    const auto loadB = [&](const T *first) __attribute__((always_inline)) {
#pragma GCC unroll 8
        for (int k = 0; k < Order; ++k) {
            if constexpr (given.readsOn) {
                b[k] = k + 1 < Order ? Row::loadReadingOn(first) : Row::load(first);
            } else {
                b[k] = Row::load(first);
            }
            first = shifted(first, bRow);
        }
    };
    ObjectWalk<const T, walking> walkA(p.a);
    ObjectWalk<const T, walking> walkB(p.b);
    ObjectWalk<const T, walking> walkAddend(p.addend ? *p.addend : p.a);
    ObjectWalk<T, walking> walkDst(p.dst);
    if constexpr (given.singleB) {
        loadB(walkB.object());
    }
    constexpr bool spreads = Rows == 1 && !given.singleB && given.a == Moves::Along && Row::isWide;
    const auto multiplyNext = [&]<int whole>() __attribute__((always_inline)) {
        if constexpr (!given.singleB) {
            loadB(walkB.object());
            walkB.next();
        }
        const std::conditional_t<spreads, TouchingObject<const T>, StridedObject<const T>> a(
            StridedObject<const T>{walkA.object(), aRow, aElement});
        const TouchingObject<T> dst({walkDst.object(), dstRow, size});
        if constexpr (byTwo) {
            multiplyRowsByTwo<Rows, T>(a, b, dst);
        } else if constexpr (given.addend) {
            multiplyRows<Rows, whole>(a, b, dst, TouchingObject<const T>({walkAddend.object(), addendRow, size}));
        } else {
            multiplyRows<Rows, whole>(a, b, dst);
        }
        walkA.next();
        walkAddend.next();
        walkDst.next();
    };
    // The only row of the last object has no other behind it.
    constexpr int wholeRows = !given.denseRows ? 0 : Rows == 1 ? 1 : Rows - 1;
    const std::ptrdiff_t apart = wholeRows == Rows ? 1 : 0;
    for (std::ptrdiff_t object = 0; object < count - apart; ++object) {
        multiplyNext.template operator()<wholeRows>();
    }
    if (apart != 0) {
        multiplyNext.template operator()<0>();
    }
}

// Two rows of the result in a register.

// Each row of the second operand in both halves.
[[gnu::always_inline]] inline std::array<Lanes<float, 8>, 4> rowsOfOrder4(const float *b, std::ptrdiff_t bRow) {
    return {bothHalves(b), bothHalves(shifted(b, bRow)), bothHalves(shifted(b, 2 * bRow)),
            bothHalves(shifted(b, 3 * bRow))};
}

// The elements of rows touch.
[[gnu::always_inline]] inline void multiplyRowsOfOrder4(const float *a, std::ptrdiff_t aRow,
                                                        const std::array<Lanes<float, 8>, 4> &b, float *dst,
                                                        std::ptrdiff_t dstRow) {
#pragma GCC unroll 2
    for (int i = 0; i < 4; i += 2) {
        const Lanes<float, 8> rows = joined(Lanes<float, 4>::load(a), Lanes<float, 4>::load(shifted(a, aRow)));
        Lanes<float, 8> sum = {};
        sum = sum + spreadInHalves<0>(rows) * b[0];
        sum = sum + spreadInHalves<1>(rows) * b[1];
        sum = sum + spreadInHalves<2>(rows) * b[2];
        sum = sum + spreadInHalves<3>(rows) * b[3];
        lowHalf(sum).store(dst);
        highHalf(sum).store(shifted(dst, dstRow));
        a = shifted(a, 2 * aRow);
        dst = shifted(dst, 2 * dstRow);
    }
}

template <Walking walking, bool singleB>
void multiplyOrder4(const MatrixProduct<float> &shared, std::ptrdiff_t count) {
    const MatrixProduct<float> p = shared;
    const std::ptrdiff_t aRow = p.a.step[1];
    const std::ptrdiff_t bRow = p.b.step[1];
    const std::ptrdiff_t dstRow = p.dst.step[1];
    ObjectWalk<const float, walking> a(p.a);
    ObjectWalk<const float, walking> b(p.b);
    ObjectWalk<float, walking> dst(p.dst);
    std::array<Lanes<float, 8>, 4> rows;
    if constexpr (singleB) {
        rows = rowsOfOrder4(b.object(), bRow);
    }
    for (std::ptrdiff_t object = 0; object < count; ++object) {
        if constexpr (!singleB) {
            rows = rowsOfOrder4(b.object(), bRow);
            b.next();
        }
        multiplyRowsOfOrder4(a.object(), aRow, rows, dst.object(), dstRow);
        a.next();
        dst.next();
    }
}

// The rows of two objects side by side. The first operand and, unless it is single, the second have no gaps; an object
// that is left over is the caller's.
template <Walking walking, bool singleB, bool denseRows>
void multiplyPairsOfOrder3(const MatrixProduct<float> &shared, std::ptrdiff_t count) {
    const MatrixProduct<float> p = shared;
    constexpr std::ptrdiff_t rowSize = 3 * sizeof(float);
    const std::ptrdiff_t dstRow = p.dst.step[1];
    std::array<Lanes<float, 8>, 3> b;
    if constexpr (singleB) {
        for (int k = 0; k < 3; ++k) {
            const Lanes<float, 4> row = loadFirst<3>(p.b.at(0, k, 0));
            b[k] = chosenInHalves<0, 1, 2, 2>(joined(row, row));
        }
    }
    const auto store = [&](float *dst, Lanes<float, 4> row, bool isLast) __attribute__((always_inline)) {
        if (denseRows && !isLast) {
            row.store(dst);
        } else {
            storeFirst<3>(dst, row);
        }
    };
    ObjectWalk<const float, walking> walkA(p.a);
    ObjectWalk<const float, walking> walkB(p.b);
    ObjectWalk<float, walking> walkDst(p.dst);
    for (std::ptrdiff_t object = 0; object + 2 <= count; object += 2) {
        if constexpr (!singleB) {
            b = rowsOfThreeAlone(loadRowsOfThree(nextObjects<2>(walkB), rowSize));
        }
        const std::array<Lanes<float, 8>, 3> a = loadRowsOfThree(nextObjects<2>(walkA), rowSize);
        auto [first, second] = nextObjects<2>(walkDst);
#pragma GCC unroll 2
        for (int i = 0; i < 2; ++i) {
            Lanes<float, 8> sum = {};
            sum = sum + spreadInHalves<0>(a[i]) * b[0];
            sum = sum + spreadInHalves<1>(a[i]) * b[1];
            sum = sum + spreadInHalves<2>(a[i]) * b[2];
            store(first, lowHalf(sum), false);
            store(second, highHalf(sum), false);
            first = shifted(first, dstRow);
            second = shifted(second, dstRow);
        }
        Lanes<float, 8> sum = {};
        sum = sum + spreadInHalves<1>(a[2]) * b[0];
        sum = sum + spreadInHalves<2>(a[2]) * b[1];
        sum = sum + spreadInHalves<3>(a[2]) * b[2];
        store(first, lowHalf(sum), true);
        store(second, highHalf(sum), true);
    }
}

} // namespace lxpm
