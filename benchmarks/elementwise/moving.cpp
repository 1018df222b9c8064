// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Copy, Extract, LoadIdentity, Saxpy and LComb, which are bound by the memory that they go through.

#include "case.h"
#include "operands.h"
#include "orders.h"

#include <lxpm/elementwise.h>

namespace lxpm::bench {

namespace {

// Products with it are exact, so that peers may fuse them with the addition.
constexpr int factor = 2;

template <class Code>
std::string sizeName(int n) {
    const std::string len = std::to_string(n);
    return Code::kind == Kind::matrix ? len + "x" + len : len;
}

template <class Code>
Size sizeOf(int n) {
    return {Code::kind == Kind::matrix ? n : 1, n};
}

// An array that is copied from one form into another; in the dense form of a destination it may be its address alone.
template <class Code, class T, Form from, Form to, bool toAddress = false>
Case copyCase(const Setting &setting, const std::string &group, const std::string &name, auto *function, int n) {
    const Size size = sizeOf<Code>(n);
    const std::size_t bytes = footprint<Code, T>(Form::dense, size);
    const auto count =
        static_cast<int>(setting.bytes / (footprint<Code, T>(from, size) + footprint<Code, T>(to, size)));
    const auto prepare = [=](const Memory &memory) -> Call {
        T *const result = static_cast<T *>(memory.result());
        const Operand<Code, const T, from> source(static_cast<const T *>(memory.source1()), size, count);
        const Operand<Code, T, to> destination(result, size, count);
        return [=] {
            const auto sizes = std::tuple_cat(sizeArguments<Code::kind>(size), std::tuple(count));
            if constexpr (toAddress) {
                return std::apply(function, std::tuple_cat(source.arguments(), std::tuple(result), sizes));
            } else {
                return std::apply(function, std::tuple_cat(source.arguments(), destination.arguments(), sizes));
            }
        };
    };
    return {.group = setting.name + "-" + group,
            .name = name + "/" + sizeName<Code>(n),
            .dense = from == Form::dense && to == Form::dense,
            .setting = setting,
            .objects = count,
            .bytesRead = count * bytes,
            .bytesWritten = count * bytes,
            .prepare = prepare};
}

template <class T>
Case identityCase(const Setting &setting, const std::string &group, const std::string &name, auto *function, int n) {
    using namespace codes;
    const Size size{n, n};
    const std::size_t bytes = footprint<ma, T>(Form::dense, size);
    const auto count = static_cast<int>(setting.bytes / (2 * bytes)); // one operand takes half of the memory at most
    const auto prepare = [=](const Memory &memory) -> Call {
        const Operand<ma, T, Form::dense> destination(static_cast<T *>(memory.result()), size, count);
        return [=] {
            return std::apply(function, std::tuple_cat(destination.arguments(), sizeArguments<Kind::matrix>(size),
                                                       std::tuple(count)));
        };
    };
    return {.group = setting.name + "-" + group,
            .name = name + "/" + sizeName<ma>(n),
            .dense = true,
            .setting = setting,
            .objects = count,
            .bytesRead = 0,
            .bytesWritten = count * bytes,
            .prepare = prepare};
}

// Saxpy has one constant, LComb two of them.
template <class First, class Second, class T, int constants>
Case combinationCase(const Setting &setting, const std::string &group, const std::string &name, auto *function, int n) {
    using Result = codes::va;
    const Size size{1, n};
    const std::size_t read = footprint<First, T>(Form::dense, size) + footprint<Second, T>(Form::dense, size);
    const std::size_t written = footprint<Result, T>(Form::dense, size);
    const auto count = static_cast<int>(setting.bytes / (read + written));
    const auto prepare = [=](const Memory &memory) -> Call {
        const Operand<First, const T, Form::dense> first(static_cast<const T *>(memory.source1()), size, count);
        const Operand<Second, const T, Form::dense> second(static_cast<const T *>(memory.source2()), size, count);
        const Operand<Result, T, Form::dense> result(static_cast<T *>(memory.result()), size, count);
        return [=] {
            const auto rest = std::tuple_cat(result.arguments(), std::tuple(n, count));
            const std::tuple val(static_cast<T>(factor));
            if constexpr (constants == 1) {
                return std::apply(function, std::tuple_cat(first.arguments(), val, second.arguments(), rest));
            } else {
                return std::apply(function, std::tuple_cat(first.arguments(), val, second.arguments(), val, rest));
            }
        };
    };
    return {.group = setting.name + "-" + group,
            .name = name + "/" + sizeName<First>(n),
            .dense = true,
            .setting = setting,
            .objects = count,
            .bytesRead = count * read,
            .bytesWritten = count * written,
            .prepare = prepare};
}

// In cache for every order, and in memory for those that most data have.
void appendBoth(std::vector<Case> &cases, const auto &makeCase) {
    for (const int n : elementwiseOrders) {
        cases.push_back(makeCase(cacheSetting(), n));
    }
    for (const int n : {3, 4}) {
        cases.push_back(makeCase(memorySetting(), n));
    }
}

} // namespace

void appendMoving(std::vector<Case> &cases) {
    using namespace codes;
    constexpr Form dense = Form::dense;
    constexpr Form padded = Form::padded;
    constexpr Form objects = Form::objectPointers;
    constexpr Form elements = Form::elementPointers;
    constexpr Form soa = Form::structureOfArrays;

#define CASES(makeCase, group, name, function)                                                                         \
    appendBoth(cases, [](const Setting &setting, int n) { return makeCase(setting, group, name, function, n); })
#define COPY(type, T, from, to, layouts, suffix)                                                                       \
    CASES((copyCase<ma, T, from, to>), "copy", "Copy_ma_" #type #layouts suffix, lxpmCopy_ma_##type##layouts)
#define EXTRACT(code, type, T, from, suffix)                                                                           \
    CASES((copyCase<code, T, from, dense, true>), "extract", "Extract_" #code "_" #type suffix,                        \
          lxpmExtract_##code##_##type)
#define COMBINE(operation, code, type, T, first, second, constants)                                                    \
    CASES((combinationCase<first, second, T, constants>), "combine", #operation "_" #code "_" #type,                   \
          lxpm##operation##_##code##_##type)
#define TYPE(type, T)                                                                                                  \
    COPY(type, T, dense, dense, _SS, "");                                                                              \
    COPY(type, T, padded, dense, _SS, "-padded");                                                                      \
    COPY(type, T, objects, objects, _LL, "");                                                                          \
    COPY(type, T, elements, elements, _PP, "");                                                                        \
    COPY(type, T, dense, soa, _SP, "-soa");                                                                            \
    COPY(type, T, soa, dense, _PS, "-soa");                                                                            \
    EXTRACT(ma, type, T, dense, "");                                                                                   \
    EXTRACT(ma, type, T, padded, "-padded");                                                                           \
    EXTRACT(ta, type, T, dense, "");                                                                                   \
    CASES(identityCase<T>, "identity", "LoadIdentity_ma_" #type, lxpmLoadIdentity_ma_##type);                          \
    COMBINE(Saxpy, vava, type, T, va, va, 1);                                                                          \
    COMBINE(Saxpy, vav, type, T, va, v, 1);                                                                            \
    COMBINE(LComb, vava, type, T, va, va, 2);

    TYPE(32f, float)
    TYPE(64f, double)

#undef TYPE
#undef COMBINE
#undef EXTRACT
#undef COPY
#undef CASES
}

} // namespace lxpm::bench
