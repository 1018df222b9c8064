// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The graphics functions: what they are called with, and a plain function that does the same.

#ifndef LXPM_TESTS_GRAPHICS_EXPORTS_H
#define LXPM_TESTS_GRAPHICS_EXPORTS_H

#include "support/callable.h"

#include <ostream>
#include <string>
#include <vector>

namespace lxpm::test {

struct GraphicsParameter {
    std::string text; // as the header spells it: "const float *src1"
    int elements;     // that stand at a pointer, in each vector if it is an array; 0 for what is no pointer
    bool isArray;     // of vectors, with the stride in the next parameter
    bool mayBeNull;

    bool isPointer() const { return elements > 0; }
    bool isWritten() const { return isPointer() && !text.starts_with("const "); }
    bool isCount() const { return text == "int count"; }
};

/// In which ways the destination may be a source.
enum class Sharing {
    None,
    Exact,   // the same address, and for arrays the same stride
    Overlap, // anything goes: elements are done one after the other
};

struct GraphicsExport {
    std::string name;
    std::vector<GraphicsParameter> parameters;
    Sharing sharing;
    Callable function;
    Callable reference;

    bool hasArrays() const;
};

/// All of them, in the order of the table.
const std::vector<GraphicsExport> &graphicsExports();

const GraphicsExport &findGraphicsExport(const std::string &name);

void PrintTo(const GraphicsExport &item, std::ostream *stream);

} // namespace lxpm::test

#endif
