// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/exports.h"

#include "eigen/eigen_values.h"
#include "elementwise/add_sub.h"
#include "elementwise/moving.h"
#include "elementwise/saxpy_lcomb.h"
#include "products/gaxpy.h"
#include "products/mul.h"
#include "products/reductions.h"
#include "solvers/solvers.h"

#include <lxpm.h>

#include <iterator>
#include <stdexcept>
#include <string_view>

namespace lxpm::test {

namespace {

struct Family {
    std::string_view operation;
    Model (*describe)(const ExportName &name);
};

// A new family: its lines in the list of exports, its description, and a line here.
constexpr Family families[] = {
    {"Add", describeAddSub},
    {"Sub", describeAddSub},
    {"DotProduct", describeDotProduct},
    {"CrossProduct", describeCrossProduct},
    {"L2Norm", describeL2Norm},
    {"FrobNorm", describeFrobNorm},
    {"Trace", describeTrace},
    {"Transpose", describeTranspose},
    {"CopyToS", describeCopy},
    {"CopyToL", describeCopy},
    {"CopyToP", describeCopy},
    {"Extract", describeExtract},
    {"LoadIdentity", describeLoadIdentity},
    {"Saxpy", describeSaxpyLComb},
    {"LComb", describeSaxpyLComb},
    {"Mul", describeMul},
    {"Gaxpy", describeGaxpy},
    {"EigenValuesSym", describeEigenValuesSym},
    {"EigenValuesVectorsSym", describeEigenValuesSym},
    {"EigenValues", describeEigenValues},
    {"EigenValuesVectors", describeEigenValues},
    {"EigenValuesVectorsRight", describeEigenValues},
    {"EigenValuesVectorsLeft", describeEigenValues},
    {"LUDecomp", describeLUDecomp},
    {"LUBackSubst", describeLUBackSubst},
    {"CholeskyDecomp", describeCholeskyDecomp},
    {"CholeskyBackSubst", describeCholeskyBackSubst},
    {"QRDecomp", describeQRDecomp},
    {"QRBackSubst", describeQRBackSubst},
    {"Det", describeDet},
    {"Invert", describeInvert},
};

Model describe(const ExportName &name) {
    for (const Family &family : families) {
        if (family.operation == name.operation) {
            return family.describe(name);
        }
    }
    throw std::logic_error("no family describes " + name.name);
}

ElementType typeFromText(std::string_view text) {
    return text == "32f" ? ElementType::Float32 : ElementType::Float64;
}

Layout layoutFromText(std::string_view text) {
    return text == "S" ? Layout::Strided : text == "L" ? Layout::ObjectPointers : Layout::ElementPointers;
}

// The words of the list as they stand. A table of constants is compiled fast, hundreds of calls are not.
struct Line {
    const char *name;
    const char *operation;
    const char *code;
    const char *type;
    const char *layout;
    Callable::Erased function;
    Callable::Type functionType;
};

const Line lines[] = {
#define MEMBER(operation, code, type, layout, name)                                                                    \
    {#name, #operation, #code, #type, #layout, reinterpret_cast<Callable::Erased>(&name), Callable::typeOf(&name)},
#define EXPORT(name)
#include "runtime/exports.h"
};

} // namespace

const std::vector<Export> &familyExports() {
    static const std::vector<Export> exports = [] {
        std::vector<Export> list;
        for (const Line &line : lines) {
            list.push_back(
                {describe({line.name, line.operation, line.code, typeFromText(line.type), layoutFromText(line.layout)}),
                 Callable(line.function, line.functionType)});
        }
        return list;
    }();
    return exports;
}

const std::vector<std::string> &exportNames() {
    static constexpr const char *names[] = {
#define MEMBER(operation, code, type, layout, name) #name,
#define EXPORT(name) #name,
#include "runtime/exports.h"
    };
    static const std::vector<std::string> list(std::begin(names), std::end(names));
    return list;
}

const Export &findExport(const std::string &name) {
    for (const Export &item : familyExports()) {
        if (item.model.name == name) {
            return item;
        }
    }
    throw std::logic_error("no export is called " + name);
}

std::vector<const Export *> exportsThat(const std::function<bool(const Model &)> &condition) {
    std::vector<const Export *> selected;
    for (const Export &item : familyExports()) {
        if (condition(item.model)) {
            selected.push_back(&item);
        }
    }
    return selected;
}

void PrintTo(const Export *item, std::ostream *stream) {
    *stream << item->model.name;
}

} // namespace lxpm::test
