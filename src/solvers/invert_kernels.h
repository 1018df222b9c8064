// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of Invert run. For the sources that instantiate them, one for each type.

#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"
#include "solvers/by_groups.h"
#include "solvers/elimination.h"
#include "solvers/invert.h"
#include "solvers/lu_substitution.h"
#include "solvers/matrices.h"
#include "solvers/register_rows.h"
#include "solvers/scratch.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

namespace detail::invert {

inline constexpr InOrder orderOfChecks = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// When an array is serial.
inline constexpr Threshold threshold = serialUpTo(2000);

template <class T>
struct Inversion {
    int order;
    Addresses<const T> source;
    Addresses<T> destination;
};

// A column of a matrix of lanes.
template <class V, int Order>
struct LaneColumn {
    V *first;

    [[gnu::always_inline]] V &operator[](int i) const { return first[i * Order]; }
};

// The inverse of matrices in lanes, of known or (0) any other order, or false. Of a known order, elimination goes over
// the identity beside the matrix; else one column of the identity is solved for after the other.
template <int Order, class V>
[[gnu::always_inline]] inline bool invertLanes(V *a, V *inverse, int n) {
    if constexpr (Order != 0) {
        LaneRowsBesideIdentity<V, Order> rows(a, inverse);
        if (eliminate<RulesOf<Order>>(rows) < Order) {
            return false;
        }
        overRange<Order>(
            0, Order, [&](int column) __attribute__((always_inline)) {
                const LaneColumn<V, Order> x = {inverse + column};
                substituteBackwards<Order, V>(rows, x, Order);
            });
    } else {
        V rowNumbers[largestCopied];
        LaneRows<V, 0> rows(a, rowNumbers, n);
        if (eliminate<RulesOf<0>>(rows) < n) {
            return false;
        }
        for (int column = 0; column < n; ++column) {
            V x[largestCopied];
            for (int i = 0; i < n; ++i) {
                x[i] = only(isEqual(rowNumbers[i], constant<V>(column)), constant<V>(1));
            }
            substitute<0, V>(rows, x, n);
            for (int i = 0; i < n; ++i) {
                inverse[i * n + column] = x[i];
            }
        }
    }
    return true;
}

// V: the numbers of one or two groups.
template <class V, int Order, class Source, class Destination>
bool invertGroups(const Source &source, const Destination &destination, int order, std::ptrdiff_t object) {
    using T = ElementOf<V>;
    constexpr int most = Order != 0 ? Order * Order : largestGroup;
    const int n = Order != 0 ? Order : order;
    V a[most];
    loadGroups<Order * Order, most>(
        a, n * n, [&](auto group, Group<T> *elements) __attribute__((always_inline)) {
            source.template load<Order, Order>(object + group * groupSize<T>, elements);
        });
    V inverse[most];
    if (!invertLanes<Order>(a, inverse, n)) {
        return false;
    }
    storeGroups<Order * Order, most>(
        inverse, n * n, [&](auto group, const Group<T> *elements) __attribute__((always_inline)) {
            destination.template store<Order, Order>(object + group * groupSize<T>, elements);
        });
    return true;
}

// What one matrix needs: its factors, its row numbers, and columns of the inverse, as many as a register holds.
template <class T>
class Workspace {
public:
    explicit Workspace(Group<T> *memory, int order) : n(order), first(memory) {}

    // Registers that a matrix takes.
    static constexpr std::size_t sizeFor(int order) {
        const auto size = static_cast<std::size_t>(order);
        return size + registersOf(size * size * sizeof(T)) + registersOf(size * sizeof(int));
    }

    Group<T> *columns() const { return first; }
    T *matrix() const { return reinterpret_cast<T *>(first + n); }
    int *rowNumbers() const {
        return reinterpret_cast<int *>(first + n + registersOf(std::size_t(n) * std::size_t(n) * sizeof(T)));
    }

private:
    static constexpr std::size_t registersOf(std::size_t bytes) {
        return (bytes + sizeof(Group<T>) - 1) / sizeof(Group<T>);
    }

    int n;
    Group<T> *first;
};

template <class T>
inline void storeFirstLanes(Group<T> lanes, int count, T *to) {
    if (count == groupSize<T>) {
        lanes.store(to);
        return;
    }
    T elements[groupSize<T>];
    lanes.store(elements);
    std::copy_n(elements, count, to);
}

// One matrix, columns of the identity in lanes.

// `count` columns from column `column` on: the elements of row `row`. The lanes behind the last column repeat it, so
// that they raise no exceptions of their own.
// Opaque, here and when they are stored: Clang leaves lanes to chance whose results it knows not to be used.
template <int count, class T>
[[gnu::always_inline]] inline Lanes<T, 4> rowOfIdentity(int row, int column) {
    static constexpr T rows[15] = {0, 0, 0, 0, 0, 0, 0, 1};
    return opaque(lastRepeated<count>(Lanes<T, 4>::load(rows + 7 + column - row)));
}

template <class T, int Order, class Source, class Destination>
LxpStatus invertKnownOrder(const Source &source, const Destination &destination) {
    using Rows = RegisterRows<T, Order>;
    Rows rows(source);
    if (eliminate<RulesOf<Order>>(rows) < Order) {
        return lxpStatusSingularErr;
    }
    forEachOf<Rows::parts>([&](auto part) __attribute__((always_inline)) {
        constexpr int columns = Rows::template lengthOfPart<part>;
        Lanes<T, 4> x[Order];
        forEachOf<Order>([&](auto i) __attribute__((always_inline)) {
            x[i].vector = rowOfIdentity<columns, T>(rows.rowNumber(i), 4 * part).vector;
        });
        substitute<Order, Lanes<T, 4>>(rows, x, Order);
        forEachOf<Order>([&](auto i) __attribute__((always_inline)) {
            storeSomeOfRow<columns>(opaque(x[i]), destination, i, 4 * part);
        });
    });
    return lxpStatusOk;
}

template <class T>
[[gnu::noinline]] LxpStatus invertAnyOrder(Addresses<const T> source, Addresses<T> destination, int n,
                                           const Workspace<T> &workspace) {
    T *const a = workspace.matrix();
    Group<T> *const x = workspace.columns();
    copyMatrix<Part::Whole>(source, plainMatrix(a, n), n, n);
    const TouchingMatrix<T> matrix = {a, n};
    IndexedRows<T, TouchingMatrix<T>> rows(matrix, workspace.rowNumbers(), n);
    if (eliminate<AnyOrderRules>(rows) < n) {
        return lxpStatusSingularErr;
    }
    const bool rowsTouch = destination.rowsTouch();
    for (int column = 0; column < n; column += groupSize<T>) {
        const int columns = std::min(n - column, groupSize<T>);
        for (int i = 0; i < n; ++i) {
            T unit[groupSize<T>] = {};
            if (const int lane = workspace.rowNumbers()[i] - column; lane >= 0 && lane < columns) {
                unit[lane] = 1;
            }
            x[i] = Group<T>::load(unit);
        }
        substitute<0, Group<T>>(rows, x, n);
        for (int i = 0; i < n; ++i) {
            if (rowsTouch) {
                storeFirstLanes(x[i], columns, destination.at(0, i, column));
                continue;
            }
            T elements[groupSize<T>];
            x[i].store(elements);
            for (int lane = 0; lane < columns; ++lane) {
                *destination.at(0, i, column + lane) = elements[lane];
            }
        }
    }
    return lxpStatusOk;
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus invertOne(const Addresses<const T> &source, const Addresses<T> &destination,
                                                  int n, const Workspace<T> &workspace) {
    if constexpr (Order != 0) {
        return withViews([](const auto &from, const auto &to) { return invertKnownOrder<T, Order>(from, to); }, source,
                         destination);
    } else {
        return invertAnyOrder<T>(source, destination, n, workspace);
    }
}

template <class T, int Order>
LxpStatus invertObjects(const Inversion<T> &call, const Workspace<T> &workspace, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto inLanes = [&](auto lanes, std::ptrdiff_t object, const auto &source, const auto &destination) {
        return invertGroups<decltype(lanes), Order>(source, destination, n, object);
    };
    const auto one = [&](std::ptrdiff_t object) {
        return invertOne<T, Order>(call.source.from(object), call.destination.from(object), n, workspace);
    };
    constexpr int atOnce = Order == 3 || Order == 4 ? 2 : 1; // larger ones keep a group busy
    return byGroups<T, Order, atOnce>(n <= largestCopied, first, count, inLanes, one, ForObjects{call.source, n, n},
                                      ForObjects{call.destination, n, n});
}

template <class T>
LxpStatus invertObjects(const Inversion<T> &call, Group<T> *memory, int first, int count) {
    const Workspace<T> workspace(memory, call.order);
    return withOrder(call.order, [&](auto order) { return invertObjects<T, order>(call, workspace, first, count); });
}

template <class T>
LxpStatus invertAll(bool parallel, int count, const Inversion<T> &call) {
    if (call.order <= largestCopied) {
        return overObjects(parallel, count, [&](int first, int objects) {
            Group<T> small[Workspace<T>::sizeFor(largestCopied)];
            return invertObjects<T>(call, small, first, objects);
        });
    }
    const OwnScratch<Group<T>> memory(Workspace<T>::sizeFor(call.order));
    if (memory.isMissing()) {
        return lxpStatusSizeErr;
    }
    return overShares(parallel, count, memory.bytes(), [&](const Share &share) {
        return invertObjects<T>(call, share.scratchOr(memory.get()), share.first, share.count);
    });
}

// The only matrix of a call.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus invert(const Inversion<T> &call) {
    if constexpr (Order != 0) {
        return invertOne<T, Order>(call.source, call.destination, Order, Workspace<T>(nullptr, Order));
    } else {
        return invertAll<T>(false, 1, Inversion<T>(call)); // a copy: see AnyMatrix
    }
}

} // namespace detail::invert

template <Code operands, class T, Layout memory>
LxpStatus InvertMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::invert::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, destination, size, number] = arguments.parts;
    const int n = size.width();

    const detail::invert::Inversion<T> call = {n, source.addresses(n, n), destination.addresses(n, n)};
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel = detail::invert::threshold.isParallel(Work(n) * n * count);
        return detail::invert::invertAll<T>(parallel, count, call);
    } else {
        return withOrder(n, [&](auto order) { return detail::invert::invert<T, order>(call); });
    }
}

} // namespace lxpm
