// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "case.h"
#include "operands.h"
#include "orders.h"

#include <lxpm/products.h>

namespace lxpm::bench {

namespace {

std::string square(int n) {
    return std::to_string(n) + "x" + std::to_string(n);
}

Size sizeFor(Kind kind, int n) {
    return {kind == Kind::matrix ? n : 1, kind == Kind::constant ? 1 : n};
}

// The sizes that stand behind an operand of a product.
template <Kind kind>
auto sizesBehind(int n) {
    if constexpr (kind == Kind::matrix) {
        return std::tuple(n, n);
    } else {
        return std::tuple(n);
    }
}

struct Bytes {
    std::size_t read;
    std::size_t written;
    int count;
    std::size_t products = 0;
};

// Operands of order n that fill the setting's memory.
template <class T, class Result, class... Sources>
Bytes bytesOf(const Setting &setting, Form form, int n) {
    const auto one = [&]<class Code>(Form in) { return footprint<Code, T>(in, sizeFor(Code::kind, n)); };
    const std::size_t taken = (one.template operator()<Sources>(form) + ...) + one.template operator()<Result>(form);
    const auto count = static_cast<int>(setting.bytes / taken);
    return {count * (one.template operator()<Sources>(Form::dense) + ...),
            count * one.template operator()<Result>(Form::dense), count};
}

// Operands of matrix products: every element of a result adds up n products.
template <class T, class Result, class... Sources>
Bytes bytesOfProduct(const Setting &setting, Form form, int n) {
    Bytes bytes = bytesOf<T, Result, Sources...>(setting, form, n);
    bytes.products = bytes.written * n;
    return bytes;
}

template <class T>
Case makeCase(const Setting &setting, const std::string &group, const std::string &name, Form form, Bytes bytes,
              std::function<Call(const Memory &)> prepare) {
    return {.group = setting.name + "-" + group,
            .name = name,
            .dense = form == Form::dense,
            .setting = setting,
            .objects = bytes.count,
            .bytesRead = bytes.read,
            .bytesWritten = bytes.written,
            .bytesOfProducts = bytes.products,
            .prepare = std::move(prepare),
            .roundedElementSize = sizeof(T)};
}

// dst = src1 * src2
template <class T, Form form, class First, class Second>
void appendProduct(std::vector<Case> &cases, const Setting &setting, const std::string &group, const std::string &name,
                   auto *function, int n) {
    using Result = Code<Second::kind, true>;
    const Bytes bytes = bytesOfProduct<T, Result, First, Second>(setting, form, n);
    const auto prepare = [=](const Memory &memory) -> Call {
        const Operand<First, const T, form> first(static_cast<const T *>(memory.source1()), sizeFor(First::kind, n),
                                                  bytes.count);
        const Operand<Second, const T, form> second(static_cast<const T *>(memory.source2()), sizeFor(Second::kind, n),
                                                    bytes.count);
        const Operand<Result, T, form> result(static_cast<T *>(memory.result()), sizeFor(Result::kind, n), bytes.count);
        return [=] {
            return std::apply(function, std::tuple_cat(first.arguments(), sizesBehind<First::kind>(n),
                                                       second.arguments(), sizesBehind<Second::kind>(n),
                                                       result.arguments(), std::tuple(bytes.count)));
        };
    };
    cases.push_back(makeCase<T>(setting, group, name + "/" + square(n), form, bytes, prepare));
}

// dst = constant * src1
template <class T, class First>
void appendScaling(std::vector<Case> &cases, const Setting &setting, const std::string &group, const std::string &name,
                   auto *function, int n) {
    using namespace codes;
    const Bytes bytes = bytesOf<T, First, First, c>(setting, Form::dense, n);
    const auto prepare = [=](const Memory &memory) -> Call {
        const Size size = sizeFor(First::kind, n);
        const Operand<First, const T, Form::dense> first(static_cast<const T *>(memory.source1()), size, bytes.count);
        const Operand<c, const T, Form::dense> constant(static_cast<const T *>(memory.source2()), size, bytes.count);
        const Operand<First, T, Form::dense> result(static_cast<T *>(memory.result()), size, bytes.count);
        return [=] {
            return std::apply(function, std::tuple_cat(first.arguments(), constant.arguments(), result.arguments(),
                                                       sizeArguments<First::kind>(size), std::tuple(bytes.count)));
        };
    };
    cases.push_back(makeCase<T>(setting, group, name + "/" + square(n), Form::dense, bytes, prepare));
}

// dst = src1 * src2 + src3; the addends stand behind the matrix in the memory of the first source.
template <class T, class Addend>
void appendGaxpy(std::vector<Case> &cases, const Setting &setting, const std::string &group, const std::string &name,
                 auto *function, int n) {
    using namespace codes;
    const Bytes bytes = bytesOfProduct<T, va, va, Addend>(setting, Form::dense, n);
    const auto prepare = [=](const Memory &memory) -> Call {
        const auto *source1 = static_cast<const T *>(memory.source1());
        const Operand<m, const T, Form::dense> matrix(source1, {n, n}, 1);
        const Operand<Addend, const T, Form::dense> addend(source1 + n * n, {1, n}, bytes.count);
        const Operand<va, const T, Form::dense> vector(static_cast<const T *>(memory.source2()), {1, n}, bytes.count);
        const Operand<va, T, Form::dense> result(static_cast<T *>(memory.result()), {1, n}, bytes.count);
        return [=] {
            return std::apply(function, std::tuple_cat(matrix.arguments(), std::tuple(n, n), vector.arguments(),
                                                       std::tuple(n), addend.arguments(), std::tuple(n),
                                                       result.arguments(), std::tuple(bytes.count)));
        };
    };
    cases.push_back(makeCase<T>(setting, group, name + "/" + square(n), Form::dense, bytes, prepare));
}

// One product of two small matrices for each call.
template <class T>
void appendSingle(std::vector<Case> &cases, const std::string &name, auto *function, int n) {
    using namespace codes;
    const Setting &setting = cacheSetting();
    const Bytes bytes = bytesOfProduct<T, ma, ma, ma>(setting, Form::dense, n);
    const auto prepare = [=](const Memory &memory) -> Call {
        const auto *a = static_cast<const T *>(memory.source1());
        const auto *b = static_cast<const T *>(memory.source2());
        auto *dst = static_cast<T *>(memory.result());
        return [=] {
            constexpr int size = sizeof(T);
            LxpStatus status = lxpStatusOk;
            for (std::ptrdiff_t k = 0; k < bytes.count && status == lxpStatusOk; ++k) {
                const std::ptrdiff_t at = k * n * n;
                status = function(a + at, n * size, size, n, n, b + at, n * size, size, n, n, dst + at, n * size, size);
            }
            return status;
        };
    };
    cases.push_back(makeCase<T>(setting, "mm", name + "/" + square(n), Form::dense, bytes, prepare));
}

} // namespace

void appendProducts(std::vector<Case> &cases) {
    using namespace codes;

    for (const int n : productOrders) {
        const Setting &cache = cacheSetting();
#define PRODUCT(code, type, T, first, second)                                                                          \
    appendProduct<T, Form::dense, first, second>(cases, cache, #code, "Mul_" #code "_" #type, lxpmMul_##code##_##type, \
                                                 n);
#define PRODUCTS(code, first, second) PRODUCT(code, 32f, float, first, second) PRODUCT(code, 64f, double, first, second)
        PRODUCTS(mama, ma, ma)
        PRODUCTS(mam, ma, m)
        PRODUCTS(mma, m, ma)
        PRODUCTS(mat, ma, m)
        PRODUCTS(tam, ta, m)
        PRODUCTS(mva, m, va)
        PRODUCTS(mava, ma, va)
        PRODUCTS(tava, ta, va)
#undef PRODUCTS
#undef PRODUCT

        appendScaling<float, ma>(cases, cache, "mac", "Mul_mac_32f", lxpmMul_mac_32f, n);
        appendScaling<double, ma>(cases, cache, "mac", "Mul_mac_64f", lxpmMul_mac_64f, n);
        appendScaling<float, va>(cases, cache, "vac", "Mul_vac_32f", lxpmMul_vac_32f, n);
        appendScaling<double, va>(cases, cache, "vac", "Mul_vac_64f", lxpmMul_vac_64f, n);
        appendGaxpy<float, va>(cases, cache, "gaxpy", "Gaxpy_mva_32f", lxpmGaxpy_mva_32f, n);
        appendGaxpy<double, va>(cases, cache, "gaxpy", "Gaxpy_mva_64f", lxpmGaxpy_mva_64f, n);
        appendGaxpy<float, v>(cases, cache, "gaxpy", "Gaxpy_mvav_32f", lxpmGaxpy_mvav_32f, n);
        appendGaxpy<double, v>(cases, cache, "gaxpy", "Gaxpy_mvav_64f", lxpmGaxpy_mvav_64f, n);
    }

    for (const int n : {3, 4, 6, 12}) {
        const Setting &cache = cacheSetting();
        appendSingle<float>(cases, "Mul_mm_32f", lxpmMul_mm_32f, n);
        appendSingle<double>(cases, "Mul_mm_64f", lxpmMul_mm_64f, n);
#define FORM(form, code, type, T, layout, first, second)                                                               \
    appendProduct<T, Form::form, first, second>(cases, cache, #form, "Mul_" #code "_" #type #layout,                   \
                                                lxpmMul_##code##_##type##layout, n);
#define FORMS(code, type, T, first, second)                                                                            \
    FORM(padded, code, type, T, , first, second)                                                                       \
    FORM(objectPointers, code, type, T, _L, first, second)                                                             \
    FORM(elementPointers, code, type, T, _P, first, second)                                                            \
    FORM(structureOfArrays, code, type, T, _P, first, second)
        FORMS(mama, 32f, float, ma, ma)
        FORMS(mama, 64f, double, ma, ma)
        FORMS(mava, 32f, float, ma, va)
        FORMS(mava, 64f, double, ma, va)
        FORMS(mva, 32f, float, m, va)
        FORMS(mva, 64f, double, m, va)
#undef FORMS
#undef FORM
    }
}

} // namespace lxpm::bench
