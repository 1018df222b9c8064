// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/parallel_sizes.h"
#include "checks/placements.h"
#include "support/call.h"
#include "support/thread_count.h"

namespace lxpm::test {

namespace {

/// Calls, and counts the questions for the number of threads against the rule: none on a serial path, one by a parallel
/// kernel that goes on alone, two by one that starts a team.
void verify(const Export &item, const Shape &shape, int count, const std::vector<Placement> &placements, int threads,
            Report &report) {
    setThreadCount(threads);
    Call call(item, shape, count, placements);
    call.fill(distinctValues(item.model.type));
    const bool startsTeam = threads > 1 && count >= threads;
    const int expected = !call.isParallel() ? 0 : startsTeam ? 2 : 1;
    call.verifyResults(report);
    if (threadCountQuestions() != expected) {
        call.complain("asked " + std::to_string(threadCountQuestions()) +
                          " times for the number of threads, expected " + std::to_string(expected),
                      report);
    }
}

} // namespace

Report checkThresholds(const Export &item) {
    Report report;
    const unsigned operands = static_cast<unsigned>(item.model.operands.size());
    // No gaps, gaps in every operand, and in one alone: which must be enough to make the call a strided one.
    std::vector<unsigned> gapped = {0, ~0u};
    for (unsigned index = 0; index < operands; ++index) {
        gapped.push_back(1u << index);
    }
    for (const unsigned gaps : gapped) {
        const std::vector<Placement> placements = gappedIn(item.model, gaps);
        const bool isContiguous = Call(item, item.model.axes->small.front(), 2, placements).isContiguous();
        for (const ParallelCase &at : casesAroundThreshold(item.model, isContiguous)) {
            if (report.isFull()) {
                return report;
            }
            verify(item, at.shape, at.count, placements, 1, report);
            verify(item, at.shape, at.count, placements, 2, report);
        }
    }
    return report;
}

} // namespace lxpm::test
