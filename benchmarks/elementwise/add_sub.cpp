// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "case.h"
#include "operands.h"
#include "orders.h"

#include <lxpm/elementwise.h>

namespace lxpm::bench {

namespace {

std::string sizeName(Kind kind, int n) {
    const std::string len = std::to_string(n);
    return kind == Kind::matrix ? len + "x" + len : len;
}

template <class First, class Second, class T, Form form>
Case makeCase(const Setting &setting, const std::string &group, const std::string &name, auto *function, int n) {
    using Result = Code<First::kind, true>;

    const Size size{First::kind == Kind::matrix ? n : 1, n};
    const std::size_t read = footprint<First, T>(Form::dense, size) + footprint<Second, T>(Form::dense, size);
    const std::size_t written = footprint<Result, T>(Form::dense, size);
    const auto count =
        static_cast<int>(setting.bytes / (footprint<First, T>(form, size) + footprint<Second, T>(form, size) +
                                          footprint<Result, T>(form, size)));

    const auto prepare = [=](const Memory &memory) -> Call {
        const Operand<First, const T, form> first(static_cast<const T *>(memory.source1()), size, count);
        const Operand<Second, const T, form> second(static_cast<const T *>(memory.source2()), size, count);
        const Operand<Result, T, form> result(static_cast<T *>(memory.result()), size, count);
        return [=] {
            return std::apply(function, std::tuple_cat(first.arguments(), second.arguments(), result.arguments(),
                                                       sizeArguments<First::kind>(size), std::tuple(count)));
        };
    };
    return {.group = group,
            .name = name + "/" + sizeName(First::kind, n),
            .dense = form == Form::dense,
            .setting = setting,
            .objects = count,
            .bytesRead = count * read,
            .bytesWritten = count * written,
            .prepare = prepare};
}

// One export, dense: in cache for every order, and in memory for those that most data have.
template <class First, class Second, class T>
void appendDense(std::vector<Case> &cases, const std::string &code, const std::string &name, auto *function) {
    const auto append = [&](const Setting &setting, int n) {
        cases.push_back(makeCase<First, Second, T, Form::dense>(setting, setting.name + "-" + code, name, function, n));
    };
    for (const int n : elementwiseOrders) {
        append(cacheSetting(), n);
    }
    for (const int n : {3, 4}) {
        append(memorySetting(), n);
    }
}

// The other forms of an export's operands, in cache.
template <class First, class Second, class T, Form form>
void appendForm(std::vector<Case> &cases, const std::string &formName, const std::string &name, auto *function) {
    for (const int n : {3, 4, 6, 8}) {
        cases.push_back(makeCase<First, Second, T, form>(cacheSetting(), formName, name, function, n));
    }
}

} // namespace

void appendAddSub(std::vector<Case> &cases) {
    using namespace codes;

#define DENSE(operation, code, first, second)                                                                          \
    appendDense<first, second, float>(cases, #code, #operation "_" #code "_32f", lxpm##operation##_##code##_32f);      \
    appendDense<first, second, double>(cases, #code, #operation "_" #code "_64f", lxpm##operation##_##code##_64f);
#define BOTH(code, first, second) DENSE(Add, code, first, second) DENSE(Sub, code, first, second)

    BOTH(mama, ma, ma)
    BOTH(mam, ma, m)
    BOTH(tam, ta, m)
    BOTH(vava, va, va)
    BOTH(vav, va, v)
    BOTH(vaca, va, ca)
    BOTH(vac, va, c)

#define FORM(form, code, type, T, layout, first, second)                                                               \
    appendForm<first, second, T, Form::form>(cases, #form, "Add_" #code "_" #type #layout,                             \
                                             lxpmAdd_##code##_##type##layout);
#define FORMS(code, type, T, first, second)                                                                            \
    FORM(padded, code, type, T, , first, second)                                                                       \
    FORM(objectPointers, code, type, T, _L, first, second)                                                             \
    FORM(elementPointers, code, type, T, _P, first, second)                                                            \
    FORM(structureOfArrays, code, type, T, _P, first, second)

    FORMS(mama, 32f, float, ma, ma)
    FORMS(mama, 64f, double, ma, ma)
    FORMS(tam, 32f, float, ta, m)
    FORMS(tam, 64f, double, ta, m)
    FORMS(vava, 32f, float, va, va)
    FORMS(vava, 64f, double, va, va)
    FORMS(vaca, 32f, float, va, ca)
    FORMS(vaca, 64f, double, va, ca)

#undef FORMS
#undef FORM
#undef BOTH
#undef DENSE
}

} // namespace lxpm::bench
