// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/parallel_sizes.h"
#include "checks/placements.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <array>
#include <cstdint>
#include <optional>

namespace lxpm::test {

namespace {

/// The destinations of one call, element by element in logical order. The formula plays no part.
std::vector<std::uint64_t> resultsOf(Call &call) {
    std::vector<std::uint64_t> results;
    for (int index = 0; index < call.operandCount(); ++index) {
        PlacedOperand &to = call.operand(index);
        if (!to.model().isWritten || to.model().kind == Kind::Scratch) {
            continue;
        }
        for (int object = 0; object < to.objects(); ++object) {
            for (int row = 0; row < to.rows(); ++row) {
                for (int column = 0; column < to.columns(); ++column) {
                    results.push_back(to.bits(object, row, column));
                }
            }
        }
    }
    return results;
}

/// Serial and parallel for every export and pattern of the group.
std::vector<ParallelCase> casesFor(const Model &model) {
    if (!model.parallel) {
        std::vector<ParallelCase> cases;
        for (const Shape &shape : model.axes->all) {
            cases.push_back({shape, model.hasCount ? 3 : 1});
        }
        return cases;
    }
    std::vector<ParallelCase> cases = {{model.axes->all.back(), 3}};
    for (const Shape &shape : model.axes->small) {
        // Twice the strided layout's count is above the limits of all layouts.
        const int count = 2 * firstParallelCount(model, shape, true);
        cases.push_back({shape, 3});
        cases.push_back({shape, count});
    }
    return cases;
}

} // namespace

Report checkSameBits(std::span<const Export *const> layouts) {
    Report report;
    const Model &model = layouts.front()->model;
    for (const ParallelCase &at : casesFor(model)) {
        // Sums that depend on it, with touching elements and without.
        std::array<std::optional<std::vector<std::uint64_t>>, 2> firstOf;
        for (const Export *item : layouts) {
            for (int number = 0; number < combinations(); ++number) {
                std::vector<Placement> placements = combination(item->model, number);
                bool isOneToOne = true;
                for (const Placement &placement : placements) {
                    isOneToOne = isOneToOne && placement.pattern->isOneToOne();
                }
                if (!isOneToOne) {
                    continue; // elements that share memory are no longer the same objects
                }
                scatter(placements, number);
                for (const int threads : {1, 3}) {
                    if (report.isFull()) {
                        return report;
                    }
                    report.countCase();
                    setThreadCount(threads);
                    Call call(*item, at.shape, at.count, placements);
                    call.fill(distinctValues(model.type));
                    call.invoke();
                    std::vector<std::uint64_t> results = resultsOf(call);
                    auto &first = firstOf[call.splitsSums()];
                    if (!first) {
                        first = std::move(results);
                    } else if (results != *first) {
                        call.complain("the results differ from those of " + model.name, report);
                    }
                }
            }
        }
    }
    return report;
}

} // namespace lxpm::test
