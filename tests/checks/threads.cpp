// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/parallel_sizes.h"
#include "checks/placements.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <algorithm>
#include <set>

namespace lxpm::test {

namespace {

void verify(const Export &item, const ParallelCase &at, const std::vector<Placement> &placements, Report &report) {
    if (report.isFull()) {
        return;
    }
    Call call(item, at.shape, at.count, placements);
    call.fill(distinctValues(item.model.type));
    call.verifyResults(report);
}

// Where the measure counts little of what is touched (a diagonal, vectors beside a matrix), few objects have to be huge
// to be parallel. Then more of them have to do.
bool isHuge(const Model &model, const ParallelCase &at) {
    constexpr long most = 1 << 22; // elements of an operand
    long largest = 0;
    for (const Operand &operand : model.operands) {
        largest = std::max(largest, long{operand.rowsOf(at.shape)} * operand.columnsOf(at.shape) *
                                        (operand.isArray ? at.count : 1));
    }
    return largest > most;
}

std::vector<ParallelCase> casesFor(const Model &model, int threads, bool isContiguous) {
    std::vector<ParallelCase> cases;
    // Fewer objects than threads, as many, one more; some blocks larger than others; many.
    for (const int count : std::set<int>{1, threads - 1, threads, threads + 1, 10, 100}) {
        if (count > 0) {
            const ParallelCase at = {firstParallelShape(model, count, isContiguous), count};
            if (!isHuge(model, at)) {
                cases.push_back(at);
            }
        }
    }
    // Small objects: blocks that begin and end in the middle of a group of lanes.
    for (const Shape &shape : model.axes->small) {
        cases.push_back({shape, firstParallelCount(model, shape, isContiguous) + threads / 2});
    }
    return cases;
}

} // namespace

Report checkThreads(const Export &item) {
    Report report;
    int seed = 0;
    for (const int threads : {1, 2, 3, 4, 7}) {
        for (const unsigned gapped : {0u, ~0u}) {
            std::vector<Placement> placements = gappedIn(item.model, gapped);
            const bool isContiguous = Call(item, item.model.axes->small.front(), 2, placements).isContiguous();
            for (const ParallelCase &at : casesFor(item.model, threads, isContiguous)) {
                scatter(placements, seed++);
                setThreadCount(threads);
                verify(item, at, placements, report);
            }
        }
    }

    // The second answer is the size of the team: larger than the first one, larger than the number of objects, a
    // team of one.
    const ParallelCase few = {firstParallelShape(item.model, 3, true), 3};
    for (const auto &[atStart, beforeTeam] : {std::pair{2, 3}, {3, 5}, {3, 1}}) {
        setThreadCounts(atStart, beforeTeam);
        verify(item, few, gappedIn(item.model, 0), report);
    }
    return report;
}

} // namespace lxpm::test
