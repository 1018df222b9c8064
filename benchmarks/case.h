// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "memory.h"

#include <functional>
#include <lxpm/types.h>
#include <string>
#include <vector>

namespace lxpm::bench {

// One call on prepared operands.
using Call = std::function<LxpStatus()>;

// Something to measure: a call of the library. The program itself sets beside it the peers that offer a kernel of the
// same name, if the operands are dense, and the bandwidth that the machine reaches on the same bytes.
struct Case {
    std::string group; // reported together, with a mean of their own: "cache-mam"
    std::string name;  // function and size: "Add_mam_32f/4x4"
    bool dense;        // as the operands of peers always are
    const Setting &setting;
    long objects; // computed by one call

    // The bytes of the elements that one call reads and writes.
    std::size_t bytesRead;
    std::size_t bytesWritten;

    // The bytes of the products of two elements that one call adds up; 0 where this is not what a call is about.
    std::size_t bytesOfProducts = 0;

    // The call, with its operands laid out in that memory; its first result is Memory::result().
    std::function<Call(const Memory &)> prepare;

    // The size of a result's elements where a peer may round it differently, because it adds in another order; else 0,
    // and the bits are compared. How far they may be apart, in terms of the largest result.
    std::size_t roundedElementSize = 0;
    double tolerance = 1e-4;

    // Whether peers leave the same results: not decompositions, of which each has a form of its own.
    bool comparesResults = true;
};

// The list of all cases. A family appends its own.
std::vector<Case> allCases();
void appendAddSub(std::vector<Case> &cases);
void appendMoving(std::vector<Case> &cases);
void appendProducts(std::vector<Case> &cases);
void appendReductions(std::vector<Case> &cases);
void appendGraphics(std::vector<Case> &cases);
void appendEigenproblems(std::vector<Case> &cases);
void appendSolvers(std::vector<Case> &cases);

} // namespace lxpm::bench
