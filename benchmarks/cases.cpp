// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "case.h"

namespace lxpm::bench {

std::vector<Case> allCases() {
    std::vector<Case> cases;
    appendAddSub(cases);
    appendMoving(cases);
    appendProducts(cases);
    appendReductions(cases);
    appendGraphics(cases);
    appendEigenproblems(cases);
    appendSolvers(cases);
    return cases;
}

} // namespace lxpm::bench
