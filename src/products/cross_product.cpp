// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/cross_product.h"

#include "products/readers.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/straight.h"
#include "runtime/vector_groups.h"
#include "runtime/work.h"

#include <array>
#include <cstddef>
#include <type_traits>

namespace lxpm {

namespace {

// The orders of the checks. An array of vectors with one vector looks at the count late.
constexpr Row<InOrder> orders[] = {
    {"vav", Layouts::S, Types::Both, {Check::Pointers, Check::Strides, Check::Count}},
    {"vav", Layouts::L, Types::Both, {Check::Pointers, Check::Strides, Check::Offsets, Check::Count}},
    {"vav", Layouts::P, Types::Both, {Check::Pointers, Check::Strides, Check::Count, Check::Offsets}},
    {allCodes, Layouts::All, Types::Both, {Check::Pointers, Check::Count, Check::Strides, Check::Offsets}},
};

// The arrays of a call, its destination included, and up to which count times their number it is serial.
struct Size {
    int arrays;
    Threshold threshold;
};

constexpr Row<Size> sizes[] = {
    {"vav vva", Layouts::All, Types::Both, {2, serialUpTo(2999)}},
    {"vava", Layouts::All, Types::Both, {3, serialUpTo(3000)}},
};

constexpr int length = 3;

template <class T>
struct CrossOperands {
    Addresses<const T> first;
    Addresses<const T> second;
    Addresses<T> dst;

    CrossOperands from(std::ptrdiff_t object) const {
        return {first.from(object), second.from(object), dst.from(object)};
    }
};

// In one lane or in many.
template <class Vector>
[[gnu::always_inline]] inline auto crossed(const Vector &a, const Vector &b) {
    return std::array{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

template <class T>
[[gnu::always_inline]] inline void crossOneByOne(const CrossOperands<T> &shared, std::ptrdiff_t object,
                                                 std::ptrdiff_t objects) {
    const CrossOperands<T> operands = shared; // a copy that no store below can reach
    for (; object < objects; ++object) {
        const auto elements = [object](const Addresses<const T> &source) __attribute__((always_inline)) {
            return std::array{*source.at(object, 0, 0), *source.at(object, 0, 1), *source.at(object, 0, 2)};
        };
        const auto result = crossed(elements(operands.first), elements(operands.second));
        for (int i = 0; i < length; ++i) {
            *operands.dst.at(object, 0, i) = result[i];
        }
    }
}

// A group's vectors, four lanes for three elements.
inline std::array<Lanes<float, 4>, 8> vectorsOf(const Triples<float> &columns) {
    std::array<Lanes<float, 8>, 4> r = {columns[0], columns[1], columns[2], columns[2]};
    transposeHalves(r);
    return {lowHalf(r[0]),  lowHalf(r[1]),  lowHalf(r[2]),  lowHalf(r[3]),
            highHalf(r[0]), highHalf(r[1]), highHalf(r[2]), highHalf(r[3])};
}

inline std::array<Lanes<double, 4>, 4> vectorsOf(const Triples<double> &columns) {
    std::array<Lanes<double, 4>, 4> r = {columns[0], columns[1], columns[2], columns[2]};
    transpose(r);
    return r;
}

enum class Writing { Dense, Rows, Objects };

template <class T, Writing writing>
[[gnu::always_inline]] inline void writeGroup(const Addresses<T> &dst, std::ptrdiff_t object,
                                              const Triples<T> &columns) {
    if constexpr (writing == Writing::Dense) {
        writeTriples(dst.at(object, 0, 0), columns);
    } else if constexpr (writing == Writing::Objects) {
#pragma GCC unroll 3
        for (int i = 0; i < length; ++i) {
            columns[i].store(dst.at(object, 0, i));
        }
    } else {
        const auto vectors = vectorsOf(columns);
#pragma GCC unroll 8
        for (int i = 0; i < groupSize<T>; ++i) {
            storeFirst<length>(dst.at(object + i, 0, 0), vectors[i]);
        }
    }
}

// Bytes from vector to vector where they are known beforehand, else 0.
template <class T, Reading reading, bool dense>
constexpr std::ptrdiff_t stepOf = (dense && reading == Reading::Rows) ? std::ptrdiff_t(sizeof(T)) * length : 0;

// All whole groups. Returns how many objects they have. Dense: sources that are read as rows follow one another.
template <class T, bool dense, Reading first, Reading second, Writing writing>
std::ptrdiff_t crossGroups(const CrossOperands<T> &shared, std::ptrdiff_t objects) {
    const CrossOperands<T> operands = shared;
    const auto group = [&]<bool readsOn>(std::ptrdiff_t object, std::bool_constant<readsOn>)
        __attribute__((always_inline)) {
        const GroupReader<T, first, stepOf<T, first, dense>> a(operands.first, object);
        const GroupReader<T, second, stepOf<T, second, dense>> b(operands.second, object);
        writeGroup<T, writing>(operands.dst, object,
                               crossed(a.template read<length, readsOn>(0, 0), b.template read<length, readsOn>(0, 0)));
    };
    std::ptrdiff_t object = 0;
    if constexpr (!dense) {
        const bool readsOn = mayReadOn(operands.first) && mayReadOn(operands.second);
        for (; readsOn && object + groupSize<T> < objects; object += groupSize<T>) {
            group(object, std::true_type());
        }
    }
    for (; object + groupSize<T> <= objects; object += groupSize<T>) {
        group(object, std::false_type());
    }
    return object;
}

template <class T>
using CrossKernel = std::ptrdiff_t (*)(const CrossOperands<T> &, std::ptrdiff_t objects);

// The kernel for groups of vectors that are read like that, or the single one that every vector of an array meets.
template <class T, Reading reading, Writing writing, bool dense = false>
CrossKernel<T> chooseSingle(Reading first, Reading second) {
    return first == Reading::Same    ? crossGroups<T, dense, Reading::Same, reading, writing>
           : second == Reading::Same ? crossGroups<T, dense, reading, Reading::Same, writing>
                                     : crossGroups<T, dense, reading, reading, writing>;
}

// Whether vectors whose elements touch follow one another.
template <class Element>
bool isDense(const Addresses<Element> &vectors) {
    return vectors.step[0] == length * static_cast<std::ptrdiff_t>(sizeof(Element)) && vectors.pointerStep[0] == 0;
}

// Null where vectors go one by one.
template <class T>
CrossKernel<T> chooseGroups(const CrossOperands<T> &operands) {
    const Reading first = readingOf(operands.first);
    const Reading second = readingOf(operands.second);
    const Addresses<T> &dst = operands.dst;
    const auto bothAre = [&](Reading reading) {
        return (first == reading || first == Reading::Same) && (second == reading || second == Reading::Same);
    };
    if (dst.step[2] == sizeof(T) && dst.pointerStep[2] == 0) {
        if (bothAre(Reading::Rows)) {
            const bool readsDense = (first == Reading::Same || isDense(operands.first)) &&
                                    (second == Reading::Same || isDense(operands.second));
            return !isDense(dst) ? chooseSingle<T, Reading::Rows, Writing::Rows>(first, second)
                   : readsDense  ? chooseSingle<T, Reading::Rows, Writing::Dense, true>(first, second)
                                 : chooseSingle<T, Reading::Rows, Writing::Dense>(first, second);
        }
        if (bothAre(Reading::PointedRows)) {
            return chooseSingle<T, Reading::PointedRows, Writing::Rows>(first, second);
        }
    }
    if (bothAre(Reading::Objects) && dst.objectsTouch()) {
        return chooseSingle<T, Reading::Objects, Writing::Objects>(first, second);
    }
    return nullptr;
}

// Returns how many objects were in groups.
template <class T>
std::ptrdiff_t crossWholeGroups(CrossOperands<T> operands, std::ptrdiff_t objects) {
    const CrossKernel<T> groups = chooseGroups(operands);
    if (groups == nullptr) {
        return 0;
    }
    const SingleVector<T> first(operands.first, length);
    const SingleVector<T> second(operands.second, length);
    if (readingOf(operands.first) == Reading::Same) {
        operands.first = first.addresses();
    } else if (readingOf(operands.second) == Reading::Same) {
        operands.second = second.addresses();
    }
    return groups(operands, objects);
}

// All objects of a call.
template <class T>
[[gnu::noinline]] LxpStatus crossObjects(bool parallel, int count, const CrossOperands<T> &operands) {
    const auto straight = [&]() -> CrossOperands<T> {
        return {withoutElementPointers(operands.first, 1, length), withoutElementPointers(operands.second, 1, length),
                withoutElementPointers(operands.dst, 1, length)};
    };
    return withStraight(operands, operands.dst, straight, [&](const CrossOperands<T> &all) {
        return overObjects(parallel, count, [&](int first, int objects) {
            withFrom(all, first, [&](const CrossOperands<T> &own) {
                const std::ptrdiff_t done = objects >= groupSize<T> ? crossWholeGroups(own, objects) : 0;
                crossOneByOne(own, done, objects);
            });
            return lxpStatusOk;
        });
    });
}

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus CrossProductMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<CrossProductMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[first, second, destination, number] = arguments.parts;

    const CrossOperands<T> vectors = {first.addresses(1, length), second.addresses(1, length),
                                      destination.addresses(1, length)};
    if constexpr (isArray) {
        constexpr Size size = rowOf<CrossProductMember, sizes>;
        const int count = number.value;
        return crossObjects<T>(size.threshold.isParallel(Work(size.arrays) * count), count, vectors);
    } else {
        crossOneByOne(vectors, 0, 1);
        return lxpStatusOk;
    }
}

} // namespace lxpm

#define EXPORT_LIST "products/cross_product.list.h"
#include "runtime/instantiate.h"
